// SPDX-License-Identifier: MIT
#include "platform/printing/PageCorrection.h"

#include <cmath>

namespace {

constexpr double kMillimetresPerInch = 25.4;

} // namespace

bool PageCorrection::IsWithinBounds() const {
    const auto shifts = [](double mm) { return std::abs(mm) <= kMostShiftMm; };
    const auto stretches = [](double factor) { return std::abs(factor - 1) <= kMostStretch; };
    return shifts(dblRightMm) && shifts(dblDownMm) && stretches(dblAcross) && stretches(dblDown);
}

PageCorrection PageCorrection::Then(const PageCorrection& left) const {
    return {.dblRightMm = left.dblRightMm + left.dblAcross * dblRightMm,
            .dblDownMm = left.dblDownMm + left.dblDown * dblDownMm,
            .dblAcross = dblAcross * left.dblAcross,
            .dblDown = dblDown * left.dblDown};
}

QTransform PageCorrection::ToSheet(QSizeF paperInches) const {
    const bool lengthwise = paperInches.width() > paperInches.height();
    const QSizeF sheet = lengthwise ? paperInches.transposed() : paperInches;
    QTransform transform;
    // What is told last is done first.
    transform.translate(sheet.width() / 2, sheet.height() / 2);
    transform.scale(1 / dblAcross, 1 / dblDown);
    transform.translate(-dblRightMm / kMillimetresPerInch, -dblDownMm / kMillimetresPerInch);
    if (lengthwise) transform = QTransform(0, -1, 1, 0, 0, 0) * transform;
    return QTransform::fromTranslate(-paperInches.width() / 2, -paperInches.height() / 2) * transform;
}
