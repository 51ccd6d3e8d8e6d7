// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What a folder holds, as a person would look for it: without hidden entries, sorted by name in the
/// desktop's own order, upper and lower case alike.
namespace FolderListing {

/// Names of the files that fit one of the patterns ("*.bmp"), whatever the case of their letters. Nothing,
/// and a sentence in sError, for a folder that isn't there or can't be read.
std::optional<QStringList> Files(const QString& sFolder, const QStringList& patterns, QString& sError);

/// Names of the folders in a folder; as above.
std::optional<QStringList> Folders(const QString& sFolder, QString& sError);

} // namespace FolderListing
