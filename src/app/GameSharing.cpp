// SPDX-License-Identifier: MIT
#include "app/GameSharing.h"

#include "app/BoardView.h"
#include "board/BoardPicture.h"
#include "document/GameText.h"
#include "game/GameNames.h"
#include "game/Session.h"
#include "pictures/PicturePlaces.h"
#include "platform/files/Folders.h"
#include "platform/pictures/SavePicture.h"
#include "services/Desktop.h"
#include "windowing/Clipboard.h"
#include "windows/sending/frmPieces.h"
#include "windows/sending/frmSendGame.h"

namespace {

QString FindPicture(const QString& sName, const PictureOwner& owner) {
    return PicturePlaces::FullFor(sName, owner, KitInUse());
}

// Ten inches at 300 dots an inch; and what a message shows whole.
constexpr int kSavedPixels = 3000;
constexpr int kCopiedPixels = 1200;

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

void GameSharing::SaveBoardPicture() {
    CommonDialog dlgCommon;
    dlgCommon.sDialogTitle = QStringLiteral("Save a Picture of the Board");
    dlgCommon.sInitDir = Folders::Pictures();
    dlgCommon.sFileName = GameTitle() + QStringLiteral(" board.png");
    dlgCommon.sFilter = QStringLiteral("PNG picture|*.png|SVG drawing|*.svg|PDF page|*.pdf");
    if (!dlgCommon.ShowSave()) {
        if (!dlgCommon.sError.isEmpty()) MsgBox(dlgCommon.sError, vbExclamation);
        return;
    }
    QString error;
    const bool saved = basPosit::SaveBoard(dlgCommon.sFileName, kSavedPixels, GameTitle(), error);
    m_view.Redraw();
    if (!saved)
        MsgBox(QStringLiteral("'%1' could not be written: %2.").arg(GameNames::FileNameOf(dlgCommon.sFileName), error),
               vbExclamation);
}

void GameSharing::SavePiecePicture() { frmPieces(GameTitle(), &m_window).ShowForm(); }

void GameSharing::CopyBoardPicture() {
    Clipboard::SetPicture(basPosit::BoardPicture(kCopiedPixels));
    m_view.Redraw();
}

QString GameSharing::GameTitle() const {
    QString name = GameNames::FileNameOf(m_session.GameName());
    const QString ending = QStringLiteral(".gam");
    if (name.endsWith(ending, Qt::CaseInsensitive)) name.chop(ending.size());
    return name;
}

void GameSharing::Send() { frmSendGame(Contents(), Folders::Documents(), &m_window).ShowForm(); }
