// SPDX-License-Identifier: MIT
#include "windows/editors/frmShowTokens.h"

#include "platform/paint/Units.h"
#include "support/ModalSteps.h"
#include "windowing/PictureBox.h"
#include "windows/editors/frmEditToken.h"
#include "windows/EditWindowFixture.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace {

constexpr int kAcross = 3;

class ShowTokensTest : public EditWindowTest {
protected:
    ShowTokensTest() {
        for (int i = 0; i < basTAVL::kTokens; ++i) {
            C_Token& token = basTAVL::g_oTokens(i);
            token.Init(qint16(i));
            token.BackColor = ColorOf(i);
            token.Font.Size = 48;
            token.SetText(QStringLiteral("Nr %1").arg(i));
        }
    }

    static Color ColorOf(int token) { return Color::Rgb(40 * token, 200, 100); }
    static QColor PaintOf(int token) { return QColor(40 * token, 200, 100); }
    static QByteArray NameOf(int token) { return QByteArrayLiteral("picToken_") + QByteArray::number(token); }

    bool Show(const std::function<void()>& doIt) {
        window = &gallery;
        InWindow(doIt);
        bool changed = false;
        gallery.ShowForm(changed);
        return changed;
    }
    PictureBox& Picture(int token) { return *Find<PictureBox>(NameOf(token).constData()); }
    QImage ShownOf(int token) { return Picture(token).Image().copy(); }
    // Opens a token by a click and does something in its editor.
    void EditToken(int token, const std::function<void(QWidget&)>& doIt) {
        ModalSteps steps;
        steps.In("frmEditToken", [doIt](QWidget& editor) {
            doIt(editor);
            editor.hide();
        });
        QTest::mouseClick(&Picture(token), Qt::LeftButton);
        // Without a screen nobody gives the gallery its focus back.
        QApplication::setActiveWindow(&gallery);
    }
    static void TypeBehindText(QWidget& editor, const QString& text) {
        QTest::mouseClick(&::Find<PictureBox>(editor, "picDest"), Qt::LeftButton, {}, {250, 150});
        QTest::keyClicks(editor.focusWidget(), text);
    }
    /// The whole window's, in twips.
    QSize WindowSize() const { return gallery.frameGeometry().size() * kTwipsPerPixel; }

    frmShowTokens gallery{session};
};

TEST_F(ShowTokensTest, Edge_AGalleryMadeTooSmallSnapsBack) {
    Show([&] {
        gallery.resize(100, 100);
        EXPECT_EQ(gallery.size(), QSize(4230, 5730) / kTwipsPerPixel);
        EXPECT_EQ(Picture(0).width(), (WindowSize().width() - 1305) / 3 / kTwipsPerPixel);
        EXPECT_EQ(Picture(0).width(), Picture(0).height());
        EXPECT_TRUE(gallery.rect().contains(Find<QWidget>("cmdOK")->geometry()));
        // Each side by itself; 282 and 382 are 4230 and 5730 twips.
        gallery.resize(100, 600);
        EXPECT_EQ(gallery.size(), QSize(282, 600));
        gallery.resize(500, 100);
        EXPECT_EQ(gallery.size(), QSize(500, 382));
    });
}

TEST_F(ShowTokensTest, Edge_AWideGalleryKeepsTokensSquare) {
    Show([&] {
        gallery.resize(780, 500);
        const int side = (WindowSize().height() - 3780) / 2 / kTwipsPerPixel;
        for (int i = 0; i < basTAVL::kTokens; ++i)
            EXPECT_EQ(Picture(i).size(), QSize(side, side)) << i;
    });
}

TEST_F(ShowTokensTest, TokensStandInTwoRowsAndTheButtonUnderTheLast) {
    Show([&] {
        gallery.resize(507, 632);
        const double lSide = std::round((WindowSize().width() - 1305) / 3.0);
        for (int i = 0; i < basTAVL::kTokens; ++i) {
            const QPointF corner((lSide + 240) * (i % kAcross) + 240, (lSide + 240) * (i / kAcross) + 2280);
            EXPECT_EQ(Picture(i).pos(), (corner / kTwipsPerPixel).toPoint()) << i;
        }
        const QRect last = Picture(5).geometry();
        EXPECT_EQ(Find<QWidget>("cmdOK")->pos(), QPoint(last.x(), last.y() + last.height() + 360 / 15));
    });
}

TEST_F(ShowTokensTest, AHighButtonIsNotCutOff) {
    Show([&] {
        auto* const done = Find<QPushButton>("cmdOK");
        done->setIconSize(QSize(70, 70));
        done->setIcon(QPixmap(70, 70));
        ASSERT_GT(done->sizeHint().height(), 60);
        for (const QSize size : {QSize(687, 600), gallery.minimumSize()}) {
            gallery.resize(size);
            EXPECT_TRUE(gallery.rect().contains(done->geometry())) << size.height();
            EXPECT_EQ(Picture(5).width(), Picture(5).height());
        }
    });
}

TEST_F(ShowTokensTest, AMinimisedGalleryIsLeftAlone) {
    Show([&] {
        const QRect before = Picture(4).geometry();
        gallery.setWindowState(Qt::WindowMinimized);
        gallery.resize(300, 400);
        EXPECT_EQ(Picture(4).geometry(), before);
        gallery.setWindowState(Qt::WindowNoState);
    });
}

TEST_F(ShowTokensTest, EveryTokenShowsRoundInItsColour) {
    Show([&] {
        EXPECT_EQ(gallery.windowTitle(), QStringLiteral("Edit Game Tokens"));
        EXPECT_EQ(Find<QLabel>("lblClick")->text(), QStringLiteral("Click the token you wish to change."));
        EXPECT_EQ(Find<QPushButton>("cmdOK")->text(), QStringLiteral("&Done"));
        for (int i = 0; i < basTAVL::kTokens; ++i) {
            const QImage shown = ShownOf(i);
            EXPECT_EQ(shown.pixelColor(shown.width() / 2, 5), PaintOf(i)) << i;
            EXPECT_NE(shown.pixelColor(2, 2), PaintOf(i)) << i;
        }
    });
}

