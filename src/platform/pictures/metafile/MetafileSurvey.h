// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// What playing a metafile will ask of its destination, found out without drawing.
struct MetafileSurvey {
    /// Some order combines with what was painted before.
    bool readsBack = false;
    /// Orders that fill up to an outline, which must have no half tones then.
    int floodFills = 0;
    /// Some order counts in pixels of the destination.
    bool countsPixels = false;
    int orders = 0;

    static MetafileSurvey Of(QByteArrayView orders);
};
