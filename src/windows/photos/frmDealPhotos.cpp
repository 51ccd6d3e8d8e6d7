// SPDX-License-Identifier: MIT
#include "windows/photos/frmDealPhotos.h"

#include "board/basPosit.h"
#include "check/GameWords.h"
#include "game/PieceImages.h"
#include "game/Session.h"
#include "pictures/PictureCheck.h"
#include "platform/pictures/CameraTags.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/DesktopWidgets.h"
#include "windowing/ElidedLabel.h"
#include "windowing/HourGlass.h"
#include "windowing/PhotoGrid.h"
#include "windows/photos/PhotoFolder.h"
#include "windows/pictures/KeptPicture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using DealtPhotos::Order;

constexpr QSize kFirstSize(820, 580);
// Milliseconds of looking through the folder before the window is served again.
constexpr int kTurn = 20;

QString Count(qsizetype n, const char* sOne, const char* sMany) {
    return n == 1 ? QString::fromLatin1(sOne) : QString::fromLatin1(sMany).arg(n);
}

// As the family calls it; empty where it has no name yet.
QString NameOf(const Game& game, const PictureOwner& place) {
    const bool corner = place.kind == PictureOwner::Kind::Corner;
    const QString name = corner ? GameWords::OfCorner(game, place.iNumber) : GameWords::OfSpace(game, place.iNumber);
    return GameWords::IsBlank(name) ? QString() : GameWords::Shortened(name);
}

QString NumberOf(const PictureOwner& place) {
    const bool corner = place.kind == PictureOwner::Kind::Corner;
    return QString(corner ? QStringLiteral("Corner %1") : QStringLiteral("Space %1")).arg(place.iNumber + 1);
}

} // namespace

frmDealPhotos::frmDealPhotos(Session& session, QWidget* parent) : QDialog(parent), m_session(session) {
    setObjectName(QStringLiteral("frmDealPhotos"));
    setWindowTitle(QStringLiteral("Deal Photos"));
    BuildControls();
    resize(kFirstSize);
    connect(&timLook, &QTimer::timeout, this, &frmDealPhotos::timLook_Timer);
}

void frmDealPhotos::BuildChoices() {
    cboOrder = new QComboBox(this);
    cboOrder->setObjectName(QStringLiteral("cboOrder"));
    cboOrder->addItems({QStringLiteral("Date taken"), QStringLiteral("Name"), QStringLiteral("Shuffled")});
    cmdShuffle = new QPushButton(QStringLiteral("&Shuffle Again"), this);
    cmdShuffle->setObjectName(QStringLiteral("cmdShuffle"));
    chkNames = new QCheckBox(QStringLiteral("&Names from file names"), this);
    chkNames->setObjectName(QStringLiteral("chkNames"));
    chkNames->setToolTip(QStringLiteral("\"grandmas_garden.jpg\" becomes \"Grandmas Garden\"; a name that a camera has "
                                        "given, as \"IMG_2041\", changes none"));
    chkCorners = new QCheckBox(QStringLiteral("C&orners, too"), this);
    chkCorners->setObjectName(QStringLiteral("chkCorners"));
    connect(cboOrder, &QComboBox::activated, this, &frmDealPhotos::cboOrder_Click);
    connect(cmdShuffle, &QPushButton::clicked, this, &frmDealPhotos::cmdShuffle_Click);
    connect(chkNames, &QCheckBox::clicked, this, &frmDealPhotos::Choices_Click);
    connect(chkCorners, &QCheckBox::clicked, this, &frmDealPhotos::Choices_Click);
}

