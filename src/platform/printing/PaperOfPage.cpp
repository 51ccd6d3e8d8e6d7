// SPDX-License-Identifier: MIT
#include "platform/printing/PaperOfPage.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr QSizeF kLetter(8.5, 11);
constexpr QSizeF kA4(210 / 25.4, 297 / 25.4);

bool Measures(QSizeF size, QSizeF upright) {
    constexpr double kAlike = 0.03;
    const auto alike = [&](QSizeF other) {
        return std::abs(size.width() - other.width()) < kAlike && std::abs(size.height() - other.height()) < kAlike;
    };
    return alike(upright) || alike(upright.transposed());
}

// From one margin to the other at most; what is too large for the paper begins where printing begins.
double Place(double paper, double before, double behind, double sheet) {
    return std::max(before, std::min((paper - sheet) / 2, paper - behind - sheet));
}

// The toolkit tells inches of A4 to two places.
QSizeF Exactly(QSizeF size) {
    if (!Measures(size, kA4)) return size;
    return size.width() > size.height() ? kA4.transposed() : kA4;
}

constexpr std::array kLetterCountries{
    QLocale::AnyTerritory, QLocale::UnitedStates, QLocale::Canada,     QLocale::Mexico,    QLocale::PuertoRico,
    QLocale::Philippines,  QLocale::Chile,        QLocale::Colombia,   QLocale::CostaRica, QLocale::Venezuela,
    QLocale::Guatemala,    QLocale::Nicaragua,    QLocale::ElSalvador, QLocale::Panama,    QLocale::Belize};

} // namespace

PaperOfPage PaperOfPage::Of(QSizeF about, const QMarginsF& margins, QSizeF sheet) {
    const QSizeF size = Exactly(about);
    PaperOfPage paper{size, QRectF(QPointF(0, 0), size).marginsRemoved(margins), {}};
    paper.origin = paper.printable.topLeft();
    if (sheet.isEmpty() || paper.IsLetter()) return paper;
    paper.origin = QPointF(Place(size.width(), margins.left(), margins.right(), sheet.width()),
                           Place(size.height(), margins.top(), margins.bottom(), sheet.height()));
    return paper;
}

bool PaperOfPage::IsLetter() const { return Measures(size, kLetter); }

QString PaperOfPage::Name() const {
    if (IsLetter()) return QStringLiteral("US Letter");
    if (Measures(size, kA4)) return QStringLiteral("A4");
    return QStringLiteral("%1 by %2 inch")
        .arg(QString::number(size.width(), 'f', 1), QString::number(size.height(), 'f', 1));
}

namespace PaperSizes {

QPageSize::PageSizeId OfLocales(const QStringList& locales) {
    for (const QString& name : locales) {
        if (name.isEmpty()) continue;
        return std::ranges::count(kLetterCountries, QLocale(name).territory()) > 0 ? QPageSize::Letter : QPageSize::A4;
    }
    return QPageSize::Letter;
}

QPageSize::PageSizeId OfDesktop() {
    // Where the desktop tells what its paper is, that counts more than its language.
    return OfLocales({qEnvironmentVariable("LC_ALL"), qEnvironmentVariable("LC_PAPER"), QLocale::system().name()});
}

QPageSize::PageSizeId Of(PaperChoice choice) {
    switch (choice) {
        case PaperChoice::Letter:
            return QPageSize::Letter;
        case PaperChoice::A4:
            return QPageSize::A4;
        case PaperChoice::Usual:
            break;
    }
    return OfDesktop();
}

} // namespace PaperSizes
