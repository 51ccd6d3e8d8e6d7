// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/PicturePrinter.h"

#include <QList>
#include <QStringList>

#include <utility>

/// A printer in force while it lives that remembers what became of its documents.
class TestPrinter : public PicturePrinter {
public:
    static constexpr int kDpi = 60;

    TestPrinter() : PicturePrinter(kDpi), m_before(Install(this)) {}
    ~TestPrinter() override { Install(m_before); }

    DeviceContext& hDC() override {
        if (!m_open) orientations.append(Orientation());
        m_open = true;
        return PicturePrinter::hDC();
    }
    void EndDoc() override {
        const bool painted = std::exchange(m_open, true);
        PicturePrinter::EndDoc();
        ended.append(name);
        if (!painted) ++empty;
        m_open = false;
    }
    void KillDoc() override {
        if (m_open) ++killed;
        m_open = false;
        PicturePrinter::KillDoc();
    }
    QSizeF PrintableInches() const override {
        return printable.isEmpty() ? PicturePrinter::PrintableInches() : printable;
    }
    void SetDocumentName(const QString& sName) override { name = sName; }
    QString DeviceName() const override { return device; }
    bool IsThere() const override { return there; }
    QString Trouble() const override { return trouble; }
    QString LastPdf() const override { return pdf; }
    QString LastError() const override { return error; }

    /// What it tells.
    QString device = QStringLiteral("Laser");
    bool there = true;
    QString trouble;
    QString pdf;
    QString error;
    QSizeF printable;
    /// Names of the documents ended, and how many were thrown away with something on them.
    QStringList ended;
    int killed = 0;
    /// How many were ended without anything on them.
    int empty = 0;
    /// Of each document that something was painted on.
    QList<PageOrientation> orientations;

    QString name;

private:
    Printer* m_before;
    bool m_open = false;
};
