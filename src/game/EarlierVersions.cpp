// SPDX-License-Identifier: MIT
#include "game/EarlierVersions.h"

#include "document/GameText.h"
#include "game/GameNames.h"
#include "platform/files/Files.h"
#include "platform/files/FolderListing.h"
#include "platform/files/Folders.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

#include <QCryptographicHash>

#include <algorithm>
#include <numeric>

namespace EarlierVersions {
namespace {

const QString kTimeFormat = QStringLiteral("yyyy-MM-dd hh.mm.ss");
const QString kGame = QStringLiteral(".gam");
const QString kPicture = QStringLiteral(".png");

// Twenty of a hundred times what a game takes are no burden to any disk.
constexpr qint64 kMostBytes = qint64(1) << 20;

QString Folder() { return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Earlier Versions")); }

// Games of one name in several folders are several games.
QString FolderOf(const QString& sGame) {
    constexpr int kDigits = 8;
    constexpr int kMostOfName = 40;
    const QByteArray hash = QCryptographicHash::hash(sGame.toUtf8(), QCryptographicHash::Sha256).toHex();
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sGame, drive, dir, base, ext);
    return basCommon::JoinPath(Folder(), base.left(kMostOfName) + u' ' + QString::fromLatin1(hash.left(kDigits)));
}

QString BoardOf(const QString& sGame) { return basCommon::JoinPath(FolderOf(sGame), QStringLiteral("Board.png")); }

// Whatever the disk refuses, the game itself is saved.
void Log(const QString& sWhat, const QString& sError) {
    basErrLog::ErrLogToFile(QStringLiteral("Of an earlier version, %1 could not be kept: %2").arg(sWhat, sError), true);
}

// On a disk this full the room belongs to the next save.
bool HasRoom() {
    constexpr double kRoomToLeave = 32.0 * 1024 * 1024;
    return Folders::FreeBytes(Folder()) >= kRoomToLeave;
}

bool MakeFolderOf(const QString& sGame) {
    QString error = QStringLiteral("the disk is nearly full");
    if (!HasRoom()) {
        Log(FolderOf(sGame), error);
        return false;
    }
    if (Files::MakeDirectory(Folder(), error) && Files::MakeDirectory(FolderOf(sGame), error)) return true;
    Log(FolderOf(sGame), error);
    return false;
}

bool KeepAs(const QString& sPath, const QByteArray& bytes) {
    QString error;
    if (Files::WriteWhole(sPath, bytes, error)) return true;
    Log(sPath, error);
    return false;
}

void Remove(const Version& version) {
    QString error;
    if (!Files::Remove(version.sPath, error) || !Files::Remove(version.sBoard, error))
        Log(QStringLiteral("all but the last"), error);
}

void Thin(const QString& sGame) {
    const QList<Version> versions = Of(sGame);
    const QDateTime now = QDateTime::currentDateTime();
    QList<qint64> ages;
    for (const Version& version : versions)
        ages.append(version.when.secsTo(now));
    for (const qsizetype i : TooMany(ages))
        Remove(versions[i]);
}

} // namespace

Replaced::Replaced(const QString& sGame) : m_sGame(sGame) {
    QString error;
    if (!Files::Exists(sGame) || Files::Size(sGame) > kMostBytes) return;
    m_when = QDateTime::fromMSecsSinceEpoch(Files::StampOf(sGame).modifiedMs);
    const QByteArray stood = Files::ReadAll(sGame, error).value_or(QByteArray());
    if (!ReadGameHeader(stood).bIsGame) return;
    m_stood = stood;
    // From its header an earlier version knows where its pictures lie, wherever the file came from.
    m_bytes = UnderName(stood, sGame);
}

void Replaced::Keep(const QByteArray& content) const try {
    if (m_bytes.isEmpty() || m_bytes == content) return;
    QString error;
    const QString path = basCommon::JoinPath(FolderOf(m_sGame), m_when.toString(kTimeFormat));
    if (MakeFolderOf(m_sGame) && KeepAs(path + kGame, m_bytes)) {
        Files::Remove(path + kPicture, error);
        Files::Rename(BoardOf(m_sGame), path + kPicture, error);
        Thin(m_sGame);
    } else {
        // It shows what isn't kept.
        Files::Remove(BoardOf(m_sGame), error);
    }
} catch (const TavloraError& error) {
    Log(m_sGame, basErrLog::ErrDismiss(error.Description()));
}

void Replaced::KeepIfGone() const {
    QString error;
    if (!m_stood.isEmpty() && Files::ReadAll(m_sGame, error) != m_stood) Keep({});
}

void KeepBoard(const QString& sGame, const QByteArray& png) try {
    if (MakeFolderOf(sGame)) KeepAs(BoardOf(sGame), png);
} catch (const TavloraError& error) {
    Log(sGame, basErrLog::ErrDismiss(error.Description()));
}

QList<Version> Of(const QString& sGame) {
    QString error;
    QList<Version> versions;
    const QString folder = FolderOf(sGame);
    for (const QString& name : FolderListing::Files(folder, {u'*' + kGame}, error).value_or(QStringList())) {
        const QString base = name.chopped(kGame.size());
        // Whatever else lies there is somebody else's.
        const QDateTime when = QDateTime::fromString(base, kTimeFormat);
        const QString path = basCommon::JoinPath(folder, base);
        if (when.isValid()) versions.append({path + kGame, path + kPicture, when});
    }
    std::sort(versions.begin(), versions.end(), [](const Version& a, const Version& b) { return a.when > b.when; });
    return versions;
}

bool IsOneOf(const QString& sPath) {
    const QString folderOfGame = GameNames::FolderOf(sPath);
    return !folderOfGame.isEmpty() && Files::IsSameFile(GameNames::FolderOf(folderOfGame.chopped(1)), Folder());
}

QList<qsizetype> TooMany(const QList<qint64>& ages) {
    QList<qsizetype> left(ages.size());
    std::iota(left.begin(), left.end(), 0);
    QList<qsizetype> gone;
    while (left.size() > kMost) {
        // The one that its neighbours stand closest around, in proportion to its age.
        qsizetype closest = 1;
        double smallest = std::numeric_limits<double>::max();
        for (qsizetype i = 1; i + 1 < left.size(); ++i) {
            const double gap = double(ages[left[i + 1]] - ages[left[i - 1]]);
            const double ratio = gap / double(std::max<qint64>(ages[left[i]], 1));
            if (ratio > smallest) continue;
            smallest = ratio;
            closest = i;
        }
        gone.append(left.takeAt(closest));
    }
    return gone;
}

} // namespace EarlierVersions