TEST_F(ShowTokensTest, AClickOpensTheTokenAndItsNewTextShows) {
    EXPECT_TRUE(Show([&] {
        const QImage before = ShownOf(4);
        EditToken(4, [](QWidget& editor) {
            TypeBehindText(editor, QStringLiteral("b"));
            ::Click(editor, "cmdOK");
        });
        EXPECT_NE(ShownOf(4), before);
        Click("cmdOK");
    }));
    EXPECT_EQ(basTAVL::g_oTokens(4).TextAll(), QStringLiteral("Nr 4b"));
}

TEST_F(ShowTokensTest, LookingAndCancellingAreNoChange) {
    basTAVL::g_oTokens(1).SetText(QString());
    basTAVL::g_oTokens(1).SetImagePath(MakePicture(QStringLiteral("quarters.bmp")));
    desktop.answers = {vbNo};
    EXPECT_FALSE(Show([&] {
        EXPECT_EQ(ShownOf(1).pixelColor(80, 80), QColor(Qt::red));
        EditToken(2, [](QWidget& editor) {
            TypeBehindText(editor, QStringLiteral("b"));
            ::Click(editor, "cmdCancel");
        });
        EditToken(1, [](QWidget& editor) { ::Click(editor, "cmdCancel"); });
        QTest::keyClick(&gallery, Qt::Key_Escape);
    }));
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_EQ(basTAVL::g_oTokens(2).TextAll(), QStringLiteral("Nr 2"));
}

TEST_F(ShowTokensTest, APictureThatIsGoneIsToldAndTheTextShowsWhileTheGameKeepsIt) {
    C_Token& token = basTAVL::g_oTokens(1);
    token.SetImagePath(MakePicture(QStringLiteral("quarters.bmp")));
    QFile::remove(token.Image.FullPath());
    const Game before = TheGame();
    EXPECT_FALSE(Show([&] { EXPECT_EQ(ShownOf(1).pixelColor(100, 5), PaintOf(1)); }));
    EXPECT_EQ(TheGame(), before) << "looking is no change";
    ASSERT_FALSE(desktop.boxes.isEmpty());
    EXPECT_TRUE(desktop.Texts().join(u' ').contains(QStringLiteral("quarters.bmp")));
}

TEST_F(ShowTokensTest, SetAllFontsReachesEveryTokenAlsoAfterCancel) {
    C_FontInfo& font = basTAVL::g_oTokens(3).Font;
    font.Load(QStringLiteral("Times New Roman"), true, false, 20);
    basTAVL::g_oTokens(3).SetText(TextLines::kUseExisting);
    desktop.answers = {vbYes, vbOK};
    EXPECT_TRUE(Show([&] {
        const QImage before = ShownOf(0);
        EditToken(3, [](QWidget& editor) {
            ::Click(editor, "cmdSetAllFonts");
            ::Click(editor, "cmdCancel");
        });
        EXPECT_NE(ShownOf(0), before);
        // The next editor starts from the new font.
        EditToken(0, [](QWidget& editor) {
            EXPECT_EQ(static_cast<frmEditToken&>(editor).Token().Font.Family, QStringLiteral("Times New Roman"));
            ::Click(editor, "cmdOK");
        });
    }));
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        C_Token& token = basTAVL::g_oTokens(i);
        EXPECT_FALSE(token.Font.IsDifferentFrom(font)) << i;
        C_Token fitted;
        fitted.LoadFromObject(token);
        fitted.SetText(TextLines::kUseExisting);
        EXPECT_EQ(fitted.TextSize(), token.TextSize()) << "fitted to the new font";
    }
}

TEST_F(ShowTokensTest, TheKeyboardFramesATokenAndOpensIt) {
    Show([&] {
        EXPECT_TRUE(Find<QWidget>("cmdOK")->hasFocus());
        Press(Qt::Key_Tab);
        EXPECT_TRUE(Picture(0).hasFocus());
        EXPECT_NE(ShownOf(0).pixelColor(1, 1), ShownOf(1).pixelColor(1, 1)) << "a frame";
        Press(Qt::Key_Right);
        Press(Qt::Key_Down);
        Press(Qt::Key_Down);
        EXPECT_TRUE(Picture(4).hasFocus());
        EXPECT_EQ(ShownOf(0).pixelColor(1, 1), ShownOf(1).pixelColor(1, 1)) << "no frame any more";
        int opened = 0;
        ModalSteps steps;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            steps.In("frmEditToken", [&](QWidget& editor) {
                EXPECT_EQ(static_cast<frmEditToken&>(editor).Token().Index, 4);
                ++opened;
                editor.hide();
            });
            QTest::keyClick(&Picture(4), key);
            QApplication::setActiveWindow(&gallery);
        }
        EXPECT_EQ(opened, 2);
        Press(Qt::Key_Left);
        Press(Qt::Key_Up);
        EXPECT_TRUE(Picture(0).hasFocus());
    });
}

TEST_F(ShowTokensTest, AClickThatIsTakenBackOpensNothing) {
    Show([&] {
        QTest::mousePress(&Picture(0), Qt::LeftButton, {}, {20, 20});
        QTest::mouseRelease(&Picture(0), Qt::LeftButton, {}, {-20, 20});
        QTest::mouseClick(&Picture(0), Qt::RightButton);
        EXPECT_EQ(QApplication::activeModalWidget(), &gallery);
    });
}

} // namespace
