// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"

#include <QStringList>

/// Of what date and size the pictures of games were when they were there last, as a file in My Games. A picture that
/// was moved is known again by it among others of its name.
namespace SeenPictures {

/// Those that are there are kept in mind; what is known of one that is away stays known. A disk that takes no file
/// keeps nothing, which is no failure: a picture is then known again by what it shows.
void Note(const QStringList& files);
/// -1, -1 for one that nobody has seen.
Files::Stamp Of(const QString& sFile);
/// The file that is kept.
QString Path();

} // namespace SeenPictures
