// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/EditorRoutes.h"
#include "document/basTAVL.h"
#include "services/basErrLog.h"

void frmTAVL::OpenPlace(const BoardPlace& place) {
    if (place.m_iOverSpace >= 0) {
        EditSpaceText(place.m_iOverSpace);
    } else if (place.m_iOverCorner >= 0) {
        EditCornerText(place.m_iOverCorner);
    } else if (place.m_bOverTitles) {
        EditCenterText();
    } else if (place.m_bOverGoodNews) {
        EditNews(0);
    } else if (place.m_bOverBadNews) {
        EditNews(1);
    } else if (place.m_bOverMoney) {
        EditMoney();
    } else if (place.m_bOverTokens) {
        EditToken();
    }
}

void frmTAVL::ChangedByEditor(bool bChanged, bool bRedraw) try {
    if (!bChanged) return;
    m_commands.SetSomethingChanged(true);
    if (bRedraw) m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "ChangedByEditor", bChanged, bRedraw);
}

void frmTAVL::EditCenterText() try { ChangedByEditor(EditorRoutes::Current().EditCenter(), true); } catch (...) {
    ErrTail("frmTAVL!", "EditCenterText");
}

void frmTAVL::EditCornerText(int iCorner) try {
    ChangedByEditor(EditorRoutes::Current().EditCorner(iCorner), true);
} catch (...) {
    ErrTail("frmTAVL!", "EditCornerText", iCorner);
}

void frmTAVL::EditSpaceText(int iSpace) try {
    ChangedByEditor(EditorRoutes::Current().EditSpace(iSpace), true);
} catch (...) {
    ErrTail("frmTAVL!", "EditSpaceText", iSpace);
}

void frmTAVL::EditNews(int iGoodOrBad) try {
    ChangedByEditor(EditorRoutes::Current().ShowNews(iGoodOrBad), false);
} catch (...) {
    ErrTail("frmTAVL!", "EditNews", iGoodOrBad);
}

void frmTAVL::EditMoney() try { ChangedByEditor(EditorRoutes::Current().EditMoney(), false); } catch (...) {
    ErrTail("frmTAVL!", "EditMoney");
}

void frmTAVL::EditToken() try {
    ChangedByEditor(EditorRoutes::Current().ShowTokens(), false);
    // The editor may have made thumbnails of a token that it then put back.
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.GetThumbnail(false);
} catch (...) {
    ErrTail("frmTAVL!", "EditToken");
}
