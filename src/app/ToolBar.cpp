// SPDX-License-Identifier: MIT
#include "app/ToolBar.h"

#include "app/ToolTips.h"
#include "platform/files/Folders.h"
#include "platform/paint/Color.h"
#include "platform/paint/Units.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

#include <utility>

namespace {

const Color kShadow = Color::Rgb(128, 128, 128);
// A face's frame lies on the edges of the button, one pixel wide.
constexpr int kFrameHeight = ToolBarTable::kBottom - ToolBarTable::kTop;

QWidget* MakeLine(QWidget* parent, const char* sName) {
    auto* line = new QWidget(parent);
    line->setObjectName(QString::fromLatin1(sName));
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    line->hide();
    return line;
}

int Pixels(float twips) { return CLng(double(twips) / kTwipsPerPixel); }

} // namespace

ToolBar::ToolBar(QWidget& parent, ToolTips& tips, std::function<void(Menu, int)> run)
    : m_tips(tips), m_run(std::move(run)), imgToolBar(new PictureBox(&parent)),
      linButTop(MakeLine(imgToolBar, "linButTop")), linButLeft(MakeLine(imgToolBar, "linButLeft")),
      linButBottom(MakeLine(imgToolBar, "linButBottom")), linButRight(MakeLine(imgToolBar, "linButRight")) {
    imgToolBar->setObjectName(QStringLiteral("imgToolBar"));
    imgToolBar->setAccessibleName(QStringLiteral("Toolbar; all its commands are in the menus"));
    imgToolBar->setGeometry(0, 0, ToolBarTable::kPictureWidth, ToolBarTable::kPictureHeight);
    m_tips.Watch(*imgToolBar);
    connect(imgToolBar, &PictureBox::MouseDown, this, &ToolBar::imgToolBar_MouseDown);
    connect(imgToolBar, &PictureBox::MouseMove, this, &ToolBar::imgToolBar_MouseMove);
    connect(imgToolBar, &PictureBox::MouseUp, this, &ToolBar::imgToolBar_MouseUp);
    connect(imgToolBar, &PictureBox::MouseLeft, this, &ToolBar::imgToolBar_MouseLeft);
    connect(imgToolBar, &PictureBox::BackingChanged, this, &ToolBar::imgToolBar_BackingChanged);
    Draw();
}

void ToolBar::Draw() {
    QString error;
    const Picture picture =
        LoadPicture(basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("toolbar.dat")), error);
    imgToolBar->SetBackColor(WidgetLook::FillOf(*imgToolBar->window()));
    if (picture.IsNull()) {
        // The menus hold the same commands, so a missing picture is no reason to disturb anybody.
        basErrLog::ErrLogToFile(QStringLiteral("The toolbar's picture can't be shown: ") + error, true);
        return;
    }
    imgToolBar->PaintPicture(picture, 0, 0, ToolBarTable::kPictureWidth, ToolBarTable::kPictureHeight);
    imgToolBar->Refresh();
}

void ToolBar::imgToolBar_BackingChanged() try { Draw(); } catch (...) {
    ErrTop("frmTAVL!", "imgToolBar_BackingChanged");
}

void ToolBar::InitButtonPositions() try {
    for (int i = 0; i < ToolBarTable::kButtons; ++i)
        m_iButtonLeft[size_t(i)] = qint16(ToolBarTable::kRows[size_t(i)].iLeft);
    linButTop->move(linButTop->x(), ToolBarTable::kTop);
    linButBottom->move(linButBottom->x(), ToolBarTable::kBottom);
} catch (...) {
    ErrTail("frmTAVL!", "InitButtonPositions");
}

void ToolBar::WhichButton(int Button, int Shift, float X, float Y) try {
    const int iButton = ToolBarTable::ButtonAt(Pixels(X), Pixels(Y));
    if (Button == m_iButtonState && iButton == m_iButton) return;
    if (iButton < 0) {
        HideButtonFrame();
        return;
    }
    FrameButton(iButton, Button != 0);
    m_iButton = iButton;
    m_iButtonState = Button;
} catch (...) {
    ErrTail("frmTAVL!", "WhichButton", Button, Shift, X, Y);
}

