// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditMoney.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "game/Session.h"
#include "pictures/MissingMark.h"
#include "pictures/PicturePart.h"
#include "services/basErrLog.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windows/editors/BoxText.h"
#include "windows/editors/ImageGroup.h"
#include "windows/editors/Redrawing.h"
#include "windows/pictures/DroppedFiles.h"
#include "windows/pictures/UnsavedChanges.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

// Shape of the oval that the picture shows in.
constexpr double kOvalHeightToWidth = 190.0 / 164.0;
constexpr const char* kIndexProperty = "Tag";

} // namespace

C_Money& frmEditMoney::Note() { return m_oMoney[size_t(Index())]; }

int frmEditMoney::Index() const { return cmdIndex->property(kIndexProperty).toInt(); }

bool frmEditMoney::ShowForm() try {
    const std::optional<Edit> edit = Ask();
    if (edit) m_session.Do(*edit);
    return edit.has_value();
} catch (...) {
    ErrTail("frmEditMoney!", "ShowForm");
}

std::optional<Edit> frmEditMoney::Ask() {
    LoadFromGame();
    fraBitmap->ForgetShown();
    ChooseNote(0);
    optMoney[0]->setFocus();
    exec();
    if (!IsAnyDifferent()) return std::nullopt;
    auto money = m_session.InHand().money;
    for (size_t i = 0; i < money.size(); ++i) {
        if (m_oMoney[i].IsDifferentFrom(money[i])) money[i].LoadFromObject(m_oMoney[i]);
    }
    return Edits::OfMoney(m_session.InHand(), money);
}

void frmEditMoney::LoadFromGame() {
    for (size_t i = 0; i < m_oMoney.size(); ++i)
        m_oMoney[i].LoadFromObject(m_session.InHand().money[i]);
}

bool frmEditMoney::IsAnyDifferent() const {
    for (size_t i = 0; i < m_oMoney.size(); ++i) {
        if (m_oMoney[i].IsDifferentFrom(m_session.InHand().money[i])) return true;
    }
    return false;
}

void frmEditMoney::ChooseNote(int Index) {
    cmdIndex->setProperty(kIndexProperty, Index);
    optMoney[size_t(Index)]->setChecked(true);
    FillInForm();
}

void frmEditMoney::FillInForm() try {
    // Filling one text box would store the other one's old text in the note.
    m_bFillingIn = true;
    for (int i = 0; i < C_Money::kTexts; ++i) {
        txtSpace[size_t(i)]->setPlainText(Note().Text(i));
        txtSpace[size_t(i)]->moveCursor(QTextCursor::End);
    }
    cmdBitmap->setEnabled(true);
    ShowImagePath();
    m_bFillingIn = false;
    RedrawMoney();
} catch (...) {
    m_bFillingIn = false;
    ErrTail("frmEditMoney!", "FillInForm");
}

void frmEditMoney::ShowImagePath() {
    const QString path = FaceImage().FullPath();
    txtBitmapPath->SetWholeText(path);
    chkIncludeImage->setChecked(!path.isEmpty());
    cmdCropImage->setEnabled(!path.isEmpty());
    picNote->setToolTip(path.isEmpty() ? QString()
                                       : QStringLiteral("Drag the picture with the right button to move it,\n"
                                                        "turn the wheel to zoom it."));
}

void frmEditMoney::RedrawMoney() try {
    Redrawing redrawing(*this, &frmEditMoney::picNote_BackingChanged);
    double dblDPI = 0;
    double dblRatio = 0;
    picNote->ScaleMode = ScaleModeKind::Pixels;
    basDraw::Draw_GetDPIandPrinterSizeRatio(*picNote, dblDPI, dblRatio, 1.0);
    picNote->Cls();
    Note().DrawMoney(*picNote, dblDPI, 0, 0, true, true, false);
    if (IsMissing(Note().FaceImage.Ref())) PaintMissingMark(*picNote, InMiddleOfNote(dblDPI));
    picNote->Refresh();
    redrawing.ShowMessages();
} catch (...) {
    ErrTail("frmEditMoney!", "RedrawMoney");
}

// The oval lies there, near enough.
QRectF frmEditMoney::InMiddleOfNote(double dblDPI) {
    const QSizeF note = C_Money::NoteInches();
    const QSizeF oval = C_Money::OvalInches();
    const QPointF place((note.width() - oval.width()) / 2, (note.height() - oval.height()) / 2);
    return {place * dblDPI, oval * dblDPI};
}

// The texts stand on plates of their own, but the plates have no more than the whole note beneath them.
void frmEditMoney::RedrawTextOnly() { RedrawMoney(); }

