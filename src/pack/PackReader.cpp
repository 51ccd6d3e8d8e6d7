// SPDX-License-Identifier: MIT
#include "pack/PackReader.h"

#include "document/GameText.h"
#include "pack/GamePictures.h"
#include "pack/PackLimits.h"
#include "pack/PackNames.h"
#include "platform/files/TextFile.h"
#include "services/BoardFacts.h"
#include "services/TavloraError.h"

#include <algorithm>
#include <limits>

namespace {

const QString kGameEnding = QStringLiteral(".gam");
const QString kDamaged = QStringLiteral("a part of it is missing or was changed on its way");
const QString kNoGame = QStringLiteral("it holds no game");

QString WhyUnread(const ZipSource& source) {
    const QString why = source.WhyUnread();
    return why.isEmpty() ? kDamaged : why;
}

// What an entry can be unpacked to at the most, so that a few bytes that claim to be a disk full take no memory.
qint64 LargestOf(const ZipReader::Entry& entry) {
    constexpr qint64 kMostShrunk = 1040;
    constexpr qint64 kSmall = 1 << 16;
    return entry.packedSize > std::numeric_limits<qint64>::max() / kMostShrunk - kSmall
               ? -1
               : entry.packedSize * kMostShrunk + kSmall;
}

bool IsGameEntry(const QString& sName) {
    return sName.endsWith(kGameEnding, Qt::CaseInsensitive) && !sName.contains(u'/');
}

bool IsKitsFace(const GamePictures::Named& named) {
    return named.owner.IsFate() && named.ref.sPath.trimmed() == QLatin1String(BoardFacts::kFatePicture);
}

// A folder of ours and a plain name in it.
bool LiesIn(const QString& sFolder, const QString& sEntry) {
    return sEntry.startsWith(sFolder) && sEntry.count(u'/') == 1 && PackNames::IsSafe(sEntry) && !sEntry.endsWith(u'/');
}

bool IsFont(const QString& sEntry) {
    static const QStringList endings{QStringLiteral(".ttf"), QStringLiteral(".otf"), QStringLiteral(".ttc"),
                                     QStringLiteral(".otc")};
    const auto fits = [&sEntry](const QString& ending) { return sEntry.endsWith(ending, Qt::CaseInsensitive); };
    return LiesIn(PackNames::kFonts, sEntry) && std::any_of(endings.begin(), endings.end(), fits);
}

} // namespace

std::optional<PackReader> PackReader::Open(const QByteArray& bytes, QString& sError) {
    return Open(std::make_shared<ZipBytes>(bytes), sError);
}

std::optional<PackReader> PackReader::OpenFile(const QString& sPath, QString& sError) {
    const auto file = std::make_shared<ZipFile>();
    return file->Open(sPath, sError) ? Open(file, sError) : std::nullopt;
}

std::optional<PackReader> PackReader::Open(std::shared_ptr<ZipSource> source, QString& sError) {
    std::optional<ZipReader> zip = ZipReader::Open(source);
    if (!zip) {
        sError = ::WhyUnread(*source);
        return std::nullopt;
    }
    PackReader reader(std::move(*zip), std::move(source));
    sError = reader.WhyRefused(reader.m_source->Size());
    if (!sError.isEmpty()) return std::nullopt;
    return reader;
}

QString PackReader::WhyUnread() const { return ::WhyUnread(*m_source); }

QString PackReader::WhyRefused(qint64 packedSize) {
    if (m_zip.Entries().size() > PackLimits::kMostEntries)
        return QStringLiteral("it holds far more files than a game has");
    qint64 unpacked = 0;
    bool bLies = false;
    for (const ZipReader::Entry& entry : m_zip.Entries()) {
        if (entry.kind == ZipReader::Kind::Special) return QStringLiteral("it holds something that is no plain file");
        if (!entry.bReadable) return QStringLiteral("it is packed in a way that isn't known");
        bLies = bLies || entry.size > LargestOf(entry);
        // Each on its own, so that the sum can't run over.
        unpacked += std::min(entry.size, PackLimits::kMostUnpacked + 1);
    }
    if (PackLimits::IsTrap(unpacked, packedSize)) return QStringLiteral("unpacked, it would be far too large");
    if (bLies) return kDamaged;
    for (const auto step : {&PackReader::TakeNames, &PackReader::TakeGame, &PackReader::TakePictures}) {
        const QString why = (this->*step)();
        if (!why.isEmpty()) return why;
    }
    return {};
}

