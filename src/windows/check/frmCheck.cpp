// SPDX-License-Identifier: MIT
#include "windows/check/frmCheck.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(520, 420);

} // namespace

frmCheck::frmCheck(GameChecker& checker, const CheckList::Doors& doors, QWidget* parent)
    : QDialog(parent), m_list(new CheckList(checker, doors, this)) {
    setObjectName(QStringLiteral("frmCheck"));
    setWindowTitle(QStringLiteral("Check My Game"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_list);
    auto* const row = new QDialogButtonBox(this);
    QPushButton* const close = row->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &frmCheck::hide);
    column->addWidget(row);
    resize(kFirstSize);
}

void frmCheck::ShowForm() {
    show();
    raise();
    activateWindow();
}
