// SPDX-License-Identifier: MIT
#include "support/ToldText.h"

#include <QLineF>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <stdexcept>

namespace {

// A place is rounded more than once on its way to the page.
constexpr double kPlaceWithin = 1.6;

QPointF AnchorOf(const PageMark& text, char align) {
    const double radians = text.angle * std::numbers::pi / 1800;
    const double part = align == 'C' ? 0.5 : align == 'R' ? 1 : 0;
    return text.start + QPointF(std::cos(radians), -std::sin(radians)) * text.width * part;
}

} // namespace

bool IsNear(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) < 2 && std::abs(a.green() - b.green()) < 2 && std::abs(a.blue() - b.blue()) < 2;
}

const std::vector<KnownFace>& KnownFaces() {
    static const std::vector<KnownFace> faces = {
        {"Arial", false, false, "LiberationSans", "ArialMT", 0.4416},
        {"Arial", true, false, "LiberationSans-Bold", "Arial-BoldMT", 0.4786},
        {"Arial", false, true, "LiberationSans-Italic", "Arial-ItalicMT", 0.4416},
        {"Arial", true, true, "LiberationSans-BoldItalic", "Arial-BoldItalicMT", 0.4786},
        {"Times New Roman", false, false, "LiberationSerif", "TimesNewRomanPSMT", 0.4013},
        {"Times New Roman", true, false, "LiberationSerif-Bold", "TimesNewRomanPS-BoldMT", 0.4270},
        {"Times New Roman", false, true, "LiberationSerif-Italic", "TimesNewRomanPS-ItalicMT", 0.4022},
        {"Times New Roman", true, true, "LiberationSerif-BoldItalic", "TimesNewRomanPS-BoldItalicMT", 0.4122},
        {"Courier New", false, false, "LiberationMono", "CourierNewPSMT", 0.6001},
        {"Courier New", true, false, "LiberationMono-Bold", "CourierNewPS-BoldMT", 0.6001},
        {"Courier New", false, true, "LiberationMono-Italic", "CourierNewPS-ItalicMT", 0.6001},
        {"Courier New", true, true, "LiberationMono-BoldItalic", "CourierNewPS-BoldItalicMT", 0.6001},
    };
    return faces;
}

const KnownFace& Face(const char* family, bool bold, bool italic) {
    for (const KnownFace& face : KnownFaces()) {
        if (QLatin1String(face.family) == QLatin1String(family) && face.bold == bold && face.italic == italic)
            return face;
    }
    throw std::invalid_argument(family);
}

void ExpectText(const QList<PageMark>& marks, const ToldText& told) {
    const std::string what = told.sText.toStdString();
    const PageMark* nearest = nullptr;
    double distance = 1e9;
    for (const PageMark& mark : marks) {
        if (mark.kind != PageMark::Kind::Text || mark.sText != told.sText) continue;
        const double away = QLineF(AnchorOf(mark, told.align), QPointF(told.x, told.y)).length();
        if (away < distance) nearest = &mark;
        distance = std::min(away, distance);
    }
    ASSERT_TRUE(nearest) << what << " isn't on the page";
    const QPointF anchor = AnchorOf(*nearest, told.align);
    EXPECT_NEAR(anchor.x(), told.x, kPlaceWithin) << what;
    EXPECT_NEAR(anchor.y(), told.y, kPlaceWithin) << what;
    EXPECT_NEAR(nearest->angle, told.angle, 0.5) << what;
    EXPECT_TRUE(IsNear(nearest->color, told.color)) << what << ": " << nearest->color.name().toStdString();
    EXPECT_TRUE(nearest->sFace == QLatin1String(told.face->onPage) ||
                nearest->sFace == QLatin1String(told.face->orOnPage))
        << what << ": " << nearest->sFace.toStdString() << " and not " << told.face->onPage;
    EXPECT_NEAR(nearest->height, told.height, told.heightWithin) << what;
    if (told.letter == 0) {
        EXPECT_NEAR(nearest->stretch, 1, 0.002) << what;
    } else {
        EXPECT_NEAR(nearest->stretch * told.face->average * nearest->em, told.letter, 0.05) << what;
    }
}
