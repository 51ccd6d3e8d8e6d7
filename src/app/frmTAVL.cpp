// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/EditorRoutes.h"
#include "app/frmAbout.h"
#include "app/RecentGames.h"
#include "check/GamePiece.h"
#include "document/basTAVL.h"
#include "game/SampleGames.h"
#include "platform/paint/Units.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windowing/WidgetLook.h"
#include "windows/photos/PhotoTab.h"
#include "windows/pictures/DroppedFiles.h"
#include "windows/side/GuideTab.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <QWheelEvent>

namespace {

constexpr std::array<const char*, MainLayout::kButtons> kButtonCaptions = {"&Money", "&Good News", "&Bad News", "Print",
                                                                           "E&xit"};
// Of the window on a small screen, in pixels: all the height there is, and no wider than its board needs.
constexpr QSize kSizeOnSmallScreen(512, 600);
// What the desktop and the menus take of the screen round the window's client area, about.
constexpr QSize kRoundClient(20, 100);
// Milliseconds between two looks for pictures that are away.
constexpr int kAwayInterval = 2000;

constexpr int kZooms = 4;

int Twips(int pixels) { return pixels * kTwipsPerPixel; }
QSize Twips(QSize pixels) { return pixels * kTwipsPerPixel; }

// The first game of what is dropped on the window; empty where there is none.
QString GameDropped(const QMimeData& dropped) {
    for (const QUrl& url : dropped.urls()) {
        const QString path = url.toLocalFile();
        if (path.endsWith(QStringLiteral(".gam"), Qt::CaseInsensitive) ||
            path.endsWith(QStringLiteral(".tavlora"), Qt::CaseInsensitive))
            return path;
    }
    return {};
}

} // namespace

frmTAVL::frmTAVL(EditorRoutes& doors)
    : m_doors(doors), m_client(new QWidget(this)), m_tips(*m_client),
      m_toolBar(*m_client, m_tips, std::bind_front(&frmTAVL::Choose, this)),
      m_view(
          *m_client, m_tips,
          {.layOut = std::bind_front(&frmTAVL::Form_Resize, this), .open = std::bind_front(&frmTAVL::OpenPlace, this)}),
      m_side(*m_client, std::bind_front(&frmTAVL::Form_Resize, this)), m_commands(*this, m_view),
      m_sharing(*this, m_view, m_commands.InHand()), m_pictures(*this, m_view, m_commands.InHand()),
      m_check(*this, m_commands.InHand(), DoorsOfCheck(), std::bind_front(&frmTAVL::IsInPrint, this)),
      m_requests(std::bind_front(&GameCommands::Carry, &m_commands), std::bind_front(&frmTAVL::IsInPrint, this)),
      m_walk(*m_client, m_view, m_commands.InHand()), m_moves(m_view, m_walk, m_commands.InHand()),
      m_menu(*menuBar(), m_commands.InHand(), std::bind_front(&frmTAVL::Choose, this)),
      m_drop(m_view, m_commands.InHand()), m_about(std::make_unique<frmAbout>(this)) {
    setObjectName(QStringLiteral("frmTAVL"));
    setAcceptDrops(true);
    setCentralWidget(m_client);
    MakeButtons();
    MakeLists();
    MakeTabs();
    menuBar()->setCornerWidget(&m_check.Light());
    connect(&m_commands.InHand(), &Session::Changed, &m_menu, &MainMenu::Update);
    m_client->setMinimumSize(InPixels(QRect(QPoint(0, 0), LeastClient())).size());
    resize(kSizeOnSmallScreen);
    m_view.Board().setFocus();
    OrderTabs();
    connect(&TimerAway, &QTimer::timeout, this, &frmTAVL::TimerAway_Timer);
}

frmTAVL::~frmTAVL() = default;

QSize frmTAVL::LeastClient() const {
    int widest = 0;
    for (const QPushButton* button : cmd)
        widest = std::max(widest, button->sizeHint().width());
    const QSize smallest = SmallestClient(Twips(ToolBarTable::kPictureHeight), Twips(cmd[0]->sizeHint().height()));
    return UsefulClient(smallest, Twips(widest), Twips(Screen::FreeArea().size() - kRoundClient));
}

void frmTAVL::MakeButtons() {
    for (int i = 0; i < MainLayout::kButtons; ++i) {
        QPushButton*& button = cmd[size_t(i)];
        button = new QPushButton(QString::fromLatin1(kButtonCaptions[size_t(i)]), m_client);
        button->setObjectName(QStringLiteral("cmd_%1").arg(i));
        connect(button, &QPushButton::clicked, this, &frmTAVL::ButtonClicked);
    }
}

