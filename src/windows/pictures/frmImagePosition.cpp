// SPDX-License-Identifier: MIT
#include "windows/pictures/frmImagePosition.h"

#include "pictures/AwaitedPictures.h"
#include "pictures/PaintPicture.h"
#include "pictures/PicturePart.h"
#include "platform/paint/Units.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/HourGlass.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/UnsavedChanges.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFrame>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSlider>

namespace {

// Preview pixels that an arrow key moves the picture, and with Ctrl.
constexpr int kArrowStep = 10;
constexpr int kFineArrowStep = 1;

// Folder in which the browser opens, kept for the run.
QString& StartFolder() {
    static QString folder;
    return folder;
}

QPointF InPixels(float X, float Y) { return {X / double(kTwipsPerPixel), Y / double(kTwipsPerPixel)}; }

} // namespace

frmImagePosition::frmImagePosition(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmImagePosition"));
    setWindowTitle(QStringLiteral("Position Image"));
    BuildControls();
    Connect();
    picZoomed->SetBackColor(Color::White());
}

frmImagePosition::~frmImagePosition() = default;

void frmImagePosition::SetGround(Color lGround) { picZoomed->SetBackColor(lGround); }

void frmImagePosition::ResetForTest() { StartFolder().clear(); }

void frmImagePosition::ShowForm(C_Image& objImage, double dblHeightToWidth, bool bRound) try {
    SizePreview(dblHeightToWidth);
    basCommon::ShowEntireForm(*this);
    m_bRound = bRound;
    m_bLoaded = false;
    m_sBadPath.clear();
    m_shown = ShownParts();
    m_oImage = C_Image();
    m_oMaster = &objImage;
    m_oImage.LoadFromObject(objImage, false);
    SetSlider(ImagePlacing::SliderOfZoom(m_oImage.Zoom()));
    m_bGivenUp = false;
    if (LoadMyPicture(m_oImage.FullPath())) Zoom();
    // Who doesn't want another one in place of a picture that can't be read, doesn't want to crop it either.
    if (!m_bLoaded && m_bGivenUp) return;
    if (!m_bLoaded) timSelectAnImage->start();
    picZoomed->setFocus();
    exec();
    timSharpen->stop();
    timSelectAnImage->stop();
    if (m_oMaster->IsDifferentFrom(m_oImage)) m_oMaster->LoadFromObject(m_oImage, false);
} catch (...) {
    ErrTail("frmImagePosition!", "ShowForm", objImage, dblHeightToWidth, bRound);
}

void frmImagePosition::ShowNothing() {
    picOriginal.Picture = Picture();
    m_inMotion = PicturePyramid();
    m_bLoaded = false;
    timSharpen->stop();
    picZoomed->Cls();
}

