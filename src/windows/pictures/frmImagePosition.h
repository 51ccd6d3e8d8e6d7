// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/C_Image.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/pictures/PicturePyramid.h"
#include "windows/pictures/ImagePlacing.h"
#include "windows/pictures/ShownParts.h"

#include <QDialog>
#include <QTimer>

class PictureBox;
class QFrame;
class QPushButton;
class QSlider;

/// Lets the user zoom a picture and move it behind the box that it will fill on the printed game. Works on a
/// copy of the image; what was changed is handed back on closing.
class frmImagePosition : public QDialog {
    Q_OBJECT
public:
    explicit frmImagePosition(QWidget* parent = nullptr);
    ~frmImagePosition() override;

    /// Shows the dialog; on return objImage holds the result. dblHeightToWidth is the shape of what the
    /// image will fill; bRound masks what a round cut takes away. An image that was never painted is
    /// centred, as any painting of it would.
    void ShowForm(C_Image& objImage, double dblHeightToWidth, bool bRound);
    /// What shows beside a picture that doesn't fill the place; white unless it is set ahead of ShowForm.
    void SetGround(Color lGround);

    /// True when picOriginal holds the picture. A missing or unreadable one is told; after an unreadable
    /// one the user is offered another at once.
    bool LoadMyPicture(const QString& sFilePath);
    static void AwaitPicture(const QString& sFilePath);

    /// Paints the preview from the working copy, every pixel of the picture taken into account.
    void Zoom();
    /// Paints it fast, for a picture in motion.
    void ZoomInMotion();

    /// For tests and measurements: the preview box takes this width whatever room the screen has.
    void SetPreviewWidth(int pixels) { m_fixedPreviewWidth = pixels; }
    /// For tests: as at the start of a run.
    static void ResetForTest();

    /// Escape and the close button do what Cancel does.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    QWidget* BuildPreview();
    QWidget* BuildTexts();
    void Connect();
    void SizePreview(double dblHeightToWidth);
    void ShowNothing();
    void MaskRound();
    ImagePlacing::Scale CurrentScale() const;
    void SetCenter(ImagePlacing::Center center);
    void SetSlider(int value);
    bool picZoomed_KeyDown(int key, Qt::KeyboardModifiers modifiers);
    void MoveBy(QPointF pixels);

    void picZoomed_MouseDown(int Button, int Shift, float X, float Y);
    void picZoomed_MouseMove(int Button, int Shift, float X, float Y);
    void picZoomed_MouseUp(int Button, int Shift, float X, float Y);
    void sldZoom_MouseMove();
    void timSharpen_Timer();
    void timSelectAnImage_Timer();
    void cmdSelectImage_Click();
    void ShowAnother(const QString& sPath);
    void cmdOK_Click();
    void cmdCancel_Click();

    QFrame* shpZoomed = nullptr;
    PictureBox* picZoomed = nullptr;
    QSlider* sldZoom = nullptr;
    QPushButton* cmdSelectImage = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QTimer* timSelectAnImage = nullptr;
    /// Paints a picture properly once it has come to rest.
    QTimer* timSharpen = nullptr;

    PictureHolder picOriginal;
    PicturePyramid m_inMotion;
    C_Image m_oImage;
    C_Image* m_oMaster = nullptr;
    ShownParts m_shown;
    /// The picture last told to be unreadable.
    QString m_sBadPath;
    bool m_bRound = false;
    bool m_bLoaded = false;
    /// The picture can't be read, and no other one was chosen for it.
    bool m_bGivenUp = false;
    bool m_bBusy = false;
    qint16 m_iStartX = 0;
    qint16 m_iStartY = 0;
    qint16 m_iDownX = 0;
    qint16 m_iDownY = 0;
    /// 0: what the screen has room for.
    int m_fixedPreviewWidth = 0;
};
