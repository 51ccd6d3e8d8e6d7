// SPDX-License-Identifier: MIT
#include "drawing/DrawDottedBox.h"

#include "platform/paint/Surface.h"
#include "support/TestFixture.h"

#include <vector>

namespace {

// First and last place with ink, in pixels; a line leaves its end out.
struct Dash {
    int from;
    int to;
    bool operator==(const Dash&) const = default;
};

constexpr int kFirst = 10;
constexpr int kLast = 102;

std::vector<Dash> DashesAlong(ScratchForm& form, bool bUpright, int across) {
    std::vector<Dash> dashes;
    // Where the box ends, the dashes across begin.
    for (int along = 0; along <= kLast; ++along) {
        const bool ink = form.hDC().GetPixel(bUpright ? across : along, bUpright ? along : across) == Color::Black();
        if (!ink) continue;
        if (dashes.empty() || dashes.back().to != along - 1) dashes.push_back({along, along});
        dashes.back().to = along;
    }
    return dashes;
}

} // namespace

class DottedBoxTest : public TavloraTest {};

TEST_F(DottedBoxTest, DashesAreAThirdAsLongAsTheirGapsAndTheLastOneEndsInTheCorner) {
    ScratchForm form(QSize(300, 200));
    // A dash begins only where two more fit behind it: not at 89, as 89 + 5 isn't below 102 - 10.
    basTAVL::DrawDottedBox(form, kFirst, kFirst, kLast, kLast, 5, Color::None(), Color::Black());
    for (const bool upright : {false, true}) {
        for (const int across : {kFirst - 1, kLast + 1}) {
            const std::vector<Dash> dashes = DashesAlong(form, upright, across);
            ASSERT_EQ(dashes.size(), 5U) << upright << across;
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(dashes[size_t(i)], (Dash{9 + 20 * i, 13 + 20 * i})) << upright << across;
            EXPECT_EQ(dashes[4], (Dash{97, 101})) << upright << across;
        }
    }
}
