// SPDX-License-Identifier: MIT
#include "windows/editors/EditWindow.h"

#include "check/PaperHint.h"
#include "document/basTAVL.h"
#include "game/Session.h"
#include "pictures/C_Image.h"
#include "pictures/PicturePart.h"
#include "platform/text/NewLine.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/ImageGroup.h"
#include "windows/editors/PaperLine.h"
#include "windows/editors/Redrawing.h"
#include "windows/pictures/DroppedFiles.h"
#include "windows/pictures/UnsavedChanges.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr double kSquare = 1.0;

} // namespace

EditWindow::EditWindow(Session& session, std::unique_ptr<Likeness> likeness, const Wording& wording, QWidget* parent)
    : TypingWindow(wording.sModule, "txtToolTip", parent), m_session(session), m_ownLikeness(std::move(likeness)),
      m_likeness(*m_ownLikeness), m_wording(wording) {
    setObjectName(QString::fromLatin1(wording.sName));
    setWindowTitle(QString::fromLatin1(wording.sCaption));
    BuildControls();
    Connect();
    basCommon::ShowEntireForm(*this);
}

EditWindow::~EditWindow() = default;

std::optional<Edit> EditWindow::Ask(int iIndex) {
    m_bLoading = true;
    m_bChangeAllFonts = false;
    m_bChangedOthers = false;
    m_likeness.LoadFromGame(m_session.InHand(), iIndex);
    lblPlace->setText(QString::fromLatin1(m_wording.sPlace).arg(iIndex + 1).arg(m_wording.iPieces));
    txtHoldFocus->SetWhat(lblPlace->text());
    m_selection.Clear();
    m_bSelecting = false;
    BeginTyping();
    m_bNameless = IsNameless();
    fraBitmap->ForgetShown();
    chkIncludeImage->setChecked(!m_likeness.Image().FullPath().isEmpty());
    chkIncludeImage_Click();
    m_bLoading = false;
    PlaceCaretBehind();
    Redraw();
    TakeFocus();
    exec();
    if (!m_likeness.IsDifferentFromGame(m_session.InHand())) return std::nullopt;
    return m_likeness.ChangeOf(m_session.InHand());
}

bool EditWindow::EditPiece(int iIndex) {
    const std::optional<Edit> edit = Ask(iIndex);
    if (edit) m_session.Do(*edit);
    return edit.has_value() || m_bChangeAllFonts || m_bChangedOthers;
}

void EditWindow::Redraw() try {
    if (m_bLoading) return;
    Redrawing redrawing(*this, &EditWindow::picDest_BackingChanged);
    m_likeness.Redraw(*picDest, picScratch, m_selection);
    picDest->Refresh();
    txtBitmapPath->SetWholeText(m_likeness.Image().FullPath());
    ShowLegend();
    TellOnPaper();
    ShowTyping();
    redrawing.ShowMessages();
} catch (...) {
    ErrTail(m_wording.sModule, "Redraw");
}

void EditWindow::TellOnPaper() {
    UsePicDest();
    lblPaper->Tell(PaperHint(m_likeness.ChangeOf(m_session.InHand()).after, m_likeness.Piece()));
}

void EditWindow::FitText(const QString& sText) {
    UsePicDest();
    m_likeness.SetText(sText);
}

void EditWindow::KeepTyped(const QStringList& sTextLines) { FitText(m_likeness.Joined(sTextLines)); }

void EditWindow::DropSelection() {
    m_selection.Clear();
    picDest->unsetCursor();
}

void EditWindow::SetImagePath(const QString& sFullPath) {
    UsePicDest();
    m_likeness.SetImagePath(sFullPath);
}

void EditWindow::cmdChangeFont_Click() try {
    C_FontInfo& font = m_likeness.Font();
    const C_FontInfo before = font;
    basTAVL::FontToDialog(cdlgFont, font);
    cdlgFont.ShowFont();
    basTAVL::FontFromDialog(cdlgFont, font);
    // An unchanged font is fitted already: another fit could differ and count as a change.
    if (font.IsDifferentFrom(before)) FitText(m_likeness.TextAll());
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop(m_wording.sModule, "cmdChangeFont_Click");
}

void EditWindow::cmdSetAllFonts_Click() try {
    const QString question = QStringLiteral("Clicking 'Yes' below will force the font and max size") + kNewLine +
                             QStringLiteral("in use on this ") + QString::fromLatin1(m_wording.sThisPiece) +
                             QStringLiteral(" to be used for all spaces and corners.") + kNewLine + kNewLine +
                             QStringLiteral("This action CANNOT be undone. Do you wish to continue?");
    if (MsgBox(question, vbYesNoCancel + vbExclamation, QStringLiteral("Set All Fonts?")) != vbYes) return;
    m_bChangeAllFonts = true;
    UsePicDest();
    m_session.Do(m_likeness.AllFontsOf(m_session.InHand()));
    MsgBox(QStringLiteral("All fonts have been changed. The change will be visible as soon as you exit the current "
                          "form."),
           vbInformation);
} catch (...) {
    ErrTop(m_wording.sModule, "cmdSetAllFonts_Click");
}

