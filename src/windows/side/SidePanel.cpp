// SPDX-License-Identifier: MIT
#include "windows/side/SidePanel.h"

#include "services/basCommon.h"
#include "services/basErrLog.h"

#include <QScrollArea>
#include <QTabBar>
#include <QWheelEvent>

namespace {

const QString kFrontKey = QStringLiteral("SideTab");

} // namespace

SidePanel::SidePanel(QWidget* parent) : QTabWidget(parent) {
    setObjectName(QStringLiteral("SidePanel"));
    setAccessibleName(QStringLiteral("Side panel"));
    setDocumentMode(true);
    setUsesScrollButtons(true);
    connect(this, &QTabWidget::tabBarClicked, this, &SidePanel::NoteFront);
}

void SidePanel::AddTab(const char* sName, const QString& sCaption, QWidget* page) {
    page->setObjectName(QString::fromLatin1(sName));
    auto* const scroll = new QScrollArea;
    scroll->setObjectName(QString::fromLatin1(sName) + QStringLiteral("Scroll"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(page);
    addTab(scroll, sCaption);
    Q_EMIT TabsChanged();
}

void SidePanel::ReadSettings() { ShowTab(qPrintable(basCommon::GetIniString(kFrontKey))); }

int SidePanel::IndexOf(const char* sName) const {
    for (int i = 0; i < count(); ++i) {
        if (widget(i)->objectName() == QString::fromLatin1(sName) + QStringLiteral("Scroll")) return i;
    }
    return -1;
}

void SidePanel::SetTabShown(const char* sName, bool bShown) {
    const int tab = IndexOf(sName);
    if (tab < 0 || isTabVisible(tab) == bShown) return;
    setTabVisible(tab, bShown);
    Q_EMIT TabsChanged();
}

bool SidePanel::IsTabShown(const char* sName) const {
    const int tab = IndexOf(sName);
    return tab >= 0 && isTabVisible(tab);
}

bool SidePanel::ShowTab(const char* sName) {
    if (!IsTabShown(sName)) return false;
    setCurrentIndex(IndexOf(sName));
    return true;
}

bool SidePanel::HasTabs() const {
    for (int i = 0; i < count(); ++i) {
        if (isTabVisible(i)) return true;
    }
    return false;
}

void SidePanel::NoteFront(int iTab) try {
    if (iTab < 0) return;
    QString name = widget(iTab)->objectName();
    name.chop(int(QStringLiteral("Scroll").size()));
    basCommon::WriteIniString(kFrontKey, name);
} catch (...) {
    ErrTop("SidePanel!", "NoteFront", iTab);
}

void SidePanel::wheelEvent(QWheelEvent* event) { event->accept(); }