QString PackReader::TakeNames() {
    for (qsizetype i = 0; i < m_zip.Entries().size(); ++i) {
        const ZipReader::Entry& entry = m_zip.Entries().at(i);
        if (!PackNames::IsSafe(entry.sName)) return QStringLiteral("it holds a file whose name would lead elsewhere");
        if (entry.kind == ZipReader::Kind::Folder) continue;
        const QString key = PackNames::Key(entry.sName);
        if (m_places.contains(key)) return QStringLiteral("it holds two files of the same name");
        m_places.insert(key, i);
        if (IsGameEntry(entry.sName)) {
            if (!m_gameEntry.isEmpty()) return QStringLiteral("it holds more than one game");
            m_gameEntry = entry.sName;
        }
        if (IsFont(entry.sName)) m_files.append(entry.sName);
    }
    return WhyNoPack();
}

QString PackReader::WhyNoPack() const {
    const auto place = m_places.constFind(PackNames::Key(PackNames::kTypeEntry));
    const bool typed = place != m_places.constEnd() && m_zip.Entries().at(*place).size == PackNames::kType.size();
    if (!typed || m_gameEntry.isEmpty()) return kNoGame;
    const std::optional<QByteArray> type = m_zip.Read(*place);
    if (!type) return WhyUnread();
    return *type == PackNames::kType ? QString() : kNoGame;
}

QString PackReader::TakeGame() {
    const ZipReader::Entry& entry = m_zip.Entries().at(m_places.value(PackNames::Key(m_gameEntry)));
    if (entry.size > PackLimits::kMostOfGame) return QStringLiteral("unpacked, it would be far too large");
    const std::optional<QByteArray> bytes = Read(m_gameEntry);
    if (!bytes) return WhyUnread();
    if (!ReadGameHeader(*bytes).bIsGame) return kNoGame;
    m_name = PackNames::FileName(m_gameEntry.chopped(kGameEnding.size()));
    m_lines = TextFile::SplitLines(TextFile::Decode(*bytes));
    return {};
}

// A name that leads to a picture of whoever opens the game would go out with it when he sends it on.
QString PackReader::TakePictures() try {
    QSet<QString> taken;
    for (const GamePictures::Named& named : GamePictures::Of(m_lines)) {
        if (IsKitsFace(named)) continue;
        const QString& name = named.ref.sPath;
        if (!LiesIn(PackNames::kPictures, name)) return QStringLiteral("its game names a picture that isn't its own");
        const QString key = PackNames::Key(name);
        if (!m_places.contains(key) || taken.contains(key)) continue;
        taken.insert(key);
        m_files.append(name);
    }
    return {};
} catch (const TavloraError&) {
    return QStringLiteral("its game can't be read");
}

QStringList PackReader::Lines(const std::function<QString(const QString& sEntry)>& nameOf, const QString& sGame) const {
    QStringList lines = m_lines;
    GamePictures::PutGameName(lines, sGame);
    for (GamePictures::Named named : GamePictures::Of(m_lines)) {
        if (IsKitsFace(named)) continue;
        named.ref.sPath = nameOf(named.ref.sPath);
        GamePictures::Put(lines, named);
    }
    return lines;
}

std::optional<QByteArray> PackReader::Read(const QString& sEntry) const {
    return m_zip.Read(m_places.value(PackNames::Key(sEntry)));
}

bool PackReader::Read(const QString& sEntry, const ZipReader::Taker& take) const {
    return m_zip.Read(m_places.value(PackNames::Key(sEntry)), take);
}
