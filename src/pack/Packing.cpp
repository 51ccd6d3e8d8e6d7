// SPDX-License-Identifier: MIT
#include "pack/Packing.h"

#include "pack/PackLimits.h"
#include "pack/PackNames.h"
#include "pack/ZipWriter.h"
#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/files/TextFile.h"
#include "platform/pictures/PictureFormat.h"
#include "services/BoardFacts.h"
#include "services/Kit.h"

#include <QHash>

#include <algorithm>

namespace Packing {
namespace {

using Method = ZipWriter::Method;

const QString kGameEnding = QStringLiteral(".gam");

QString BaseName(const QString& sGame) {
    QString name = sGame.mid(std::max(sGame.lastIndexOf(u'/'), sGame.lastIndexOf(u'\\')) + 1);
    if (name.endsWith(kGameEnding, Qt::CaseInsensitive)) name.chop(kGameEnding.size());
    return PackNames::FileName(name);
}

/// Takes the pictures of a game one by one.
class Gathering {
public:
    Gathering(Contents& contents, const PicturePlaces::Finder& find) : m_contents(contents), m_find(find) {}

    void Take(GamePictures::Named named) {
        // The kit's own face is on every computer, and what the game names in its place may be anything.
        const bool fate = ReadsFateItself(KitInUse()) && named.owner.IsFate();
        named.ref.sPath = fate ? QString::fromLatin1(BoardFacts::kFatePicture) : EntryOf(named);
        GamePictures::Put(m_contents.lines, named);
    }

private:
    QString EntryOf(const GamePictures::Named& named) {
        const QString path = m_find(named.ref.sPath, named.owner);
        const bool there = Files::Exists(path);
        const auto known = m_entries.constFind(path);
        const QString entry =
            known == m_entries.constEnd() ? PackNames::EntryFor(PackNames::kPictures, path, m_taken) : *known;
        if (known == m_entries.constEnd()) Note(path, entry, there);
        if (!there) return entry;
        const auto picture = std::find_if(m_contents.pictures.begin(), m_contents.pictures.end(),
                                          [&entry](const Picture& each) { return each.sEntry == entry; });
        GamePictures::Named user = named;
        user.ref.sPath = entry;
        picture->users.append(user);
        return entry;
    }

    void Note(const QString& sPath, const QString& sEntry, bool bThere) {
        m_entries.insert(sPath, sEntry);
        if (bThere) {
            m_contents.pictures.append({sPath, sEntry, Files::Size(sPath), {}, std::nullopt});
        } else {
            m_contents.missing.append(sPath);
        }
    }

    Contents& m_contents;
    const PicturePlaces::Finder& m_find;
    QHash<QString, QString> m_entries;
    QSet<QString> m_taken;
};

// What a photo's file holds doesn't shrink any more.
bool Shrinks(const QString& sPath) {
    constexpr qint64 kHead = 64;
    BinaryFile file;
    QString error;
    if (!file.OpenForReading(sPath, error)) return false;
    const PictureFormat format = PictureFormatOf(file.Bytes(kHead));
    return format == PictureFormat::Bmp || format == PictureFormat::Metafile || format == PictureFormat::Unknown;
}

Method MethodFor(const Picture& picture, bool bShrink) {
    return bShrink && !picture.smaller && Shrinks(picture.sPath) ? Method::Deflated : Method::Stored;
}

/// Packs once, with or without shrinking the pictures that can be.
class PackingRun {
public:
    PackingRun(const Contents& contents, const Progress& progress) : m_contents(contents), m_progress(progress) {}

