// SPDX-License-Identifier: MIT
#pragma once

#include "app/MainLayout.h"
#include "windows/side/SidePanel.h"

#include <QObject>

#include <functional>

class QToolButton;

/// The field beside the board: the panel with its tabs where there is room for it, and the handle by which it goes and
/// comes back.
class SideField : public QObject {
    Q_OBJECT

public:
    /// layOut is asked for when the panel comes or goes.
    SideField(QWidget& parent, std::function<void()> layOut);

    SidePanel& Panel() { return *m_panel; }
    /// Takes up what was left at the last run, once the settings can be read.
    void ReadSettings();
    /// The Tab key comes to the handle, and so to the panel behind it, from this control.
    void TabBehind(QWidget& before);

    bool IsWished() const { return m_bWished; }
    void SetWished(bool bWished);
    MainLayout::Side Wish() const;
    void LayOut(const MainLayout& layout);

private:
    void Toggle();

    std::function<void()> m_layOut;
    SidePanel* m_panel;
    QToolButton* cmdHandle;
    bool m_bWished = true;
};