void ToolBar::FrameButton(int iButton, bool bPressed) {
    const int left = m_iButtonLeft[size_t(iButton)];
    const int right = left + ToolBarTable::kButtonWidth;
    linButTop->setGeometry(left, ToolBarTable::kTop, ToolBarTable::kButtonWidth + 1, 1);
    linButBottom->setGeometry(left, ToolBarTable::kBottom, ToolBarTable::kButtonWidth + 1, 1);
    linButLeft->setGeometry(left, ToolBarTable::kTop, 1, kFrameHeight);
    linButRight->setGeometry(right, ToolBarTable::kTop, 1, kFrameHeight);
    const Color lit = bPressed ? kShadow : Color::White();
    const Color shaded = bPressed ? Color::White() : kShadow;
    for (QWidget* line : {linButTop, linButLeft})
        WidgetLook::SetFill(*line, lit);
    for (QWidget* line : {linButBottom, linButRight})
        WidgetLook::SetFill(*line, shaded);
    for (QWidget* line : {linButTop, linButLeft, linButBottom, linButRight})
        line->show();
}

void ToolBar::HideButtonFrame() {
    for (QWidget* line : {linButTop, linButLeft, linButBottom, linButRight})
        line->hide();
    m_iButton = -1;
    m_iButtonState = 0;
}

void ToolBar::imgToolBar_MouseMove(int Button, int Shift, float X, float Y) try {
    const QPointF position{double(X), double(Y)};
    if (position == m_last) return;
    m_last = position;
    m_tips.HideBox();
    m_tips.Restart(false);
    WhichButton(Button, Shift, X, Y);
    if (m_iButton < 0) {
        WidgetLook::SetToolTip(*imgToolBar, QString());
        return;
    }
    SetButtonTips(m_iButton);
    m_tips.Restart(true);
} catch (...) {
    ErrTop("frmTAVL!", "imgToolBar_MouseMove", Button, Shift, X, Y);
}

void ToolBar::SetButtonTips(int iButton) {
    const ToolBarTable::Row& row = ToolBarTable::kRows.at(size_t(iButton));
    m_tips.SetBoxText(QString::fromLatin1(row.sBoxLine1) + QStringLiteral("\r\n") + QString::fromLatin1(row.sBoxLine2));
    m_sToolBarTip = QString::fromLatin1(row.sTip);
    WidgetLook::SetToolTip(*imgToolBar, m_sToolBarTip);
}

void ToolBar::imgToolBar_MouseDown(int Button, int Shift, float X, float Y) try {
    // One twip aside, so that it counts as a movement and the pressed frame shows at once.
    imgToolBar_MouseMove(Button, Shift, X + 1, Y);
} catch (...) {
    ErrTop("frmTAVL!", "imgToolBar_MouseDown", Button, Shift, X, Y);
}

void ToolBar::imgToolBar_MouseUp(int Button, int Shift, float X, float Y) try {
    const int iButton = m_iButton;
    const bool pressed = m_iButtonState != 0;
    // Raised again before the command runs: it may show a window.
    WhichButton(0, Shift, X, Y);
    // The next press at this very place counts too, though the mouse hasn't moved.
    m_last = QPointF(-1, -1);
    if (!pressed || iButton < 0) return;
    const ToolBarTable::Row& row = ToolBarTable::kRows.at(size_t(iButton));
    m_run(row.menu, row.iItem);
} catch (...) {
    ErrTop("frmTAVL!", "imgToolBar_MouseUp", Button, Shift, X, Y);
}

void ToolBar::imgToolBar_MouseLeft() try { HideButtonFrame(); } catch (...) {
    ErrTop("frmTAVL!", "imgToolBar_MouseLeft");
}
