// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A window that somebody looks at must not stand still while a photograph is decoded. As long as one of these lives,
/// painting leaves out what is large and not decoded yet, and has it decoded on another processor meanwhile; whoever
/// paints asks afterwards, and paints again a little later.
class AwaitedPictures {
public:
    AwaitedPictures();
    ~AwaitedPictures();
    AwaitedPictures(const AwaitedPictures&) = delete;
    AwaitedPictures& operator=(const AwaitedPictures&) = delete;

    /// Whether anything was left out so far.
    bool Any() const { return m_bAny; }

    /// For those who paint: whether this picture has to be left out now. Always false while none of these lives.
    static bool LeavesOut(const QString& sPath, int longerSideWanted);
    /// Whether to load it now would take longer than anybody likes to wait. Has it decoded meanwhile.
    static bool TakesLong(const QString& sPath, int longerSideWanted);

private:
    AwaitedPictures* m_outer;
    bool m_bAny = false;
};
