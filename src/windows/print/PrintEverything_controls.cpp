// SPDX-License-Identifier: MIT
// The window's controls: what they are, and where they stand.
#include "windowing/ElidedLabel.h"
#include "windowing/MakeControls.h"
#include "windowing/TabWay.h"
#include "windows/print/PrintEverything.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

PrintEverything::PrintEverything(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("PrintEverything"));
    setWindowTitle(QStringLiteral("Print Everything"));
    BuildControls();
}

void PrintEverything::BuildControls() {
    m_sheets = Named(new QListWidget(this), "lstSheets");
    m_sheets->setAccessibleName(QStringLiteral("The sheets to be printed"));
    m_needed = MakeLabel(this, "lblNeeded");
    m_needed->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_destination = MakeLabel(this, "lblDestination");
    m_progress = Named(new QProgressBar(this), "prgPages");
    m_progress->setTextVisible(false);
    m_page = Named(new ElidedLabel(this), "lblPage");

    auto* right = new QVBoxLayout;
    right->addLayout(BuildPlayers());
    right->addWidget(m_needed, 1);
    auto* top = new QHBoxLayout;
    top->addWidget(m_sheets, 1);
    top->addLayout(right, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top, 1);
    all->addWidget(m_destination);
    all->addWidget(m_progress);
    all->addWidget(m_page);
    all->addLayout(BuildButtons());
    m_progress->hide();
    connect(m_sheets, &QListWidget::itemChanged, this, &PrintEverything::ShowWhatIsNeeded);
    TabAlongTheLayout(*this);
}

QLayout* PrintEverything::BuildPlayers() {
    auto* caption = MakeLabel(this, "lblPlayers");
    caption->setText(QStringLiteral("&Number of players:"));
    caption->setWordWrap(false);
    m_players = Named(new QComboBox(this), "cboPlayers");
    for (int players = Players::kFewest; players <= Players::kMost; ++players)
        m_players->addItem(QString::number(players));
    m_players->setCurrentIndex(m_players->count() - 1);
    caption->setBuddy(m_players);
    connect(m_players, &QComboBox::currentIndexChanged, this, &PrintEverything::ShowWhatIsNeeded);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_players);
    row->addStretch();
    return row;
}

QLayout* PrintEverything::BuildButtons() {
    m_open = MakeButton(this, "cmdOpen", "&Open PDF");
    m_showFolder = MakeButton(this, "cmdShowFolder", "Show &Folder");
    m_preview = MakeButton(this, "cmdPreview", "Pre&view...");
    m_stop = MakeButton(this, "cmdStop", "&Stop");
    m_close = MakeButton(this, "cmdClose", "&Close");
    m_print = MakeButton(this, "cmdPrint", "&Print");
    m_stop->setEnabled(false);
    connect(m_open, &QPushButton::clicked, this, &PrintEverything::cmdOpen_Click);
    connect(m_showFolder, &QPushButton::clicked, this, &PrintEverything::cmdShowFolder_Click);
    connect(m_preview, &QPushButton::clicked, this, &PrintEverything::cmdPreview_Click);
    connect(m_stop, &QPushButton::clicked, this, &PrintEverything::cmdStop_Click);
    connect(m_close, &QPushButton::clicked, this, &PrintEverything::reject);
    connect(m_print, &QPushButton::clicked, this, &PrintEverything::cmdPrint_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(m_open);
    row->addWidget(m_showFolder);
    row->addStretch();
    for (QPushButton* button : {m_stop, m_close, m_preview, m_print})
        row->addWidget(button);
    return row;
}
