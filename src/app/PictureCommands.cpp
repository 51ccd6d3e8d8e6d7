// SPDX-License-Identifier: MIT
#include "app/PictureCommands.h"

#include "app/BoardView.h"
#include "game/MissingPictures.h"
#include "game/Session.h"
#include "services/basErrLog.h"
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
                     alive, [this] { FindMissing(); }, Qt::QueuedConnection);
             }});
}

void PictureCommands::FindMissing() try {
    frmMissingPictures window(m_session, &m_window);
    // They come back while the window still stands.
    QObject::connect(&m_session, &Session::Edited, &window, [this] { m_view.Redraw(); });
    window.ShowForm();
} catch (...) {
    ErrTop("PictureCommands!", "FindMissing");
}

void PictureCommands::Deal() try {
    if (frmDealPhotos(m_session, &m_window).ShowForm()) m_view.Redraw();
} catch (...) {
    ErrTop("PictureCommands!", "Deal");
}

bool PictureCommands::CanPaste() {
    const QMimeData* const data = Clipboard::Data();
    return data && DroppedFiles::Holds(*data);
}

bool PictureCommands::Paste(const PictureOwner& piece) {
    if (!CanPaste()) return false;
    const QStringList files = DroppedFiles::FilesOf(*Clipboard::Data(), m_session.GameName());
    if (DroppedFiles::LayOnto(m_session, files, piece)) m_view.Redraw();
    return true;
}