// From the board over what stands below it to the side.
void frmTAVL::OrderTabs() {
    QWidget* before = &m_view.Board();
    for (QPushButton* button : cmd) {
        setTabOrder(before, button);
        before = button;
    }
    m_side.TabBehind(*before);
}

void frmTAVL::MakeLists() {
    const auto samples = [] {
        std::vector<MainMenu::Entry> names;
        for (const basTAVL::SampleGame& sample : basTAVL::SampleGames())
            names.push_back({sample.sName});
        return names;
    };
    m_menu.AddList(m_menu.FileMenu(), {"mnuNewFrom", "New &From", "mnuFile_2", samples, [this](int i) {
                                           m_commands.NewFrom(basTAVL::SampleGames().at(size_t(i)).sPath);
                                       }});
    const auto recent = [] {
        std::vector<MainMenu::Entry> entries;
        const QStringList paths = RecentGames::List();
        const QStringList captions = RecentGames::Captions(paths);
        entries.reserve(size_t(paths.size()));
        for (int i = 0; i < paths.size(); ++i)
            entries.push_back({captions[i], RecentGames::IsAway(paths[i])});
        return entries;
    };
    m_menu.AddList(m_menu.FileMenu(), {"mnuRecent", "Recen&t Games", "mnuFile_3", recent,
                                       [this](int i) { m_commands.OpenRecent(RecentGames::List().value(i)); }});
}

void frmTAVL::MakeTabs() {
    m_guide = new GuideTab(m_commands.InHand(), {.open = std::bind_front(&frmTAVL::OpenStep, this),
                                                 .sendAway = [this] { ShowGuide(false); }});
    m_side.Panel().AddTab(GuideTab::kName, QStringLiteral("Guide"), m_guide);
    m_side.Panel().AddTab(CheckList::kName, QStringLiteral("Check"), m_check.MakeTab());
    m_side.Panel().AddTab(PhotoTab::kName, QStringLiteral("Photos"), new PhotoTab(m_commands.InHand()));
}

void frmTAVL::ButtonClicked() try {
    const auto* const at = std::find(cmd.begin(), cmd.end(), sender());
    cmd_Click(int(at - cmd.begin()));
} catch (...) {
    ErrTop("frmTAVL!", "ButtonClicked");
}

