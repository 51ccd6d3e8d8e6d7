// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What is done to files that the program didn't make.
namespace UserFiles {

/// Takes a file out of the way so that its owner can have it back: into the trash, or where there is none, into the
/// folder "Removed" of the My Games directory, under another name where its own is taken. The log says where it went,
/// or why it stays.
void ThrowAway(const QString& sPath);

} // namespace UserFiles
