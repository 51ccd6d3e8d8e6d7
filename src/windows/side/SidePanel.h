// SPDX-License-Identifier: MIT
#pragma once

#include <QTabWidget>

/// The tabs beside the board. Whoever has something to show there adds a tab, and the panel remembers which was in
/// front. Where it lies, and whether it shows, is the main window's.
class SidePanel : public QTabWidget {
    Q_OBJECT

public:
    explicit SidePanel(QWidget* parent);

    /// The name is for settings and scripts, and stays for good; the page becomes the panel's own. A page that may need
    /// more room than there is scrolls.
    void AddTab(const char* sName, const QString& sCaption, QWidget* page);
    /// Brings the tab to the front that was there at the last run, once the settings can be read.
    void ReadSettings();
    /// A tab that was hidden keeps its place.
    void SetTabShown(const char* sName, bool bShown);
    bool IsTabShown(const char* sName) const;
    /// Brings a tab to the front; false when it isn't there or hidden.
    bool ShowTab(const char* sName);
    bool HasTabs() const;

Q_SIGNALS:
    /// A tab came or went.
    void TabsChanged();

protected:
    /// The wheel and the keys of the board behind stay here.
    void wheelEvent(QWheelEvent* event) override;

private:
    int IndexOf(const char* sName) const;
    void NoteFront(int iTab);
};
