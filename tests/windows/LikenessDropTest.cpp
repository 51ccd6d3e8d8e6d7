// SPDX-License-Identifier: MIT
// A photo dropped on the likeness of a corner, a token or a note, zoomed by the wheel and moved by the right button
// there; for a space see LikenessPictureTest.
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/frmEditToken.h"

#include "game/PieceImages.h"
#include "pictures/PicturePart.h"
#include "pieces/frmBMP.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "support/PictureFiles.h"
#include "windowing/PictureBox.h"
#include "windows/EditWindowFixture.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QRubberBand>
#include <QUrl>
#include <QWheelEvent>

namespace {

using Kind = PictureOwner::Kind;

class LikenessDropTest : public EditWindowTest {
protected:
    LikenessDropTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        basTAVL::g_oTokens(kToken.iNumber).Init(kToken.iNumber);
        for (int i = 0; i < basTAVL::kMoney; ++i)
            basTAVL::g_oMoney(i).FaceImage.Init(QString(), QStringLiteral("Money"), qint16(i));
    }
    /// Gives the middle of the place that lit up.
    QPoint Drop(PictureBox& likeness, const QString& file) const {
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(file)});
        const QPoint middle = likeness.rect().center();
        const auto* const light = likeness.findChild<QRubberBand*>(QStringLiteral("shpDrop"));
        QDragEnterEvent enter(middle, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&likeness, &enter);
        EXPECT_TRUE(enter.isAccepted());
        EXPECT_TRUE(light->isVisible()) << "the place lights up";
        QDropEvent drop(middle, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(&likeness, &drop);
        EXPECT_FALSE(light->isVisible());
        QCoreApplication::processEvents();
        return light->geometry().center();
    }
    static void TurnWheel(PictureBox& likeness, QPoint at, int notches) {
        QWheelEvent turn(QPointF{at}, QPointF{at}, QPoint(), QPoint(0, notches * 120), Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&likeness, &turn);
    }
    static void DragRight(PictureBox& likeness, QPoint from, QPoint to) {
        QTest::mousePress(&likeness, Qt::RightButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, QPointF(to), QPointF(to), Qt::NoButton, Qt::RightButton, {});
        QApplication::sendEvent(&likeness, &move);
        QTest::mouseRelease(&likeness, Qt::RightButton, {}, to);
    }
    /// What a person does in the editor, and what the piece shows in the end.
    template <typename Show>
    void ExpectTaken(QDialog& form, const char* sLikeness, const PictureOwner& piece, Show show) {
        QImage photo(600, 400, QImage::Format_RGB32);
        photo.fill(Qt::red);
        const QString file = WriteFile(QStringLiteral("cat.png"), PictureFiles::Encoded(photo, "png"));
        window = &form;
        InWindow([&] {
            auto& likeness = *Find<PictureBox>(sLikeness);
            const QPoint at = Drop(likeness, file);
            TurnWheel(likeness, at, 5);
            DragRight(likeness, at, at + QPoint(10, 0));
            // Dropped once more it is the same picture.
            Drop(likeness, file);
            Click("cmdOK");
        });
        show();
        const PictureRef shown = PieceImages::Of(TheGame(), piece).Ref();
        EXPECT_EQ(shown.sPath, file);
        EXPECT_EQ(shown.iZoom, ZoomThatFills(file) + 10) << "two steps a notch";
        EXPECT_LT(shown.iXCenter, 300) << "it followed the mouse to the right";
        EXPECT_GT(shown.iXCenter, 250);
        EXPECT_EQ(shown.iYCenter, 200);
        EXPECT_TRUE(desktop.boxes.isEmpty()) << desktop.Texts().join(u'\n').toStdString();
    }
    template <typename Show>
    void ExpectRefused(QDialog& form, const char* sLikeness, const PictureOwner& piece, Show show) {
        const QString letter = WriteFile(QStringLiteral("letter.pdf"), "%PDF-1.4 Dear Grandma");
        const PictureRef before = PieceImages::Of(TheGame(), piece).Ref();
        window = &form;
        InWindow([&] {
            Drop(*Find<PictureBox>(sLikeness), letter);
            Click("cmdCancel");
        });
        show();
        EXPECT_EQ(desktop.Texts(),
                  QStringList{QStringLiteral("'letter' is a PDF document. Please save its page as a .jpg or .png "
                                             "picture and take that.")});
        EXPECT_EQ(PieceImages::Of(TheGame(), piece).Ref(), before);
    }

    static constexpr PictureOwner kOnCorner{Kind::Corner, kCorner};
    static constexpr PictureOwner kToken{Kind::Token, 2};
    static constexpr PictureOwner kNote{Kind::Money, 0};
    bool changed = false;
};

TEST_F(LikenessDropTest, OnACorner) {
    PieceImages::Of(TheGame(), kOnCorner).Let_FullPath(QString());
    frmEditCorner form(session);
    ExpectRefused(form, "picDest", kOnCorner, [&] { form.ShowForm(kCorner, changed); });
    desktop.boxes.clear();
    ExpectTaken(form, "picDest", kOnCorner, [&] { form.ShowForm(kCorner, changed); });
}

TEST_F(LikenessDropTest, OnAToken) {
    frmEditToken form(session);
    C_Token& token = basTAVL::g_oTokens(kToken.iNumber);
    token.SetText(QStringLiteral("Dad"));
    ExpectRefused(form, "picDest", kToken, [&] { form.ShowForm(kToken.iNumber); });
    desktop.boxes.clear();
    ExpectTaken(form, "picDest", kToken, [&] { form.ShowForm(kToken.iNumber); });
    EXPECT_EQ(token.TextAll(), QStringLiteral("Dad")) << "nobody was asked whether the name may go";
    window = &form;
    InWindow([&] {
        Click("optInclude_1");
        Click("cmdOK");
    });
    form.ShowForm(kToken.iNumber);
    EXPECT_EQ(token.TextAll(), QStringLiteral("Dad"));
    EXPECT_TRUE(token.Image.FullPath().isEmpty());
}

TEST_F(LikenessDropTest, OneThatIsGoneTomorrowAndCantBeCopiedIsNotTaken) {
    PieceImages::Of(TheGame(), kOnCorner).Let_FullPath(QString());
    QDir(folder.path()).mkdir(QStringLiteral("gone tomorrow"));
    const QString photo = WriteFile(QStringLiteral("gone tomorrow/cat.png"),
                                    PictureFiles::Encoded(QImage(60, 40, QImage::Format_RGB32), "png"));
    Files::SetFaultHook([](Files::Operation operation, const QString&) {
        return operation == Files::Operation::Copy ? std::optional(QStringLiteral("The cable was pulled"))
                                                   : std::nullopt;
    });
    frmEditCorner form(session);
    window = &form;
    InWindow([&] {
        Drop(*Find<PictureBox>("picDest"), photo);
        EXPECT_EQ(desktop.boxes.size(), 1);
        Click("cmdOK");
    });
    form.ShowForm(kCorner, changed);
    Files::SetFaultHook({});
    EXPECT_TRUE(desktop.Texts().join(u'|').contains(QStringLiteral("The cable was pulled")));
    EXPECT_EQ(PieceImages::Of(TheGame(), kOnCorner).FullPath(), QString());
}

TEST_F(LikenessDropTest, OnANote) {
    frmEditMoney form(session);
    ExpectRefused(form, "picNote", kNote, [&] { form.ShowForm(); });
    desktop.boxes.clear();
    ExpectTaken(form, "picNote", kNote, [&] { form.ShowForm(); });
}

} // namespace
