// SPDX-License-Identifier: MIT
#include "windows/sending/frmPieces.h"

#include "game/GameNames.h"
#include "kit/PieceDrawing.h"
#include "platform/files/Folders.h"
#include "platform/printing/SaveDrawing.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/PageView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize kFirstSize(680, 460);
constexpr int kListWidth = 240;
constexpr int kBesideNames = 30;
constexpr int kDotsPerInch = 300;
constexpr int kRestMs = 120;

} // namespace

frmPieces::frmPieces(const QString& sGameTitle, QWidget* parent) : QDialog(parent), m_title(sGameTitle) {
    setObjectName(QStringLiteral("frmPieces"));
    setWindowTitle(QStringLiteral("Save a Picture of a Piece"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(new QLabel(QStringLiteral("Which piece would you like as a picture?"), this));
    lstPieces = new QListWidget(this);
    lstPieces->setObjectName(QStringLiteral("lstPieces"));
    lstPieces->setAccessibleName(QStringLiteral("Pieces of the game"));
    m_view = new PageView(this);
    m_view->setObjectName(QStringLiteral("view"));
    m_view->setAccessibleName(QStringLiteral("The piece as it will be saved"));
    auto* const both = new QHBoxLayout;
    both->addWidget(lstPieces);
    both->addWidget(m_view, 1);
    column->addLayout(both, 1);
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRestMs);
    connect(&m_rest, &QTimer::timeout, this, &frmPieces::ShowPiece);
    connect(lstPieces, &QListWidget::currentRowChanged, &m_rest, qOverload<>(&QTimer::start));
    auto* const row = new QHBoxLayout;
    auto* const close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setAutoDefault(false);
    cmdSaveAs = new QPushButton(QStringLiteral("&Save As..."), this);
    cmdSaveAs->setObjectName(QStringLiteral("cmdSaveAs"));
    cmdSaveAs->setDefault(true);
    row->addStretch();
    row->addWidget(close);
    row->addWidget(cmdSaveAs);
    column->addLayout(row);
    connect(close, &QPushButton::clicked, this, &frmPieces::hide);
    connect(cmdSaveAs, &QPushButton::clicked, this, &frmPieces::cmdSaveAs_Click);
    resize(kFirstSize);
}

void frmPieces::ShowForm() {
    FillPieces();
    exec();
    m_rest.stop();
}

QString frmPieces::WordInFront() const {
    const QListWidgetItem* const row = lstPieces->currentItem();
    return row ? row->data(Qt::UserRole).toString() : QString();
}

// What can't be made has been told, and leaves the view empty.
void frmPieces::ShowPiece() try {
    const std::optional<PrintedText> drawing = PieceDrawing::Draw(WordInFront());
    PreviewPage page;
    if (drawing) page = {drawing->recording, {drawing->inches, QRectF(QPointF(0, 0), drawing->inches), QPointF(0, 0)}};
    m_view->ShowPage(page);
} catch (...) {
    ErrTop("frmPieces!", "ShowPiece");
}

void frmPieces::FillPieces() {
    lstPieces->clear();
    for (const PieceDrawing::Piece& piece : PieceDrawing::All()) {
        auto* const row = new QListWidgetItem(piece.sName, lstPieces);
        row->setData(Qt::UserRole, piece.sWord);
    }
    // As far as they are read without scrolling; the longest of names would take the picture's room.
    lstPieces->setMinimumWidth(std::clamp(lstPieces->sizeHintForColumn(0) + kBesideNames, kListWidth, 2 * kListWidth));
    lstPieces->setCurrentRow(0);
}

void frmPieces::cmdSaveAs_Click() try {
    const QListWidgetItem* const row = lstPieces->currentItem();
    if (!row) return;
    const QString word = WordInFront();
    CommonDialog dlgCommon;
    dlgCommon.sDialogTitle = QStringLiteral("Save a Picture of a Piece");
    dlgCommon.sInitDir = Folders::Pictures();
    dlgCommon.sFileName = m_title + u' ' + word + QStringLiteral(".png");
    dlgCommon.sFilter = QStringLiteral("PNG picture|*.png|SVG drawing|*.svg|PDF page|*.pdf");
    if (!dlgCommon.ShowSave()) {
        if (!dlgCommon.sError.isEmpty()) MsgBox(dlgCommon.sError, vbExclamation);
        return;
    }
    // What can't be made has been told.
    const std::optional<PrintedText> drawing = PieceDrawing::Draw(word);
    if (!drawing) return;
    QString error;
    const QString title = m_title + QStringLiteral(": ") + row->text();
    if (SaveDrawing(*drawing->recording, drawing->inches, kDotsPerInch, title, dlgCommon.sFileName, error)) return;
    MsgBox(QStringLiteral("'%1' could not be written: %2.").arg(GameNames::FileNameOf(dlgCommon.sFileName), error),
           vbExclamation);
} catch (...) {
    ErrTop("frmPieces!", "cmdSaveAs_Click");
}
