// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/frmAbout.h"
#include "board/basPosit.h"
#include "platform/paint/Units.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr std::array<const char*, MainLayout::kButtons> kButtonCaptions = {"&Money", "&Good News", "&Bad News", "Print",
                                                                           "E&xit"};
// Of the window on a small screen, in pixels: all the height there is, and no wider than its board needs.
constexpr QSize kSizeOnSmallScreen(512, 600);
constexpr int kScrollMax = 32767;
constexpr int kSmallestZoom = 1;
constexpr int kLargestZoom = 4;
// A notch of the wheel in the toolkit's units, and how many of a bar's small steps it scrolls.
constexpr int kWheelNotch = 120;
constexpr int kStepsPerNotch = 3;
constexpr int kStepsPerPage = 10;

int Twips(int pixels) { return pixels * kTwipsPerPixel; }
QSize Twips(QSize pixels) { return pixels * kTwipsPerPixel; }

QRect PixelRect(const QRect& twips) {
    return QRect(twips.left() / kTwipsPerPixel, twips.top() / kTwipsPerPixel, twips.width() / kTwipsPerPixel,
                 twips.height() / kTwipsPerPixel);
}

} // namespace

frmTAVL::frmTAVL()
    : m_client(new QWidget(this)), m_tips(*m_client),
      m_toolBar(*m_client, m_tips, std::bind_front(&frmTAVL::RunToolBarButton, this)),
      m_about(std::make_unique<frmAbout>(this)) {
    setObjectName(QStringLiteral("frmTAVL"));
    MakeControls();
    MakeMenus();
    TimerPictures.setObjectName(QStringLiteral("TimerPictures"));
    connect(&TimerPictures, &QTimer::timeout, this, &frmTAVL::TimerPictures_Timer);
    const QSize client = SmallestClient(Twips(ToolBarTable::kPictureHeight), Twips(cmd[0]->sizeHint().height()));
    m_client->setMinimumSize(PixelRect(QRect(QPoint(0, 0), client)).size());
    resize(kSizeOnSmallScreen);
}

frmTAVL::~frmTAVL() = default;

void frmTAVL::MakeControls() {
    setCentralWidget(m_client);
    picBoard = new PictureBox(m_client);
    picBoard->setObjectName(QStringLiteral("picBoard"));
    picBoard->setFocusPolicy(Qt::StrongFocus);
    picBoard->setAccessibleName(QStringLiteral("Game board"));
    connect(picBoard, &PictureBox::MouseDown, this, &frmTAVL::picBoard_MouseDown);
    connect(picBoard, &PictureBox::MouseMove, this, &frmTAVL::picBoard_MouseMove);
    m_tips.Watch(*picBoard);
    connect(picBoard, &PictureBox::BackingChanged, this, &frmTAVL::picBoard_Paint);
    MakeScrollBars();
    MakeButtons();
    picBoard->setFocus();
}

void frmTAVL::MakeScrollBars() {
    hscrl = new QScrollBar(Qt::Horizontal, m_client);
    hscrl->setObjectName(QStringLiteral("hscrl"));
    vscrl = new QScrollBar(Qt::Vertical, m_client);
    vscrl->setObjectName(QStringLiteral("vscrl"));
    for (QScrollBar* bar : {hscrl, vscrl}) {
        bar->setRange(0, kScrollMax);
        bar->hide();
    }
    connect(hscrl, &QScrollBar::valueChanged, this, &frmTAVL::hscrl_Change);
    connect(vscrl, &QScrollBar::valueChanged, this, &frmTAVL::vscrl_Change);
}

void frmTAVL::MakeButtons() {
    for (int i = 0; i < MainLayout::kButtons; ++i) {
        QPushButton*& button = cmd[size_t(i)];
        button = new QPushButton(QString::fromLatin1(kButtonCaptions[size_t(i)]), m_client);
        button->setObjectName(QStringLiteral("cmd_%1").arg(i));
        connect(button, &QPushButton::clicked, this, &frmTAVL::ButtonClicked);
    }
}

