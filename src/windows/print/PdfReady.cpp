// SPDX-License-Identifier: MIT
#include "windows/print/PdfReady.h"

#include "kit/ConsoleSheets.h"
#include "services/basErrLog.h"
#include "windowing/MakeControls.h"
#include "windowing/OpenPath.h"
#include "windowing/TabWay.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

PdfReady::PdfReady(const QString& sPdf, const Sheet& sheet, QWidget* parent) : QDialog(parent), m_pdf(sPdf) {
    setObjectName(QStringLiteral("PdfReady"));
    setWindowTitle(QStringLiteral("Tavlora"));
    auto* told =
        MakeLabel(this, QStringLiteral("lblTold"), ConsoleSheets::PdfMessage(sPdf, sheet, KitInUse()).remove(u'\r'));
    constexpr int kWidth = 400;
    constexpr int kLetters = 50;
    MakeRoomForWords(*told, kWidth, kLetters);
    auto* open = MakeButton(this, "cmdOpen", "Open &PDF");
    auto* folder = MakeButton(this, "cmdShowFolder", "Show &Folder");
    auto* close = MakeButton(this, "cmdClose", "OK");
    connect(open, &QPushButton::clicked, this, &PdfReady::cmdOpen_Click);
    connect(folder, &QPushButton::clicked, this, &PdfReady::cmdShowFolder_Click);
    connect(close, &QPushButton::clicked, this, &PdfReady::accept);
    auto* row = new QHBoxLayout;
    row->addWidget(open);
    row->addWidget(folder);
    row->addStretch();
    row->addWidget(close);
    auto* all = new QVBoxLayout(this);
    all->addWidget(told);
    all->addLayout(row);
    TabAlongTheLayout(*this);
    // Whoever prints one sheet after the other goes on with Enter.
    close->setFocus();
}

void PdfReady::cmdOpen_Click() try { OpenOrTell(m_pdf); } catch (...) {
    ErrTop("PdfReady!", "cmdOpen_Click");
}

void PdfReady::cmdShowFolder_Click() try { OpenOrTell(ConsoleSheets::PrintedFolder()); } catch (...) {
    ErrTop("PdfReady!", "cmdShowFolder_Click");
}
