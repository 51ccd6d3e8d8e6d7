// SPDX-License-Identifier: MIT
#include "drawing/basBMP_metafile.h"

#include "drawing/basBMP.h"
#include "platform/paint/DeviceContext.h"
#include "platform/pictures/PictureFile.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"

namespace basBMP {
namespace {

void TellOnce(const QString& sFile, QString& vBadPath, const QString& sMessage, int iStyle) {
    if (sFile != vBadPath) basMsgQueue::MsgQueue_Post(sMessage, iStyle);
    vBadPath = sFile;
}

bool PlayInto(DeviceContext& hDC, const Metafile& metafile, const QRectF& target) {
    const int depth = hDC.SaveDC();
    const bool bPlayed = metafile.Play(hDC.Painter(), target);
    hDC.RestoreDC(depth);
    return bPlayed;
}

} // namespace

std::optional<Metafile> LoadTheMetafile(const QString& sFile) try {
    QString error;
    PictureFile file;
    const std::optional<QByteArray> bytes = file.Open(sFile, error) ? file.Whole(error) : std::nullopt;
    if (!bytes) return {};
    std::optional<Metafile> metafile = Metafile::FromBytes(*bytes, error);
    if (metafile && metafile->IsPlaceable()) {
        Module().m_lImageWidth = metafile->PlaceableSize().width();
        Module().m_lImageHeight = metafile->PlaceableSize().height();
    }
    return metafile;
} catch (...) {
    ErrTail("basBMP!", "LoadTheMetafile", sFile);
}

bool BMP_DrawWMF(DeviceContext& hDC, const QString& sFile, QString& vBadPath, int x, int y, int w, int h) try {
    if (sFile.isEmpty()) return false;
    if (!basCommon::DoesFileExist(sFile)) {
        TellOnce(sFile, vBadPath,
                 QStringLiteral("Could not find file named '") + sFile + QStringLiteral("'. \n") +
                     QStringLiteral("Area will be left empty. "),
                 vbExclamation);
        return false;
    }
    const std::optional<Metafile> metafile = LoadTheMetafile(sFile);
    if (metafile && PlayInto(hDC, *metafile, QRectF(x, y, w, h))) return true;
    TellOnce(sFile, vBadPath, QStringLiteral("Unable to read the file named '") + sFile + QStringLiteral("'."),
             vbOKOnly);
    return false;
} catch (...) {
    ErrTail("basBMP!", "BMP_DrawWMF", hDC, sFile, vBadPath, x, y, w, h);
}

} // namespace basBMP
