// SPDX-License-Identifier: MIT
#include "windows/missing/frmMissingPictures.h"

#include "board/basPosit.h"
#include "check/FileName.h"
#include "check/GamePiece.h"
#include "game/Session.h"
#include "pictures/PictureCheck.h"
#include "platform/files/Folders.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windows/pictures/BrowsePlaces.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(640, 380);
// Milliseconds of looking before the window is served again.
constexpr int kTurn = 20;
constexpr int kPlaceColumn = 1;

GamePiece PieceOf(const PictureOwner& owner) {
    switch (owner.kind) {
        case PictureOwner::Kind::Corner:
            return GamePiece::Corner(owner.iNumber);
        case PictureOwner::Kind::Money:
            return GamePiece::Money(owner.iNumber);
        case PictureOwner::Kind::Token:
            return GamePiece::Token(owner.iNumber);
        default:
            return GamePiece::Space(owner.iNumber);
    }
}

// Of the picture's old folder what is still there; else where people keep photos.
QString NearestFolder(const QString& sPath) {
    QString folder = BrowsePlaces::FolderOf(sPath);
    while (!folder.isEmpty() && !basCommon::DoesDirExist(folder))
        folder = BrowsePlaces::FolderAbove(folder);
    const bool root = folder.isEmpty() || BrowsePlaces::FolderAbove(folder).isEmpty();
    return root ? Folders::Pictures() : folder;
}

QString Pictures(qsizetype n) { return n == 1 ? QStringLiteral("One picture") : QStringLiteral("%1 pictures").arg(n); }

} // namespace

frmMissingPictures::frmMissingPictures(Session& session, QWidget* parent) : QDialog(parent), m_session(session) {
    setObjectName(QStringLiteral("frmMissingPictures"));
    setWindowTitle(QStringLiteral("Find Missing Pictures"));
    BuildControls();
    resize(kFirstSize);
    connect(&timSearch, &QTimer::timeout, this, &frmMissingPictures::timSearch_Timer);
}

frmMissingPictures::~frmMissingPictures() = default;

void frmMissingPictures::BuildControls() {
    auto* const column = new QVBoxLayout(this);
    lblState = new QLabel(this);
    lblState->setObjectName(QStringLiteral("lblState"));
    lblState->setTextFormat(Qt::PlainText);
    lblState->setWordWrap(true);
    column->addWidget(lblState);
    lstMissing = new QTreeWidget(this);
    lstMissing->setObjectName(QStringLiteral("lstMissing"));
    lstMissing->setRootIsDecorated(false);
    lstMissing->setHeaderLabels(
        {QStringLiteral("Piece"), QStringLiteral("Where the picture was"), QStringLiteral("Now")});
    lstMissing->header()->setStretchLastSection(false);
    lstMissing->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lstMissing->header()->setSectionResizeMode(kPlaceColumn, QHeaderView::Stretch);
    lstMissing->setTextElideMode(Qt::ElideMiddle);
    lstMissing->setAccessibleName(QStringLiteral("Missing pictures"));
    column->addWidget(lstMissing);
    const auto button = [this](const char* sName, const char* sCaption) {
        auto* const made = new QPushButton(QString::fromLatin1(sCaption), this);
        made->setObjectName(QString::fromLatin1(sName));
        made->setAutoDefault(false);
        return made;
    };
    cmdFind = button("cmdFind", "&Find...");
    cmdFind->setToolTip(QStringLiteral("Show where this picture is now; the others are looked for there, too"));
    cmdFind->setDefault(true);
    cmdStop = button("cmdStop", "&Stop");
    cmdClose = button("cmdClose", "Close");
    auto* const row = new QHBoxLayout;
    row->addWidget(cmdStop);
    row->addStretch();
    row->addWidget(cmdClose);
    row->addWidget(cmdFind);
    column->addLayout(row);
    connect(lstMissing, &QTreeWidget::currentItemChanged, this, &frmMissingPictures::lstMissing_Change);
    connect(lstMissing, &QTreeWidget::itemActivated, this, &frmMissingPictures::cmdFind_Click);
    connect(cmdFind, &QPushButton::clicked, this, &frmMissingPictures::cmdFind_Click);
    connect(cmdStop, &QPushButton::clicked, this, &frmMissingPictures::cmdStop_Click);
    connect(cmdClose, &QPushButton::clicked, this, &frmMissingPictures::reject);
}

bool frmMissingPictures::ShowForm(const GamePiece& first) try {
    m_bChanged = false;
    m_sOutcome.clear();
    Fill();
    Choose(first);
    basCommon::ShowEntireForm(*this);
    lstMissing->setFocus();
    exec();
    return m_bChanged;
} catch (...) {
    ErrTail("frmMissingPictures!", "ShowForm", first.Word());
}

