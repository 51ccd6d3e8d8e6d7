// SPDX-License-Identifier: MIT
#include "windows/editors/GameFonts.h"

#include "document/basTAVL.h"
#include "services/basErrLog.h"

namespace GameFonts {

void GiveToAllBut(const C_FontInfo& font, int iSpace, int iCorner) try {
    constexpr int kBlock = 0;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (i == iSpace) continue;
        C_Space& space = basTAVL::g_oSpaces(i);
        space.Font.LoadFromObject(font);
        space.SetText(TextLines::kUseExisting);
    }
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (i == iCorner || i == BoardFacts::kFateCorner) continue;
        C_Corner& corner = basTAVL::g_oCorners(i);
        corner.Font.LoadFromObject(font);
        corner.SetText(kBlock, TextLines::kUseExisting);
    }
} catch (...) {
    ErrTail("GameFonts!", "GiveToAllBut", font.Family, iSpace, iCorner);
}

} // namespace GameFonts
