// SPDX-License-Identifier: MIT
#pragma once

struct PaperText;

/// What letters on paper have to keep to.
namespace TextLimits {

/// Points: smaller letters need a magnifying glass.
constexpr double kSmallestPoints = 5;
/// Parts of their width: narrower letters are hard to tell apart.
constexpr double kNarrowest = 0.6;

/// Whether a line reaches over the edge along which its piece is cut.
bool LeavesPiece(const PaperText& text);

} // namespace TextLimits
