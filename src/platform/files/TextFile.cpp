// SPDX-License-Identifier: MIT
#include "platform/files/TextFile.h"

#include "platform/files/Files.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace TextFile {
namespace {

const QByteArray kMark("\xEF\xBB\xBF");

// What the bytes 0x80 to 0x9F of Windows-1252 stand for; not every build of the toolkit knows the table.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

QChar FromAnsi(uchar byte) {
    return byte >= 0x80 && byte <= 0x9F ? QChar(kUpperControls[byte - 0x80]) : QChar(char16_t(byte));
}

std::optional<char> ToAnsi(QChar c) {
    const char16_t code = c.unicode();
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return char(uchar(code));
    for (size_t i = 0; i < kUpperControls.size(); ++i) {
        if (kUpperControls[i] == code) return char(uchar(0x80 + i));
    }
    return std::nullopt;
}

// The text when the bytes are valid UTF-8 with at least one multi-byte character.
std::optional<QString> AsMultiByteUtf8(const QByteArray& bytes) {
    bool multiByte = false;
    for (const char byte : bytes)
        multiByte = multiByte || uchar(byte) >= 0x80;
    if (!multiByte) return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError()) return std::nullopt;
    return text;
}

} // namespace

QString Decode(const QByteArray& bytes) {
    if (bytes.startsWith(kMark)) return QString::fromUtf8(bytes.mid(kMark.size()));
    if (std::optional<QString> text = AsMultiByteUtf8(bytes)) return *text;
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) { return FromAnsi(uchar(byte)); });
    return text;
}

QByteArray Encode(const QString& sText) {
    QByteArray bytes;
    bytes.reserve(sText.size());
    for (const QChar c : sText) {
        const std::optional<char> byte = ToAnsi(c);
        if (!byte) return kMark + sText.toUtf8();
        bytes.append(*byte);
    }
    if (bytes.startsWith(kMark) || AsMultiByteUtf8(bytes)) return kMark + sText.toUtf8();
    return bytes;
}

QByteArray ToAnsi(const QString& sText) {
    QByteArray bytes;
    bytes.reserve(sText.size());
    for (const QChar c : sText)
        bytes.append(ToAnsi(c).value_or('?'));
    return bytes;
}

QStringList SplitLines(const QString& sText) {
    QStringList lines;
    qsizetype from = 0;
    while (from < sText.size()) {
        const qsizetype end = sText.indexOf(u'\n', from);
        qsizetype stop = end < 0 ? sText.size() : end;
        if (end >= 0 && stop > from && sText[stop - 1] == u'\r') --stop;
        lines.append(sText.mid(from, stop - from));
        if (end < 0) break;
        from = end + 1;
    }
    return lines;
}

QString JoinLines(const QStringList& lines) {
    QString text;
    for (const QString& line : lines)
        text += line + QStringLiteral("\r\n");
    return text;
}

std::optional<QStringList> ReadLines(const QString& sPath, QString& sError) {
    const std::optional<QByteArray> bytes = Files::ReadAll(sPath, sError);
    if (!bytes) return std::nullopt;
    return SplitLines(Decode(*bytes));
}

bool WriteLines(const QString& sPath, const QStringList& lines, QString& sError) {
    return Files::WriteWhole(sPath, Encode(JoinLines(lines)), sError);
}

} // namespace TextFile
