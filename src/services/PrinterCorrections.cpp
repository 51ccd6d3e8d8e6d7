// SPDX-License-Identifier: MIT
#include "services/PrinterCorrections.h"

#include "platform/text/Numbers.h"
#include "services/basCommon.h"

#include <QStringList>

#include <array>
#include <cmath>
#include <optional>

namespace PrinterCorrections {
namespace {

constexpr int kNumbers = 4;

// The file's own marks would end the key.
QString KeyOf(const QString& sPrinter, PaperOfPage paper) {
    // The same paper, however the page lies on it.
    if (paper.size.width() > paper.size.height()) paper.size.transpose();
    QString key = QStringLiteral("Correction %1 on %2")
                      .arg(sPrinter.isEmpty() ? QStringLiteral("of PDF files") : sPrinter, paper.Name());
    for (QChar& c : key) {
        if (QStringLiteral("=[];#").contains(c) || c.unicode() < 0x20) c = u'-';
    }
    return key;
}

std::optional<PageCorrection> Read(const QString& sValue) {
    const QStringList words = sValue.split(u',');
    if (words.size() != kNumbers) return std::nullopt;
    std::array<double, kNumbers> numbers{};
    for (int i = 0; i < kNumbers; ++i) {
        const std::optional<double> number = ParseNumber(words[i]);
        if (!number) return std::nullopt;
        numbers.at(size_t(i)) = *number;
    }
    const PageCorrection correction{numbers[0], numbers[1], numbers[2], numbers[3]};
    if (!correction.IsWithinBounds()) return std::nullopt;
    return correction;
}

QString Millimetres(double mm, const char* sPlus, const char* sMinus) {
    constexpr double kSeen = 0.05;
    if (std::abs(mm) < kSeen) return {};
    return QStringLiteral("%1 mm %2").arg(std::abs(mm), 0, 'f', 1).arg(QLatin1String(mm > 0 ? sPlus : sMinus));
}

// The printer's own factor is undone by its inverse.
QString Percent(double factor, const char* sMore, const char* sLess) {
    constexpr double kSeen = 0.05;
    const double percent = (1 / factor - 1) * 100;
    if (std::abs(percent) < kSeen) return {};
    return QStringLiteral("%1 % %2").arg(std::abs(percent), 0, 'f', 1).arg(QLatin1String(percent > 0 ? sMore : sLess));
}

} // namespace

PageCorrection Of(const QString& sPrinter, const PaperOfPage& paper) {
    const QString key = KeyOf(sPrinter, paper);
    const QString value = basCommon::GetIniString(key);
    if (value.isEmpty()) return {};
    const std::optional<PageCorrection> kept = Read(value);
    if (!kept) basCommon::TellUnreadableSetting(key, value);
    return kept.value_or(PageCorrection());
}

CorrectionOfPaper OfPrinter(const QString& sPrinter) {
    return [sPrinter](const PaperOfPage& paper) { return Of(sPrinter, paper); };
}

bool Keep(const QString& sPrinter, const PaperOfPage& paper, const PageCorrection& correction) {
    constexpr int kDigits = 6;
    QStringList numbers;
    for (const double number : {correction.dblRightMm, correction.dblDownMm, correction.dblAcross, correction.dblDown})
        numbers.append(QString::number(number, 'g', kDigits));
    return basCommon::WriteIniString(KeyOf(sPrinter, paper), correction.IsNothing() ? QString() : numbers.join(u','));
}

QString Words(const PageCorrection& correction) {
    QStringList words{
        Millimetres(-correction.dblRightMm, "right", "left"), Millimetres(-correction.dblDownMm, "down", "up"),
        Percent(correction.dblAcross, "wider", "narrower"), Percent(correction.dblDown, "longer", "shorter")};
    words.removeAll(QString());
    if (words.isEmpty() && !correction.IsNothing()) return QStringLiteral("less than 0.1 mm");
    return words.join(QStringLiteral(", "));
}

} // namespace PrinterCorrections
