// SPDX-License-Identifier: MIT
#include "kit/ConsoleSheets.h"

#include "platform/text/Numbers.h"
#include "services/basCommon.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ConsoleSheets {
namespace {

constexpr double kBytesPerMegabyte = 1'048'576;

constexpr FrameWords kFrames[] = {
    {"Printer &Main Menu", "What would you like to print?",
     "Please select the part of the game you would like to print:"},
    {"Game &Board, Box && Tokens", "Which sheet would you like to print?", " Click below to print a label sheet:"},
    {"&Title Deed Cards", "Which title sheet would you like to print?",
     "Select the sheet of cards you would like to print:", "Click to Print Deed Card Label Sheet."},
    {"&Good News or Bad News Cards", "Which News Cards  would you like to print?",
     "Select the sheet of cards\nyou would like to print."},
    {"Mone&y", "What currency amount would you like to print?",
     "Please select the currency\nyou would like to print.\nClick again for additional sheets."},
    {"&Instruction Sheet", "Would you like to print the game rules?",
     "Click the button below\nto print instructions for playing the game"},
};

constexpr std::array<const char*, 2> kBoxLabels[] = {
    {"BoxTopTitle", "4.78x0.78"},   {"BoxTop2ndSubtitle", "4.46x0.195"}, {"BoxSideTitle", "3.337x0.66"},
    {"BoxSide2ndSub", "1.74x0.53"}, {"BoxTopSubTitleRed", "5.91x0.36"},  {"BoxTop2ndSubTitleRed", "1.83x0.59"},
};

const QString kPaperKey = QStringLiteral("Paper");
struct PaperWord {
    PaperChoice choice;
    const char* sWord;
};
constexpr PaperWord kPapers[] = {
    {PaperChoice::Usual, "Usual"}, {PaperChoice::Letter, "Letter"}, {PaperChoice::A4, "A4"}};

QString Inches(double value) { return QString::number(value, 'f', 2); }
QString Inches(QSizeF size) { return Inches(size.width()) + QStringLiteral(" by ") + Inches(size.height()); }

} // namespace

std::span<const FrameWords> Frames() { return kFrames; }

QString FrameLabel(Frame frame, Kit kit) {
    const FrameWords& words = kFrames[size_t(frame)];
    const bool coloured = words.sColouredLabel && OnColouredStock(kit);
    return QString::fromLatin1(coloured ? words.sColouredLabel : words.sLabel);
}

const Sheet& SheetOf(int iButton) {
    const Sheet* const sheet = FindButton(iButton);
    basCommon::Assert(sheet, QStringLiteral("Unexpected Index"), QStringLiteral("frmTavlPrint!cmdPrint_Click"));
    return *sheet;
}

int Copies(const Sheet& sheet, const QString& sNumberOfSheets) {
    if (!sheet.bMoney) return 1;
    return std::clamp(CLng(ParseNumber(sNumberOfSheets).value_or(0)), 1, kMostCopies);
}

QString WhyNotPrinted(const Sheet& sheet, Kit kit) {
    if (sheet.otherKits == OtherKits::LeftOutOrNameless && kit == Kit::Unknown)
        return QStringLiteral("This program only prints if the EXE name is set to 'Tavlora2.exe' or 'Tavlora2a.exe' or "
                              "'Tavlora4.exe'");
    return sheet.WhyLeftOut(kit);
}

QString DoneMark(const QString& sAnswer) {
    return sAnswer == QStringLiteral("OK") ? QStringLiteral(" (DONE)") : QString();
}

QString LittleDiskMessage(double dblFree, int iMegabytes) {
    const QString megabytes = QString::number(qint64(std::trunc(dblFree / kBytesPerMegabyte)));
    return QStringLiteral("You have only ") + megabytes +
           QStringLiteral(" megabytes of free disk space on drive 'C'.\r\nYou must have at least ") +
           QString::number(iMegabytes) +
           QStringLiteral(" MB free disk space to print Tavlora.\r\nPlease free up some disk space and try again.");
}

QString NoPrinterMessage(const Printer& printer) {
    return QStringLiteral("The printer '%1' doesn't answer. Please see that it is switched on and connected, then "
                          "print again.\r\n\r\nClick 'OK' to print nevertheless.")
        .arg(printer.DeviceName());
}

QString SmallPageMessage(const Printer& printer, const Sheet& sheet, Kit kit) {
    const QString lost = sheet.WhatIsLostOn(printer.PrintableInches(), kit);
    if (lost.isEmpty()) return {};
    return QStringLiteral("The printer '%1' prints on only %2 inches of its paper. %3\r\n\r\n'Change Printer' chooses "
                          "other paper, smaller margins or another printer: click 'Cancel' for that, or 'OK' to print "
                          "nevertheless.")
        .arg(printer.DeviceName(), Inches(printer.PrintableInches()), lost);
}

QString TroubleMessage(const Printer& printer, const QString& sTrouble) {
    return QStringLiteral("The printer '%1' doesn't print. %2\r\n\r\nWhat was sent to it waits there, and comes out "
                          "once that is mended.")
        .arg(printer.DeviceName(), sTrouble);
}

QString PdfMessage(const QString& sPath, const Sheet& sheet, Kit kit) {
    const QString stock = sheet.Stock(kit);
    const QString message =
        QStringLiteral("This sheet is now in the file\r\n\r\n%1\r\n\r\nPrint it %2at actual size (100 %), never "
                       "\"fit to page\": only then the pieces have their right size.")
            .arg(sPath, stock.isEmpty() ? QString() : QStringLiteral("on %1, ").arg(stock));
    if (sheet.iSheetsForSix <= 1) return message;
    return message + QStringLiteral("\r\n\r\nSix players need %1 sheets of it: print the file as often.")
                         .arg(sheet.iSheetsForSix);
}

QString LackingMessage(const QStringList& lacking) {
    constexpr qsizetype kMost = 3;
    QStringList lines = lacking.mid(0, kMost);
    if (lacking.size() > kMost) lines.append(QStringLiteral("and %1 more.").arg(lacking.size() - kMost));
    return lines.join(QStringLiteral("\r\n"));
}

PaperChoice PaperInUse() {
    const QString kept = basCommon::GetIniString(kPaperKey);
    for (const PaperWord& paper : kPapers) {
        if (kept.compare(QString::fromLatin1(paper.sWord), Qt::CaseInsensitive) == 0) return paper.choice;
    }
    return PaperChoice::Usual;
}

void KeepPaper(PaperChoice choice) {
    for (const PaperWord& paper : kPapers) {
        if (paper.choice == choice) basCommon::WriteIniString(kPaperKey, QString::fromLatin1(paper.sWord));
    }
}

QString PrintedFolder() { return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Printed")); }

QString DocumentName(const QString& sGame, const QString& sTitle) {
    QString drive;
    QString dir;
    QString base;
    QString ext;
    basCommon::FileNameFactor(sGame, drive, dir, base, ext);
    return base + QStringLiteral(" - ") + sTitle;
}

void ReadBoxLabelSizes() {
    for (const auto& label : kBoxLabels)
        basCommon::GetIniStringWithDefault(QString::fromLatin1(label[0]), QString::fromLatin1(label[1]));
}

} // namespace ConsoleSheets
