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
const QString kGame = QStringLiteral(".gam");
const QString kBackground = QStringLiteral("MoneyBg");
const QString kBitmap = QStringLiteral(".bmp");

void CopyUnlessThere(const QString& sFrom, const QString& sTo) {
    if (basCommon::DoesFileExist(sTo) || !basCommon::DoesFileExist(sFrom)) return;
    QString error;
    // A start mustn't fail for want of a sample: the folder may be read-only.
    if (!Files::CopyNew(sFrom, sTo, error))
        basErrLog::ErrLogToFile(QStringLiteral("A sample could not be copied to ") + sTo + u' ' + error, true);
}

} // namespace

void CopySampleGames() try {
    const QString from = Folders::ProgramDirectory();
    const QString to = basCommon::GetMyGamesDirectory();
    const QString suffix = QString::fromLatin1(Locale::kSuffix);
    for (const char* sample : kSamples) {
        const QString name = QString::fromLatin1(sample);
        QString source = basCommon::JoinPath(from, name + kGame);
        if (!basCommon::DoesFileExist(source)) source = basCommon::JoinPath(from, name + suffix + kGame);
        CopyUnlessThere(source, basCommon::JoinPath(to, name + kGame));
    }
    CopyUnlessThere(basCommon::JoinPath(from, kBackground + suffix + kBitmap),
                    basCommon::JoinPath(to, kBackground + kBitmap));
} catch (...) {
    ErrTail("basTAVL!", "CopySampleGames");
}

} // namespace basTAVL
