// SPDX-License-Identifier: MIT
#include "windows/editors/frmShowTokens.h"

#include "drawing/basDraw.h"
#include "game/Session.h"
#include "pictures/MissingMark.h"
#include "platform/paint/Units.h"
#include "platform/text/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/frmEditToken.h"
#include "windows/editors/Redrawing.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kAcross = 3;
constexpr int kDown = 2;

// Lengths of the window in twips.
constexpr int kSmallestWidth = 4230;
constexpr int kSmallestHeight = 5730;
/// What the window's width and height hold beside the tokens.
constexpr int kBesideTokens = 1305;
constexpr int kAroundTokens = 3780;
constexpr int kGap = 240;
constexpr int kTop = 2280;
constexpr int kAboveButton = 360;
/// A token's side when the window opens.
constexpr int kOpeningSide = 3000;

constexpr double kLabelScale = 1.6;
const Color kFrameColor = Color::Rgb(0, 96, 192);
constexpr int kFramePen = 3;

int Pixels(double twips) { return CLng(twips / kTwipsPerPixel); }

} // namespace

frmShowTokens::frmShowTokens(Session& session, QWidget* parent) : QDialog(parent), m_session(session) {
    setObjectName(QStringLiteral("frmShowTokens"));
    setWindowTitle(QStringLiteral("Edit Game Tokens"));
    BuildControls();
    // The toolkit itself brings a window that is made smaller back to this.
    setMinimumSize(Pixels(kSmallestWidth), Pixels(kSmallestHeight));
    resize(Pixels(kOpeningSide * kAcross + kBesideTokens), Pixels(kOpeningSide * kDown + kAroundTokens));
    basCommon::ShowEntireForm(*this);
}

void frmShowTokens::BuildControls() {
    lblClick = new QLabel(QStringLiteral("Click the token you wish to change."), this);
    lblClick->setObjectName(QStringLiteral("lblClick"));
    lblClick->setAlignment(Qt::AlignCenter);
    lblClick->setWordWrap(true);
    WidgetLook::ScaleFont(*lblClick, kLabelScale);
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        auto* const picture = new PictureBox(this);
        picture->setObjectName(QStringLiteral("picToken_%1").arg(i));
        picture->setAccessibleName(QStringLiteral("Token %1").arg(i + 1));
        picture->setFocusPolicy(Qt::TabFocus);
        picture->setCursor(Qt::PointingHandCursor);
        picture->installEventFilter(this);
        connect(picture, &PictureBox::MouseUp, this, &frmShowTokens::picToken_MouseUp);
        connect(picture, &PictureBox::BackingChanged, this, &frmShowTokens::picToken_BackingChanged);
        picToken[size_t(i)] = picture;
    }
    cmdOK = new QPushButton(QStringLiteral("&Done"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    connect(cmdOK, &QPushButton::clicked, this, &frmShowTokens::cmdOK_Click);
    connect(&m_session, &Session::Edited, this, &frmShowTokens::Game_Edited);
}

void frmShowTokens::ShowForm(bool& bChanged) try {
    bChanged = false;
    m_bChanged = false;
    LoadFromGame();
    cmdOK->setFocus(Qt::OtherFocusReason);
    Form_Resize();
    exec();
    bChanged = m_bChanged;
} catch (...) {
    ErrTail("frmShowTokens!", "ShowForm");
}

void frmShowTokens::LoadFromGame() {
    for (size_t i = 0; i < m_oTokens.size(); ++i) {
        m_oTokens[i] = C_Token();
        m_oTokens[i].LoadFromObject(m_session.InHand().tokens[i]);
    }
}

void frmShowTokens::Game_Edited() try {
    if (!isVisible()) return;
    m_bChanged = true;
    LoadFromGame();
    Zoom();
} catch (...) {
    ErrTop("frmShowTokens!", "Game_Edited");
}

void frmShowTokens::Form_Resize() try {
    if (isMinimized()) return;
    const QSize window = frameGeometry().size() * kTwipsPerPixel;
    const int fW = CLng((window.width() - kBesideTokens) / double(kAcross));
    const int fH = CLng((window.height() - kAroundTokens) / double(kDown));
    // A high title bar or a large font needs more than the rows leave for the button; it is never cut off.
    const int rows = (height() - cmdOK->sizeHint().height()) * kTwipsPerPixel - kTop - kGap - kAboveButton;
    const int lSide = std::min({fW, fH, rows / kDown});
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        const int r = i / kAcross;
        const int c = i % kAcross;
        picToken[size_t(i)]->setGeometry(Pixels((lSide + kGap) * c + kGap), Pixels((lSide + kGap) * r + kTop),
                                         Pixels(lSide), Pixels(lSide));
    }
    const QRect last = picToken.back()->geometry();
    cmdOK->setGeometry(
        QRect(QPoint(last.left(), last.top() + last.height() + Pixels(kAboveButton)), cmdOK->sizeHint()));
    lblClick->setGeometry(Pixels(kGap), 0, last.left() + last.width() - Pixels(kGap), Pixels(kTop));
    Zoom();
} catch (...) {
    ErrTop("frmShowTokens!", "Form_Resize");
}

