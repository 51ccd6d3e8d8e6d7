// SPDX-License-Identifier: MIT
#pragma once

#include <QMarginsF>
#include <QPageSize>
#include <QRectF>
#include <QString>

/// Which paper a person prints on: what the printer or the country takes, or one that was chosen.
enum class PaperChoice { Usual, Letter, A4 };

/// The paper under a page, in inches and as the page lies.
struct PaperOfPage {
    QSizeF size;
    /// What of it the printer reaches.
    QRectF printable;
    /// Where the page's pixel (0, 0) lies on it.
    QPointF origin;

    /// The stock of the kit is US Letter, and its sheets begin where printing begins. On other paper a sheet of so
    /// many inches stands in the middle, as far as the margins allow; an empty one begins where printing begins.
    static PaperOfPage Of(QSizeF about, const QMarginsF& margins, QSizeF sheet);
    bool IsLetter() const;
    /// "US Letter", "A4", or what it measures.
    QString Name() const;
};

namespace PaperSizes {

/// What people buy where the desktop is: US Letter in some countries of America and the Philippines, elsewhere A4;
/// US Letter where nobody has said.
QPageSize::PageSizeId OfDesktop();
/// The same for the names of locales, the first that isn't empty: "de_DE.UTF-8".
QPageSize::PageSizeId OfLocales(const QStringList& locales);

/// The paper of files.
QPageSize::PageSizeId Of(PaperChoice choice);

} // namespace PaperSizes
