// SPDX-License-Identifier: MIT
#pragma once

#include "kit/Sheets.h"

#include <QString>

#include <span>

/// What the print window knows without a window: its frames, the limits of a job and what it says.
namespace ConsoleSheets {

/// A frame of the window.
struct FrameWords {
    /// Of the button that opens it.
    const char* sButton;
    const char* sCaption;
    /// Above its buttons, and the same for kits on coloured stock.
    const char* sLabel;
    const char* sColouredLabel = nullptr;
};

/// In the order of Frame.
std::span<const FrameWords> Frames();
QString FrameLabel(Frame frame, Kit kit);

constexpr int kMostCopies = 5;

/// Free bytes below which nothing is printed, and below which no money is. The messages speak of 10 MB and
/// 40 MB; that the first limit is lower than it says is kept on purpose.
constexpr double kLeastFree = 5'000'000;
constexpr double kLeastFreeForMoney = 40'000'000;
constexpr int kMegabytesTold = 10;
constexpr int kMegabytesToldForMoney = 40;

/// What stands behind a button. An index that none has ends the program.
const Sheet& SheetOf(int iButton);
/// From the text of the box for the number of sheets, 1 to kMostCopies; 1 for a sheet that isn't money.
int Copies(const Sheet& sheet, const QString& sNumberOfSheets);
/// Why the window doesn't print a sheet for a kit; empty when it does.
QString WhyNotPrinted(const Sheet& sheet, Kit kit);

/// The mark behind the caption of a sheet that is done. The question about the paper has no button "OK", so
/// there never is one; kept on purpose.
QString DoneMark(const QString& sAnswer);

QString LittleDiskMessage(double dblFree, int iMegabytes);
/// The question whether to print on a printer that doesn't answer.
QString NoPrinterMessage(const Printer& printer);
/// The question whether to print on a printer whose page, in the orientation that holds, doesn't hold the sheet; empty
/// when it does.
QString SmallPageMessage(const Printer& printer, const Sheet& sheet, Kit kit);
/// Of a printer that has taken pages and doesn't print them, and why.
QString TroubleMessage(const Printer& printer, const QString& sTrouble);
/// Where the PDF file of a sheet is, on what it has to be printed, how, and how often.
QString PdfMessage(const QString& sPath, const Sheet& sheet, Kit kit);
/// What a sheet lacks: its first pieces, a line each, and how many more there are.
QString LackingMessage(const QStringList& lacking);
/// The paper that the user chose, kept in the settings; anything else there is the usual one.
PaperChoice PaperInUse();
void KeepPaper(PaperChoice choice);
/// Where PDF files of sheets go.
QString PrintedFolder();
/// "Family - Box Top & Token Stickers" for the game's full path.
QString DocumentName(const QString& sGame, const QString& sTitle);

/// Reads the six sizes of the box labels, so that the settings file holds all of them with their defaults
/// for whoever wants to change them.
void ReadBoxLabelSizes();

} // namespace ConsoleSheets
