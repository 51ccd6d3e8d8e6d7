// SPDX-License-Identifier: MIT
#include "render/PrintBlackAs.h"

#include "platform/text/Numbers.h"
#include "services/basCommon.h"

namespace PrintBlackAs {
namespace {

const QString kKey = QStringLiteral("PrintBlackAs");
constexpr int kByte = 0xFF;
constexpr int kDigits = 6;
constexpr int kHexadecimal = 16;

} // namespace

Color Read() {
    const QString text = basCommon::GetIniString(kKey);
    const std::optional<double> value = ParseNumber(text);
    if (!text.isEmpty() && !value) basCommon::TellUnreadableSetting(kKey, text);
    const int number = value ? CLng(*value) : kDefault;
    return Color::Rgb(number >> 16 & kByte, number >> 8 & kByte, number & kByte);
}

bool Write(Color color) {
    const int number = color.Red() << 16 | color.Green() << 8 | color.Blue();
    const QString digits = QStringLiteral("%1").arg(number, kDigits, kHexadecimal, QChar(u'0')).toUpper();
    return basCommon::WriteIniString(kKey, QStringLiteral("&H") + digits);
}

std::optional<Color> Chosen() {
    const Color color = Read();
    return color == Color::FromValue(kDefault) ? std::nullopt : std::optional(color);
}

} // namespace PrintBlackAs