void frmTAVL::Form_Resize() try {
    for (QPushButton* button : cmd)
        WidgetLook::UnfitCaption(*button);
    const MainWindowSize sizes{Twips(frameGeometry().size()), Twips(m_client->size()),
                               Twips(ToolBarTable::kPictureHeight), Twips(cmd[0]->sizeHint().height())};
    const MainLayout layout = ComputeMainLayout(sizes, m_view.Zoom(), m_side.Wish());
    m_view.LayOut(layout);
    m_side.LayOut(layout);
    m_menu.SetChecked("mnuView_21", m_side.IsWished());
    for (int i = 0; i < kZooms; ++i)
        m_menu.SetChecked(qPrintable(QStringLiteral("mnuZoom_%1").arg(i)), m_view.Zoom() == float(i + 1));
    for (int i = 0; i < MainLayout::kButtons; ++i) {
        cmd[size_t(i)]->setGeometry(InPixels(layout.cmd[size_t(i)]));
        WidgetLook::FitCaption(*cmd[size_t(i)]);
    }
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

void frmTAVL::dragEnterEvent(QDragEnterEvent* event) try {
    const QMimeData& dragged = *event->mimeData();
    if (!GameDropped(dragged).isEmpty() || DroppedFiles::Holds(dragged)) event->acceptProposedAction();
} catch (...) {
    ErrTop("frmTAVL!", "dragEnterEvent");
}

void frmTAVL::dragMoveEvent(QDragMoveEvent* event) try {
    const bool game = !GameDropped(*event->mimeData()).isEmpty();
    event->setAccepted(game || m_drop.Move(m_view.Board().mapFrom(this, event->position().toPoint())));
} catch (...) {
    ErrTop("frmTAVL!", "dragMoveEvent");
}

void frmTAVL::dragLeaveEvent(QDragLeaveEvent*) { m_drop.Leave(); }

void frmTAVL::dropEvent(QDropEvent* event) try {
    event->acceptProposedAction();
    // Whoever it was dragged from waits for the end of the drop, and both may ask questions.
    const QString game = GameDropped(*event->mimeData());
    if (!game.isEmpty()) {
        QMetaObject::invokeMethod(this, "CalledByAnotherStart", Qt::QueuedConnection, Q_ARG(QString, game));
        return;
    }
    m_droppedAt = m_view.Board().mapFrom(this, event->position().toPoint());
    event->setAccepted(m_drop.Move(m_droppedAt));
    if (!event->isAccepted()) return;
    m_dropped = DroppedFiles::FilesOf(*event->mimeData(), m_commands.InHand().GameName());
    QMetaObject::invokeMethod(this, &frmTAVL::TakeDropped, Qt::QueuedConnection);
} catch (...) {
    ErrTop("frmTAVL!", "dropEvent");
}

void frmTAVL::TakeDropped() try { m_drop.Drop(std::exchange(m_dropped, {}), m_droppedAt); } catch (...) {
    ErrTop("frmTAVL!", "TakeDropped");
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
    // Who went away to bring a stick or to move a folder, comes back to this window.
    if (event->type() == QEvent::ActivationChange) TimerAway_Timer();
} catch (...) {
    ErrTop("frmTAVL!", "changeEvent");
}

void frmTAVL::TimerAway_Timer() try {
    // There is one drawing layer, and the window on top or the page may be in the middle of its own drawing.
    if (bInPrint || QApplication::activeModalWidget()) return;
    if (m_away.Look(TheGame())) m_view.Redraw();
    if (m_away.IsAny() && isActiveWindow()) {
        TimerAway.start(kAwayInterval);
    } else {
        TimerAway.stop();
    }
} catch (...) {
    TimerAway.stop();
    ErrTop("frmTAVL!", "TimerAway_Timer");
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
    if (!m_requests.IsLoading()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        raise();
        activateWindow();
    }
    m_requests.Ask(sGame);
} catch (...) {
    ErrTop("frmTAVL!", "CalledByAnotherStart", sGame);
}

void frmTAVL::OpenPlace(const BoardPlace& place) {
    if (place.m_iOverSpace >= 0) {
        EditSpaceText(place.m_iOverSpace);
    } else if (place.m_iOverCorner >= 0) {
        EditCornerText(place.m_iOverCorner);
    } else if (place.m_bOverTitles) {
        EditCenterText();
    } else if (place.m_bOverGoodNews) {
        EditNews(0);
    } else if (place.m_bOverBadNews) {
        EditNews(1);
    } else if (place.m_bOverMoney) {
        EditMoney();
    } else if (place.m_bOverTokens) {
        EditToken();
    }
}

void frmTAVL::OpenStep(FirstSteps::Step step, const std::optional<GamePiece>& piece) {
    if (step == FirstSteps::Step::Print) {
        Print();
    } else if (step == FirstSteps::Step::Photos) {
        m_pictures.Deal();
    } else if (piece) {
        OpenPlace(BoardPlace::Of(*piece));
    }
}

void frmTAVL::ShowGuide(bool bShown) {
    GuideTab::SetWanted(bShown);
    m_side.Panel().SetTabShown(GuideTab::kName, bShown);
    if (!bShown) return;
    m_side.Panel().ShowTab(GuideTab::kName);
    m_side.SetWished(true);
}

void frmTAVL::EditCenterText() try {
    if (m_doors.EditCenter(*this)) m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "EditCenterText");
}

void frmTAVL::EditCornerText(int iCorner) try {
    if (m_doors.EditCorner(*this, iCorner)) m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "EditCornerText", iCorner);
}

void frmTAVL::EditSpaceText(int iSpace) try {
    if (m_doors.EditSpace(*this, iSpace)) m_view.Redraw();
} catch (...) {
    ErrTail("frmTAVL!", "EditSpaceText", iSpace);
}

void frmTAVL::EditNews(int iGoodOrBad) try {
    m_doors.ShowNews(*this, iGoodOrBad);
    m_commands.InHand().RetryAutosave();
} catch (...) {
    ErrTail("frmTAVL!", "EditNews", iGoodOrBad);
}

void frmTAVL::EditMoney() try { m_doors.EditMoney(*this); } catch (...) {
    ErrTail("frmTAVL!", "EditMoney");
}

void frmTAVL::EditToken() try {
    m_doors.ShowTokens(*this);
    m_commands.InHand().RetryAutosave();
    // Unlike those of the board, nothing that is painted asks for them.
    for (int i = 0; i < basTAVL::kTokens; ++i)
        basTAVL::g_oTokens(i).Image.GetThumbnail(false);
} catch (...) {
    ErrTail("frmTAVL!", "EditToken");
}
