// SPDX-License-Identifier: MIT
#include "services/WorkFiles.h"

#include "platform/files/Console.h"
#include "services/basPath.h"
#include "services/ProgramSettings.h"
#include "services/TavloraError.h"

#include <memory>

namespace WorkFiles {
namespace {

// Beside the games where the system has no room for what is temporary.
std::unique_ptr<TemporaryFolder> NewFolder() {
    auto folder = std::make_unique<TemporaryFolder>();
    if (folder->Path().isEmpty()) folder = std::make_unique<TemporaryFolder>(basCommon::GetMyGamesDirectory());
    return folder;
}

} // namespace

QString PathOf(const QString& sName) {
    QString& folder = Settings().sWorkDirectory;
    // Systems clear away what was temporary for some days.
    if (folder.isEmpty() || !basCommon::DoesDirExist(folder)) {
        static std::unique_ptr<TemporaryFolder> ofThisRun;
        ofThisRun = NewFolder();
        folder = ofThisRun->Path();
        if (folder.isEmpty())
            ErrRaise(ErrNumber::kPathNotFound, QStringLiteral("No folder for working files can be made"));
    }
    return basCommon::JoinPath(folder, sName);
}

} // namespace WorkFiles
