// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditCorner.h"

#include "document/basTAVL.h"
#include "services/basErrLog.h"
#include "windows/editors/CornerLikeness.h"

namespace {

constexpr const char* kModule = "frmEditCorner!";

} // namespace

frmEditCorner::frmEditCorner(Session& session, QWidget* parent)
    : EditWindow(session, std::make_unique<CornerLikeness>(),
                 {.sModule = kModule,
                  .sName = "frmEditCorner",
                  .sCaption = "Edit Corner",
                  .sImageFrame = "Bitmap",
                  .sImageTip = "to Edit",
                  .sThisPiece = "corner",
                  .sPlace = "Corner %1 of %2",
                  .iPieces = basTAVL::kCorners},
                 parent) {}

void frmEditCorner::ShowForm(int iCorner, bool& bChanged) try { bChanged = EditPiece(iCorner); } catch (...) {
    ErrTail(kModule, "ShowForm", iCorner, bChanged);
}

void frmEditCorner::mouseDoubleClickEvent(QMouseEvent* event) {
    EditWindow::mouseDoubleClickEvent(event);
    // The browser refuses while the window is being set up, so this never opens anything; kept on purpose.
    if (IsLoading()) cmdBitmap_Click();
}