void frmTAVL::ButtonClicked() try {
    const auto* const at = std::find(cmd.begin(), cmd.end(), sender());
    cmd_Click(int(at - cmd.begin()));
} catch (...) {
    ErrTop("frmTAVL!", "ButtonClicked");
}

void frmTAVL::Form_Resize() try {
    const MainWindowSize sizes{Twips(frameGeometry().size()), Twips(m_client->size()),
                               Twips(ToolBarTable::kPictureHeight), Twips(cmd[0]->sizeHint().height())};
    ApplyLayout(ComputeMainLayout(sizes, m_fZoom));
    const bool bNoRedraw = m_bNoRedraw;
    m_bNoRedraw = true;
    hscrl_Change();
    vscrl_Change();
    m_bNoRedraw = bNoRedraw;
    Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "Form_Resize");
}

void frmTAVL::ApplyLayout(const MainLayout& layout) {
    picBoard->setGeometry(PixelRect(layout.picBoard));
    hscrl->setGeometry(PixelRect(layout.hscrl));
    vscrl->setGeometry(PixelRect(layout.vscrl));
    for (QScrollBar* bar : {hscrl, vscrl}) {
        bar->setVisible(layout.bScrollBars);
        if (!layout.bScrollBars) continue;
        // So that the bar's slider is as long a part of it as the visible part of the board.
        bar->setPageStep(int(kScrollMax / (m_fZoom - 1.0F)));
        bar->setSingleStep(bar->pageStep() / kStepsPerPage);
    }
    for (int i = 0; i < MainLayout::kButtons; ++i)
        cmd[size_t(i)]->setGeometry(PixelRect(layout.cmd[size_t(i)]));
}

void frmTAVL::SetZoom(int iZoom) try {
    ClearHitState();
    m_tips.HideBox();
    m_fZoom = float(iZoom);
    basPosit::PosSetScale(m_fZoom);
    Form_Resize();
} catch (...) {
    ErrTail("frmTAVL!", "SetZoom", iZoom);
}

int frmTAVL::ScrollOffsetOf(const QScrollBar& bar) const {
    return ScrollOffset(bar.value(), bar.maximum(), m_fZoom, Twips(picBoard->width()), kTwipsPerPixel);
}

void frmTAVL::hscrl_Change() try {
    if (m_fZoom == 0) m_fZoom = 1.0F;
    basPosit::PosSetOffsetX(ScrollOffsetOf(*hscrl));
    Redraw();
} catch (...) {
    ErrTop("frmTAVL!", "hscrl_Change");
}

void frmTAVL::vscrl_Change() try {
    if (m_fZoom == 0) m_fZoom = 1.0F;
    basPosit::PosSetOffsetY(ScrollOffsetOf(*vscrl));
    Redraw();
} catch (...) {
    ErrTop("frmTAVL!", "vscrl_Change");
}

void frmTAVL::ScrollBy(int iSteps, Qt::Orientation orientation, bool bPages) {
    QScrollBar& bar = orientation == Qt::Horizontal ? *hscrl : *vscrl;
    bar.setValue(bar.value() + iSteps * (bPages ? bar.pageStep() : bar.singleStep()));
}

void frmTAVL::ZoomAtMouse(int iZoom, QPointF position) {
    const int zoom = std::clamp(iZoom, kSmallestZoom, kLargestZoom);
    if (float(zoom) == m_fZoom) return;
    // The place under the mouse stays there.
    const double side = picBoard->width();
    const double fX = (position.x() - basPosit::GetOffsetX()) / side / double(m_fZoom);
    const double fY = (position.y() - basPosit::GetOffsetY()) / side / double(m_fZoom);
    m_bNoRedraw = true;
    SetZoom(zoom);
    if (zoom > kSmallestZoom) {
        const double hidden = picBoard->width() * (zoom - 1.0);
        hscrl->setValue(int(std::lround((fX * picBoard->width() * zoom - position.x()) / hidden * kScrollMax)));
        vscrl->setValue(int(std::lround((fY * picBoard->width() * zoom - position.y()) / hidden * kScrollMax)));
    }
    m_bNoRedraw = false;
    Redraw();
}

