// SPDX-License-Identifier: MIT
#include "platform/text/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

qint32 ToLong(double whole) {
    if (std::isnan(whole)) return 0;
    if (whole >= double(std::numeric_limits<qint32>::max())) return std::numeric_limits<qint32>::max();
    if (whole <= double(std::numeric_limits<qint32>::min())) return std::numeric_limits<qint32>::min();
    return qint32(whole);
}

std::optional<double> ParseHex(QStringView digits) {
    bool ok = false;
    const quint32 value = digits.toUInt(&ok, 16);
    if (!ok || digits.startsWith(u'+') || digits.startsWith(u'-')) return std::nullopt;
    return double(qint32(value));
}

bool IsDecimalNumber(QStringView text) {
    qsizetype at = 0;
    const auto skipDigits = [&] {
        const qsizetype from = at;
        while (at < text.size() && text[at] >= u'0' && text[at] <= u'9')
            ++at;
        return at - from;
    };
    const auto skipSign = [&] {
        if (at < text.size() && (text[at] == u'+' || text[at] == u'-')) ++at;
    };
    skipSign();
    qsizetype digits = skipDigits();
    if (at < text.size() && text[at] == u'.') {
        ++at;
        digits += skipDigits();
    }
    if (digits == 0) return false;
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        ++at;
        skipSign();
        if (skipDigits() == 0) return false;
    }
    return at == text.size();
}

} // namespace

qint32 CLng(double value) {
    // The rounding mode may be changed by a library, so halves are settled here and not by nearbyint.
    const double down = std::floor(value);
    const double rest = value - down;
    if (rest < 0.5) return ToLong(down);
    if (rest > 0.5) return ToLong(down + 1);
    return ToLong(std::fmod(down, 2.0) == 0.0 ? down : down + 1);
}

qint32 Int(double value) { return ToLong(std::floor(value)); }

QString LeftStr(const QString& text, int count) { return count <= 0 ? QString() : text.left(count); }

QString RightStr(const QString& text, int count) { return count <= 0 ? QString() : text.right(count); }

QString MidStr(const QString& text, int start, int count) { return start < 1 ? QString() : text.mid(start - 1, count); }

std::optional<double> ParseNumber(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(u"&H", Qt::CaseInsensitive)) return ParseHex(QStringView(trimmed).mid(2));
    if (!IsDecimalNumber(trimmed)) return std::nullopt;
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    if (!ok || !std::isfinite(value)) return std::nullopt;
    return value;
}

QString FloatToText(float value) {
    std::array<char, 64> text{};
    const float size = std::abs(value);
    const bool plain = size == 0 || (size >= 1e-4F && size < 1e9F);
    const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(), value,
                                                   plain ? std::chars_format::fixed : std::chars_format::scientific);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

QString WithThousands(qint64 value) {
    QString digits = QString::number(value);
    const int first = value < 0 ? 1 : 0;
    for (qsizetype at = digits.size() - 3; at > first; at -= 3)
        digits.insert(at, u',');
    return digits;
}
