// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"
#include "platform/Printer.h"

#include <QString>

/// What the print console knows about its sheets, by the index of their buttons, and the limits of a job.
/// A kit variant is "2", "2A", "5" or "8"; kits "2" and "2A" are printed on coloured stock.
namespace ConsoleSheets {

constexpr int kButtons = 14;
constexpr int kPrompts = 15;
/// The one index that no paper is asked for.
constexpr int kNoPrompt = 14;
constexpr int kMostCopies = 5;

/// Free bytes below which nothing is printed, and below which no money is. The messages speak of 10 MB and
/// 40 MB; that the first limit is lower than it says is kept on purpose.
constexpr double kLeastFree = 5'000'000;
constexpr double kLeastFreeForMoney = 40'000'000;
constexpr int kMegabytesTold = 10;
constexpr int kMegabytesToldForMoney = 40;

/// Caption of a button with its mnemonic, and its tool tip; empty outside 0 to kButtons - 1.
QString Caption(int iIndex, const QString& sVariant);
QString ToolTip(int iIndex);
/// The caption in plain words.
QString Title(int iIndex, const QString& sVariant);
bool IsShown(int iIndex, const QString& sVariant);
/// Number of the frame that a button stands in.
int FrameOf(int iIndex);
/// Label above the buttons of a frame, 0 to 5.
QString FrameLabel(int iFrame, const QString& sVariant);

/// What to load into the printer before a sheet; indexes 0 to kPrompts - 1.
QString PaperPrompt(int iIndex, const QString& sVariant);
PageOrientation OrientationOf(int iIndex, const QString& sVariant);
bool IsMoney(int iIndex);
/// Index of the money's record.
int MoneyOf(int iIndex);
/// From the text of the box for the number of sheets, 1 to kMostCopies; 1 for a sheet that isn't money.
int Copies(int iIndex, const QString& sNumberOfSheets);

/// The mark behind the caption of a sheet that is done. The question about the paper has no button "OK", so
/// there never is one; kept on purpose.
QString DoneMark(const QString& sAnswer);

QString LittleDiskMessage(double dblFree, int iMegabytes);
/// Inches that a sheet needs on its page.
QSizeF NeededInches(PageOrientation orientation);
bool Holds(const Printer& printer);
/// The question whether to print on a printer that doesn't answer.
QString NoPrinterMessage(const Printer& printer);
/// The question whether to print on a printer whose page doesn't hold the sheet.
QString SmallPageMessage(const Printer& printer);
/// Tells where a PDF file is, and how it has to be printed.
QString PdfMessage(const QString& sPath);
/// "Family - Box Top & Token Stickers" for the game's full path.
QString DocumentName(const QString& sGame, const QString& sTitle);

/// Reads the six sizes of the box labels, so that the settings file holds all of them with their defaults
/// for whoever wants to change them.
void ReadBoxLabelSizes();

/// Paints a sheet other than money on the page without ending the document. False when it is none that this
/// build prints; the reason has then been told. An unknown index ends the program.
bool PrintSheet(SheetJob& job, int iIndex, const QString& sVariant);

} // namespace ConsoleSheets
