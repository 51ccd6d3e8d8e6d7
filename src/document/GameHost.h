// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class DeviceContext;

/// What the game file needs of the program around it: the main window's, or Session where there is no
/// window.
class GameHost {
public:
    virtual ~GameHost() = default;
    /// Full path of the game being edited.
    virtual QString GameName() const = 0;
    virtual void SetSomethingChanged(bool bChanged) = 0;
    /// The context that texts are measured on.
    virtual DeviceContext& MeasuringDevice() = 0;

    /// Puts another host in force and returns the one it replaces; the caller keeps ownership of both.
    static GameHost* Install(GameHost* host);
    /// Raises when there is none.
    static GameHost& Current();
};
