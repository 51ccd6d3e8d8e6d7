// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "board/basPosit.h"
#include "board/basPositPaint_state.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "pictures/BoardThumbnail.h"
#include "pictures/MissingMark.h"
#include "pictures/PicturePlaces.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

#include <QRect>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace basPosit {
namespace {

using Clock = std::chrono::steady_clock;

// What a paint may spend on pictures before it leaves the rest to the next turn of the event loop.
constexpr std::chrono::milliseconds kPatience{30};

struct Destination {
    Surface* picBoard = nullptr;
    bool bOnScreen = false;
    PicturesShown shown = PicturesShown::All;
    /// Spaces by their number, behind them the corners.
    std::vector<int> awaited;
    Clock::time_point until;
};

Destination& Module() {
    static Destination destination;
    return destination;
}

int PlaceOfCorner(int iCorner) { return kSpacesOnBoard + iCorner; }
bool IsAwaited(int iPlace) {
    const std::vector<int>& awaited = Module().awaited;
    return std::find(awaited.begin(), awaited.end(), iPlace) != awaited.end();
}

// An image's box in device units: the place moves with the view, the size only grows with it.
QRect BoxOf(const C_Image& image) {
    return {PosX(image.X), PosY(image.Y), CLng(PosLength(image.W)), CLng(PosLength(image.H))};
}

// A corner stands on its tip: its middle lies within it.
QRectF MarkPlace(const PictureOwner& owner, const QRectF& box) {
    if (owner.kind != PictureOwner::Kind::Corner) return box;
    const double aside = box.width() / 4;
    return box.adjusted(aside, aside, -aside, -aside);
}

// The thumbnails are made for their side of the board, so nothing is turned here.
void Paste(const C_Image& image, int iPlace) {
    if (image.FullPath().isEmpty()) {
        // A picture that comes to stand here later may be told to be bad again.
        image.Let_BadPath(QString());
        ThumbnailStore::Instance().DropUnused(image.Owner());
        return;
    }
    Destination& module = Module();
    if (!module.picBoard) return;
    const QRect box = BoxOf(image);
    if (module.shown == PicturesShown::All) {
        image.DrawBitmapToScreen(*module.picBoard, box.x(), box.y(), box.width(), box.height());
    } else if (IsMissing(image.Ref())) {
        // It is told on the way.
        DrawWhatIsReady(image.Owned(), *module.picBoard, QRectF(box));
        PaintMissingMark(*module.picBoard, MarkPlace(image.Owner(), QRectF(box)));
    } else if (Clock::now() > module.until || !DrawWhatIsReady(image.Owned(), *module.picBoard, QRectF(box))) {
        module.awaited.push_back(iPlace);
    }
}

void PasteFate(C_Image& image) {
    image.Let_FullPath(PicturePlaces::Fate());
    if (!Module().picBoard) return;
    const QRect box = BoxOf(image);
    image.PaintPictureCentered(*Module().picBoard, box.x(), box.y(), box.x() + box.width(), box.y() + box.height(),
                               Color::None());
}

} // namespace

void PosSetPicture(Surface* picBoard, bool bOnScreen, PicturesShown shown) {
    Destination& module = Module();
    module.picBoard = picBoard;
    module.bOnScreen = bOnScreen;
    module.shown = shown;
}

void StartPictures() {
    Destination& module = Module();
    module.awaited.clear();
    module.until = Clock::now() + kPatience;
    if (!module.picBoard || module.shown == PicturesShown::Ready) return;
    const auto prepare = [&module](const C_Image& image) {
        const QRect box = BoxOf(image);
        PrepareForScreen(image.Owned(), *module.picBoard, box.width(), box.height());
    };
    for (int iSpace = 0; iSpace < kSpacesOnBoard; ++iSpace) {
        if (!BoardFacts::IsLotto(iSpace)) prepare(basTAVL::g_oSpaces(iSpace).Image);
    }
    for (int iCorner = 0; iCorner < kCornersOnBoard; ++iCorner)
        prepare(basTAVL::g_oCorners(iCorner).Image);
}

int PosPicturesAwaited() { return int(Module().awaited.size()); }

int PosDrawAwaited() {
    const std::vector<int> places = std::exchange(Module().awaited, {});
    Module().until = Clock::now() + kPatience;
    for (const int iPlace : places) {
        if (iPlace < kSpacesOnBoard) {
            PosDrawSpaceBMP(iPlace);
        } else {
            PosDrawCorner(iPlace - kSpacesOnBoard);
        }
    }
    basDraw::Draw_ReleaseObjects();
    return PosPicturesAwaited();
}

void PosDrawCorner(int iCorner) {
    PosDrawCornerBMP(iCorner);
    if (!IsFixedCorner(iCorner) && !IsAwaited(PlaceOfCorner(iCorner))) PosDrawCornerText(0, iCorner);
}

void PosDrawSpaceBMP(int iSpace) try {
    C_Space& space = basTAVL::g_oSpaces(iSpace);
    if (!space.IsShowing || BoardFacts::IsLotto(iSpace)) return;
    Paste(space.Image, iSpace);
} catch (...) {
    ErrTail("basPosit!", "PosDrawSpaceBMP", iSpace);
}

void PosDrawCornerBMP(int iCorner) try {
    if (!Module().bOnScreen) return;
    C_Image& image = basTAVL::g_oCorners(iCorner).Image;
    if (IsFixedCorner(iCorner)) {
        PasteFate(image);
    } else {
        Paste(image, PlaceOfCorner(iCorner));
    }
} catch (...) {
    ErrTail("basPosit!", "PosDrawCornerBMP", iCorner);
}

} // namespace basPosit
