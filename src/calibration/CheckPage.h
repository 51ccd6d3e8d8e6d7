// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/PageCorrection.h"

#include <QString>
#include <QStringList>

#include <optional>

class Printer;

/// The page that shows what a printer does to its pages. It is printed, the sheet turned round, and the page printed on
/// it once more: two scales then lie against each other, and where a line of one goes straight on in a line of the
/// other, the sheet shows twice the way that its middle was moved. How large the printer prints is read with a ruler.
namespace CheckPage {

/// Millimetres that a page may be moved either way.
constexpr double kMostShiftMm = 8;
/// Between two lines of the long scale; those of the other stand closer by kStepMm, which is what can be read.
constexpr double kPitchMm = 2.4;
constexpr double kStepMm = 0.1;
/// A line that is measured; the shorter one where a printer's margins leave no room for the other.
constexpr double kRulerMm = 200;
constexpr double kShortRulerMm = 180;

/// From the next page on the printer's paper lies as the page wants it.
void LayOn(Printer& printer);

/// Paints it for the paper that the printer's next page goes on, upright; doesn't end the document. sSmall stands
/// below its head in small letters.
void Paint(Printer& printer, const QString& sSmall);

/// How long the lines are that run across this paper and down.
QSizeF RulersMm(const PaperOfPage& paper);

/// The lines of the long scale are named by numbers, those of the other by letters, and no two alike. Both stand at 0
/// for a printer that prints in its place.
/// From the zeroth at the middle; negative ones lie left of it or above.
QString NumberOf(int iLine);
QString LetterOf(int iLine);
constexpr int kFirstNumber = -18;
constexpr int kLastNumber = 17;
constexpr int kFirstLetter = -12;
constexpr int kLastLetter = 11;

/// What somebody read on the sheet, as it was typed.
struct Reading {
    /// Names of two lines that meet, on the scales of both ways: "12 K".
    QString sSideways;
    QString sUpAndDown;
    /// Millimetres.
    QString sAcross;
    QString sDown;
};

/// How far to the right or down the middle was moved, in millimetres, by two lines that meet. Nothing, and a sentence
/// in sWhy, for what can't be read.
std::optional<double> ShiftMm(const QString& sLines, QString& sWhy);
/// How long a line of dblRulerMm came out, as a factor; in the same way.
std::optional<double> Stretch(const QString& sMillimetres, double dblRulerMm, QString& sWhy);

/// What the printer did to the page. Nothing, and a sentence for each fault in why, otherwise.
std::optional<PageCorrection> Understand(const Reading& reading, QSizeF rulersMm, QStringList& why);

} // namespace CheckPage
