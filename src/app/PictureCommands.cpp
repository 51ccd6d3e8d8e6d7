// SPDX-License-Identifier: MIT
#include "app/PictureCommands.h"

#include "app/BoardView.h"
#include "app/PictureDrop.h"
#include "check/GamePiece.h"
#include "game/DroppedPictures.h"
#include "game/MissingPictures.h"
#include "game/Session.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/Clipboard.h"
#include "windowing/DesktopWidgets.h"
#include "windows/missing/frmMissingPictures.h"
#include "windows/photos/frmDealPhotos.h"
#include "windows/pictures/DroppedFiles.h"

#include <QPointer>
#include <QWidget>

PictureCommands::PictureCommands(QWidget& window, BoardView& view, Session& session)
    : m_window(window), m_view(view), m_session(session) {
    // The offer may outlive the window, and it is taken up amid a load or a paint.
    const QPointer<QWidget> alive(&window);
    DesktopWidgets::OfferBelowLists(
        {.sCaption = QStringLiteral("&Find Missing Pictures..."),
         .applies = [alive, this] { return alive && !MissingPictures::Of(m_session.InHand()).empty(); },
         .take =
             [alive, this] {
                 QMetaObject::invokeMethod(
                     alive, [this] { FindMissing(GamePiece::Whole()); }, Qt::QueuedConnection);
             }});
}

void PictureCommands::FindMissing(const GamePiece& first) try {
    frmMissingPictures window(m_session, &m_window);
    // They come back while the window still stands.
    QObject::connect(&m_session, &Session::Edited, &window, [this] { m_view.Redraw(); });
    window.ShowForm(first);
} catch (...) {
    ErrTop("PictureCommands!", "FindMissing", first.Word());
}

void PictureCommands::Deal() try {
    if (frmDealPhotos(m_session, &m_window).ShowForm()) m_view.Redraw();
} catch (...) {
    ErrTop("PictureCommands!", "Deal");
}

void PictureCommands::Paste(const BoardPlace& place) {
    const QMimeData* const data = Clipboard::Data();
    if (!data || !DroppedFiles::Holds(*data)) {
        MsgBox(QStringLiteral("There is nothing to paste. Please copy a picture first."), vbInformation);
        return;
    }
    if (!place.IsSomething()) {
        MsgBox(QStringLiteral("Please choose a place for it first: the arrow keys move a frame over the board."),
               vbInformation);
        return;
    }
    const PictureOwner piece = PieceForPicture(place, m_session.InHand());
    if (!piece.IsPiece()) {
        MsgBox(QStringLiteral("No picture can stand there. Spaces, corners, notes and tokens take one."),
               vbInformation);
        return;
    }
    if (piece.iNumber == DroppedPictures::kNoneFree) {
        MsgBox(QStringLiteral("One picture found no free place."), vbInformation);
        return;
    }
    const QStringList files = DroppedFiles::FilesOf(*data, m_session.GameName());
    if (DroppedFiles::LayOnto(m_session, files, piece)) m_view.Redraw();
}
