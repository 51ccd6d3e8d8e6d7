// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QStringList>

/// Passes a PDF file on to another device and names its pages behind it, which the toolkit's writer has no word for:
/// readers then show the names beside the pages and in a list of contents.
class NamedPdf : public QIODevice {
public:
    /// The device is open for writing and lives longer.
    explicit NamedPdf(QIODevice& to);

    /// Behind what was written, once that is a whole file: the names of its pages, in order. A file whose end isn't
    /// understood is left as it is, without names.
    void NamePages(const QStringList& names);
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 length) override;

private:
    /// What is written first and last, as much as the names need to know.
    QByteArray m_head;
    QByteArray m_tail;
    qint64 m_written = 0;
    QIODevice& m_to;
};
