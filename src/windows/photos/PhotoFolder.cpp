// SPDX-License-Identifier: MIT
#include "windows/photos/PhotoFolder.h"

#include "pictures/ThumbnailFile.h"
#include "platform/files/FolderListing.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basPath.h"
#include "windows/pictures/BrowsePlaces.h"

namespace PhotoFolder {
namespace {

const QString kKey = QStringLiteral("PhotoFolder");

} // namespace

QString Last() {
    const QString last = basCommon::GetIniString(kKey);
    return basCommon::DoesDirExist(last) ? last : Folders::Pictures();
}

void Remember(const QString& sFolder) { basCommon::WriteIniString(kKey, sFolder); }

QStringList Pictures(const QString& sFolder) {
    constexpr int kManyColors = 24;
    QString error;
    const QStringList patterns = BrowsePlaces::PatternsOf(BrowsePlaces::AllPicturesFilter(true, kManyColors));
    QStringList files;
    for (const QString& name : FolderListing::Files(sFolder, patterns, error).value_or(QStringList())) {
        const QString file = BrowsePlaces::FileIn(sFolder, name);
        if (!ThumbnailFile::IsThumbnail(file)) files.append(file);
    }
    return files;
}

} // namespace PhotoFolder