void frmTAVL::keyPressEvent(QKeyEvent* event) try {
    const bool zoomed = m_fZoom > 1.0F;
    const bool sideways = event->modifiers().testFlag(Qt::ControlModifier);
    switch (zoomed ? event->key() : 0) {
        case Qt::Key_Left:
            return ScrollBy(-1, Qt::Horizontal, false);
        case Qt::Key_Right:
            return ScrollBy(1, Qt::Horizontal, false);
        case Qt::Key_Up:
            return ScrollBy(-1, Qt::Vertical, false);
        case Qt::Key_Down:
            return ScrollBy(1, Qt::Vertical, false);
        case Qt::Key_PageUp:
            return ScrollBy(-1, sideways ? Qt::Horizontal : Qt::Vertical, true);
        case Qt::Key_PageDown:
            return ScrollBy(1, sideways ? Qt::Horizontal : Qt::Vertical, true);
        default:
            QMainWindow::keyPressEvent(event);
    }
} catch (...) {
    ErrTop("frmTAVL!", "keyPressEvent");
}

void frmTAVL::wheelEvent(QWheelEvent* event) try {
    const QPoint angle = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        // Fine wheels turn by parts of a notch.
        m_wheelTurn += angle.y();
        const int notches = m_wheelTurn / kWheelNotch;
        m_wheelTurn -= notches * kWheelNotch;
        if (notches != 0) ZoomAtMouse(int(m_fZoom) + notches, picBoard->mapFrom(this, event->position()));
    } else if (m_fZoom > 1.0F) {
        const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier);
        const QPoint turn = sideways ? QPoint(angle.x() + angle.y(), 0) : angle;
        hscrl->setValue(hscrl->value() - turn.x() * hscrl->singleStep() * kStepsPerNotch / kWheelNotch);
        vscrl->setValue(vscrl->value() - turn.y() * vscrl->singleStep() * kStepsPerNotch / kWheelNotch);
    }
    event->accept();
} catch (...) {
    ErrTop("frmTAVL!", "wheelEvent");
}

void frmTAVL::resizeEvent(QResizeEvent* event) try {
    QMainWindow::resizeEvent(event);
    Form_Resize();
} catch (...) {
    ErrTop("frmTAVL!", "Form_Resize");
}

void frmTAVL::showEvent(QShowEvent* event) try {
    QMainWindow::showEvent(event);
    Form_Resize();
} catch (...) {
    ErrTop("frmTAVL!", "Form_Resize");
}

void frmTAVL::changeEvent(QEvent* event) try {
    QMainWindow::changeEvent(event);
    // The toolbar's picture lies on the colour of the desktop's theme.
    if (event->type() == QEvent::PaletteChange) m_toolBar.Draw();
} catch (...) {
    ErrTop("frmTAVL!", "changeEvent");
}

void frmTAVL::closeEvent(QCloseEvent* event) try {
    bool cancel = false;
    Form_QueryUnload(cancel);
    if (cancel) {
        event->ignore();
        return;
    }
    Form_Unload();
} catch (...) {
    event->ignore();
    ErrTop("frmTAVL!", "Form_QueryUnload");
}

void frmTAVL::SetInPrint(bool bNow) try {
    bInPrint = bNow;
    m_bNoRedraw = bNow;
    setEnabled(!bNow);
    if (!bNow) Redraw();
} catch (...) {
    ErrTop("frmTAVL!", "SetInPrint", bNow);
}

void frmTAVL::Form_QueryUnload(bool& bCancel) try {
    bool ok = false;
    if (!bInPrint) OkToEndProgram(ok);
    bCancel = !ok;
} catch (...) {
    ErrTail("frmTAVL!", "Form_QueryUnload", bCancel);
}

void frmTAVL::Form_Unload() try {
    basErrLog::ErrLogToFile(QStringLiteral("Normal Termination"), true);
    EndProgram();
} catch (...) {
    ErrTail("frmTAVL!", "Form_Unload");
}
