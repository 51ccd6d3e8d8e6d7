// SPDX-License-Identifier: MIT
#include "BenchGame.h"

#include "BenchPhotos.h"

#include "board/basPositPaint.h"
#include "document/basTAVL.h"
#include "game/GameFile.h"
#include "kit/GameKit.h"
#include "pieces/frmBMP.h"

void LoadFamilyWith(const BenchPhotos& photos) {
    GameKit::SetUp(QStringLiteral("tavlora"));
    frmBMP::InstallAsThumbnailMaker();
    QString name = QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam");
    int result = 0;
    GameFile::GameLoad(name, result);
    int photo = 0;
    for (int iSpace = 0; iSpace < basTAVL::kSpaces; ++iSpace) {
        if (!BoardFacts::IsLotto(iSpace)) basTAVL::g_oSpaces(iSpace).SetImagePath(photos.Path(photo++));
    }
    for (int iCorner = 0; photo < kPicturesOfAGame; ++iCorner)
        basTAVL::g_oCorners(iCorner).Image.Let_FullPath(photos.Path(photo++));
}
