// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/Metafile.h"

#include <QString>

#include <optional>

class DeviceContext;

/// The metafile half of basBMP: plays a metafile into a rectangle of a device context.
namespace basBMP {

/// Nothing when the file can't be opened or isn't a metafile. The size in a placeable header goes to the
/// module's m_lImageWidth and m_lImageHeight; a file without one leaves them.
std::optional<Metafile> LoadTheMetafile(const QString& sFile);

/// Plays the file so that it fills exactly the rectangle, in device units, and leaves the context as it was.
/// A missing or unreadable file is told unless it is the one that vBadPath names already, and becomes
/// vBadPath, so that a caller who keeps it hears of each file once. No name is no picture and no message.
/// True when it was played.
bool BMP_DrawWMF(DeviceContext& hDC, const QString& sFile, QString& vBadPath, int x, int y, int w, int h);

} // namespace basBMP
