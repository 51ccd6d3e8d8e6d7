// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditToken.h"

#include "check/PaperHint.h"
#include "document/basTAVL.h"
#include "document/Subscript.h"
#include "game/Session.h"
#include "pictures/MissingMark.h"
#include "pictures/PicturePart.h"
#include "platform/text/NewLine.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/PaperLine.h"
#include "windows/editors/Redrawing.h"
#include "windows/pictures/DroppedFiles.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/frmImagePosition.h"
#include "windows/pictures/UnsavedChanges.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace {

constexpr double kSquare = 1.0;
constexpr bool kRound = true;
constexpr const char* kIndexProperty = "Tag";

} // namespace

frmEditToken::frmEditToken(Session& session, QWidget* parent)
    : TypingWindow("frmEditToken!", "lblComposing", parent), m_session(session) {
    setObjectName(QStringLiteral("frmEditToken"));
    setWindowTitle(QStringLiteral("Edit Token"));
    BuildControls();
    Connect();
    basCommon::ShowEntireForm(*this);
}

void frmEditToken::ShowForm(int iToken) try {
    if (const std::optional<Edit> edit = Ask(iToken)) m_session.Do(*edit);
} catch (...) {
    ErrTail("frmEditToken!", "ShowForm", iToken);
}

std::optional<Edit> frmEditToken::Ask(int iToken) {
    m_bLoading = true;
    cmdIndex->setProperty(kIndexProperty, iToken);
    m_bSetAllFonts = false;
    m_bSelecting = false;
    m_selection.Clear();
    BeginTyping();
    LoadFromGame();
    lblPlace->setText(QStringLiteral("Token %1 of %2").arg(iToken + 1).arg(basTAVL::kTokens));
    txtHoldFocus->SetWhat(lblPlace->text());
    m_shown = ShownParts();
    m_bLoading = false;
    // On a picture the first letter would ask whether it is to go.
    if (!HasImage()) PlaceCaretBehind();
    Redraw();
    TakeFocus();
    exec();
    if (!m_oToken.IsDifferentFrom(InGame())) return std::nullopt;
    return ChangeOfGame();
}

Edit frmEditToken::ChangeOfGame() const {
    C_Token token = InGame();
    token.LoadFromObject(m_oToken);
    return Edits::OfToken(m_session.InHand(), Index(), token);
}

const C_Token& frmEditToken::InGame() const {
    return m_session.InHand().tokens[CheckedSubscript(Index(), basTAVL::kTokens)];
}

int frmEditToken::Index() const { return cmdIndex->property(kIndexProperty).toInt(); }

void frmEditToken::LoadFromGame() {
    m_oToken = C_Token();
    m_oToken.LoadFromObject(InGame());
    const QSignalBlocker silent(txtToken);
    txtToken->setPlainText(m_oToken.TextAll());
}

void frmEditToken::Redraw() try {
    if (m_bLoading) return;
    Redrawing redrawing(*this, &frmEditToken::picDest_BackingChanged);
    const C_Token::TextSelection selection{m_selection.m_iCol, m_selection.m_iRow, m_selection.m_iColEnd,
                                           m_selection.m_iRowEnd};
    // A record of its own: one whose picture is away, as on a stick, gives it up.
    C_Token likeness = m_oToken;
    likeness.Redraw(0, 0, picDest->width(), picDest->height(), m_selection.IsOn(), *picDest, picScratch, selection,
                    WidgetLook::FillOf(*this));
    if (IsMissing(m_oToken.Image.Ref())) PaintMissingMark(*picDest, MarkPlaceOnToken(picDest->size()));
    picDest->Refresh();
    ShowInclude(HasImage() ? kImage : kText);
    UsePicDest();
    lblPaper->Tell(PaperHint(ChangeOfGame().after, GamePiece::Token(Index())));
    ShowTyping();
    redrawing.ShowMessages();
} catch (...) {
    ErrTail("frmEditToken!", "Redraw");
}

void frmEditToken::ShowInclude(Include include) {
    const bool image = include == kImage;
    optInclude[include]->setChecked(true);
    cmdBitmap->setText(image ? QStringLiteral("Cha&nge Image") : QStringLiteral("&Select Image"));
    cmdCropImage->setEnabled(image);
    cmdChangeFont->setEnabled(!image);
    cmdSetAllFonts->setEnabled(!image);
    lblHint->setText(image ? QStringLiteral("Drag with the right button to move\nthe image, turn the wheel to zoom.")
                           : QStringLiteral("Click the token to type."));
}

void frmEditToken::SetText(const QString& sText) {
    UsePicDest();
    m_oToken.SetText(sText);
    const QSignalBlocker silent(txtToken);
    txtToken->setPlainText(m_oToken.TextAll());
}

void frmEditToken::SetImagePath(const QString& sFullPath) {
    UsePicDest();
    m_shown.Note(m_oToken.Image.Ref());
    m_oToken.SetImagePath(sFullPath);
    m_shown.Restore(m_oToken.Image);
}

