// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/frmAbout.h"
#include "platform/paint/Units.h"
#include "windowing/PictureBox.h"
#include "services/basErrLog.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QWheelEvent>

namespace {

constexpr std::array<const char*, MainLayout::kButtons> kButtonCaptions = {"&Money", "&Good News", "&Bad News", "Print",
                                                                           "E&xit"};
// Of the window on a small screen, in pixels: all the height there is, and no wider than its board needs.
constexpr QSize kSizeOnSmallScreen(512, 600);

int Twips(int pixels) { return pixels * kTwipsPerPixel; }
QSize Twips(QSize pixels) { return pixels * kTwipsPerPixel; }

} // namespace

frmTAVL::frmTAVL()
    : m_client(new QWidget(this)), m_tips(*m_client),
      m_toolBar(*m_client, m_tips, std::bind_front(&frmTAVL::RunToolBarButton, this)),
      m_view(
          *m_client, m_tips,
          {.layOut = std::bind_front(&frmTAVL::Form_Resize, this), .open = std::bind_front(&frmTAVL::OpenPlace, this)}),
      m_commands(*this, m_view), m_about(std::make_unique<frmAbout>(this)) {
    setObjectName(QStringLiteral("frmTAVL"));
    setCentralWidget(m_client);
    MakeButtons();
    MakeMenus();
    const QSize client = SmallestClient(Twips(ToolBarTable::kPictureHeight), Twips(cmd[0]->sizeHint().height()));
    m_client->setMinimumSize(InPixels(QRect(QPoint(0, 0), client)).size());
    resize(kSizeOnSmallScreen);
    m_view.Board().setFocus();
}

frmTAVL::~frmTAVL() = default;

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
    const MainLayout layout = ComputeMainLayout(sizes, m_view.Zoom());
    m_view.LayOut(layout);
    for (int i = 0; i < MainLayout::kButtons; ++i)
        cmd[size_t(i)]->setGeometry(InPixels(layout.cmd[size_t(i)]));
    m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "Form_Resize");
}

void frmTAVL::keyPressEvent(QKeyEvent* event) try {
    if (!m_view.TakesKey(*event)) QMainWindow::keyPressEvent(event);
} catch (...) {
    ErrTop("frmTAVL!", "keyPressEvent");
}

void frmTAVL::wheelEvent(QWheelEvent* event) try {
    m_view.Wheel(*event);
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
    m_view.SetNoRedraw(bNow);
    setEnabled(!bNow);
    if (!bNow) m_view.Redraw();
} catch (...) {
    ErrTop("frmTAVL!", "SetInPrint", bNow);
}

void frmTAVL::Form_QueryUnload(bool& bCancel) try {
    bool ok = false;
    if (!bInPrint) m_commands.OkToEndProgram(ok);
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

void frmTAVL::CalledByAnotherStart(const QString& sGame) try {
    if (m_bLoading) {
        // A start that only wants this one to come to the front takes back no game.
        if (!sGame.isEmpty()) m_sGameToOpen = sGame;
        return;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    if (sGame.isEmpty()) return;
    if (QApplication::activeModalWidget() || bInPrint) {
        MsgBox(QStringLiteral("Please close the window you are working in, then open the game again."), vbInformation);
        return;
    }
    m_commands.OpenGame(sGame);
} catch (...) {
    ErrTop("frmTAVL!", "CalledByAnotherStart", sGame);
}
