// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QStringList>

#include <functional>
#include <optional>

class C_Image;
class PictureBox;
class QDropEvent;
class QMimeData;
class QMouseEvent;
class QRubberBand;
class QWheelEvent;
class Session;

/// What is done to a picture straight on the likeness of an editor: the right button moves it, the wheel zooms it, and
/// pictures dropped there take its place.
class LikenessPicture : public QObject {
    Q_OBJECT

public:
    struct Doors {
        /// The picture as the editor has it; its path is empty for none.
        std::function<C_Image&()> image;
        /// Where it stands on the likeness, in pixels.
        std::function<QRect()> place;
        /// It shows another part now.
        std::function<void()> changed;
        /// Files were dropped. Called when the drop is over, as it may ask questions.
        std::function<void(const QStringList& files)> take;
    };

    LikenessPicture(PictureBox& picDest, const Session& session, Doors doors);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Turn(const QWheelEvent& event);
    bool Enter(QDropEvent& event);
    bool Drop(QDropEvent& event);
    /// Size of the picture at a point of the likeness; nothing where there is none or it can't be read.
    std::optional<QSize> PictureAt(QPointF at) const;

    PictureBox& m_picDest;
    const Session& m_session;
    const Doors m_doors;
    QRubberBand* m_light;
    bool m_bMoving = false;
    QPointF m_down;
    QPointF m_start;
    /// Pixels of the picture that is being moved.
    QSize m_picture;
    /// What the wheel has been turned beyond the last step, in parts of a notch times its steps.
    int m_turn = 0;
};
