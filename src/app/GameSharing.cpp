// SPDX-License-Identifier: MIT
#include "app/GameSharing.h"

#include "app/BoardView.h"
#include "board/BoardPicture.h"
#include "document/GameText.h"
#include "game/Session.h"
#include "pictures/PicturePlaces.h"
#include "platform/files/Folders.h"
#include "platform/pictures/SavePicture.h"
#include "services/Desktop.h"
#include "windows/sending/frmSendGame.h"

namespace {

QString FindPicture(const QString& sName, const PictureOwner& owner) {
    return PicturePlaces::FullFor(sName, owner, KitInUse());
}

} // namespace

QByteArray GameSharing::BoardAsPng(int lSize) {
    QString error;
    const std::optional<QByteArray> bytes = EncodePicture(basPosit::BoardPicture(lSize), error);
    m_view.Redraw();
    return bytes.value_or(QByteArray());
}

Packing::Contents GameSharing::Contents() {
    const QString& name = m_session.GameName();
    Packing::Contents contents = Packing::Gather(ComposeLines(m_session.InHand(), name), name, FindPicture);
    contents.board = BoardAsPng(Packing::kBoardSize);
    return contents;
}

void GameSharing::Send() { frmSendGame(Contents(), Folders::Documents(), &m_window).ShowForm(); }
