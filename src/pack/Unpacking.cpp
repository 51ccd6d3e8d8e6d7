// SPDX-License-Identifier: MIT
#include "pack/Unpacking.h"

#include "pack/PackNames.h"
#include "pack/PackReader.h"
#include "pictures/PicturePlaces.h"
#include "platform/files/BinaryFile.h"
#include "platform/files/Console.h"
#include "platform/files/Files.h"
#include "platform/files/TextFile.h"
#include "services/basPath.h"

#include <algorithm>

namespace Unpacking {
namespace {

const QString kGameEnding = QStringLiteral(".gam");

QString FileNameOf(const QString& sPath) {
    return sPath.mid(std::max(sPath.lastIndexOf(u'/'), sPath.lastIndexOf(u'\\')) + 1);
}

QString FreeFolder(const QString& sInto, const QString& sName) {
    QString folder = basCommon::JoinPath(sInto, sName);
    for (int i = 2; Files::IsAnything(folder); ++i)
        folder = basCommon::JoinPath(sInto, sName + u' ' + QString::number(i));
    return folder;
}

// Only those that something goes into.
bool MakeFolders(const PackReader& reader, const QString& sFolder, QString& sError) {
    QStringList made;
    for (const QString& entry : reader.Files()) {
        const QString name = entry.section(u'/', 0, 0);
        if (made.contains(name)) continue;
        if (!Files::MakeDirectory(basCommon::JoinPath(sFolder, name), sError)) return false;
        made.append(name);
    }
    return true;
}

// In pieces, as a picture may be larger than there is memory for. It can be had again from the packed game at any time,
// so the disk isn't waited for.
bool WriteFile(const PackReader& reader, const QString& sEntry, const QString& sPath, QString& sError) {
    BinaryFile file;
    if (!file.OpenNew(sPath, sError)) return false;
    bool written = true;
    const bool whole = reader.Read(sEntry, [&](const QByteArray& piece) {
        file.PutBytes(piece);
        written = file.WasWritten(sError);
        return written;
    });
    if (written && !whole) sError = reader.WhyUnread();
    return written && whole;
}

bool WriteFiles(const PackReader& reader, const QString& sFolder, QString& sError) {
    for (const QString& entry : reader.Files()) {
        if (!WriteFile(reader, entry, basCommon::JoinPath(sFolder, entry), sError)) return false;
    }
    return true;
}

bool WriteGame(const PackReader& reader, const QString& sFolder, const QString& sFinalFolder, QString& sError) {
    const QString name = reader.GameName() + kGameEnding;
    const auto placeOf = [&sFinalFolder](const QString& sEntry) {
        return PicturePlaces::RelativeOf(basCommon::JoinPath(sFinalFolder, sEntry));
    };
    const QStringList lines = reader.Lines(placeOf, basCommon::JoinPath(sFinalFolder, name));
    return TextFile::WriteLines(basCommon::JoinPath(sFolder, name), lines, sError);
}

std::optional<QString> UnpackInto(const PackReader& reader, const QString& sInto, QString& sError) {
    const QString folder = FreeFolder(sInto, PackNames::FolderName(reader.GameName()));
    // Only when all of it is there does it get its name; a program that is ended amid it leaves nothing that counts.
    TemporaryFolder work(sInto);
    if (work.Path().isEmpty()) {
        sError = QStringLiteral("no folder can be made in '%1'").arg(sInto);
        return std::nullopt;
    }
    const bool well = MakeFolders(reader, work.Path(), sError) && WriteFiles(reader, work.Path(), sError) &&
                      WriteGame(reader, work.Path(), folder, sError) && work.Become(folder, sError);
    if (!well) return std::nullopt;
    return basCommon::JoinPath(folder, reader.GameName() + kGameEnding);
}

} // namespace

bool IsPacked(const QString& sPath) {
    if (sPath.endsWith(PackNames::kEnding, Qt::CaseInsensitive)) return true;
    BinaryFile file;
    QString error;
    const QByteArray start = QByteArrayLiteral("PK\x03\x04");
    return Files::Exists(sPath) && file.OpenForReading(sPath, error) && file.Bytes(start.size()) == start;
}

std::optional<QString> Unpack(const QString& sPacked, const QString& sInto, QString& sError) {
    const std::optional<PackReader> reader = PackReader::OpenFile(sPacked, sError);
    const std::optional<QString> game = reader ? UnpackInto(*reader, sInto, sError) : std::nullopt;
    if (sError.endsWith(u'.')) sError.chop(1);
    if (!game) sError = QStringLiteral("'%1' can't be opened: %2.").arg(FileNameOf(sPacked), sError);
    return game;
}

} // namespace Unpacking
