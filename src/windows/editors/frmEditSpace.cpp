// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditSpace.h"

#include "document/basTAVL.h"
#include "services/basErrLog.h"
#include "windows/editors/SpaceLikeness.h"

namespace {

constexpr const char* kModule = "frmEditSpace!";

} // namespace

frmEditSpace::frmEditSpace(Session& session, QWidget* parent)
    : EditWindow(session, std::make_unique<SpaceLikeness>(),
                 {.sModule = kModule,
                  .sName = "frmEditSpace",
                  .sCaption = "Edit Space",
                  .sImageFrame = "Image",
                  .sImageTip = "to Change",
                  .sThisPiece = "space",
                  .sPlace = "Space %1 of %2",
                  .iPieces = basTAVL::kSpaces},
                 parent) {}

void frmEditSpace::ShowForm(int iSpace, bool& bChanged) try { bChanged = EditPiece(iSpace); } catch (...) {
    ErrTail(kModule, "ShowForm", iSpace, bChanged);
}
