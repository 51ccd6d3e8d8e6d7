// SPDX-License-Identifier: MIT
#include "windows/checkpage/CheckPrinter.h"

#include "kit/ConsoleSheets.h"
#include "platform/printing/Printer.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "services/PrinterCorrections.h"
#include "windowing/basCommon_forms.h"
#include "windowing/OpenPath.h"
#include "windows/print/PageUnderWay.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const QString kTitle = QStringLiteral("Printer Check");

} // namespace

Printer& CheckPrinter::ThePrinter() {
    basErrLog::ErrAssert(Printer::Current() != nullptr, QStringLiteral("There is no printer"));
    Printer& printer = *Printer::Current();
    CheckPage::LayOn(printer);
    return printer;
}

PaperOfPage CheckPrinter::Paper() { return ThePrinter().PagePaper(); }

PageCorrection CheckPrinter::InForce() { return PrinterCorrections::Of(ThePrinter().DeviceName(), Paper()); }

void CheckPrinter::ShowForm() try {
    ThePrinter().ChoosePaper(ConsoleSheets::PaperInUse());
    m_pdf.clear();
    m_open->hide();
    ForgetReading();
    ShowPrinter();
    m_print->setFocus();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
} catch (...) {
    ErrTail("CheckPrinter!", "ShowForm");
}

// Who has no ruler leaves the lines as long as they should be.
void CheckPrinter::ForgetReading() {
    const QSizeF rulers = CheckPage::RulersMm(Paper());
    m_sideways->clear();
    m_upAndDown->clear();
    m_across->setText(QString::number(rulers.width()));
    m_down->setText(QString::number(rulers.height()));
}

void CheckPrinter::ShowPrinter() {
    const QString device = ThePrinter().DeviceName();
    const QString where =
        device.isEmpty() ? QStringLiteral("No printer is set up: the page becomes a PDF file. Print that at actual "
                                          "size (100 %), never \"fit to page\". Paper: ")
                         : QStringLiteral("Printer: %1. Paper: ").arg(device);
    m_printer->setText(where + Paper().Name() + u'.');
    m_print->setText(device.isEmpty() ? QStringLiteral("Make the &Page") : QStringLiteral("Print the &Page"));
    const PageCorrection inForce = InForce();
    m_inForce->setText(inForce.IsNothing() ? QStringLiteral("Sheets for it are not corrected.")
                                           : QStringLiteral("Sheets for it are corrected: ") +
                                                 PrinterCorrections::Words(inForce) + u'.');
    m_clear->setEnabled(!inForce.IsNothing());
}

void CheckPrinter::cmdPrint_Click() try {
    const Printer& printer = ThePrinter();
    if (!printer.IsThere() && MsgBox(ConsoleSheets::NoPrinterMessage(printer), vbOKCancel | vbExclamation) != vbOK)
        return;
    Print();
} catch (...) {
    ErrTop("CheckPrinter!", "cmdPrint_Click");
}

void CheckPrinter::Print() {
    Printer& printer = ThePrinter();
    {
        const PageUnderWay page(*this, printer, TellInPrint);
        printer.SetDocumentName(kTitle);
        printer.SetPageName(kTitle);
        CheckPage::Paint(printer, m_printer->text() + u' ' + m_inForce->text());
        printer.EndDoc();
    }
    if (const QString error = printer.LastError(); !error.isEmpty()) {
        MsgBox(QStringLiteral("The page could not be printed.\r\n\r\n") + error, vbExclamation);
        return;
    }
    m_pdf = printer.LastPdf();
    m_open->setVisible(!m_pdf.isEmpty());
    m_told->setText(m_pdf.isEmpty() ? QStringLiteral("The page is on its way. Turn the sheet round and print it again.")
                                    : QStringLiteral("The page is in the file %1. Print it twice on one sheet, which "
                                                     "you turn round in between.")
                                          .arg(m_pdf));
}

void CheckPrinter::cmdOpen_Click() try { OpenOrTell(m_pdf); } catch (...) {
    ErrTop("CheckPrinter!", "cmdOpen_Click");
}

CheckPage::Reading CheckPrinter::WhatWasTyped() const {
    return {.sSideways = m_sideways->text(),
            .sUpAndDown = m_upAndDown->text(),
            .sAcross = m_across->text(),
            .sDown = m_down->text()};
}

// While it is typed: what it says, or what can't be right, but nothing yet of what is still to come.
void CheckPrinter::ShowWhatIsRead() try {
    const CheckPage::Reading typed = WhatWasTyped();
    if (typed.sSideways.trimmed().isEmpty() || typed.sUpAndDown.trimmed().isEmpty()) return m_told->clear();
    QStringList why;
    const auto found = CheckPage::Understand(typed, CheckPage::RulersMm(Paper()), why);
    if (!found) return m_told->setText(why.join(u'\n'));
    const QString words = PrinterCorrections::Words(*found);
    m_told->setText(words.isEmpty() ? QStringLiteral("The page came out in its place: there is nothing to correct.")
                                    : QStringLiteral("\"Correct\" moves and scales every sheet: ") + words + u'.');
} catch (...) {
    ErrTop("CheckPrinter!", "ShowWhatIsRead");
}

void CheckPrinter::cmdCorrect_Click() try {
    QStringList why;
    const auto found = CheckPage::Understand(WhatWasTyped(), CheckPage::RulersMm(Paper()), why);
    if (!found) {
        m_told->setText(why.join(u'\n'));
        MsgBox(why.join(QStringLiteral("\r\n\r\n")), vbInformation);
        return;
    }
    // The page on the sheet was corrected already by what is in force.
    const PageCorrection undone = InForce().Then(*found);
    if (!undone.IsWithinBounds()) {
        MsgBox(
            QStringLiteral("Together with the correction that is in use, this would move or scale the sheets further "
                           "than any printer is off. Please clear the correction, and print the page anew."),
            vbExclamation);
        return;
    }
    if (!PrinterCorrections::Keep(ThePrinter().DeviceName(), Paper(), undone)) {
        MsgBox(QStringLiteral("The correction could not be kept: the disk is full, or My Games can't be written to. "
                              "Sheets come out as before. What you typed stays here, so that you can click "
                              "\"Correct\" again."),
               vbExclamation);
        return;
    }
    ForgetReading();
    ShowPrinter();
    m_told->setText(QStringLiteral("Done. To be sure, print the page twice on a new sheet: both scales now read 0 N."));
} catch (...) {
    ErrTop("CheckPrinter!", "cmdCorrect_Click");
}

void CheckPrinter::cmdClear_Click() try {
    if (!PrinterCorrections::Keep(ThePrinter().DeviceName(), Paper(), {})) {
        MsgBox(QStringLiteral("The correction could not be cleared: the disk is full, or My Games can't be written to. "
                              "Sheets are corrected as before."),
               vbExclamation);
        return;
    }
    ForgetReading();
    ShowPrinter();
    m_told->setText(QStringLiteral("The correction is cleared. What was read on an earlier page no longer holds."));
    m_print->setFocus();
} catch (...) {
    ErrTop("CheckPrinter!", "cmdClear_Click");
}
