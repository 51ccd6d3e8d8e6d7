// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// What playing a metafile will ask of its destination, found out without drawing.
struct MetafileSurvey {
    /// Some order combines with what was painted before.
    bool readsBack = false;
    /// Some order fills up to an outline, which must have no half tones then.
    bool floodFills = false;
    int orders = 0;

    static MetafileSurvey Of(QByteArrayView orders);
};
