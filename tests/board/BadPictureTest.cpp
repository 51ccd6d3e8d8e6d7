// SPDX-License-Identifier: MIT
#include "board/BoardPicture.h"
#include "document/basTAVL.h"
#include "support/BoardFixture.h"
#include "support/StartUp.h"

namespace {

class BadPictureTest : public BoardTest {
protected:
    BadPictureTest() {
        basTAVL::Let_g_sGameVersion(QStringLiteral("8"));
        StartUp::MakeThumbnails();
        basPosit::PosInit();
    }
};

// As an undone edit takes it away: the record of before is put back, and nobody tells the picture.
TEST_F(BadPictureTest, OneThatWasTakenBackIsToldAgainWhenItComes) {
    constexpr int kSpace = 4;
    C_Space& space = basTAVL::g_oSpaces(kSpace);
    space.Image.Let_SpaceOrCorner(QStringLiteral("Space"));
    space.Image.Let_Index(kSpace);
    const C_Space before = space;
    const QString gone = PathOf(QStringLiteral("gone.bmp"));
    const auto told = [this] { return desktop.Texts().filter(QStringLiteral("gone.bmp")).size(); };
    space.Image.Let_FullPath(gone);
    EXPECT_EQ(told(), 1);
    space = before;
    space.Image.Let_FullPath(gone);
    EXPECT_EQ(told(), 1) << "nobody has seen the place without it";
    space = before;
    basPosit::BoardPicture(960);
    space.Image.Let_FullPath(gone);
    EXPECT_EQ(told(), 2);
}

} // namespace
