// SPDX-License-Identifier: MIT
// The window's controls: what they are, and where they stand.
#include "services/Players.h"
#include "windowing/ElidedLabel.h"
#include "windowing/MakeControls.h"
#include "windows/nokit/PrintWithoutKit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QComboBox* MakeChoice(QWidget* parent, const char* sName, const QStringList& items) {
    auto* choice = Named(new QComboBox(parent), sName);
    choice->addItems(items);
    return choice;
}

} // namespace

PrintWithoutKit::PrintWithoutKit(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("PrintWithoutKit"));
    setWindowTitle(QStringLiteral("Print Without a Kit"));
    BuildControls();
}

void PrintWithoutKit::BuildControls() {
    auto* intro = MakeLabel(this, "lblIntro");
    intro->setText(
        QStringLiteral("Everything of your game on plain paper and card: board, tokens that stand, dice, cards, "
                       "money, rules and a box. All pages go into one PDF file; the first tells what to print "
                       "on what, and how to cut and fold it."));
    m_told = MakeLabel(this, "lblTold");
    m_progress = Named(new QProgressBar(this), "prgPages");
    m_progress->setTextVisible(false);
    m_page = Named(new ElidedLabel(this), "lblPage");
    auto* all = new QVBoxLayout(this);
    all->addWidget(intro);
    all->addLayout(BuildChoices());
    all->addWidget(m_told);
    all->addStretch();
    all->addWidget(m_progress);
    all->addWidget(m_page);
    all->addLayout(BuildButtons());
    m_progress->hide();
    ShowWhatFits();
}

// In the order of NoKitChoices' own lists; the board's sizes are those that Choices knows.
QLayout* PrintWithoutKit::BuildChoices() {
    m_paper = MakeChoice(this, "cboPaper",
                         {QStringLiteral("Letter"), QStringLiteral("A4"), QStringLiteral("Tabloid (11 x 17 inches)"),
                          QStringLiteral("A3")});
    m_size = MakeChoice(this, "cboSize",
                        {QStringLiteral("16 inches (41 cm)"), QStringLiteral("20 inches (51 cm)"),
                         QStringLiteral("As large as the kit's"), QStringLiteral("Another size:")});
    m_inches = Named(new QDoubleSpinBox(this), "spnInches");
    m_inches->setRange(NoKitChoices::kLeastBoardInches, NoKitChoices::kMostBoardInches);
    m_inches->setDecimals(1);
    m_inches->setSuffix(QStringLiteral(" inches"));
    m_inches->setValue(NoKitChoices::kUsualBoardInches);
    m_inches->setAccessibleName(QStringLiteral("Side of the board"));
    m_way = MakeChoice(this, "cboWay",
                       {QStringLiteral("On pages that are glued together"),
                        QStringLiteral("In four quarters that fold"), QStringLiteral("On one page, for a copy shop")});
    m_players = Named(new QComboBox(this), "cboPlayers");
    for (int players = Players::kFewest; players <= Players::kMost; ++players)
        m_players->addItem(QString::number(players));
    m_players->setCurrentText(QString::number(NoKitChoices().nPlayers));
    m_colours =
        MakeChoice(this, "cboColours",
                   {QStringLiteral("As on the screen"), QStringLiteral("Saving ink: white with colored edges")});
    m_dice = Named(new QCheckBox(QStringLiteral("Your board on the &dice, in place of the one"), this), "chkDice");

    auto* size = new QHBoxLayout;
    size->addWidget(m_size, 1);
    size->addWidget(m_inches);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Paper:"), m_paper);
    // Two controls in a row: the label doesn't know by itself whose it is.
    auto* board = Named(new QLabel(QStringLiteral("&Board:"), this), "lblBoard");
    board->setBuddy(m_size);
    form->addRow(board, size);
    form->addRow(QStringLiteral("&How:"), m_way);
    form->addRow(QStringLiteral("&Number of players:"), m_players);
    form->addRow(QStringLiteral("Co&lors:"), m_colours);
    form->addRow(QString(), m_dice);
    connect(m_size, &QComboBox::currentIndexChanged, this, &PrintWithoutKit::ShowWhatFits);
    return form;
}

QLayout* PrintWithoutKit::BuildButtons() {
    m_open = MakeButton(this, "cmdOpen", "&Open PDF");
    m_showFolder = MakeButton(this, "cmdShowFolder", "Show &Folder");
    m_stop = MakeButton(this, "cmdStop", "&Stop");
    m_close = MakeButton(this, "cmdClose", "&Close");
    m_make = MakeButton(this, "cmdMake", "&Make PDF");
    m_stop->setEnabled(false);
    m_open->hide();
    m_showFolder->hide();
    connect(m_open, &QPushButton::clicked, this, &PrintWithoutKit::cmdOpen_Click);
    connect(m_showFolder, &QPushButton::clicked, this, &PrintWithoutKit::cmdShowFolder_Click);
    connect(m_stop, &QPushButton::clicked, this, &PrintWithoutKit::cmdStop_Click);
    connect(m_close, &QPushButton::clicked, this, &PrintWithoutKit::reject);
    connect(m_make, &QPushButton::clicked, this, &PrintWithoutKit::cmdMake_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(m_open);
    row->addWidget(m_showFolder);
    row->addStretch();
    for (QPushButton* button : {m_stop, m_close, m_make})
        row->addWidget(button);
    return row;
}
