// SPDX-License-Identifier: MIT
#include "render/PrintBlackAs.h"

#include "platform/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"

namespace PrintBlackAs {
namespace {

const QString kKey = QStringLiteral("PrintBlackAs");
constexpr int kColorBits = 0xFFFFFF;
constexpr int kDigits = 6;
constexpr int kHexadecimal = 16;

} // namespace

Color Read() try {
    const QString text = basCommon::GetIniString(kKey);
    const std::optional<double> value = ParseNumber(text);
    if (!text.isEmpty() && !value) basCommon::TellUnreadableSetting(kKey, text);
    return Color::FromValue(value ? CLng(*value) & kColorBits : kDefault);
} catch (...) {
    ErrTail("frmColor!", "Read");
}

void Write(Color color) try {
    const QString digits =
        QStringLiteral("000000") + QString::number(color.Value() & kColorBits, kHexadecimal).toUpper();
    basCommon::WriteIniString(kKey, QStringLiteral("&H") + RightStr(digits, kDigits));
} catch (...) {
    ErrTail("frmColor!", "Write", color);
}

std::optional<Color> Chosen() try {
    const Color color = Read();
    return color == Color::FromValue(kDefault) ? std::nullopt : std::optional(color);
} catch (...) {
    ErrTail("frmColor!", "Chosen");
}

} // namespace PrintBlackAs
