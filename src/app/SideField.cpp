// SPDX-License-Identifier: MIT
#include "app/SideField.h"

#include "services/basCommon.h"
#include "services/basErrLog.h"

#include <QToolButton>

namespace {

const QString kWishKey = QStringLiteral("SidePanel");

} // namespace

SideField::SideField(QWidget& parent, std::function<void()> layOut)
    : m_layOut(std::move(layOut)), m_panel(new SidePanel(&parent)), cmdHandle(new QToolButton(&parent)) {
    m_panel->hide();
    cmdHandle->setObjectName(QStringLiteral("cmdSideHandle"));
    cmdHandle->setFocusPolicy(Qt::TabFocus);
    cmdHandle->hide();
    connect(cmdHandle, &QToolButton::clicked, this, &SideField::Toggle);
    connect(m_panel, &SidePanel::TabsChanged, this, [this] { m_layOut(); });
}

void SideField::ReadSettings() {
    m_bWished = basCommon::GetIniString(kWishKey).toLower() != QStringLiteral("false");
    m_panel->ReadSettings();
}

void SideField::TabBehind(QWidget& before) { QWidget::setTabOrder(&before, cmdHandle); }

void SideField::SetWished(bool bWished) {
    m_bWished = bWished;
    basCommon::WriteIniString(kWishKey, bWished ? QStringLiteral("True") : QStringLiteral("False"));
    m_layOut();
}

MainLayout::Side SideField::Wish() const {
    if (!m_panel->HasTabs()) return MainLayout::Side::None;
    return m_bWished ? MainLayout::Side::Shown : MainLayout::Side::Hidden;
}

void SideField::LayOut(const MainLayout& layout) {
    m_panel->setGeometry(InPixels(layout.side));
    cmdHandle->setGeometry(InPixels(layout.sideHandle));
    m_panel->setVisible(!layout.side.isEmpty());
    cmdHandle->setVisible(!layout.sideHandle.isEmpty());
    cmdHandle->setArrowType(m_bWished ? Qt::RightArrow : Qt::LeftArrow);
    const QString says = m_bWished ? QStringLiteral("Hide the side panel") : QStringLiteral("Show the side panel");
    cmdHandle->setToolTip(says);
    cmdHandle->setAccessibleName(says);
}

void SideField::Toggle() try { SetWished(!m_bWished); } catch (...) {
    ErrTop("frmTAVL!", "cmdSideHandle_Click");
}