void frmDealPhotos::BuildControls() {
    auto* const column = new QVBoxLayout(this);
    auto* const folder = new QHBoxLayout;
    lblFolder = new ElidedLabel(this);
    lblFolder->setObjectName(QStringLiteral("lblFolder"));
    auto* const cmdFolder = new QPushButton(QStringLiteral("Choose &Folder..."), this);
    cmdFolder->setObjectName(QStringLiteral("cmdFolder"));
    folder->addWidget(cmdFolder);
    folder->addWidget(lblFolder, 1);
    column->addLayout(folder);
    BuildChoices();
    auto* const choices = new QHBoxLayout;
    auto* const lblOrder = new QLabel(QStringLiteral("O&rder:"), this);
    lblOrder->setBuddy(cboOrder);
    choices->addWidget(lblOrder);
    choices->addWidget(cboOrder);
    choices->addWidget(cmdShuffle);
    choices->addStretch();
    choices->addWidget(chkNames);
    choices->addWidget(chkCorners);
    column->addLayout(choices);
    lstPhotos = new PhotoGrid(this);
    lstPhotos->setObjectName(QStringLiteral("lstPhotos"));
    lstPhotos->setAccessibleName(QStringLiteral("Photos and where they go"));
    lstPhotos->setSelectionMode(QAbstractItemView::SingleSelection);
    lstPhotos->installEventFilter(this);
    column->addWidget(lstPhotos, 1);
    lblState = new QLabel(this);
    lblState->setObjectName(QStringLiteral("lblState"));
    lblState->setWordWrap(true);
    column->addWidget(lblState);
    auto* const cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdOK = new QPushButton(QStringLiteral("&Deal"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdOK);
    column->addLayout(buttons);
    connect(cmdFolder, &QPushButton::clicked, this, &frmDealPhotos::cmdFolder_Click);
    connect(lstPhotos, &PhotoGrid::Broken, this, &frmDealPhotos::lstPhotos_Broken);
    connect(lstPhotos, &QListView::clicked, this, &frmDealPhotos::lstPhotos_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmDealPhotos::reject);
    connect(cmdOK, &QPushButton::clicked, this, &frmDealPhotos::cmdOK_Click);
    lstPhotos->SetLooks([this](const QString&, int iRow) {
        const bool plays = iRow < int(m_dealt.size()) && m_dealt[size_t(iRow)] >= 0;
        return PhotoGrid::Look{.sCaption = CaptionOf(iRow), .bFaded = !plays};
    });
}

bool frmDealPhotos::ShowForm() try {
    m_bChanged = false;
    ShowFolder(PhotoFolder::Last());
    basCommon::ShowEntireForm(*this);
    lstPhotos->setFocus();
    exec();
    timLook.stop();
    return m_bChanged;
} catch (...) {
    ErrTail("frmDealPhotos!", "ShowForm");
}

void frmDealPhotos::ShowFolder(const QString& sFolder) {
    m_sFolder = sFolder;
    static_cast<ElidedLabel*>(lblFolder)->SetWholeText(sFolder);
    m_photos.clear();
    m_broken.clear();
    const QStringList inUse = PieceImages::Files(m_session.InHand());
    m_inUse = QSet<QString>(inUse.begin(), inUse.end());
    m_unread = PhotoFolder::Pictures(sFolder);
    m_iInFolder = int(m_unread.size());
    timLook.start(0);
    DealAgain();
}

void frmDealPhotos::timLook_Timer() try {
    QElapsedTimer turn;
    turn.start();
    while (!m_unread.isEmpty() && turn.elapsed() < kTurn) {
        const QString file = m_unread.takeFirst();
        // Who deals a folder once more means the photos that came since.
        if (WhyNoPicture(file).isEmpty()) m_photos.push_back({file, DateTaken(file), m_inUse.contains(file)});
    }
    if (!m_unread.isEmpty()) return ShowState();
    timLook.stop();
    SortPhotos();
} catch (...) {
    timLook.stop();
    ErrTop("frmDealPhotos!", "timLook_Timer");
}

void frmDealPhotos::SortPhotos() {
    DealtPhotos::Sort(m_photos, Order(cboOrder->currentIndex()), m_iSeed);
    DealAgain();
}

void frmDealPhotos::DealAgain() {
    m_places = DealtPhotos::FreePlaces(m_session.InHand(), chkCorners->isChecked());
    m_dealt = DealtPhotos::Dealt(m_photos, int(m_places.size()));
    QStringList files;
    for (const DealtPhotos::Photo& photo : m_photos)
        files.append(photo.sFile);
    lstPhotos->ShowFiles(files);
    ShowState();
}

void frmDealPhotos::ShowState() {
    const auto dealt = std::count_if(m_dealt.begin(), m_dealt.end(), [](int place) { return place >= 0; });
    const bool looking = !m_unread.isEmpty();
    QString text;
    if (looking) {
        text = QStringLiteral("Looking through the folder: %1 of %2...")
                   .arg(m_iInFolder - m_unread.size())
                   .arg(m_iInFolder);
    } else if (m_photos.empty()) {
        text = QStringLiteral("There are no pictures in this folder. Please choose another one.");
    } else if (m_places.empty()) {
        text = QStringLiteral("Every space has a picture already.");
    } else {
        text = QStringLiteral("%1 of %2 for %3. Click a photo to leave it out.")
                   .arg(dealt)
                   .arg(Count(qsizetype(m_photos.size()), "one photo", "%1 photos"),
                        Count(qsizetype(m_places.size()), "one free place", "%1 free places"));
        if (!m_broken.isEmpty())
            text += u' ' + Count(m_broken.size(), "One can't be shown, and is left out.",
                                 "%1 can't be shown, and are left out.");
    }
    lblState->setText(text);
    cmdOK->setEnabled(!looking && dealt > 0);
    cmdOK->setText(dealt > 0 ? QString(QStringLiteral("&Deal ") + Count(dealt, "One Photo", "%1 Photos"))
                             : QStringLiteral("&Deal"));
    cmdShuffle->setEnabled(cboOrder->currentIndex() == int(Order::Shuffled));
}

QString frmDealPhotos::CaptionOf(int iRow) const {
    if (iRow >= int(m_dealt.size())) return {};
    const DealtPhotos::Photo& photo = m_photos[size_t(iRow)];
    const int place = m_dealt[size_t(iRow)];
    if (m_broken.contains(photo.sFile)) return QStringLiteral("can't be shown");
    if (photo.bLeftOut)
        return m_inUse.contains(photo.sFile) ? QStringLiteral("in use already") : QStringLiteral("left out");
    if (place < 0) return QStringLiteral("no free place");
    const PictureOwner& piece = m_places[size_t(place)];
    const bool named = chkNames->isChecked() && piece.kind == PictureOwner::Kind::Space;
    const QString name = named ? DealtPhotos::NameOf(photo.sFile) : QString();
    const QString before = NameOf(m_session.InHand(), piece);
    if (name.isEmpty()) return before.isEmpty() ? NumberOf(piece) : before;
    return name + u'\n' + (before.isEmpty() ? NumberOf(piece) : QStringLiteral("was ") + before);
}

void frmDealPhotos::cmdFolder_Click() try {
    CommonDialog dlgCommon;
    dlgCommon.sDialogTitle = QStringLiteral("Choose a Folder of Photos");
    dlgCommon.sInitDir = m_sFolder;
    dlgCommon.iFlags = kChooseFolder;
    if (!dlgCommon.ShowOpen()) return;
    PhotoFolder::Remember(dlgCommon.sFileName);
    ShowFolder(dlgCommon.sFileName);
} catch (...) {
    ErrTop("frmDealPhotos!", "cmdFolder_Click");
}

void frmDealPhotos::cboOrder_Click() { SortPhotos(); }

void frmDealPhotos::cmdShuffle_Click() {
    ++m_iSeed;
    SortPhotos();
}

void frmDealPhotos::Choices_Click() { DealAgain(); }

// The others move up, and the view stays where it is.
void frmDealPhotos::lstPhotos_Click(const QModelIndex& index) {
    if (!index.isValid() || index.row() >= int(m_photos.size())) return;
    DealtPhotos::Photo& photo = m_photos[size_t(index.row())];
    if (m_broken.contains(photo.sFile)) return;
    photo.bLeftOut = !photo.bLeftOut;
    ChangeWhatIsDealt();
}

void frmDealPhotos::ChangeWhatIsDealt() {
    m_dealt = DealtPhotos::Dealt(m_photos, int(m_places.size()));
    lstPhotos->Refresh();
    ShowState();
}

void frmDealPhotos::lstPhotos_Broken(const QString& sFile) {
    m_broken.insert(sFile);
    for (DealtPhotos::Photo& photo : m_photos)
        photo.bLeftOut = photo.bLeftOut || photo.sFile == sFile;
    ChangeWhatIsDealt();
}

bool frmDealPhotos::TakeOutBroken() {
    const HourGlass working;
    const qsizetype before = m_broken.size();
    for (size_t i = 0; i < m_photos.size(); ++i) {
        if (m_dealt[i] >= 0 && !WhyNotShown(m_photos[i].sFile).isEmpty()) m_broken.insert(m_photos[i].sFile);
    }
    for (DealtPhotos::Photo& photo : m_photos)
        photo.bLeftOut = photo.bLeftOut || m_broken.contains(photo.sFile);
    return m_broken.size() > before;
}

bool frmDealPhotos::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstPhotos && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        lstPhotos_Click(lstPhotos->currentIndex());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool frmDealPhotos::KeepDealt() {
    const HourGlass working;
    for (size_t i = 0; i < m_photos.size(); ++i) {
        if (m_dealt[i] < 0) continue;
        QString why;
        const QString kept = KeepPicture(m_photos[i].sFile, why);
        if (kept.isEmpty()) {
            MsgBox(why, vbInformation);
            return false;
        }
        m_photos[i].sFile = kept;
    }
    return true;
}

void frmDealPhotos::cmdOK_Click() try {
    // The others move up, which whoever deals wants to see first.
    if (TakeOutBroken()) return ChangeWhatIsDealt();
    if (!KeepDealt()) return;
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    m_session.Do(DealtPhotos::Deal(m_session.InHand(), m_photos, m_places, chkNames->isChecked()));
    m_bChanged = true;
    accept();
} catch (...) {
    ErrTop("frmDealPhotos!", "cmdOK_Click");
}
