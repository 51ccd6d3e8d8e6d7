// SPDX-License-Identifier: MIT
#include "kit/DimensionString.h"

#include "platform/text/Numbers.h"

namespace {

double NumberAhead(const QString& sText) {
    if (const std::optional<double> number = ParseNumber(sText)) return *number;
    const QString text = sText.trimmed();
    qsizetype length = 0;
    while (length < text.size() && (text[length].isDigit() || text[length] == u'.'))
        ++length;
    while (length > 0) {
        if (const std::optional<double> number = ParseNumber(text.left(length))) return *number;
        --length; // a second point, or one alone
    }
    return 0;
}

} // namespace

void FactorDimensionString(QString& sDimensions, double& dblWidth, double& dblHeight) {
    sDimensions = sDimensions.toLower();
    const qsizetype x = sDimensions.indexOf(u'x');
    dblWidth = x < 0 ? 0 : NumberAhead(sDimensions.left(x));
    dblHeight = x < 0 ? 0 : NumberAhead(sDimensions.mid(x + 1));
}
