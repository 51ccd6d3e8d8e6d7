// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Recording.h"

#include <QSizeF>

#include <memory>

/// What a piece's words look like on a sheet, made by the routines that print them, without paper and without pictures.
struct PrintedText {
    /// The drawing, which is stretched to the inches below.
    std::shared_ptr<const Recording> recording;
    QSizeF inches;

    /// Made at the size that it is printed at.
    static PrintedText AsMade(std::shared_ptr<const Recording> made) {
        const QSizeF size = QSizeF(made->Size()) / made->UnitsPerInch();
        return {std::move(made), size};
    }
};
