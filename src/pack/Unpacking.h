// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Puts a packed game on the disk, with its pictures and fonts beside it.
namespace Unpacking {

/// Whether a file is to be unpacked ahead of being read: by its first bytes or, where those are damaged, its name.
bool IsPacked(const QString& sPath);

/// Unpacks into a new folder of the game's name in a folder that is there, never over anything: "Family", "Family 2".
/// Gives the path of the game. Nothing, and a sentence in sError, when it can't be done; nothing of it is left then.
std::optional<QString> Unpack(const QString& sPacked, const QString& sInto, QString& sError);

} // namespace Unpacking
