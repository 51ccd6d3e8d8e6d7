// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileCharset.h"

#include "platform/pictures/metafile/MetafileObjects.h"

#include <QFontDatabase>
#include <QHash>
#include <QStringDecoder>

#include <array>

namespace {

constexpr quint8 kSymbolCharset = 2;

struct Charset {
    quint8 number;
    const char* encoding;
    /// First bytes from here on may begin a character of two bytes; 0: all have one.
    uchar firstLead;
};

constexpr std::array<Charset, 17> kCharsets = {{
    {0, "windows-1252", 0},
    {1, "windows-1252", 0},
    {77, "macintosh", 0},
    {128, "Shift_JIS", 0x81},
    {129, "windows-949", 0x81},
    {134, "GBK", 0x81},
    {136, "Big5", 0x81},
    {161, "windows-1253", 0},
    {162, "windows-1254", 0},
    {163, "windows-1258", 0},
    {177, "windows-1255", 0},
    {178, "windows-1256", 0},
    {186, "windows-1257", 0},
    {204, "windows-1251", 0},
    {222, "windows-874", 0},
    {238, "windows-1250", 0},
    {255, "IBM437", 0},
}};

// The letters of the typeface Symbol, in the order of its bytes 0x20 to 0x7F and 0xA0 to 0xFF.
constexpr std::array<char16_t, 96> kSymbolLow = {
    0x0020, 0x0021, 0x2200, 0x0023, 0x2203, 0x0025, 0x0026, 0x220B, 0x0028, 0x0029, 0x2217, 0x002B, 0x002C, 0x2212,
    0x002E, 0x002F, 0x0030, 0x0031, 0x0032, 0x0033, 0x0034, 0x0035, 0x0036, 0x0037, 0x0038, 0x0039, 0x003A, 0x003B,
    0x003C, 0x003D, 0x003E, 0x003F, 0x2245, 0x0391, 0x0392, 0x03A7, 0x0394, 0x0395, 0x03A6, 0x0393, 0x0397, 0x0399,
    0x03D1, 0x039A, 0x039B, 0x039C, 0x039D, 0x039F, 0x03A0, 0x0398, 0x03A1, 0x03A3, 0x03A4, 0x03A5, 0x03C2, 0x03A9,
    0x039E, 0x03A8, 0x0396, 0x005B, 0x2234, 0x005D, 0x22A5, 0x005F, 0x203E, 0x03B1, 0x03B2, 0x03C7, 0x03B4, 0x03B5,
    0x03C6, 0x03B3, 0x03B7, 0x03B9, 0x03D5, 0x03BA, 0x03BB, 0x03BC, 0x03BD, 0x03BF, 0x03C0, 0x03B8, 0x03C1, 0x03C3,
    0x03C4, 0x03C5, 0x03D6, 0x03C9, 0x03BE, 0x03C8, 0x03B6, 0x007B, 0x007C, 0x007D, 0x223C, 0x0020};
constexpr std::array<char16_t, 96> kSymbolHigh = {
    0x20AC, 0x03D2, 0x2032, 0x2264, 0x2044, 0x221E, 0x0192, 0x2663, 0x2666, 0x2665, 0x2660, 0x2194, 0x2190, 0x2191,
    0x2192, 0x2193, 0x00B0, 0x00B1, 0x2033, 0x2265, 0x00D7, 0x221D, 0x2202, 0x2022, 0x00F7, 0x2260, 0x2261, 0x2248,
    0x2026, 0x23D0, 0x23AF, 0x21B5, 0x2135, 0x2111, 0x211C, 0x2118, 0x2297, 0x2295, 0x2205, 0x2229, 0x222A, 0x2283,
    0x2287, 0x2284, 0x2282, 0x2286, 0x2208, 0x2209, 0x2220, 0x2207, 0x00AE, 0x00A9, 0x2122, 0x220F, 0x221A, 0x22C5,
    0x00AC, 0x2227, 0x2228, 0x21D4, 0x21D0, 0x21D1, 0x21D2, 0x21D3, 0x25CA, 0x27E8, 0x00AE, 0x00A9, 0x2122, 0x2211,
    0x239B, 0x239C, 0x239D, 0x23A1, 0x23A2, 0x23A3, 0x23A7, 0x23A8, 0x23A9, 0x23AA, 0x0020, 0x27E9, 0x222B, 0x2320,
    0x23AE, 0x2321, 0x239E, 0x239F, 0x23A0, 0x23A4, 0x23A5, 0x23A6, 0x23AB, 0x23AC, 0x23AD, 0x0020};

const Charset& CharsetOf(quint8 number) {
    for (const Charset& charset : kCharsets) {
        if (charset.number == number) return charset;
    }
    return kCharsets.front();
}

bool IsSymbol(const MetafileFont& font) {
    const QByteArray face = font.face.toLower();
    return face == "symbol" || (font.charset == kSymbolCharset && face.isEmpty());
}

QString SymbolLetter(uchar byte) {
    if (byte >= 0xA0) return QString(QChar(kSymbolHigh[byte - 0xA0]));
    if (byte >= 0x20 && byte < 0x80) return QString(QChar(kSymbolLow[byte - 0x20]));
    return {};
}

// In Shift-JIS the bytes from 0xA1 to 0xDF are letters by themselves.
bool IsLead(const Charset& charset, uchar byte) {
    if (charset.firstLead == 0 || byte < charset.firstLead || byte == 0xFF) return false;
    return charset.number != 128 || byte <= 0x9F || byte >= 0xE0;
}

// Installed families by their names in small letters.
const QHash<QString, QString>& Installed() {
    static const QHash<QString, QString> families = [] {
        QHash<QString, QString> byName;
        const QStringList all = QFontDatabase::families();
        for (const QString& family : all)
            byName.insert(family.toLower(), family);
        return byName;
    }();
    return families;
}

} // namespace

