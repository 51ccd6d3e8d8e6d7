// SPDX-License-Identifier: MIT
#include "windows/sending/frmPieces.h"

#include "game/GameNames.h"
#include "kit/PieceDrawing.h"
#include "platform/files/Folders.h"
#include "platform/printing/SaveDrawing.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(360, 420);
constexpr int kDotsPerInch = 300;

} // namespace

frmPieces::frmPieces(const QString& sGameTitle, QWidget* parent) : QDialog(parent), m_title(sGameTitle) {
    setObjectName(QStringLiteral("frmPieces"));
    setWindowTitle(QStringLiteral("Save a Picture of a Piece"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(new QLabel(QStringLiteral("Which piece would you like as a picture?"), this));
    lstPieces = new QListWidget(this);
    lstPieces->setObjectName(QStringLiteral("lstPieces"));
    lstPieces->setAccessibleName(QStringLiteral("Pieces of the game"));
    column->addWidget(lstPieces);
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
}

void frmPieces::FillPieces() {
    lstPieces->clear();
    for (const PieceDrawing::Piece& piece : PieceDrawing::All()) {
        auto* const row = new QListWidgetItem(piece.sName, lstPieces);
        row->setData(Qt::UserRole, piece.sWord);
    }
    lstPieces->setCurrentRow(0);
}

void frmPieces::cmdSaveAs_Click() try {
    const QListWidgetItem* const row = lstPieces->currentItem();
    if (!row) return;
    const QString word = row->data(Qt::UserRole).toString();
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