// The window behind stays alive meanwhile, but takes nothing.
void frmImagePosition::AwaitPicture(const QString& sFilePath) {
    constexpr int kUntilNextLook = 20;
    const HourGlass hourGlass;
    while (AwaitedPictures::TakesLong(sFilePath, kAllPixels)) {
        QEventLoop loop;
        QTimer::singleShot(kUntilNextLook, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

bool frmImagePosition::LoadMyPicture(const QString& sFilePath) try {
    if (!basCommon::DoesFileExist(sFilePath)) {
        ShowNothing();
        if (!sFilePath.isEmpty()) {
            MsgBox(QStringLiteral("The file named '") + sFilePath + QStringLiteral("' could not be found.") + kNewLine +
                   QStringLiteral("No image was loaded."));
        }
        return false;
    }
    AwaitPicture(sFilePath);
    QString error;
    const Picture picture = LoadPicture(sFilePath, error);
    if (picture.IsNull()) {
        MsgBox(QStringLiteral("The file named '") + sFilePath + QStringLiteral("' could not be loaded.") + kNewLine +
               QStringLiteral("The following error was reported:") + kNewLine + error);
        m_sBadPath = sFilePath;
        ShowNothing();
        cmdSelectImage_Click();
        m_bGivenUp = !m_bLoaded;
        return false;
    }
    picOriginal.Picture = picture;
    m_inMotion = PicturePyramid(picture);
    m_bLoaded = true;
    return true;
} catch (...) {
    ErrTail("frmImagePosition!", "LoadMyPicture", sFilePath);
}

void frmImagePosition::Zoom() try {
    if (!m_bLoaded) return;
    timSharpen->stop();
    picZoomed->Cls();
    picZoomed->ScaleMode = ScaleModeKind::Pixels;
    const Picture whole = picOriginal.Picture;
    const AwaitedPictures awaited;
    PaintZoomed(m_oImage.Ref(), m_oImage.Told(), *picZoomed, picOriginal, ScaleModeKind::Twips,
                QRectF(picZoomed->rect()), Color::None());
    if (awaited.Any()) {
        picOriginal.Picture = whole;
        timSharpen->start();
    }
    MaskRound();
    picZoomed->Refresh();
} catch (...) {
    ErrTop("frmImagePosition!", "Zoom");
}

// A drawing of one bit shows its own white as long as it moves, whatever the ground is.
void frmImagePosition::ZoomInMotion() try {
    if (!m_bLoaded) return;
    if (!m_oImage.IsCentered()) {
        // Where its middle lies is known once it was properly painted.
        Zoom();
        return;
    }
    const Picture& picture = picOriginal.Picture;
    const ZoomedSource source =
        ZoomedSource::Of(picture.Width(), picture.Height(), m_oImage.Zoom(), m_oImage.XCenter(), m_oImage.YCenter());
    picZoomed->Cls();
    m_inMotion.Paint(*picZoomed, QRectF(picZoomed->rect()),
                     QRectF(source.xSrc, source.ySrc, source.iSide, source.iSide));
    MaskRound();
    picZoomed->Refresh();
    timSharpen->start();
} catch (...) {
    ErrTop("frmImagePosition!", "ZoomInMotion");
}

// What is cut away later is hidden now.
void frmImagePosition::MaskRound() {
    if (!m_bRound) return;
    const int lW = picZoomed->width();
    const int lH = picZoomed->height();
    const ImagePlacing::Ring ring = ImagePlacing::Ring::For(lW);
    picZoomed->DrawWidth = ring.iDrawWidth;
    picZoomed->Circle(lW / 2.0, lH / 2.0, ring.dblRadius, WidgetLook::FillOf(*this));
    picZoomed->DrawWidth = 1;
}

ImagePlacing::Scale frmImagePosition::CurrentScale() const {
    const QSize size(picOriginal.Picture.Width(), picOriginal.Picture.Height());
    return ImagePlacing::Scale::Of(size, picZoomed->size(), m_oImage.Zoom());
}

void frmImagePosition::SetCenter(ImagePlacing::Center center) {
    const ImagePlacing::Center kept = ImagePlacing::WithinLimits(center);
    m_oImage.Let_XCenter(float(kept.x));
    m_oImage.Let_YCenter(float(kept.y));
}

void frmImagePosition::SetSlider(int value) {
    const QSignalBlocker quiet(sldZoom);
    sldZoom->setValue(value);
}

void frmImagePosition::picZoomed_MouseDown(int Button, int Shift, float X, float Y) try {
    if (!m_bLoaded) return;
    const QPointF at = InPixels(X, Y);
    m_iStartX = qint16(m_oImage.XCenter());
    m_iStartY = qint16(m_oImage.YCenter());
    m_iDownX = qint16(CLng(at.x()));
    m_iDownY = qint16(CLng(at.y()));
    if (Button == PictureBox::kLeftButton) picZoomed->setCursor(Qt::ClosedHandCursor);
    if (Button != PictureBox::kRightButton) return;
    SetCenter(ImagePlacing::CenteredOn({double(m_iStartX), double(m_iStartY)}, at, CurrentScale()));
    Zoom();
} catch (...) {
    ErrTop("frmImagePosition!", "picZoomed_MouseDown", Button, Shift, X, Y);
}

void frmImagePosition::picZoomed_MouseMove(int Button, int Shift, float X, float Y) try {
    if (Button != PictureBox::kLeftButton || m_bBusy || !m_bLoaded) return;
    m_bBusy = true;
    SetCenter(ImagePlacing::Dragged({double(m_iStartX), double(m_iStartY)}, QPointF(m_iDownX, m_iDownY), InPixels(X, Y),
                                    CurrentScale().dblScale));
    ZoomInMotion();
    m_bBusy = false;
} catch (...) {
    m_bBusy = false;
    ErrTop("frmImagePosition!", "picZoomed_MouseMove", Button, Shift, X, Y);
}

void frmImagePosition::picZoomed_MouseUp(int, int, float, float) {
    picZoomed->setCursor(Qt::OpenHandCursor);
    if (timSharpen->isActive()) Zoom();
}

void frmImagePosition::timSharpen_Timer() { Zoom(); }

void frmImagePosition::sldZoom_MouseMove() try {
    m_oImage.Let_Zoom(qint16(ImagePlacing::ZoomOfSlider(sldZoom->value())));
    ZoomInMotion();
} catch (...) {
    ErrTop("frmImagePosition!", "sldZoom_MouseMove");
}

void frmImagePosition::MoveBy(QPointF pixels) {
    if (!m_bLoaded) return;
    SetCenter(
        ImagePlacing::Dragged({m_oImage.XCenter(), m_oImage.YCenter()}, QPointF(), pixels, CurrentScale().dblScale));
    ZoomInMotion();
}

// The keyboard's way to move the picture; the slider has keys of its own.
bool frmImagePosition::picZoomed_KeyDown(int key, Qt::KeyboardModifiers modifiers) try {
    const int step = modifiers.testFlag(Qt::ControlModifier) ? kFineArrowStep : kArrowStep;
    switch (key) {
        case Qt::Key_Left:
            MoveBy(QPointF(-step, 0));
            return true;
        case Qt::Key_Right:
            MoveBy(QPointF(step, 0));
            return true;
        case Qt::Key_Up:
            MoveBy(QPointF(0, -step));
            return true;
        case Qt::Key_Down:
            MoveBy(QPointF(0, step));
            return true;
        case Qt::Key_Plus:
            sldZoom->setValue(sldZoom->value() - sldZoom->singleStep());
            return true;
        case Qt::Key_Minus:
            sldZoom->setValue(sldZoom->value() + sldZoom->singleStep());
            return true;
        default:
            return false;
    }
} catch (...) {
    ErrTop("frmImagePosition!", "picZoomed_KeyDown", key);
    return true;
}

bool frmImagePosition::eventFilter(QObject* watched, QEvent* event) {
    if (watched != picZoomed) return QDialog::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            return picZoomed_KeyDown(key->key(), key->modifiers());
        }
        case QEvent::Wheel:
            return QCoreApplication::sendEvent(sldZoom, event);
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            shpZoomed->setBackgroundRole(picZoomed->hasFocus() ? QPalette::Highlight : QPalette::Mid);
            break;
        default:
            break;
    }
    return QDialog::eventFilter(watched, event);
}

void frmImagePosition::timSelectAnImage_Timer() { cmdSelectImage_Click(); }

void frmImagePosition::cmdSelectImage_Click() try {
    if (StartFolder().isEmpty()) StartFolder() = basCommon::GetMyGamesDirectory();
    frmBrowse browser(this);
    browser.SetBadPath(m_sBadPath);
    const QString path = browser.ShowForm(m_oImage.FullPath(), false, StartFolder());
    if (path == m_oImage.FullPath()) return;
    StartFolder() = frmBrowse::LastFolder();
    const bool hadPicture = m_bLoaded;
    if (LoadMyPicture(path)) {
        ShowAnother(path);
    } else if (hadPicture && !m_bLoaded && LoadMyPicture(m_oImage.FullPath())) {
        // Nothing better was found, so the picture that there was is shown again.
        Zoom();
    }
} catch (...) {
    ErrTop("frmImagePosition!", "cmdSelectImage_Click");
}

// Of one that was shown before, or found where it lies now, the same part shows.
void frmImagePosition::ShowAnother(const QString& sPath) {
    const PictureRef before = m_oImage.Ref();
    m_shown.Note(before);
    m_oImage.Let_FullPath(sPath);
    m_oImage.Let_XCenter(0);
    m_oImage.Let_YCenter(0);
    m_oImage.Let_Zoom(0);
    if (IsSameElsewhere(before.sPath, sPath)) ShowPart(m_oImage, before);
    m_shown.Restore(m_oImage);
    SetSlider(ImagePlacing::SliderOfZoom(m_oImage.Zoom()));
    Zoom();
}

void frmImagePosition::cmdOK_Click() { hide(); }

void frmImagePosition::cmdCancel_Click() try {
    if (!m_oMaster->IsDifferentFrom(m_oImage)) {
        hide();
        return;
    }
    const UnsavedChanges answer = AskAboutUnsavedChanges();
    if (answer == UnsavedChanges::Stay) return;
    if (answer == UnsavedChanges::Drop) m_oImage.LoadFromObject(*m_oMaster, false);
    hide();
} catch (...) {
    ErrTop("frmImagePosition!", "cmdCancel_Click");
}

void frmImagePosition::reject() { cmdCancel_Click(); }