void frmEditToken::optInclude_Click(int Index) try {
    ShowInclude(Include(Index));
    if (Index == kText) {
        SetImagePath(QString());
    } else if (!HasImage()) {
        m_selection.Clear();
        const QString sText = m_oToken.TextAll();
        SetText(QString());
        // A text has a say in what stays when nothing is chosen.
        if (sText.isEmpty()) SetImagePath(m_shown.Last().sPath);
        cmdBitmap_Click();
        // Nothing was chosen, so nothing has taken the text's place.
        if (!HasImage()) SetText(sText);
    }
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "optInclude_Click", Index);
}

void frmEditToken::cmdBitmap_Click() try {
    if (m_bLoading) return;
    const QString sText = HasImage() ? QString() : m_oToken.TextAll();
    if (!sText.isEmpty()) {
        if (MsgBox(QStringLiteral("Selecting an image will clear the text from the token. Do you wish to use an image "
                                  "instead of text?"),
                   vbYesNo + vbQuestion, QStringLiteral("Clear Text")) != vbYes)
            return;
        m_selection.Clear();
        ShowInclude(kImage);
        SetText(QString());
    }
    ChooseImage();
    if (!HasImage() && !sText.isEmpty()) SetText(sText);
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "cmdBitmap_Click");
}

void frmEditToken::ShowImage(const PictureRef& shown) {
    m_selection.Clear();
    SetImagePath(shown.sPath);
    ShowPart(m_oToken.Image, shown);
    m_shown.Restore(m_oToken.Image);
}

void frmEditToken::TakeDropped(const QStringList& files) try {
    bool others = false;
    const QString file = DroppedFiles::TakeFirst(m_session, files, m_oToken.Image.Owner(), others);
    if (file.isEmpty()) return;
    ShowImage(PartAtFirst(m_oToken.Image.Ref(), file));
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "TakeDropped");
}

void frmEditToken::ChooseImage() {
    if (m_sLastFolder.isEmpty()) m_sLastFolder = basCommon::GetMyGamesDirectory();
    const QString before = m_oToken.Image.FullPath();
    frmBrowse browser(this);
    const QString path = browser.ShowForm(before, true, m_sLastFolder);
    if (path == before) return;
    m_sLastFolder = frmBrowse::LastFolder();
    const PictureRef shown = m_oToken.Image.Ref();
    SetImagePath(path);
    if (IsSameElsewhere(before, path)) ShowPart(m_oToken.Image, shown);
    m_oToken.Image.TakeBadPath(browser.BadPath());
}

void frmEditToken::cmdCropImage_Click() try {
    C_Image& image = m_oToken.Image;
    if (image.IsWMF()) {
        MsgBox(QStringLiteral("This image is a 'Windows Metafile'. You are not allowed to crop or zoom this type of "
                              "image."),
               vbInformation);
        return;
    }
    frmImagePosition position(this);
    position.SetGround(m_oToken.BackColor);
    position.ShowForm(image, kSquare, kRound);
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "cmdCropImage_Click");
}

void frmEditToken::cmdChangeFont_Click() try {
    C_FontInfo& font = m_oToken.Font;
    const C_FontInfo before = font;
    basTAVL::FontToDialog(cdlgFont, font);
    cdlgFont.ShowFont();
    basTAVL::FontFromDialog(cdlgFont, font);
    // An unchanged font is fitted already: another fit could differ and count as a change.
    if (font.IsDifferentFrom(before)) SetText(TextLines::kUseExisting);
    Redraw();
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "cmdChangeFont_Click");
}

void frmEditToken::cmdSetAllFonts_Click() try {
    const QString question = QStringLiteral("Clicking 'Yes' below will force the font and max size") + kNewLine +
                             QStringLiteral("in use on this token to be used for all tokens.") + kNewLine + kNewLine +
                             QStringLiteral("This action CANNOT be undone. Do you wish to continue?");
    if (MsgBox(question, vbYesNo + vbExclamation, QStringLiteral("Set All Fonts?")) != vbYes) return;
    m_bSetAllFonts = true;
    MsgBox(QStringLiteral("The font for all tokens will be changed as soon as you exit this form."), vbInformation);
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "cmdSetAllFonts_Click");
}

void frmEditToken::cmdHelp_Click() try {
    MsgBox(QStringLiteral("To insert text, simply click in the middle of the token and start typing. ") + kNewLine +
               kNewLine +
               QStringLiteral("To edit the text, use the mouse to select text or set the insert point and again, start "
                              "typing. "),
           vbInformation);
    TakeFocus();
} catch (...) {
    ErrTop("frmEditToken!", "cmdHelp_Click");
}

void frmEditToken::cmdOK_Click() { hide(); }

void frmEditToken::cmdCancel_Click() try {
    m_selection.Clear();
    Redraw();
    if (m_oToken.IsDifferentFrom(InGame())) {
        const UnsavedChanges answer = AskAboutUnsavedChanges();
        if (answer == UnsavedChanges::Stay) return;
        if (answer == UnsavedChanges::Drop) LoadFromGame();
    }
    hide();
} catch (...) {
    ErrTop("frmEditToken!", "cmdCancel_Click");
}

void frmEditToken::reject() { cmdCancel_Click(); }
