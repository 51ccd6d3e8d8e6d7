// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/C_Image.h"
#include "windows/pictures/ShownParts.h"

#include <QGroupBox>
#include <QHash>
#include <QString>

class ElidedLabel;
class QCheckBox;
class QLabel;
class QPushButton;

/// The frame "Bitmap" of an editor: whether the piece has a picture, and which one. The editor answers the
/// controls; what all editors answer alike is here.
class ImageGroup : public QGroupBox {
    Q_OBJECT
public:
    ImageGroup(const QString& sTitle, const QString& sCropCaption, QWidget* parent);

    QCheckBox* const chkIncludeImage;
    QPushButton* const cmdBitmap;
    QPushButton* const cmdCropImage;
    QLabel* const lblImageFile;
    ElidedLabel* const txtBitmapPath;

    /// Lets the user browse for another picture than this one and gives its path: the same when that is
    /// cancelled. The folder it was found in is where the next browsing starts.
    QString AskForPicture(const C_Image& image);
    /// The picture that was told to be bad while browsing, so that the editor needn't tell it again.
    const QString& BadPath() const { return m_sBadPath; }
    /// Lets the user move and zoom the picture behind a box of the given shape; of a metafile only tells that
    /// this can't be.
    void AskForPosition(C_Image& image, double dblHeightToWidth);
    /// A picture about to be taken off its piece comes back when the piece gets one again, its part too, also where
    /// another one took its place.
    void NoteShown(const C_Image& image) { m_shown[image.Index()].Note(image.Ref()); }
    /// The path of what was taken off the image's piece; empty for nothing.
    QString TakenOff(const C_Image& image) const { return m_shown.value(image.Index()).Last().sPath; }
    /// Gives the image the part that was chosen of its picture before.
    void RestorePart(C_Image& image) const { m_shown.value(image.Index()).Restore(image); }
    /// Another piece is shown, or the window anew.
    void ForgetShown() { m_shown.clear(); }
    /// The answer to a click on the path, which is there to be read.
    static void TellHowToChangePath();

Q_SIGNALS:
    void PathClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The folder last browsed; empty at first.
    QString m_sLastFolder;
    QString m_sBadPath;
    /// By the number of the piece.
    QHash<int, ShownParts> m_shown;
};
