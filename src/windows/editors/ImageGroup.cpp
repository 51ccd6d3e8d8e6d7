// SPDX-License-Identifier: MIT
#include "windows/editors/ImageGroup.h"

#include "pictures/C_Image.h"
#include "services/basCommon.h"
#include "services/Desktop.h"
#include "windowing/ButtonKeys.h"
#include "windowing/ElidedLabel.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/frmImagePosition.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kPathMargin = 3;

} // namespace

ImageGroup::ImageGroup(const QString& sTitle, const QString& sCropCaption, QWidget* parent)
    : QGroupBox(sTitle, parent), chkIncludeImage(new QCheckBox(QStringLiteral("&Include Image"), this)),
      cmdBitmap(new QPushButton(QStringLiteral("&Find Image"), this)),
      cmdCropImage(new QPushButton(sCropCaption, this)), lblImageFile(new QLabel(QStringLiteral("Image File:"), this)),
      txtBitmapPath(new ElidedLabel(this)) {
    setObjectName(QStringLiteral("fraBitmap"));
    chkIncludeImage->setObjectName(QStringLiteral("chkIncludeImage"));
    cmdBitmap->setObjectName(QStringLiteral("cmdBitmap"));
    LetEnterPressWithFocusOnly(*cmdBitmap);
    cmdCropImage->setObjectName(QStringLiteral("cmdCropImage"));
    LetEnterPressWithFocusOnly(*cmdCropImage);
    lblImageFile->setObjectName(QStringLiteral("lblImageFile"));
    txtBitmapPath->setObjectName(QStringLiteral("txtBitmapPath"));
    txtBitmapPath->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    txtBitmapPath->setMargin(kPathMargin);
    txtBitmapPath->installEventFilter(this);
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{chkIncludeImage, cmdBitmap, cmdCropImage, lblImageFile, txtBitmapPath})
        layout->addWidget(widget);
}

QString ImageGroup::AskForPicture(const C_Image& image) {
    const QString before = image.FullPath();
    if (m_sLastFolder.isEmpty()) m_sLastFolder = basCommon::GetMyGamesDirectory();
    frmBrowse browser(window());
    browser.SetBadPath(image.BadPath());
    const QString path = browser.ShowForm(before, true, m_sLastFolder);
    m_sBadPath = browser.BadPath();
    if (path != before) m_sLastFolder = frmBrowse::LastFolder();
    return path;
}

void ImageGroup::AskForPosition(C_Image& image, double dblHeightToWidth) {
    if (image.IsWMF()) {
        MsgBox(QStringLiteral("This image is a 'Windows Metafile'. You are not allowed to crop or zoom this type of "
                              "image."),
               vbInformation);
        return;
    }
    frmImagePosition position(window());
    position.ShowForm(image, dblHeightToWidth, false);
}

void ImageGroup::TellHowToChangePath() {
    MsgBox(QStringLiteral("To change the Bitmap, please click the 'Find Image' button."));
}

bool ImageGroup::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtBitmapPath && event->type() == QEvent::MouseButtonPress) Q_EMIT PathClicked();
    return QGroupBox::eventFilter(watched, event);
}
