// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Statistics.h"

#include <QString>

#include <vector>

/// Pictures of distributions, as SVG text.
namespace Simulator {

/// What is written along a chart's axis: from, to and how far apart the marks are.
struct Axis {
    QString title;
    double from = 0;
    double to = 1;
    double step = 1;
};

/// A row of one chart: how many fall on each step of the axis, as bars of one height or another.
struct Hill {
    QString label;
    std::vector<double> heights;
};

/// Distributions one above the other. The part of the axis between two values is tinted; none where they are equal.
QString HillChart(const QString& title, const Axis& axis, const std::vector<Hill>& hills, double tintFrom,
                  double tintTo);

/// A row of one chart: estimates side by side, each a dot with its bounds.
struct DotRow {
    QString label;
    std::vector<Estimate> dots;
};

/// Rows of dots, a column of the legend each. What lies between two values of the axis is tinted.
QString DotChart(const QString& title, const Axis& axis, const std::vector<DotRow>& rows,
                 const std::vector<QString>& legend, double tintFrom, double tintTo);

} // namespace Simulator
