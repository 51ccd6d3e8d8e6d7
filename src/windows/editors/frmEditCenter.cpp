// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditCenter.h"

#include "board/basPosit.h"
#include "drawing/basDraw.h"
#include "game/Session.h"
#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/ButtonKeys.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/PaperLine.h"
#include "windows/editors/TipLabel.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace {

struct TwipsRect {
    int iLeft;
    int iTop;
    int iWidth;
    int iHeight;

    QRect Pixels(double dblScale) const {
        const auto pixels = [dblScale](int twips) { return CLng(twips * dblScale / kTwipsPerPixel); };
        return {pixels(iLeft), pixels(iTop), pixels(iWidth), pixels(iHeight)};
    }
};

struct AreaRow {
    TwipsRect place;
    const char* sLabel;
    const char* sToolTip;
    const char* sMissing; ///< Message when the text is empty.
};

// By area less 1.
constexpr AreaRow kArea[] = {
    {{240, 480, 6435, 1440},
     "Game Name on Box Top and Game Board:",
     "Click to Edit Name of Game",
     "Please specify a name for your game."},
    {{1908, 2160, 3100, 1200},
     "Subtitle on Box and Game Board:",
     "Click to Edit Subtitle",
     "Please specify the Subtitle for your game."},
    {{7000, 2160, 3100, 1440},
     "Second Subtitle on Box Only",
     "Click to Edit Occasion",
     "Please specify the Second Subtitle for your game."},
};

const AreaRow& RowOf(int iArea) { return kArea[iArea - 1]; }

constexpr TwipsRect kForm{0, 0, 10350, 4515};
// As wide as the areas below it, and of the title box's proportions.
constexpr TwipsRect kLogo{7000, 855, 3100, 690};
// Below the subtitle, beside the buttons.
constexpr TwipsRect kPaper{240, 3480, 6435, 960};
constexpr TwipsRect kOk{7000, 3900, 1425, 390};
constexpr TwipsRect kCancel{8675, 3900, 1425, 390};
// Labels end where their area begins; in pixels.
constexpr int kLabelHeight = 20;
constexpr int kGapUnderLabel = 2;
// Twips from the left end of a label to what stands to its right, which is the next label or the window's edge.
constexpr std::array<int, 3> kLabelRoom = {kForm.iWidth - 240, 7000 - 1908, kForm.iWidth - 7000};

} // namespace

frmEditCenter::frmEditCenter(Session& session, QWidget* parent)
    : QDialog(parent), m_session(session), picForm(new PictureBox(this)), cmdLogo(new QLabel(this)),
      cmdOK(MakeButton("cmdOK", QStringLiteral("&OK"), QStringLiteral("Click to Save Your Changes"))),
      cmdCancel(MakeButton("cmdCancel", QStringLiteral("&Cancel"), QStringLiteral("Click to Undo Your Changes"))),
      txtHoldFocus(new HoldFocusBox(this)), txtToolTip(new TipLabel("txtToolTip", this)),
      lblPaper(new PaperLine(this)) {
    setObjectName(QStringLiteral("frmEditCenter"));
    setWindowTitle(QStringLiteral("Edit Game Titles"));
    picForm->setObjectName(QStringLiteral("picForm"));
    Form_Load();
    connect(picForm, &PictureBox::MouseDown, this, &frmEditCenter::Form_MouseDown);
    connect(picForm, &PictureBox::MouseMove, this, &frmEditCenter::Form_MouseMove);
    connect(picForm, &PictureBox::MouseUp, this, &frmEditCenter::Form_MouseUp);
    connect(picForm, &PictureBox::BackingChanged, this, &frmEditCenter::RedrawAll);
    connect(txtHoldFocus, &HoldFocusBox::Committed, this, &frmEditCenter::Form_KeyPress);
    connect(txtHoldFocus, &HoldFocusBox::Composing, this, &frmEditCenter::HoldFocus_Composing);
    connect(txtHoldFocus, &HoldFocusBox::TabbedInto, this, &frmEditCenter::HoldFocus_TabbedInto);
    connect(txtHoldFocus, &HoldFocusBox::TabbedOutOf, this, &frmEditCenter::HoldFocus_TabbedOutOf);
    connect(cmdOK, &QPushButton::clicked, this, &frmEditCenter::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmEditCenter::cmdCancel_Click);
}