    std::optional<QByteArray> Run(bool bShrink, QString& sError) {
        ZipWriter zip;
        const QByteArray game = TextFile::Encode(TextFile::JoinLines(m_contents.lines));
        if (game.size() > PackLimits::kMostOfGame) {
            sError = QStringLiteral("its texts are too long for one file");
            return std::nullopt;
        }
        zip.Add(PackNames::kTypeEntry, Method::Stored, PackNames::kType);
        zip.Add(m_contents.sName + kGameEnding, Method::Deflated, game);
        if (!m_contents.board.isEmpty()) zip.Add(PackNames::kBoardEntry, Method::Stored, m_contents.board);
        AddFonts(zip);
        for (const Picture& picture : m_contents.pictures) {
            zip.Add(picture.sEntry, MethodFor(picture, bShrink), picture.PackedSize(),
                    [this, &picture](QString& sWhy) { return BytesOf(picture, sWhy); });
        }
        m_done = 0;
        std::optional<QByteArray> bytes = zip.Finish(sError);
        if (m_stopped) sError.clear();
        return bytes;
    }

private:
    void AddFonts(ZipWriter& zip) const {
        if (!m_contents.fonts.isEmpty())
            zip.Add(PackNames::kFontListEntry, Method::Deflated, PackFonts::ListOf(m_contents.fonts));
        for (const PackFonts::Use& use : m_contents.fonts) {
            for (const PackFonts::Use::File& file : use.files) {
                zip.Add(file.sEntry, Method::Deflated, file.size,
                        [path = file.sPath](QString& sWhy) { return Files::ReadAll(path, sWhy); });
            }
        }
    }

    std::optional<QByteArray> BytesOf(const Picture& picture, QString& sError) {
        constexpr qint64 kWhole = 1000;
        const qint64 all = std::max<qint64>(m_contents.PictureBytes(), 1);
        if (m_progress && !m_progress(int(m_done * kWhole / all))) {
            m_stopped = true;
            sError = QStringLiteral("It was stopped");
            return std::nullopt;
        }
        m_done += picture.PackedSize();
        if (picture.smaller) return picture.smaller;
        std::optional<QByteArray> bytes = Files::ReadAll(picture.sPath, sError);
        if (!bytes) sError = QStringLiteral("the picture '%1' can't be read: %2").arg(picture.sPath, sError);
        return bytes;
    }

    const Contents& m_contents;
    const Progress& m_progress;
    qint64 m_done = 0;
    bool m_stopped = false;
};

} // namespace

qint64 Contents::PictureBytes() const {
    qint64 sum = 0;
    for (const Picture& picture : pictures)
        sum += picture.PackedSize();
    return sum;
}

qint64 Contents::FontBytes() const {
    qint64 sum = 0;
    for (const PackFonts::Use& use : fonts) {
        for (const PackFonts::Use::File& file : use.files)
            sum += file.size;
    }
    return sum;
}

Contents Gather(const QStringList& lines, const QString& sGame, const PicturePlaces::Finder& find) {
    Contents contents;
    contents.sName = BaseName(sGame);
    contents.lines = lines;
    // Where it lies is nobody else's business.
    GamePictures::PutGameName(contents.lines, contents.sName + kGameEnding);
    Gathering gathering(contents, find);
    for (const GamePictures::Named& named : GamePictures::Of(lines))
        gathering.Take(named);
    QSet<QString> taken;
    contents.fonts = PackFonts::UsesOf(PackFonts::FamiliesOf(lines), taken);
    return contents;
}

std::optional<QByteArray> Pack(const Contents& contents, const Progress& progress, QString& sError) {
    const qint64 unpacked = contents.PictureBytes() + contents.FontBytes() + contents.board.size();
    // A file of that length could be made, but nobody could open it.
    if (unpacked > Files::kMostBytes) {
        sError = QStringLiteral("its pictures are too large for one file");
        return std::nullopt;
    }
    PackingRun run(contents, progress);
    std::optional<QByteArray> bytes = run.Run(true, sError);
    // Bitmaps that are nearly empty shrink so far that whoever opens the file would take it for a trap.
    if (bytes && PackLimits::IsTrap(unpacked, bytes->size())) bytes = run.Run(false, sError);
    return bytes;
}

bool Write(const Contents& contents, const QString& sPath, const Progress& progress, QString& sError) {
    const std::optional<QByteArray> bytes = Pack(contents, progress, sError);
    return bytes && Files::WriteWhole(sPath, *bytes, sError);
}

} // namespace Packing