void frmMissingPictures::Fill() {
    const QString before = Chosen();
    lstMissing->clear();
    for (const MissingPictures::Missing& missing : MissingPictures::Of(m_session.InHand())) {
        auto* const item = new QTreeWidgetItem(lstMissing, {PieceOf(missing.piece).NameIn(m_session.InHand()),
                                                            missing.sPath, QStringLiteral("not found")});
        item->setToolTip(kPlaceColumn, missing.sPath);
        if (missing.sPath == before) lstMissing->setCurrentItem(item);
    }
    if (!lstMissing->currentItem()) lstMissing->setCurrentItem(lstMissing->topLevelItem(0));
    ShowState();
}

void frmMissingPictures::Choose(const GamePiece& piece) {
    int row = 0;
    for (const MissingPictures::Missing& missing : MissingPictures::Of(m_session.InHand())) {
        if (PieceOf(missing.piece) == piece) lstMissing->setCurrentItem(lstMissing->topLevelItem(row));
        ++row;
    }
}

void frmMissingPictures::ShowState() {
    const int missing = lstMissing->topLevelItemCount();
    const bool searching = m_search.has_value();
    QString text = QStringLiteral("All pictures are where they belong.");
    if (missing > 0)
        text = Pictures(missing) +
               QStringLiteral(" of this game can't be found where the list says. Choose one and show where it is now: "
                              "the others are looked for in the same folder and below.");
    if (searching) text = QStringLiteral("Looking for the others: %1 folders so far...").arg(m_search->FoldersSeen());
    lblState->setText(searching || m_sOutcome.isEmpty() ? text : m_sOutcome);
    cmdFind->setEnabled(!searching && lstMissing->currentItem());
    cmdStop->setEnabled(searching);
    lstMissing->setEnabled(!searching);
}

QString frmMissingPictures::Chosen() const {
    const QTreeWidgetItem* const item = lstMissing->currentItem();
    return item ? item->text(kPlaceColumn) : QString();
}

void frmMissingPictures::lstMissing_Change() { ShowState(); }

bool frmMissingPictures::AskWhere(const QString& sOld, QString& sNew) {
    CommonDialog dlgCommon;
    const QString name = FileNameOf(sOld);
    constexpr int kManyColors = 24;
    dlgCommon.sDialogTitle = QStringLiteral("Where is %1 now?").arg(name);
    dlgCommon.sFilter = QStringLiteral("Pictures|") + BrowsePlaces::AllPicturesFilter(true, kManyColors) +
                        QStringLiteral("|All files|*.*");
    dlgCommon.sInitDir = NearestFolder(sOld);
    if (!dlgCommon.ShowOpen()) {
        if (!dlgCommon.sError.isEmpty()) MsgBox(dlgCommon.sError, vbExclamation);
        return false;
    }
    sNew = dlgCommon.sFileName;
    const QString refused = WhyNoPicture(sNew);
    if (!refused.isEmpty()) MsgBox(refused, vbInformation);
    return refused.isEmpty();
}

void frmMissingPictures::cmdFind_Click() try {
    const QString old = Chosen();
    QString now;
    if (!m_search && !old.isEmpty() && AskWhere(old, now)) StartSearch(old, now);
} catch (...) {
    ErrTop("frmMissingPictures!", "cmdFind_Click");
}

void frmMissingPictures::StartSearch(const QString& sOld, const QString& sNew) {
    m_search.emplace(m_session.InHand(), sOld, sNew);
    timSearch.start(0);
    ShowState();
}

void frmMissingPictures::timSearch_Timer() try {
    QElapsedTimer turn;
    turn.start();
    bool more = true;
    while (more && turn.elapsed() < kTurn)
        more = m_search->Step();
    if (more) {
        ShowState();
    } else {
        EndSearch();
    }
} catch (...) {
    m_search.reset();
    timSearch.stop();
    ErrTop("frmMissingPictures!", "timSearch_Timer");
}

// What was found until now counts.
void frmMissingPictures::EndSearch() {
    timSearch.stop();
    const MissingPictures::Places places = m_search->Found();
    const QStringList doubtful = m_search->Doubtful();
    m_search.reset();
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    m_session.Do(MissingPictures::Moved(m_session.InHand(), places));
    m_bChanged = true;
    const size_t left = MissingPictures::Of(m_session.InHand()).size();
    m_sOutcome = left == 0
                     ? QStringLiteral("All pictures are found again.")
                     : Pictures(qsizetype(places.size())) + QStringLiteral(" found again, %1 still to find.").arg(left);
    if (!doubtful.isEmpty())
        m_sOutcome += QStringLiteral(" There are several files called %1: please show the right one by Find...")
                          .arg(doubtful.join(QStringLiteral(", ")));
    Fill();
}

void frmMissingPictures::cmdStop_Click() try {
    if (m_search) EndSearch();
} catch (...) {
    ErrTop("frmMissingPictures!", "cmdStop_Click");
}

void frmMissingPictures::reject() {
    cmdStop_Click();
    QDialog::reject();
}