// With large letters the labels need more room than there is: then all grows, as far as the screen allows.
double frmEditCenter::ScaleForLetters() const {
    double scale = 1.0;
    for (int i = 0; i < kAreas; ++i) {
        QLabel label(QString::fromLatin1(kArea[i].sLabel));
        label.setFont(font());
        const QSize needed = label.sizeHint();
        scale = std::max({scale, double(needed.height()) / kLabelHeight,
                          double(needed.width()) * kTwipsPerPixel / kLabelRoom.at(size_t(i))});
    }
    scale = std::max(scale, cmdOK->sizeHint().height() * double(kTwipsPerPixel) / kOk.iHeight);
    const QSize form = kForm.Pixels(1.0).size();
    const QSize free = Screen::FreeArea().size();
    return std::max(std::min({scale, double(free.width()) / form.width(), double(free.height()) / form.height()}), 1.0);
}

void frmEditCenter::Form_Load() {
    const double scale = ScaleForLetters();
    picForm->setGeometry(kForm.Pixels(scale));
    setFixedSize(kForm.Pixels(scale).size());
    Screen::PlaceAtFraction(*this, 1.0 / 3, 1.0 / 4);
    for (int i = 1; i <= kAreas; ++i) {
        m_area[size_t(i)] = RowOf(i).place.Pixels(scale);
        MakeLabel(QString::fromLatin1(RowOf(i).sLabel), m_area[size_t(i)]);
    }
    // Never seen: it only marks the place that the logo is painted on.
    cmdLogo->setObjectName(QStringLiteral("cmdLogo"));
    cmdLogo->setText(QStringLiteral("Display Area for Logo"));
    cmdLogo->setGeometry(kLogo.Pixels(scale));
    cmdLogo->hide();
    lblPaper->setGeometry(kPaper.Pixels(scale));
    cmdOK->setGeometry(kOk.Pixels(scale));
    cmdCancel->setGeometry(kCancel.Pixels(scale));
    txtHoldFocus->installEventFilter(this);
    setTabOrder(txtHoldFocus, cmdOK);
    setTabOrder(cmdOK, cmdCancel);
}

QLabel* frmEditCenter::MakeLabel(const QString& sText, const QRect& place) {
    auto* const label = new QLabel(WidgetLook::WithoutMnemonics(sText), this);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    const int height = std::max(kLabelHeight, label->sizeHint().height());
    label->setGeometry(place.left(), place.top() - height - kGapUnderLabel,
                       std::max(place.width(), label->sizeHint().width()), height);
    return label;
}

QPushButton* frmEditCenter::MakeButton(const char* sName, const QString& sCaption, const QString& sTip) {
    auto* const button = new QPushButton(sCaption, this);
    button->setObjectName(QString::fromLatin1(sName));
    LetEnterPressWithFocusOnly(*button);
    button->installEventFilter(this);
    WidgetLook::SetToolTip(*button, sTip);
    return button;
}

void frmEditCenter::ShowForm(bool& bChanged) try {
    bChanged = false;
    if (const std::optional<Edit> edit = Ask()) {
        bChanged = true;
        m_session.Do(*edit);
    }
} catch (...) {
    ErrTail("frmEditCenter!", "ShowForm");
}

std::optional<Edit> frmEditCenter::Ask() {
    m_bLoading = true;
    m_titles = m_session.InHand().titles;
    for (int i = 1; i <= kAreas; ++i)
        m_sSaved[size_t(i)] = m_titles.Text(i).sText;
    m_bInArea.fill(false);
    m_history.Clear();
    EditBehindText(kGameName);
    m_bLoading = false;
    Redraw(0);
    txtHoldFocus->setFocus();
    exec();
    for (int i = 1; i <= kAreas; ++i) {
        if (m_titles.Text(i).sText != m_sSaved[size_t(i)]) return Edits::OfTitles(m_session.InHand(), m_titles);
    }
    return std::nullopt;
}

