// SPDX-License-Identifier: MIT
#include "game/SampleGames.h"

#include "document/Locale.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basErrLog.h"
#include "services/basPath.h"

namespace basTAVL {
namespace {

constexpr const char* kSamples[] = {"Blank", "Family", "Generic", "Person", "Town"};
// Offered for a new game; the empty one last. Class and Holiday aren't copied: five games are enough in a folder that
// was empty.
constexpr const char* kOffered[] = {"Family", "Generic", "Person", "Town", "Class", "Holiday", "Blank"};
const QString kGame = QStringLiteral(".gam");
const QString kBackground = QStringLiteral("MoneyBg");
const QString kBitmap = QStringLiteral(".bmp");

// The name that it has had for longest, or with the mark of its country.
QString ShippedPath(const QString& sName) {
    const QString from = Folders::ProgramDirectory();
    const QString plain = basCommon::JoinPath(from, sName + kGame);
    if (basCommon::DoesFileExist(plain)) return plain;
    return basCommon::JoinPath(from, sName + QString::fromLatin1(Locale::kSuffix) + kGame);
}

void CopyUnlessThere(const QString& sFrom, const QString& sTo) {
    if (basCommon::DoesFileExist(sTo) || !basCommon::DoesFileExist(sFrom)) return;
    QString error;
    // A start mustn't fail for want of a sample: the folder may be read-only.
    if (!Files::CopyNew(sFrom, sTo, error))
        basErrLog::ErrLogToFile(QStringLiteral("A sample could not be copied to ") + sTo + u' ' + error, true);
}

} // namespace

std::vector<SampleGame> SampleGames() {
    std::vector<SampleGame> games;
    for (const char* sample : kOffered) {
        const QString name = QString::fromLatin1(sample);
        const QString path = ShippedPath(name);
        if (basCommon::DoesFileExist(path)) games.push_back({name, path});
    }
    return games;
}

QString NewGameFile() {
    const QString folder = Folders::ProgramDirectory();
    const QString game = basCommon::JoinPath(folder, QStringLiteral("Default.dat"));
    if (basCommon::DoesFileExist(game)) return game;
    return basCommon::JoinPath(folder, QString::fromLatin1(Locale::kDefaultGame));
}

void CopySampleGames() try {
    const QString from = Folders::ProgramDirectory();
    const QString to = basCommon::GetMyGamesDirectory();
    const QString suffix = QString::fromLatin1(Locale::kSuffix);
    for (const char* sample : kSamples) {
        const QString name = QString::fromLatin1(sample);
        CopyUnlessThere(ShippedPath(name), basCommon::JoinPath(to, name + kGame));
    }
    CopyUnlessThere(basCommon::JoinPath(from, kBackground + suffix + kBitmap),
                    basCommon::JoinPath(to, kBackground + kBitmap));
} catch (...) {
    ErrTail("basTAVL!", "CopySampleGames");
}

} // namespace basTAVL
