// SPDX-License-Identifier: MIT
// The window's controls: what they are, and where they stand.
#include "windowing/MakeControls.h"
#include "windowing/PageView.h"
#include "windowing/TabWay.h"
#include "windows/print/PrintPreview.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(900, 640);
constexpr int kListWidth = 190;
constexpr QSize kThumbnails(110, 110);
const QStringList kZoomCaptions{QStringLiteral("Whole page"), QStringLiteral("50 %"),  QStringLiteral("75 %"),
                                QStringLiteral("100 %"),      QStringLiteral("150 %"), QStringLiteral("200 %"),
                                QStringLiteral("300 %"),      QStringLiteral("400 %")};

} // namespace

PrintPreview::PrintPreview(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("PrintPreview"));
    setWindowTitle(QStringLiteral("Preview"));
    // A window to look at is worth as much of the screen as a person likes.
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    BuildControls();
    resize(kFirstSize);
    m_list->setFocus();
}

void PrintPreview::BuildControls() {
    m_view = Named(new PageView(this), "view");
    m_view->setAccessibleName(QStringLiteral("The page as it will be printed"));
    m_list = Named(new QListWidget(this), "lstPages");
    m_list->setAccessibleName(QStringLiteral("The pages"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setFlow(QListView::TopToBottom);
    m_list->setWrapping(false);
    m_list->setMovement(QListView::Static);
    m_list->setIconSize(kThumbnails);
    m_list->setWordWrap(true);
    m_list->setSpacing(4);
    m_list->setFixedWidth(kListWidth);
    m_list->setTextElideMode(Qt::ElideNone);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* pages = new QHBoxLayout;
    pages->addWidget(m_list);
    pages->addWidget(m_view, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(BuildZoom());
    all->addLayout(pages, 1);
    all->addLayout(BuildButtons());
    connect(m_list, &QListWidget::currentRowChanged, this, &PrintPreview::ShowPage);
    connect(m_view, &PageView::ZoomChanged, this, &PrintPreview::ShowZoom);
    TabAlongTheLayout(*this);
}

QLayout* PrintPreview::BuildZoom() {
    m_paper = Named(new QLabel(this), "lblPaper");
    m_paper->setTextFormat(Qt::PlainText);
    m_paper->setWordWrap(true);
    auto* caption = new QLabel(QStringLiteral("&Size:"), this);
    m_zoom = Named(new QComboBox(this), "cboZoom");
    m_zoom->addItems(kZoomCaptions);
    m_zoom->setToolTip(QStringLiteral("How large the page shows; 100 % is about as large as on paper"));
    caption->setBuddy(m_zoom);
    auto* smaller = MakeButton(this, QStringLiteral("cmdZoomOut"), QString(QChar(0x2212)));
    auto* larger = MakeButton(this, "cmdZoomIn", "+");
    smaller->setToolTip(QStringLiteral("Smaller"));
    larger->setToolTip(QStringLiteral("Larger"));
    smaller->setAccessibleName(smaller->toolTip());
    larger->setAccessibleName(larger->toolTip());
    for (QPushButton* button : {smaller, larger})
        button->setFixedWidth(button->sizeHint().height() * 3 / 2);
    connect(m_zoom, &QComboBox::activated, this, &PrintPreview::cboZoom_Activated);
    connect(smaller, &QPushButton::clicked, this, &PrintPreview::cmdZoomOut_Click);
    connect(larger, &QPushButton::clicked, this, &PrintPreview::cmdZoomIn_Click);
    connect(new QShortcut(QKeySequence::ZoomIn, this), &QShortcut::activated, this, &PrintPreview::cmdZoomIn_Click);
    connect(new QShortcut(QKeySequence::ZoomOut, this), &QShortcut::activated, this, &PrintPreview::cmdZoomOut_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(m_paper, 1);
    row->addWidget(caption);
    row->addWidget(smaller);
    row->addWidget(m_zoom);
    row->addWidget(larger);
    return row;
}

QLayout* PrintPreview::BuildButtons() {
    auto* close = MakeButton(this, "cmdClose", "&Close");
    m_printSheet = MakeButton(this, "cmdPrintSheet", "&Print This Sheet...");
    m_printAll = MakeButton(this, "cmdPrintAll", "Print &Everything...");
    m_printSheet->setEnabled(false);
    connect(close, &QPushButton::clicked, this, [this] { Close(Wish::Nothing); });
    connect(m_printSheet, &QPushButton::clicked, this, [this] { Close(Wish::PrintSheet); });
    connect(m_printAll, &QPushButton::clicked, this, [this] { Close(Wish::PrintAll); });
    auto* row = new QHBoxLayout;
    row->addWidget(close);
    row->addStretch();
    row->addWidget(m_printAll);
    row->addWidget(m_printSheet);
    return row;
}
