// SPDX-License-Identifier: MIT
// What was read on the sheet, and what it says of the printer.
#include "calibration/CheckPage.h"
#include "platform/text/Numbers.h"

#include <QRegularExpression>

#include <cmath>

namespace CheckPage {
namespace {

// Without I and O, which somebody would take for 1 and 0. N stands in the middle.
const QString kLetters = QStringLiteral("ABCDEFGHJKLMNPQRSTUVWXYZ");
// Numbers left of the middle begin behind those right of it, so that nobody has to see a minus sign.
constexpr int kBeforeLeft = 20;

struct Lines {
    int iNumber = 0;
    int iLetter = 0;
};

std::optional<int> LineOfNumber(int number) {
    const int line = number > kBeforeLeft ? kBeforeLeft - number : number;
    if (line < kFirstNumber || line > kLastNumber) return std::nullopt;
    return line;
}

std::optional<Lines> LinesOf(const QString& sLines, QString& sWhy) {
    static const QRegularExpression pair(
        QStringLiteral(R"(^\s*(?:(\d{1,4})[\s,/-]*([A-Za-z])|([A-Za-z])[\s,/-]*(\d{1,4}))\s*$)"));
    const QRegularExpressionMatch match = pair.match(sLines);
    if (!match.hasMatch()) {
        sWhy = QStringLiteral("Please type the number and the letter of two lines that meet, such as 12 K.");
        return std::nullopt;
    }
    const bool numberFirst = !match.captured(1).isEmpty();
    const int number = match.captured(numberFirst ? 1 : 4).toInt();
    const QString letter = match.captured(numberFirst ? 2 : 3).toUpper();
    const std::optional<int> line = LineOfNumber(number);
    if (!line) {
        sWhy = QStringLiteral("There is no line %1: the numbers are 0 to %2 and %3 to %4.")
                   .arg(number)
                   .arg(kLastNumber)
                   .arg(kBeforeLeft + 1)
                   .arg(kBeforeLeft - kFirstNumber);
        return std::nullopt;
    }
    const qsizetype place = kLetters.indexOf(letter);
    if (place < 0) {
        sWhy = QStringLiteral("There is no line %1: the letters go without I and O. Perhaps it is a J or a Q?")
                   .arg(letter);
        return std::nullopt;
    }
    return Lines{*line, int(place) + kFirstLetter};
}

} // namespace

QString NumberOf(int iLine) { return QString::number(iLine < 0 ? kBeforeLeft - iLine : iLine); }

QString LetterOf(int iLine) { return kLetters.at(iLine - kFirstLetter); }

// The first print moves its numbers one way, the second, as the sheet is turned, its letters the other.
std::optional<double> ShiftMm(const QString& sLines, QString& sWhy) {
    const std::optional<Lines> lines = LinesOf(sLines, sWhy);
    if (!lines) return std::nullopt;
    const double twice = lines->iLetter * (kPitchMm - kStepMm) - lines->iNumber * kPitchMm;
    constexpr double kRounding = 1e-6;
    if (std::abs(twice) <= 2 * kMostShiftMm + kRounding) return twice / 2;
    sWhy = QStringLiteral("%1 would be more than %2 mm out of place. Please look for the lines that meet once more.")
               .arg(sLines.trimmed())
               .arg(kMostShiftMm);
    return std::nullopt;
}

std::optional<double> Stretch(const QString& sMillimetres, double dblRulerMm, QString& sWhy) {
    QString text = sMillimetres.trimmed().toLower();
    if (text.endsWith(QStringLiteral("mm"))) text.chop(2);
    text.replace(u',', u'.');
    const std::optional<double> mm = ParseNumber(text);
    if (!mm) {
        sWhy = QStringLiteral("Please type how many millimeters the line measures, such as 199.5.");
        return std::nullopt;
    }
    // A centimetre off in 200 mm is no printer, but a page that was made to fit.
    constexpr double kMostOff = 0.05;
    if (std::abs(*mm - dblRulerMm) <= kMostOff * dblRulerMm) return *mm / dblRulerMm;
    sWhy =
        QStringLiteral("The line should be near %1 mm long, and %2 is far from it. Please measure in millimeters, and "
                       "print at actual size (100 %), never \"fit to page\".")
            .arg(dblRulerMm)
            .arg(sMillimetres.trimmed());
    return std::nullopt;
}

std::optional<PageCorrection> Understand(const Reading& reading, QSizeF rulersMm, QStringList& why) {
    const auto told = [&why](const char* sWhat, const std::optional<double>& value, const QString& sWhy) {
        if (!value) why.append(QLatin1String(sWhat) + QStringLiteral(": ") + sWhy);
        return value;
    };
    QString text;
    const auto right = told("Sideways", ShiftMm(reading.sSideways, text), text);
    const auto down = told("Up and down", ShiftMm(reading.sUpAndDown, text), text);
    const auto across = told("Line across", Stretch(reading.sAcross, rulersMm.width(), text), text);
    const auto along = told("Line down", Stretch(reading.sDown, rulersMm.height(), text), text);
    if (!right || !down || !across || !along) return std::nullopt;
    // The scales themselves came out larger or smaller by as much.
    return PageCorrection{
        .dblRightMm = *right * *across, .dblDownMm = *down * *along, .dblAcross = *across, .dblDown = *along};
}

} // namespace CheckPage