void frmEditMoney::optMoney_Click(int Index) try {
    if (!m_bFillingIn) ChooseNote(Index);
} catch (...) {
    ErrTop("frmEditMoney!", "optMoney_Click", Index);
}

void frmEditMoney::txtSpace_Change() try {
    if (m_bFillingIn || !MayKeep(*txtSpace[0]) || !MayKeep(*txtSpace[1])) return;
    for (int i = 0; i < C_Money::kTexts; ++i)
        Note().Let_Text(i, BoxText(*txtSpace[size_t(i)]));
    RedrawTextOnly();
} catch (...) {
    ErrTop("frmEditMoney!", "txtSpace_Change");
}

void frmEditMoney::chkIncludeImage_Click() try {
    const bool include = chkIncludeImage->isChecked();
    cmdBitmap->setEnabled(include);
    cmdCropImage->setEnabled(include);
    if (include) {
        const QString takenOff = fraBitmap->TakenOff(FaceImage());
        if (!takenOff.isEmpty()) FaceImage().Let_FullPath(takenOff);
        fraBitmap->RestorePart(FaceImage());
        txtBitmapPath->SetWholeText(FaceImage().FullPath());
        if (!m_bFillingIn) cmdBitmap_Click();
    } else {
        fraBitmap->NoteShown(FaceImage());
        txtBitmapPath->SetWholeText(QString());
        FaceImage().Let_FullPath(QString());
    }
    RedrawMoney();
} catch (...) {
    ErrTop("frmEditMoney!", "chkIncludeImage_Click");
}

void frmEditMoney::ShowPicture(const PictureRef& shown) {
    fraBitmap->NoteShown(FaceImage());
    FaceImage().Let_FullPath(shown.sPath);
    ShowPart(FaceImage(), shown);
    fraBitmap->RestorePart(FaceImage());
    ShowImagePath();
}

void frmEditMoney::TakeDropped(const QStringList& files) try {
    bool others = false;
    const QString file = DroppedFiles::TakeFirst(m_session, files, FaceImage().Owner(), others);
    if (file.isEmpty()) return;
    // The others of the window's notes have taken what the game got behind this one.
    for (size_t i = 0; others && i < m_oMoney.size(); ++i) {
        if (int(i) != Index() && m_oMoney[i].FaceImage.FullPath().isEmpty())
            m_oMoney[i].LoadFromObject(m_session.InHand().money[i]);
    }
    ShowPicture(PartAtFirst(FaceImage().Ref(), file));
    RedrawMoney();
} catch (...) {
    ErrTop("frmEditMoney!", "TakeDropped");
}

void frmEditMoney::cmdBitmap_Click() try {
    const PictureRef shown = FaceImage().Ref();
    const QString& before = shown.sPath;
    const QString path = fraBitmap->AskForPicture(FaceImage());
    if (path != before) {
        fraBitmap->NoteShown(FaceImage());
        FaceImage().Let_FullPath(path);
        fraBitmap->RestorePart(FaceImage());
        if (IsSameElsewhere(before, path)) ShowPart(FaceImage(), shown);
        FaceImage().TakeBadPath(fraBitmap->BadPath());
        ShowImagePath();
        RedrawMoney();
    } else if (path.isEmpty() && chkIncludeImage->isChecked()) {
        chkIncludeImage->setChecked(false);
        chkIncludeImage_Click();
    }
} catch (...) {
    ErrTop("frmEditMoney!", "cmdBitmap_Click");
}

void frmEditMoney::cmdCropImage_Click() try {
    fraBitmap->AskForPosition(FaceImage(), kOvalHeightToWidth);
    RedrawMoney();
} catch (...) {
    ErrTop("frmEditMoney!", "cmdCropImage_Click");
}

void frmEditMoney::txtBitmapPath_Click() try { ImageGroup::TellHowToChangePath(); } catch (...) {
    ErrTop("frmEditMoney!", "txtBitmapPath_Click");
}

void frmEditMoney::picNote_BackingChanged() try { RedrawMoney(); } catch (...) {
    ErrTop("frmEditMoney!", "picNote_BackingChanged");
}

void frmEditMoney::cmdOK_Click() { hide(); }

void frmEditMoney::cmdCancel_Click() try {
    if (!IsAnyDifferent()) {
        hide();
        return;
    }
    const UnsavedChanges answer = AskAboutUnsavedChanges();
    if (answer == UnsavedChanges::Stay) return;
    if (answer == UnsavedChanges::Drop) LoadFromGame();
    hide();
} catch (...) {
    ErrTop("frmEditMoney!", "cmdCancel_Click");
}

void frmEditMoney::reject() { cmdCancel_Click(); }
