// SPDX-License-Identifier: MIT
#include "app/PictureCommands.h"

#include "app/BoardView.h"
#include "game/MissingPictures.h"
#include "game/Session.h"
#include "services/basErrLog.h"
#include "windowing/DesktopWidgets.h"
#include "windows/missing/frmMissingPictures.h"

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
    if (frmMissingPictures(m_session, &m_window).ShowForm()) m_view.Redraw();
} catch (...) {
    ErrTop("PictureCommands!", "FindMissing");
}