void EditWindow::cmdBitmap_Click() try {
    if (m_bLoading) return;
    const PictureRef shown = m_likeness.Image().Ref();
    const QString& before = shown.sPath;
    const QString path = fraBitmap->AskForPicture(m_likeness.Image());
    if (path != before) {
        fraBitmap->NoteShown(m_likeness.Image());
        SetImagePath(path);
        fraBitmap->RestorePart(m_likeness.Image());
        if (IsSameElsewhere(before, path)) ShowPart(m_likeness.Image(), shown);
        m_likeness.Image().TakeBadPath(fraBitmap->BadPath());
        Redraw();
    } else if (path.isEmpty()) {
        chkIncludeImage->setChecked(false);
        chkIncludeImage_Click();
    }
    TakeFocus();
} catch (...) {
    ErrTop(m_wording.sModule, "cmdBitmap_Click");
}

void EditWindow::chkIncludeImage_Click() try {
    const bool include = chkIncludeImage->isChecked();
    cmdBitmap->setEnabled(include);
    cmdCropImage->setEnabled(include);
    if (include) {
        const QString takenOff = fraBitmap->TakenOff(m_likeness.Image());
        if (!takenOff.isEmpty()) SetImagePath(takenOff);
        fraBitmap->RestorePart(m_likeness.Image());
        cmdBitmap_Click();
    } else {
        fraBitmap->NoteShown(m_likeness.Image());
        SetImagePath(QString());
    }
    Redraw();
    if (txtHoldFocus->isEnabled()) txtHoldFocus->setFocus(Qt::OtherFocusReason);
} catch (...) {
    ErrTop(m_wording.sModule, "chkIncludeImage_Click");
}

void EditWindow::TakeDropped(const QStringList& files) try {
    bool others = false;
    const QString file = DroppedFiles::TakeFirst(m_session, files, m_likeness.Image().Owner(), others);
    m_bChangedOthers = m_bChangedOthers || others;
    if (file.isEmpty()) return;
    const PictureRef part = PartAtFirst(m_likeness.Image().Ref(), file);
    fraBitmap->NoteShown(m_likeness.Image());
    SetImagePath(file);
    ShowPart(m_likeness.Image(), part);
    fraBitmap->RestorePart(m_likeness.Image());
    chkIncludeImage->setChecked(true);
    cmdBitmap->setEnabled(true);
    cmdCropImage->setEnabled(true);
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop(m_wording.sModule, "TakeDropped");
}

void EditWindow::cmdCropImage_Click() try {
    fraBitmap->AskForPosition(m_likeness.Image(), kSquare);
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop(m_wording.sModule, "cmdCropImage_Click");
}

bool EditWindow::IsNameless() const { return m_likeness.TextAll().trimmed().isEmpty(); }

// Blanks that somebody left in the place of a name are a slip; where there was none, or a picture speaks for the
// piece, they may be meant.
bool EditWindow::LacksName() const {
    if (m_likeness.TextAll().isEmpty()) return true;
    return IsNameless() && !m_bNameless && m_likeness.Image().FullPath().isEmpty();
}

void EditWindow::cmdOK_Click() try {
    if (LacksName()) {
        MsgBox(QStringLiteral("Please specify a name for the space."));
        return;
    }
    DropSelection();
    txtHoldFocus->setFocus(Qt::OtherFocusReason);
    hide();
} catch (...) {
    ErrTop(m_wording.sModule, "cmdOK_Click");
}

void EditWindow::cmdCancel_Click() try {
    UsePicDest();
    DropSelection();
    Redraw();
    if (!m_likeness.IsDifferentFromGame(m_session.InHand())) {
        hide();
        return;
    }
    const UnsavedChanges answer = AskAboutUnsavedChanges();
    if (answer == UnsavedChanges::Stay) return;
    if (answer == UnsavedChanges::Drop) m_likeness.TakeBack(m_session.InHand());
    hide();
} catch (...) {
    ErrTop(m_wording.sModule, "cmdCancel_Click");
}

void EditWindow::reject() { cmdCancel_Click(); }

void EditWindow::txtBitmapPath_Click() try { ImageGroup::TellHowToChangePath(); } catch (...) {
    ErrTop(m_wording.sModule, "txtBitmapPath_Click");
}

void EditWindow::txtSpace_Change() try {
    QString text = txtSpace->toPlainText();
    FitText(text.replace(u'\n', kNewLine));
    Redraw();
} catch (...) {
    ErrTop(m_wording.sModule, "txtSpace_Change");
}
