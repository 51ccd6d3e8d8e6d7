// SPDX-License-Identifier: MIT
#pragma once

#include "AppFixture.h"

#include <QWidget>

#include <string>
#include <vector>

/// The windows that the sources define.
QStringList WindowsOfTheSources();

/// Every window of the program as a person finds it, one after the other, with a sample game in hand.
class EveryWindowTest : public AppTest {
protected:
    using Look = std::function<void(QWidget& window)>;

    EveryWindowTest();

    void StartWithSample();
    /// Opens each window in turn, lets it be looked at while it stands, and closes it.
    void InEach(const Look& look);
    /// The object names of those that InEach opens.
    QStringList Opened();

    /// What a person can do something with: visible, enabled, and reached by Tab.
    static QWidgetList TabStops(const QWidget& window);
    /// As a failure names it.
    static std::string NameOf(const QWidget& widget);

private:
    struct Door {
        const char* sWindow;
        std::function<void()> open;
    };

    std::vector<Door> Doors();
    std::vector<Door> EditorDoors();
    std::vector<Door> PictureDoors();
    std::vector<Door> PrintDoors();
    std::vector<Door> OtherDoors();
    void LookAtMainWindow(const Look& look);
    QString MakePhoto() const;
};
