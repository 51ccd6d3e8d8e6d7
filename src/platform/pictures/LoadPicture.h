// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Picture.h"

#include <QSet>
#include <QString>

/// Loads a picture whatever its extension says: the content decides. A null picture and a sentence in
/// sError when it can't be read whole. A caller who knows how large the picture will be drawn gives the
/// longer side in device pixels, and gets at least that many (or all there are) much faster. What was
/// decoded is kept for a while; a changed file is read again. May be called on any thread.
Picture LoadPicture(const QString& sPath, QString& sError, int longerSideWanted = kAllPixels);

/// Starts decoding on another processor; the LoadPicture of the same path and size waits for it and takes
/// the result. Nothing else happens: errors are told by LoadPicture. True when there is nothing to wait for.
/// The end of the application waits for what is being decoded and leaves out what isn't begun.
bool PrefetchPicture(const QString& sPath, int longerSideWanted = kAllPixels);

/// The file, just written, shows what was drawn here: as long as it isn't changed, LoadPicture hands the
/// recording on with its pixels. The recordings kept last are bounded in number.
void KeepRecording(const QString& sPath, std::shared_ptr<const Recording> recording);

/// The same for whoever paints on paper only: where a recording is kept, no pixel of the file is read.
Picture LoadForPaper(const QString& sPath, QString& sError);

/// Drops what is kept of a file; of all files but these, and all recordings: for who knows that nothing to come shows
/// them.
void DropPicture(const QString& sPath);
void ForgetPicturesBut(const QSet<QString>& paths);

/// Waits for all prefetching and drops all kept pictures.
void ForgetPictures();