void frmShowTokens::Zoom() try {
    Redrawing redrawing(*this, &frmShowTokens::picToken_BackingChanged);
    for (int i = 0; i < basTAVL::kTokens; ++i)
        DrawToken(i);
    redrawing.ShowMessages();
} catch (...) {
    ErrTail("frmShowTokens!", "Zoom");
}

void frmShowTokens::DrawToken(int iToken) {
    PictureBox& picture = *picToken[size_t(iToken)];
    // A record of its own: one whose picture is away, as on a stick, gives it up.
    C_Token token = m_oTokens[size_t(iToken)];
    token.Redraw(0, 0, picture.width(), picture.height(), false, picture, picOriginal, {}, WidgetLook::FillOf(*this));
    const PictureRef& shown = m_oTokens[size_t(iToken)].Image.Ref();
    if (IsMissing(shown)) PaintMissingMark(picture, MarkPlaceOnToken(picture.size()));
    if (picture.hasFocus()) DrawFocus(picture);
    picture.Refresh();
}

void frmShowTokens::DrawFocus(PictureBox& picture) {
    constexpr int kInset = kFramePen / 2;
    basDraw::Draw_SetHdc(&picture.hDC());
    basDraw::Draw_SetPen(PenStyle::Solid, kFramePen, kFrameColor);
    basDraw::Draw_SetBrush(Color::None());
    basDraw::Draw_Rect(kInset, kInset, picture.width() - kInset, picture.height() - kInset);
    basDraw::Draw_ReleaseObjects();
}

void frmShowTokens::EditToken(int iToken) try {
    if (!m_frmEditToken) m_frmEditToken = new frmEditToken(m_session, this);
    m_frmEditToken->ShowForm(iToken);
    if (m_frmEditToken->SetsAllFonts()) {
        basDraw::Draw_SetHdc(&picToken[0]->hDC());
        m_session.Do(Edits::OfTokenFont(m_session.InHand(), m_frmEditToken->Token().Font));
    }
    Zoom();
} catch (...) {
    ErrTail("frmShowTokens!", "EditToken", iToken);
}

void frmShowTokens::picToken_Click(int Index) try { EditToken(Index); } catch (...) {
    ErrTop("frmShowTokens!", "picToken_Click", Index);
}

// A click is a press and a release on the same token.
void frmShowTokens::picToken_MouseUp(int iButton, int, float X, float Y) {
    const auto found = std::find(picToken.begin(), picToken.end(), sender());
    if (iButton != PictureBox::kLeftButton || found == picToken.end()) return;
    const QPointF at(double(X) / kTwipsPerPixel, double(Y) / kTwipsPerPixel);
    if (QRectF((*found)->rect()).contains(at)) picToken_Click(int(found - picToken.begin()));
}

bool frmShowTokens::picToken_KeyDown(int Index, const QKeyEvent& event) {
    int token = Index;
    switch (event.key()) {
        case Qt::Key_Left:
            token -= 1;
            break;
        case Qt::Key_Right:
            token += 1;
            break;
        case Qt::Key_Up:
            token -= kAcross;
            break;
        case Qt::Key_Down:
            token += kAcross;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            picToken_Click(Index);
            return true;
        default:
            return false;
    }
    if (token >= 0 && token < basTAVL::kTokens) picToken[size_t(token)]->setFocus(Qt::OtherFocusReason);
    return true;
}

bool frmShowTokens::eventFilter(QObject* watched, QEvent* event) try {
    const auto found = std::find(picToken.begin(), picToken.end(), watched);
    if (found == picToken.end()) return QDialog::eventFilter(watched, event);
    // What isn't taken mustn't be marked as ignored: Tab would move the focus here and in the window once more.
    if (event->type() == QEvent::KeyPress)
        return picToken_KeyDown(int(found - picToken.begin()), static_cast<const QKeyEvent&>(*event));
    // The frame comes and goes with the focus, which the picture has or has lost already.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) Zoom();
    return false;
} catch (...) {
    ErrTop("frmShowTokens!", "picToken_KeyDown", int(event->type()));
    return true;
}

void frmShowTokens::picToken_BackingChanged() try { Zoom(); } catch (...) {
    ErrTop("frmShowTokens!", "picToken_BackingChanged");
}

void frmShowTokens::resizeEvent(QResizeEvent*) { Form_Resize(); }

void frmShowTokens::cmdOK_Click() { hide(); }

void frmShowTokens::reject() { cmdOK_Click(); }
