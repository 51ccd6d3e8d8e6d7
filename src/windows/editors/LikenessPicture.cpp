// SPDX-License-Identifier: MIT
#include "windows/editors/LikenessPicture.h"

#include "game/Session.h"
#include "pictures/C_Image.h"
#include "platform/pictures/PictureHead.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windows/pictures/DroppedFiles.h"
#include "windows/pictures/ImagePlacing.h"

#include <QDropEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QWheelEvent>

#include <algorithm>

namespace {

// As far as the slider of the crop window goes.
constexpr int kLeastZoom = ImagePlacing::ZoomOfSlider(ImagePlacing::kSliderBottom);
constexpr int kMostZoom = ImagePlacing::ZoomOfSlider(ImagePlacing::kSliderTop);
constexpr int kStepsOfNotch = 2;
constexpr int kNotch = 120;

} // namespace

LikenessPicture::LikenessPicture(PictureBox& picDest, const Session& session, Doors doors)
    : QObject(&picDest), m_picDest(picDest), m_session(session), m_doors(std::move(doors)),
      m_light(new QRubberBand(QRubberBand::Rectangle, &picDest)) {
    m_light->setObjectName(QStringLiteral("shpDrop"));
    picDest.setAcceptDrops(true);
    picDest.installEventFilter(this);
}

std::optional<QSize> LikenessPicture::PictureAt(QPointF at) const {
    const C_Image& image = m_doors.image();
    if (image.FullPath().isEmpty() || image.IsWMF() || !m_doors.place().contains(at.toPoint())) return std::nullopt;
    QString error;
    const std::optional<PictureHead> head = ReadPictureHead(image.FullPath(), error);
    return head ? std::optional(head->size) : std::nullopt;
}

bool LikenessPicture::Press(const QMouseEvent& event) {
    if (event.button() != Qt::RightButton) return false;
    const std::optional<QSize> size = PictureAt(event.position());
    if (!size) return false;
    m_picture = *size;
    const C_Image& image = m_doors.image();
    m_start = image.IsCentered() ? QPointF(double(image.XCenter()), double(image.YCenter()))
                                 : QPointF(m_picture.width() / 2.0, m_picture.height() / 2.0);
    m_down = event.position();
    m_bMoving = true;
    return true;
}

bool LikenessPicture::Move(const QMouseEvent& event) {
    if (!m_bMoving) return false;
    if (!event.buttons().testFlag(Qt::RightButton)) {
        m_bMoving = false;
        return false;
    }
    C_Image& image = m_doors.image();
    const ImagePlacing::Scale scale = ImagePlacing::Scale::Of(m_picture, m_doors.place().size(), image.Zoom());
    const ImagePlacing::Center center = ImagePlacing::WithinLimits(
        ImagePlacing::Dragged({m_start.x(), m_start.y()}, m_down, event.position(), scale.dblScale));
    image.Let_XCenter(float(center.x));
    image.Let_YCenter(float(center.y));
    m_doors.changed();
    return true;
}

bool LikenessPicture::Turn(const QWheelEvent& event) {
    if (!PictureAt(event.position())) return false;
    // Fine wheels turn by parts of a notch.
    m_turn += event.angleDelta().y() * kStepsOfNotch;
    const int steps = m_turn / kNotch;
    m_turn -= steps * kNotch;
    if (steps == 0) return true;
    C_Image& image = m_doors.image();
    image.Let_Zoom(qint16(std::clamp(image.Zoom() + steps, kLeastZoom, kMostZoom)));
    m_doors.changed();
    return true;
}

bool LikenessPicture::Enter(QDropEvent& event) {
    if (!DroppedFiles::Holds(*event.mimeData())) return false;
    m_light->setGeometry(m_doors.place());
    m_light->show();
    event.acceptProposedAction();
    return true;
}

bool LikenessPicture::Drop(QDropEvent& event) {
    m_light->hide();
    event.acceptProposedAction();
    const QStringList files = DroppedFiles::FilesOf(*event.mimeData(), m_session.GameName());
    // Whoever it was dragged from waits for the end of the drop.
    if (!files.isEmpty())
        QMetaObject::invokeMethod(
            this, [this, files] { m_doors.take(files); }, Qt::QueuedConnection);
    return true;
}

bool LikenessPicture::eventFilter(QObject* watched, QEvent* event) try {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            return Press(static_cast<const QMouseEvent&>(*event));
        case QEvent::MouseMove:
            return Move(static_cast<const QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return std::exchange(m_bMoving, false);
        case QEvent::Wheel:
            return Turn(static_cast<const QWheelEvent&>(*event));
        case QEvent::DragEnter:
        case QEvent::DragMove:
            return Enter(static_cast<QDropEvent&>(*event));
        case QEvent::DragLeave:
            m_light->hide();
            return true;
        case QEvent::Drop:
            return Drop(static_cast<QDropEvent&>(*event));
        default:
            return QObject::eventFilter(watched, event);
    }
} catch (...) {
    m_bMoving = false;
    ErrTop("LikenessPicture!", "eventFilter", int(event->type()));
    return true;
}
