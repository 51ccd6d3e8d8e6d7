// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/PaperOfPage.h"

#include <QTransform>

#include <functional>

/// What a printer does to a page on its way to the paper, so that it can be undone. All of it is as seen on the sheet
/// held upright, the shorter side on top.
struct PageCorrection {
    /// Beyond these nothing is undone: it wasn't the printer.
    static constexpr double kMostShiftMm = 16;
    static constexpr double kMostStretch = 0.06;

    /// How far right and down the printer moves the middle of the sheet, in millimetres.
    double dblRightMm = 0;
    double dblDownMm = 0;
    /// How long it prints a length of 1 that runs across the sheet, and one that runs down.
    double dblAcross = 1;
    double dblDown = 1;

    bool IsNothing() const { return *this == PageCorrection(); }
    bool IsWithinBounds() const;
    /// What undoes both this one and what the printer still did to a page that this one was undone for.
    PageCorrection Then(const PageCorrection& left) const;

    /// From inches on the paper as the page lies to inches on the upright sheet, from its corner: where a thing has to
    /// be printed so that it comes out in its place. A page that lies lengthwise is turned with its top to the left,
    /// as no printer says which way it would turn it.
    QTransform ToSheet(QSizeF paperInches) const;

    bool operator==(const PageCorrection&) const = default;
};

/// What is undone on a paper.
using CorrectionOfPaper = std::function<PageCorrection(const PaperOfPage& paper)>;
