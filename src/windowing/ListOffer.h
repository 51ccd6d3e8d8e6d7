// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// A way out that stands as a button below several messages of one moment, where it helps.
struct ListOffer {
    /// Of the button.
    QString sCaption;
    /// Whether it helps just now.
    std::function<bool()> applies;
    std::function<void()> take;
};
