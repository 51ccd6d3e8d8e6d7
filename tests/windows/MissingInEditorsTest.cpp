// SPDX-License-Identifier: MIT
// Where the picture of a piece is missing, its likeness in the editors shows a crossed picture in a grey frame.
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmEditToken.h"
#include "windows/editors/frmShowTokens.h"

#include "game/PieceImages.h"
#include "pieces/frmBMP.h"
#include "platform/pictures/LoadPicture.h"
#include "support/MissingMarkPixels.h"
#include "windowing/PictureBox.h"
#include "windows/EditWindowFixture.h"

namespace {

using Kind = PictureOwner::Kind;

constexpr int kPiece = 2;

class MissingInEditorsTest : public EditWindowTest {
protected:
    MissingInEditorsTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        for (int i = 0; i < basTAVL::kTokens; ++i)
            basTAVL::g_oTokens(i).Init(qint16(i));
        for (int i = 0; i < basTAVL::kMoney; ++i)
            basTAVL::g_oMoney(i).FaceImage.Init(QString(), QStringLiteral("Money"), qint16(i));
    }
    /// Gives the piece a picture that is there, or one that is away.
    void Give(const PictureOwner& piece, bool bThere) {
        basDraw::Draw_SetHdc(&context);
        const QString path = bThere ? MakePicture(QStringLiteral("there.bmp")) : PathOf(QStringLiteral("gone.png"));
        if (piece.kind == Kind::Token) {
            basTAVL::g_oTokens(piece.iNumber).SetText(QString());
            basTAVL::g_oTokens(piece.iNumber).SetImagePath(path);
        } else {
            PieceImages::Of(TheGame(), piece).Let_FullPath(path);
        }
    }
    template <typename Show>
    bool IsMarkedIn(QDialog& form, const char* sPicture, Show show) {
        window = &form;
        bool marked = false;
        InWindow([&] { marked = PixelsOfMissingMark(Find<PictureBox>(sPicture)->Image()) > kFewPixelsOfMark; });
        show();
        desktop.boxes.clear();
        return marked;
    }
    bool changed = false;
};

TEST_F(MissingInEditorsTest, OfASpace) {
    for (const bool there : {true, false}) {
        Give({Kind::Space, kSpace}, there);
        frmEditSpace form(session);
        EXPECT_EQ(IsMarkedIn(form, "picDest", [&] { form.ShowForm(kSpace, changed); }), !there);
    }
}

TEST_F(MissingInEditorsTest, OfACorner) {
    for (const bool there : {true, false}) {
        Give({Kind::Corner, kCorner}, there);
        frmEditCorner form(session);
        EXPECT_EQ(IsMarkedIn(form, "picDest", [&] { form.ShowForm(kCorner, changed); }), !there);
    }
}

TEST_F(MissingInEditorsTest, OfATokenInItsEditorAndAmongTheOthers) {
    for (const bool there : {true, false}) {
        Give({Kind::Token, kPiece}, there);
        frmEditToken form(session);
        EXPECT_EQ(IsMarkedIn(form, "picDest", [&] { form.ShowForm(kPiece); }), !there);
        frmShowTokens gallery(session);
        EXPECT_EQ(IsMarkedIn(gallery, "picToken_2", [&] { gallery.ShowForm(changed); }), !there);
    }
}

TEST_F(MissingInEditorsTest, OfANote) {
    for (const bool there : {true, false}) {
        Give({Kind::Money, 0}, there);
        frmEditMoney form(session);
        EXPECT_EQ(IsMarkedIn(form, "picNote", [&] { form.ShowForm(); }), !there);
    }
}

} // namespace
