// SPDX-License-Identifier: MIT
#include "platform/paint/FontHead.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

// No font needs more; what claims to is damaged.
constexpr int kMostFonts = 64;
constexpr int kMostTables = 256;
constexpr int kMostNames = 4096;
constexpr qint64 kMostOfTable = 1 << 20;

// The numbers of names.
enum NameId { kFamily = 1, kLicence = 13, kLicenceAddress = 14, kSeries = 16 };

// Words by which licences that let everybody pass a font on are known. All fonts that come with a free desktop name one
// of them.
constexpr std::array kFreeLicences = {"open font licen",
                                      "scripts.sil.org/ofl",
                                      "openfontlicense.org",
                                      "liberationfontlicense",
                                      "apache license",
                                      "apache.org/licenses",
                                      "gnu general public",
                                      "gnu.org/licenses",
                                      "gnu.org/copyleft",
                                      "gnu affero",
                                      "ubuntu font licen",
                                      "bitstream vera",
                                      "dejavu.sourceforge.net",
                                      "gust font licen",
                                      "creativecommons.org/publicdomain"};

int U16(const QByteArray& bytes, qint64 at) {
    return at + 2 <= bytes.size() ? qFromBigEndian<quint16>(bytes.constData() + at) : 0;
}
qint64 U32(const QByteArray& bytes, qint64 at) {
    return at + 4 <= bytes.size() ? qFromBigEndian<quint32>(bytes.constData() + at) : 0;
}

bool IsFreeLicence(const QString& sText) {
    const QString text = sText.toLower();
    return std::any_of(kFreeLicences.begin(), kFreeLicences.end(),
                       [&text](const char* words) { return text.contains(QLatin1String(words)); });
}

// One font of the file, which begins at a place.
class FontReader {
public:
    FontReader(const FontHead::Source& source, qint64 place) : m_source(source), m_place(place) {}

    bool Read(FontHead& head) {
        constexpr int kHead = 12;
        constexpr int kEntry = 16;
        const QByteArray start = m_source(m_place, kHead);
        const QByteArray kind = start.left(4);
        if (kind != QByteArray("\0\1\0\0", 4) && kind != "OTTO" && kind != "true") return false;
        m_tables = m_source(m_place + kHead, qint64(kEntry) * std::min(U16(start, 4), kMostTables));
        head.bInstallable = ReadInstallable();
        ReadNames(Table("name"), head);
        return !head.families.isEmpty();
    }

private:
    QByteArray Table(const char* tag) const {
        constexpr int kEntry = 16;
        for (qint64 at = 0; at + kEntry <= m_tables.size(); at += kEntry) {
            if (m_tables.mid(at, 4) == tag)
                return m_source(U32(m_tables, at + 8), std::min(U32(m_tables, at + 12), kMostOfTable));
        }
        return {};
    }

    // A font without the table says nothing, and that is no permission.
    bool ReadInstallable() const {
        constexpr int kBits = 8;
        constexpr int kForbidding = 0x020E;
        const QByteArray table = Table("OS/2");
        return table.size() >= kBits + 2 && (U16(table, kBits) & kForbidding) == 0;
    }

    static QString Text(const QByteArray& table, qint64 record, qint64 texts) {
        constexpr int kMacintosh = 1;
        const QByteArray bytes = table.mid(texts + U16(table, record + 10), U16(table, record + 8));
        if (U16(table, record) == kMacintosh) return QString::fromLatin1(bytes);
        QString text;
        for (qint64 i = 0; i + 1 < bytes.size(); i += 2)
            text.append(QChar(char16_t(U16(bytes, i))));
        return text;
    }

    static void ReadNames(const QByteArray& table, FontHead& head) {
        constexpr int kRecord = 12;
        const qint64 texts = U16(table, 4);
        const int count = std::min(U16(table, 2), kMostNames);
        for (int i = 0; i < count; ++i) {
            const qint64 record = 6 + qint64(i) * kRecord;
            if (record + kRecord > table.size()) return;
            TakeName(U16(table, record + 6), Text(table, record, texts), head);
        }
    }

    static void TakeName(int id, const QString& text, FontHead& head) {
        if (text.isEmpty()) return;
        if (id == kFamily && !head.families.contains(text)) head.families.append(text);
        if (id == kSeries && !head.series.contains(text)) head.series.append(text);
        if (id == kLicence || id == kLicenceAddress) head.bFreeLicence = head.bFreeLicence || IsFreeLicence(text);
    }

    const FontHead::Source& m_source;
    qint64 m_place;
    QByteArray m_tables;
};

QList<qint64> PlacesOfFonts(const FontHead::Source& source) {
    constexpr int kHead = 12;
    const QByteArray start = source(0, kHead);
    if (!start.startsWith("ttcf")) return {0};
    const qint64 count = std::min<qint64>(U32(start, 8), kMostFonts);
    const QByteArray places = source(kHead, count * 4);
    QList<qint64> found;
    for (qint64 i = 0; i < places.size() / 4; ++i)
        found.append(U32(places, i * 4));
    return found;
}

void Add(QStringList& names, const QStringList& more) {
    for (const QString& name : more) {
        if (!names.contains(name)) names.append(name);
    }
}

} // namespace

std::optional<FontHead> FontHead::Read(const Source& source) {
    std::optional<FontHead> all;
    for (const qint64 place : PlacesOfFonts(source)) {
        FontHead head;
        if (!FontReader(source, place).Read(head)) return std::nullopt;
        if (!all) {
            all = head;
            continue;
        }
        Add(all->families, head.families);
        Add(all->series, head.series);
        all->bInstallable = all->bInstallable && head.bInstallable;
        all->bFreeLicence = all->bFreeLicence && head.bFreeLicence;
    }
    return all;
}