void frmEditCenter::EditArea(int iArea, int iCol, int iRow) {
    m_iTextArea = iArea;
    m_selection.Clear();
    lblPaper->TellLoss({});
    if (iArea != kNoArea) m_selection.SetCaret(iCol, iRow);
    txtHoldFocus->SetTyping(iArea != kNoArea, m_area[size_t(iArea)]);
    txtHoldFocus->SetWhat(iArea == kNoArea ? QStringLiteral("Titles") : QString::fromLatin1(RowOf(iArea).sLabel));
    txtHoldFocus->SetText(iArea == kNoArea ? QString() : LinesUnderEdit().join(u' '));
    txtToolTip->hide();
}

void frmEditCenter::Form_MouseDown(int Button, int Shift, float X, float Y) try {
    if (Button != PictureBox::kLeftButton) return;
    const Spot spot = WhereIsMouse(X, Y);
    int area = kNoArea;
    for (int i = 1; i <= kAreas; ++i) {
        if (spot.bInArea[size_t(i)]) area = i;
    }
    m_bInArea = spot.bInArea;
    if (MarkByClick(Shift, area, spot.iCol, spot.iRow)) m_bInArea.fill(false);
    txtHoldFocus->setFocus();
    Redraw(0);
} catch (...) {
    ErrTop("frmEditCenter!", "Form_MouseDown", Button, Shift, X, Y);
}

void frmEditCenter::Form_MouseMove(int Button, int Shift, float X, float Y) try {
    const Spot spot = WhereIsMouse(X, Y);
    if (Button != 0) {
        const bool drags = m_bInArea[size_t(m_iTextArea)] && spot.bInArea[size_t(m_iTextArea)];
        if (drags && m_selection.SetEnd(spot.iCol, spot.iRow)) Redraw(m_iTextArea);
        return;
    }
    QString tip;
    for (int i = 1; i <= kAreas; ++i) {
        if (spot.bInArea[size_t(i)]) tip = QString::fromLatin1(RowOf(i).sToolTip);
    }
    picForm->setCursor(tip.isEmpty() ? Qt::ArrowCursor : Qt::IBeamCursor);
    WidgetLook::SetToolTip(*picForm, tip);
} catch (...) {
    ErrTop("frmEditCenter!", "Form_MouseMove", Button, Shift, X, Y);
}

void frmEditCenter::Form_MouseUp(int Button, int, float, float) {
    if (Button == PictureBox::kLeftButton) m_bInArea.fill(false);
}

bool frmEditCenter::RangeCheck() {
    for (int i = 1; i <= kAreas; ++i) {
        const QString& text = m_titles.Text(i).sText;
        // Blanks that stood there before may be meant.
        if (!text.isEmpty() && (!text.trimmed().isEmpty() || m_sSaved[size_t(i)].trimmed().isEmpty())) continue;
        MsgBox(QString::fromLatin1(RowOf(i).sMissing));
        return false;
    }
    return true;
}

void frmEditCenter::ExitAndHide() {
    txtHoldFocus->setFocus();
    hide();
}

void frmEditCenter::cmdOK_Click() try {
    if (RangeCheck()) ExitAndHide();
} catch (...) {
    ErrTop("frmEditCenter!", "cmdOK_Click");
}

void frmEditCenter::cmdCancel_Click() try {
    basDraw::Draw_SetHdc(&picForm->hDC());
    for (int i = 1; i <= kAreas; ++i)
        basPosit::SetSpecialText(m_titles.Text(i), i, m_sSaved[size_t(i)]);
    ExitAndHide();
} catch (...) {
    ErrTop("frmEditCenter!", "cmdCancel_Click");
}

void frmEditCenter::reject() { cmdCancel_Click(); }