QList<MetafileCharset::Character> MetafileCharset::Decode(QByteArrayView bytes, const MetafileFont& font) {
    QList<Character> characters;
    characters.reserve(bytes.size());
    if (IsSymbol(font)) {
        for (const char byte : bytes)
            characters.append({SymbolLetter(uchar(byte)), 1});
        return characters;
    }
    const Charset& charset = CharsetOf(font.charset);
    QStringDecoder decoder(charset.encoding);
    for (qsizetype i = 0; i < bytes.size();) {
        const int length = IsLead(charset, uchar(bytes[i])) && i + 1 < bytes.size() ? 2 : 1;
        const QByteArrayView character = bytes.sliced(i, length);
        // A build of the toolkit without the tables still reads Western text.
        QString text = decoder.isValid() ? QString(decoder(character)) : QString::fromLatin1(character);
        // Control characters have no picture.
        if (text.size() == 1 && text[0] < u' ') text.clear();
        characters.append({std::move(text), length});
        i += length;
    }
    return characters;
}

QString MetafileCharset::FamilyFor(const MetafileFont& font) {
    struct StandIn {
        const char* name;
        const char* family;
    };
    static constexpr std::array<StandIn, 17> kStandIns = {{
        {"arial", "Arial"},
        {"helvetica", "Arial"},
        {"helv", "Arial"},
        {"ms sans serif", "Arial"},
        {"microsoft sans serif", "Arial"},
        {"system", "Arial"},
        {"tahoma", "Arial"},
        {"times new roman", "Times New Roman"},
        {"times", "Times New Roman"},
        {"tms rmn", "Times New Roman"},
        {"ms serif", "Times New Roman"},
        {"symbol", "Times New Roman"},
        {"courier new", "Courier New"},
        {"courier", "Courier New"},
        {"terminal", "Courier New"},
        {"fixedsys", "Courier New"},
        {"lucida console", "Courier New"},
    }};
    const QString wanted = QString::fromLatin1(font.face).trimmed().toLower();
    for (const StandIn& standIn : kStandIns) {
        if (wanted == QLatin1String(standIn.name)) return QLatin1String(standIn.family);
    }
    if (const auto found = Installed().constFind(wanted); found != Installed().constEnd()) return *found;
    constexpr int kFixedPitch = 1;
    constexpr int kRomanFamily = 0x10;
    constexpr int kModernFamily = 0x30;
    const int family = font.pitchAndFamily & 0xF0;
    if (family == kModernFamily || (font.pitchAndFamily & 3) == kFixedPitch) return QStringLiteral("Courier New");
    return family == kRomanFamily ? QStringLiteral("Times New Roman") : QStringLiteral("Arial");
}
