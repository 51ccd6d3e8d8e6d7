// SPDX-License-Identifier: MIT
#include "windows/side/GuideTab.h"

#include "game/SampleGames.h"
#include "game/Session.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"

#include <QCommandLinkButton>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

using FirstSteps::Step;

namespace {

const QString kWantedKey = QStringLiteral("ShowGuide");
const QString kPrintedKey = QStringLiteral("PrintedGame");

struct Words {
    const char* sCaption;
    /// Before anything is done.
    const char* sHint;
    /// How far it is; %1 of %2.
    const char* sHowFar;
};
constexpr std::array<Words, FirstSteps::kSteps> kWords = {{
    {"Name the game", "Its title stands in the middle of the board.", ""},
    {"Deal the photos", "Give the spaces pictures of your own.", "%1 of %2 spaces show yours."},
    {"Name the streets", "Click a space and type its name.", "%1 of %2 names are yours."},
    {"Write the news", "What happened to your family?", "%1 of %2 cards are yours."},
    {"Print", "The board, the cards and the money.", ""},
}};

QString Description(const Words& words, const FirstSteps::Progress& progress) {
    const QString howFar = QString::fromLatin1(words.sHowFar);
    if (howFar.isEmpty() || progress.iOwn == 0)
        return progress.bDone ? QStringLiteral("Done.") : QString::fromLatin1(words.sHint);
    const QString told = howFar.arg(progress.iOwn).arg(progress.iAll);
    return progress.bDone ? QStringLiteral("Done: ") + told : told;
}

} // namespace

GuideTab::GuideTab(const Session& session, Doors doors) : m_session(session), m_doors(std::move(doors)) {
    BuildControls();
    connect(&session, &Session::Edited, this, &GuideTab::Update);
    connect(&session, &Session::Changed, this, &GuideTab::Update);
}

void GuideTab::BuildControls() {
    auto* const column = new QVBoxLayout(this);
    auto* const head = new QLabel(QStringLiteral("<b>Your first evening</b>"), this);
    head->setObjectName(QStringLiteral("lblHead"));
    head->setWordWrap(true);
    column->addWidget(head);
    for (int i = 0; i < FirstSteps::kSteps; ++i) {
        auto* const step = new QCommandLinkButton(QString::fromLatin1(kWords.at(size_t(i)).sCaption), this);
        step->setObjectName(QStringLiteral("cmdStep_%1").arg(i));
        connect(step, &QPushButton::clicked, this, [this, i] { Open(Step(i)); });
        cmdStep.at(size_t(i)) = step;
        column->addWidget(step);
    }
    auto* const away = new QPushButton(QStringLiteral("&Don't Show This Again"), this);
    away->setObjectName(QStringLiteral("cmdGuideAway"));
    connect(away, &QPushButton::clicked, this, [this] { m_doors.sendAway(); });
    column->addWidget(away, 0, Qt::AlignLeft);
    column->addStretch();
}

// The samples as they were shipped, read once when somebody looks at the guide.
void GuideTab::ReadShipped() {
    if (m_bShippedRead) return;
    m_bShippedRead = true;
    m_shipped.sFolder = Folders::ProgramDirectory();
    QStringList paths = {basTAVL::NewGameFile()};
    for (const basTAVL::SampleGame& sample : basTAVL::SampleGames())
        paths.append(sample.sPath);
    for (const QString& path : std::as_const(paths)) {
        QString error;
        // Without a sample its words count as the family's own, which is no reason to disturb anybody.
        if (const auto bytes = Files::ReadAll(path, error)) m_shipped.Add(*bytes);
    }
}

void GuideTab::Update() try {
    if (!isVisible()) return;
    ReadShipped();
    const bool printed = basCommon::GetIniString(kPrintedKey) == m_session.GameName();
    const auto progress = FirstSteps::Of(m_session.InHand(), m_shipped, printed);
    for (int i = 0; i < FirstSteps::kSteps; ++i) {
        const FirstSteps::Progress& step = progress.at(size_t(i));
        const Words& words = kWords.at(size_t(i));
        QCommandLinkButton& button = *cmdStep.at(size_t(i));
        button.setIcon(style()->standardIcon(step.bDone ? QStyle::SP_DialogApplyButton : QStyle::SP_CommandLink));
        button.setDescription(Description(words, step));
        button.setAccessibleName(QStringLiteral("Step %1 of %2: ").arg(i + 1).arg(FirstSteps::kSteps) +
                                 QString::fromLatin1(words.sCaption));
        button.setAccessibleDescription(button.description());
    }
} catch (...) {
    ErrTop("GuideTab!", "Update");
}

void GuideTab::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Update();
}

void GuideTab::Open(Step step) try {
    ReadShipped();
    m_doors.open(step, FirstSteps::PieceOf(step, m_session.InHand(), m_shipped));
    Update();
} catch (...) {
    ErrTop("GuideTab!", "Open", int(step));
}

bool GuideTab::IsWanted() { return basCommon::GetIniString(kWantedKey).toLower() != QStringLiteral("false"); }

void GuideTab::SetWanted(bool bWanted) {
    basCommon::WriteIniString(kWantedKey, bWanted ? QStringLiteral("True") : QStringLiteral("False"));
}
