// SPDX-License-Identifier: MIT
#pragma once

/// The main window's doors to the editors and the other windows that it opens. Each shows its window modally
/// and tells whether the game has changed by anything that wasn't autosaved while the window stood.
class EditorRoutes {
public:
    virtual ~EditorRoutes() = default;
    virtual bool EditSpace(int iSpace) = 0;
    virtual bool EditCorner(int iCorner) = 0;
    virtual bool EditCenter() = 0;
    /// 0 Good News, 1 Bad News.
    virtual bool ShowNews(int iGoodOrBad) = 0;
    virtual bool EditMoney() = 0;
    virtual bool ShowTokens() = 0;
    /// Tells whether anything was printed.
    virtual bool Print() = 0;
    virtual void Setup() = 0;

    /// Puts other doors in force and returns those they replace; the caller keeps ownership of both.
    static EditorRoutes* Install(EditorRoutes* routes);
    static EditorRoutes& Current();
};
