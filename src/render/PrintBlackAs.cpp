// SPDX-License-Identifier: MIT
#include "render/PrintBlackAs.h"

#include "platform/text/Numbers.h"
#include "services/basCommon.h"

namespace PrintBlackAs {
namespace {

const QString kKey = QStringLiteral("PrintBlackAs");
constexpr int kColorBits = 0xFFFFFF;
constexpr int kDigits = 6;
constexpr int kHexadecimal = 16;

} // namespace

Color Read() {
    const QString text = basCommon::GetIniString(kKey);
    const std::optional<double> value = ParseNumber(text);
    if (!text.isEmpty() && !value) basCommon::TellUnreadableSetting(kKey, text);
    return Color::FromValue(value ? CLng(*value) & kColorBits : kDefault);
}

void Write(Color color) {
    const QString digits =
        QStringLiteral("000000") + QString::number(color.Value() & kColorBits, kHexadecimal).toUpper();
    basCommon::WriteIniString(kKey, QStringLiteral("&H") + RightStr(digits, kDigits));
}

std::optional<Color> Chosen() {
    const Color color = Read();
    return color == Color::FromValue(kDefault) ? std::nullopt : std::optional(color);
}

} // namespace PrintBlackAs
