// SPDX-License-Identifier: MIT
#include "pack/PackNames.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace PackNames {

const QString kEnding = QStringLiteral(".tavlora");
const QString kTypeEntry = QStringLiteral("mimetype");
const QByteArray kType = QByteArrayLiteral("application/x-tavlora-packed-game");
const QString kBoardEntry = QStringLiteral("Board.png");
const QString kFontListEntry = QStringLiteral("Fonts.txt");
const QString kPictures = QStringLiteral("Pictures/");
const QString kFonts = QStringLiteral("Fonts/");

namespace {

// Most file systems stop at 255; a number and an ending come to the name.
constexpr qsizetype kMostBytes = 180;
constexpr qsizetype kMostBytesOfPath = 1000;

constexpr std::array kDevices = {"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4",
                                 "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2", "lpt3",
                                 "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

// Some systems know a device by what stands ahead of the first point.
bool IsDevice(const QString& sName) {
    const QString base = sName.section(u'.', 0, 0).trimmed().toLower();
    return std::any_of(kDevices.begin(), kDevices.end(),
                       [&base](const char* device) { return base == QLatin1String(device); });
}

// Those that turn the order of letters make a name look like another.
bool TurnsOrder(QChar c) {
    const char16_t code = c.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

bool IsTaken(QChar c) {
    return c < u' ' || c == QChar(0x7F) || TurnsOrder(c) || QStringLiteral("<>:\"/\\|?*").contains(c);
}

QString Shortened(QString name, qsizetype most) {
    while (name.toUtf8().size() > most)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return name;
}

// Some systems drop points and blanks at the end of a name, and hide what begins with a point.
QString Trimmed(QString name) {
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    while (name.startsWith(u'.') || name.startsWith(u' '))
        name.remove(0, 1);
    return name;
}

// A folder that is called as the autosave is would keep every edit from the disk. Most bitmaps there are thumbnails.
bool IsOneOfOurs(const QString& sName) {
    const QString name = Key(sName);
    const auto begins = [&name](const char* start) { return name.startsWith(QLatin1String(start)); };
    const auto is = [&name](const char* whole) { return name == QLatin1String(whole); };
    return begins("~autosave.") || begins("tavlora.") || name.endsWith(QLatin1String(".bmp")) || is("tavlora") ||
           is("printed") || is("removed") || is("earlier versions");
}

bool IsSafePart(const QString& sPart) {
    return !sPart.isEmpty() && Trimmed(sPart) == sPart && !IsDevice(sPart) &&
           std::none_of(sPart.begin(), sPart.end(), IsTaken) && sPart.toUtf8().size() <= kMostBytes + 20;
}

} // namespace

QString FileName(const QString& sWanted) {
    QString name = sWanted;
    std::replace_if(name.begin(), name.end(), IsTaken, QChar(u'_'));
    name = Trimmed(name);
    // A name that ends in a long word behind a point keeps nothing of it; pictures' endings are short.
    const qsizetype point = name.lastIndexOf(u'.');
    const QString ending = point > 0 && name.size() - point <= 12 ? name.mid(point) : QString();
    name = Trimmed(Shortened(name.chopped(ending.size()), kMostBytes - ending.toUtf8().size())) + ending;
    name = Trimmed(name);
    if (name.isEmpty()) return QStringLiteral("_");
    return IsDevice(name) ? u'_' + name : name;
}

QString FolderName(const QString& sWanted) {
    const QString name = FileName(sWanted);
    return IsOneOfOurs(name) ? u'_' + name : name;
}

QString Key(const QString& sName) { return sName.normalized(QString::NormalizationForm_C).toCaseFolded(); }

QString EntryFor(const QString& sFolder, const QString& sPath, QSet<QString>& taken) {
    const qsizetype slash = std::max(sPath.lastIndexOf(u'/'), sPath.lastIndexOf(u'\\'));
    const QString name = FileName(sPath.mid(slash + 1));
    const qsizetype point = name.lastIndexOf(u'.');
    const QString base = point > 0 ? name.left(point) : name;
    const QString ending = point > 0 ? name.mid(point) : QString();
    QString entry = sFolder + name;
    for (int i = 2; taken.contains(Key(entry)); ++i)
        entry = sFolder + base + u' ' + QString::number(i) + ending;
    taken.insert(Key(entry));
    return entry;
}

bool IsSafe(const QString& sEntry) {
    const QString path = sEntry.endsWith(u'/') ? sEntry.chopped(1) : sEntry;
    const QStringList parts = path.split(u'/');
    return path.toUtf8().size() <= kMostBytesOfPath && std::all_of(parts.begin(), parts.end(), IsSafePart);
}

} // namespace PackNames
