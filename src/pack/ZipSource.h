// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/BinaryFile.h"

#include <QByteArray>

/// The bytes of an archive, wherever they lie.
class ZipSource {
public:
    ZipSource() = default;
    virtual ~ZipSource() = default;
    ZipSource(const ZipSource&) = delete;
    ZipSource& operator=(const ZipSource&) = delete;

    virtual qint64 Size() const = 0;
    /// So many bytes from a place on; fewer where there are no more, or they can't be read.
    virtual QByteArray At(qint64 from, qint64 count) = 0;
    /// Empty, or why the disk couldn't be read.
    virtual QString WhyUnread() const { return {}; }
};

/// Those of an archive in memory.
class ZipBytes : public ZipSource {
public:
    explicit ZipBytes(const QByteArray& bytes) : m_bytes(bytes) {}
    qint64 Size() const override { return m_bytes.size(); }
    QByteArray At(qint64 from, qint64 count) override { return m_bytes.mid(from, count); }

private:
    QByteArray m_bytes;
};

/// Those of a file, which is read where it is asked for and never held as a whole.
class ZipFile : public ZipSource {
public:
    /// False and a sentence in sError on failure.
    bool Open(const QString& sPath, QString& sError);
    qint64 Size() const override { return m_size; }
    QByteArray At(qint64 from, qint64 count) override;
    QString WhyUnread() const override;

private:
    BinaryFile m_file;
    qint64 m_size = 0;
};
