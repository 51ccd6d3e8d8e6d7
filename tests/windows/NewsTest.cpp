// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditNews.h"
#include "windows/editors/frmShowNews.h"

#include "board/basTAVL_news.h"
#include "support/EditorFixture.h"
#include "support/HourGlassWatch.h"
#include "support/Ink.h"
#include "windowing/PictureBox.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr int kGood = 0;
constexpr int kBad = 1;

class NewsTest : public EditorTest {
protected:
    NewsTest() {
        for (const int deck : {kGood, kBad}) {
            basPosit::SetSpecialText(basTAVL::NewsTitleRecord(deck), basTAVL::NewsDeckName(deck));
            for (int i = 0; i < basTAVL::kCards; ++i) {
                Card(deck, i).Index = qint16(i);
                Card(deck, i).Let_Text(QStringLiteral("Card ") + QString::number(i));
            }
        }
        desktop.onDialog = [this](CommonDialog& dialog) {
            dialogTitle = dialog.sDialogTitle;
            dialog.sFontName = QStringLiteral("Times New Roman");
            dialog.bFontBold = true;
            dialog.fFontSize = 7;
            return true;
        };
    }

    static C_News& Card(int deck, int card) { return basTAVL::g_oNews(deck, card); }
    static QString DeckTitle(int deck) { return basPosit::m_CenterText(basTAVL::NewsTitleRecord(deck)).sText; }

    bool Edit(int deck, int card, const std::function<void(QDialog&)>& act) {
        WhenModal(act);
        bool changed = false;
        editor.ShowForm(deck, card, changed);
        return changed;
    }
    bool Show(int deck, const std::function<void(QDialog&)>& act) {
        WhenModal(act);
        bool changed = false;
        viewer.ShowForm(deck, changed);
        return changed;
    }
    static void ClickCards(QDialog& form, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&Find<QWidget>(form, "picCards"), button, {}, at);
    }
    // Cards as large as they are, with room beside and below them.
    static void Enlarge(QDialog& form) { form.resize(780, 700); }
    static const QImage& Shown(QDialog& form, const char* sName) { return Find<PictureBox>(form, sName).Image(); }

    frmEditNews editor{session};
    frmShowNews viewer{session};
    QString dialogTitle;
};

TEST_F(NewsTest, BarsBringTheCardsThatLieOutOfSight) {
    Show(kGood, [](QDialog& form) {
        form.resize(300, 260);
        const QImage before = Shown(form, "picCards");
        auto& across = Find<QScrollBar>(form, "hscrl");
        auto& down = Find<QScrollBar>(form, "vscrl");
        ASSERT_TRUE(across.isVisible());
        ASSERT_TRUE(down.isVisible());
        // Bars count in twips, fifteen a pixel.
        across.setValue(40 * 15);
        down.setValue(30 * 15);
        const QSize left = before.size() - QSize(40, 30);
        EXPECT_EQ(Shown(form, "picCards").copy(QRect(QPoint(0, 0), left)), before.copy(QRect(QPoint(40, 30), left)));
    });
}

TEST_F(NewsTest, ButtonsBearTheirCaptions) {
    Edit(kGood, 0, [](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Edit News"));
        const struct {
            const char* name;
            const char* caption;
        } rows[] = {{"cmdBodyFont", "Change &Font"},
                    {"cmdSetHeadFont", "&Title Font"},
                    {"cmdSetAllFonts", "Set &All Fonts"},
                    {"cmdCancel", "&Cancel"}};
        for (const auto& row : rows)
            EXPECT_EQ(Find<QPushButton>(form, row.name).text(), QString::fromLatin1(row.caption));
    });
    Show(kGood, [](QDialog& form) {
        EXPECT_EQ(Find<QPushButton>(form, "cmdDone").text().remove(u'&'), QStringLiteral("Done"));
    });
}

TEST_F(NewsTest, Edge_AClickBesideTheThirdColumnOrBelowTheFourthRowOpensNothing) {
    constexpr QPoint kBesideTheColumns(720, 100);
    constexpr QPoint kBelowTheRows(100, 560);
    int opened = 0;
    Show(kGood, [&](QDialog& form) {
        Enlarge(form);
        for (const QPoint beside : {kBesideTheColumns, kBelowTheRows}) {
            WhenModal([&](QDialog& inner) {
                ++opened;
                Click(inner, "cmdCancel");
            });
            ClickCards(form, QPoint(719, 559));
            EXPECT_EQ(viewer.Card(), 11);
            const QImage chosen = Shown(form, "picCards");
            ClickCards(form, beside);
            EXPECT_EQ(viewer.Card(), -1);
            EXPECT_NE(Shown(form, "picCards"), chosen) << "the frame round the chosen card is gone";
        }
    });
    EXPECT_EQ(opened, 2);
}

TEST_F(NewsTest, BeforeItIsShownNoCardWasHit) { EXPECT_EQ(frmShowNews(session).Card(), -1); }

TEST_F(NewsTest, ADoubleClickBesideTheCardsOpensNothing) {
    Show(kGood, [&](QDialog& form) {
        Enlarge(form);
        QTest::mouseDClick(form.findChild<QWidget*>(QStringLiteral("picCards")), Qt::LeftButton, {}, QPoint(720, 100));
        EXPECT_EQ(viewer.Card(), -1);
    });
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(NewsTest, AnotherButtonOnACardChoosesNoneAndOpensNothing) {
    Show(kGood, [&](QDialog& form) {
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            QTest::keyClick(&form, Qt::Key_Right);
            EXPECT_EQ(viewer.Card(), 1);
            ClickCards(form, QPoint(100, 100), button);
            EXPECT_EQ(viewer.Card(), -1);
        }
    });
}

TEST_F(NewsTest, ThePointerIsAnHourglassWhileTheCardsAreDrawn) {
    Show(kGood, [&](QDialog& form) {
        form.resize(500, 400);
        const HourGlassWatch watch;
        Find<QScrollBar>(form, "vscrl").setValue(300);
        EXPECT_GT(watch.TimesWorking("picCards"), 0);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "it goes when the drawing is done";
    });
}

TEST_F(NewsTest, Edge_AFontChangedOnOneCardReachesTheOthersOfItsDeck) {
    EXPECT_TRUE(Edit(kBad, 3, [&](QDialog& form) {
        Click(form, "cmdBodyFont");
        EXPECT_EQ(dialogTitle, QStringLiteral("Font used for Bad News cards"));
        Click(form, "cmdOK");
    }));
    for (int i = 0; i < basTAVL::kCards; ++i) {
        EXPECT_EQ(Card(kBad, i).FontBody.Size, 7) << i;
        EXPECT_EQ(Card(kBad, i).FontHead.Size, 12) << i;
        EXPECT_EQ(Card(kGood, i).FontBody.Size, 12) << i;
        EXPECT_EQ(Card(kBad, i).Text(), QStringLiteral("Card ") + QString::number(i));
    }
}

TEST_F(NewsTest, FontsReachTheDeckWhenTheTextHasChangedToo) {
    EXPECT_TRUE(Edit(kGood, 0, [&](QDialog& form) {
        Click(form, "cmdSetHeadFont");
        EXPECT_EQ(dialogTitle, QStringLiteral("Font used for Good News Titles"));
        QTest::keyClicks(&Find<QWidget>(form, "txtSpace"), QStringLiteral("!"));
        Click(form, "cmdOK");
    }));
    EXPECT_EQ(Card(kGood, 0).Text(), QStringLiteral("Card 0!"));
    EXPECT_EQ(Card(kGood, 1).Text(), QStringLiteral("Card 1"));
    EXPECT_EQ(Card(kGood, 11).FontHead.Family, QStringLiteral("Times New Roman"));
}

TEST_F(NewsTest, FontDialogsCarryTheNameOfTheDeck) {
    const struct {
        int deck;
        const char* button;
        const char* title;
    } rows[] = {{kGood, "cmdBodyFont", "Font used for Good News cards"},
                {kBad, "cmdBodyFont", "Font used for Bad News cards"},
                {kGood, "cmdSetHeadFont", "Font used for Good News Titles"},
                {kBad, "cmdSetHeadFont", "Font used for Bad News Titles"}};
    for (const auto& row : rows) {
        Edit(row.deck, 0, [&](QDialog& form) {
            Click(form, row.button);
            Click(form, "cmdCancel");
        });
        EXPECT_EQ(dialogTitle, QString::fromLatin1(row.title));
    }
}

TEST_F(NewsTest, TypingShowsOnTheCardAtOnceAndReachesTheGameOnOk) {
    EXPECT_TRUE(Edit(kGood, 5, [&](QDialog& form) {
        EXPECT_EQ(Find<QLineEdit>(form, "txtTitle").text(), QStringLiteral("Good News"));
        EXPECT_EQ(Find<QPlainTextEdit>(form, "txtSpace").toPlainText(), QStringLiteral("Card 5"));
        const QImage before = Shown(form, "cmdPlaceHolder").copy();
        QTest::keyClick(&Find<QWidget>(form, "txtSpace"), Qt::Key_Return);
        QTest::keyClicks(&Find<QWidget>(form, "txtSpace"), QStringLiteral("Win a cake"));
        EXPECT_NE(Shown(form, "cmdPlaceHolder"), before);
        EXPECT_EQ(Card(kGood, 5).Text(), QStringLiteral("Card 5"));
        Click(form, "cmdOK");
    }));
    EXPECT_EQ(Card(kGood, 5).Text(), QStringLiteral("Card 5\r\nWin a cake"));
}

TEST_F(NewsTest, TheCardStandsSixteenPixelsIntoTheWindow) {
    Edit(kGood, 0, [&](QDialog& form) {
        EXPECT_EQ(Find<QWidget>(form, "cmdPlaceHolder").mapTo(&form, QPoint(0, 0)), QPoint(0, 0));
        const QImage& image = Shown(form, "cmdPlaceHolder");
        EXPECT_EQ(image.pixel(16, 100), qRgb(0, 0, 0));
        EXPECT_EQ(image.pixel(18, 100), qRgb(255, 255, 255));
        EXPECT_EQ(image.pixel(255, 100), qRgb(0, 0, 0));
        EXPECT_EQ(image.pixel(100, 155), qRgb(0, 0, 0));
    });
}

TEST_F(NewsTest, ATitleTypedOnOneCardIsTheDecks) {
    EXPECT_TRUE(Edit(kBad, 2, [&](QDialog& form) {
        auto& title = Find<QLineEdit>(form, "txtTitle");
        title.selectAll();
        QTest::keyClicks(&title, QStringLiteral("Oh dear"));
        QTest::keyClick(&title, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(DeckTitle(kBad), QStringLiteral("Oh dear"));
    EXPECT_EQ(DeckTitle(kGood), QStringLiteral("Good News"));
}

TEST_F(NewsTest, CancelEscapeAndTheCloseButtonLeaveTheGameAsItWas) {
    const std::function<void(QDialog&)> ways[] = {
        [](QDialog& form) { Click(form, "cmdCancel"); },
        [](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); },
        [](QDialog& form) { form.close(); },
    };
    for (const auto& leave : ways) {
        EXPECT_FALSE(Edit(kGood, 1, [&](QDialog& form) {
            QTest::keyClicks(&Find<QWidget>(form, "txtSpace"), QStringLiteral("xyz"));
            QTest::keyClicks(&Find<QWidget>(form, "txtTitle"), QStringLiteral("xyz"));
            Click(form, "cmdBodyFont");
            leave(form);
            EXPECT_FALSE(form.isVisible());
        }));
        EXPECT_EQ(Card(kGood, 1).Text(), QStringLiteral("Card 1"));
        EXPECT_EQ(Card(kGood, 1).FontBody.Size, 12);
        EXPECT_EQ(DeckTitle(kGood), QStringLiteral("Good News"));
    }
}

TEST_F(NewsTest, OpeningAndClosingChangesNothingWhateverTheTextHolds) {
    const QString odd = QStringLiteral("hard\u00A0blank\r\n\r\n<b>&amp;\ttab");
    Card(kGood, 4).Let_Text(odd);
    basPosit::SetSpecialText(basTAVL::NewsTitleRecord(kGood), QStringLiteral("Two\r\nlines"));
    EXPECT_FALSE(Edit(kGood, 4, [](QDialog& form) { Click(form, "cmdOK"); }));
    EXPECT_EQ(Card(kGood, 4).Text(), odd);
    EXPECT_EQ(DeckTitle(kGood), QStringLiteral("Two\r\nlines"));
}

TEST_F(NewsTest, HardBlanksSurviveTyping) {
    Card(kGood, 4).Let_Text(QStringLiteral("a\u00A0b"));
    Edit(kGood, 4, [](QDialog& form) {
        QTest::keyClicks(&Find<QWidget>(form, "txtSpace"), QStringLiteral("c"));
        Click(form, "cmdOK");
    });
    EXPECT_EQ(Card(kGood, 4).Text(), QStringLiteral("a\u00A0bc"));
}

TEST_F(NewsTest, SetAllFontsAsksThenChangesBothDecksEvenWhenCancelledLater) {
    desktop.answers = {vbYes};
    EXPECT_TRUE(Edit(kGood, 0, [](QDialog& form) {
        Click(form, "cmdBodyFont");
        Click(form, "cmdSetAllFonts");
        Click(form, "cmdCancel");
    }));
    ASSERT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(desktop.boxes[0].sTitle, QStringLiteral("Set All Fonts?"));
    EXPECT_EQ(desktop.boxes[0].iStyle, 51);
    EXPECT_EQ(desktop.boxes[0].sText,
              QStringLiteral("Clicking 'Yes' below will force the font and max size\r\nin use on this space to be "
                             "used for all spaces and corners.\r\n\r\nThis action CANNOT be undone. Do you wish to "
                             "continue?"));
    EXPECT_EQ(desktop.boxes[1].iStyle, 64);
    EXPECT_EQ(desktop.boxes[1].sText, QStringLiteral("All fonts have been changed. The change will be visible as "
                                                     "soon as you exit the current form."));
    for (const int deck : {kGood, kBad}) {
        for (int i = 0; i < basTAVL::kCards; ++i)
            EXPECT_EQ(Card(deck, i).FontBody.Size, 7);
    }
}

TEST_F(NewsTest, SetAllFontsDoesNothingOnNoOrCancel) {
    desktop.answers = {vbNo, vbCancel};
    EXPECT_FALSE(Edit(kGood, 0, [](QDialog& form) {
        Click(form, "cmdBodyFont");
        Click(form, "cmdSetAllFonts");
        Click(form, "cmdSetAllFonts");
        Click(form, "cmdCancel");
    }));
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(Card(kBad, 0).FontBody.Size, 12);
}

TEST_F(NewsTest, ACancelledFontDialogChangesNothing) {
    desktop.onDialog = [](CommonDialog&) { return false; };
    EXPECT_FALSE(Edit(kGood, 0, [](QDialog& form) {
        Click(form, "cmdBodyFont");
        Click(form, "cmdOK");
    }));
}

TEST_F(NewsTest, AChangeInTheEditorTravelsUpAndShowsInTheGrid) {
    QImage before;
    EXPECT_TRUE(Show(kBad, [&](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Bad News"));
        before = Shown(form, "picCards").copy();
        WhenModal([](QDialog& inner) {
            QTest::keyClicks(&Find<QWidget>(inner, "txtSpace"), QStringLiteral("\tx"));
            Click(inner, "cmdOK");
        });
        ClickCards(form, QPoint(250, 150));
        EXPECT_EQ(viewer.Card(), 4);
        EXPECT_NE(Shown(form, "picCards"), before);
        Click(form, "cmdDone");
        EXPECT_FALSE(form.isVisible());
    }));
}

TEST_F(NewsTest, LookingAtCardsIsNoChangeAndOtherButtonsOpenNone) {
    EXPECT_FALSE(Show(kGood, [&](QDialog& form) {
        ClickCards(form, QPoint(20, 20), Qt::RightButton);
        EXPECT_EQ(viewer.Card(), -1);
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible());
    }));
}

TEST_F(NewsTest, ADoubleClickOpensTheCardThatWasHitLast) {
    int opened = 0;
    const auto cancel = [&](QDialog& inner) {
        ++opened;
        Click(inner, "cmdCancel");
    };
    Show(kGood, [&](QDialog& form) {
        Enlarge(form);
        QTest::mouseDClick(&Find<QWidget>(form, "picCards"), Qt::LeftButton, {}, QPoint(725, 100));
        WhenModal(cancel);
        ClickCards(form, QPoint(10, 10));
        WhenModal(cancel);
        QTest::mouseDClick(&Find<QWidget>(form, "picCards"), Qt::LeftButton, {}, QPoint(10, 10));
    });
    EXPECT_GE(opened, 2);
}

struct BarsRow {
    QSize pane;
    bool horizontal;
    bool vertical;
};

TEST_F(NewsTest, ScrollBarsComeAsTheCardsNeedThem) {
    // Pixels of the pane; the grid takes 720 by 560.
    const BarsRow rows[] = {{{720, 560}, false, false}, {{719, 576}, true, false}, {{719, 575}, true, true},
                            {{736, 559}, false, true},  {{735, 559}, true, true},  {{735, 560}, false, false},
                            {{400, 300}, true, true}};
    Show(kGood, [&](QDialog& form) {
        const int row = form.height() - 560;
        for (const BarsRow& size : rows) {
            form.resize(size.pane.width(), size.pane.height() + row);
            auto& hscrl = Find<QScrollBar>(form, "hscrl");
            auto& vscrl = Find<QScrollBar>(form, "vscrl");
            EXPECT_EQ(hscrl.isVisible(), size.horizontal) << size.pane.width() << " x " << size.pane.height();
            EXPECT_EQ(vscrl.isVisible(), size.vertical) << size.pane.width() << " x " << size.pane.height();
            EXPECT_EQ(Find<QWidget>(form, "cmdHoleFiller").isVisible(), size.horizontal && size.vertical);
            const QSize cards = Find<QWidget>(form, "picCards").size();
            EXPECT_EQ(cards.width(), size.pane.width() - (size.vertical ? 20 : 0));
            EXPECT_EQ(cards.height(), size.pane.height() - (size.horizontal ? 20 : 0));
            EXPECT_EQ(hscrl.maximum(), size.horizontal ? 10800 - cards.width() * 15 : 0);
            EXPECT_EQ(vscrl.maximum(), size.vertical ? 8400 - cards.height() * 15 : 0);
        }
    });
}

TEST_F(NewsTest, AScrolledGridFindsTheCardThatIsReallyThere) {
    Show(kGood, [&](QDialog& form) {
        form.resize(400, 360);
        Find<QScrollBar>(form, "hscrl").setValue(Find<QScrollBar>(form, "hscrl").maximum());
        Find<QScrollBar>(form, "vscrl").setValue(Find<QScrollBar>(form, "vscrl").maximum());
        const QSize cards = Find<QWidget>(form, "picCards").size();
        WhenModal([](QDialog& inner) { Click(inner, "cmdCancel"); });
        ClickCards(form, QPoint(cards.width() - 10, cards.height() - 10));
        EXPECT_EQ(viewer.Card(), 11);
    });
}

TEST_F(NewsTest, TheArrowKeysFrameACardAndEnterOpensIt) {
    int opened = 0;
    Show(kGood, [&](QDialog& form) {
        form.resize(400, 360);
        const QImage plain = Shown(form, "picCards").copy();
        for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down})
            QTest::keyClick(&Find<QWidget>(form, "picCards"), Qt::Key(key));
        EXPECT_EQ(viewer.Card(), 10) << "below the last row is nothing";
        EXPECT_EQ(Find<QScrollBar>(form, "vscrl").value(), Find<QScrollBar>(form, "vscrl").maximum());
        EXPECT_NE(Shown(form, "picCards"), plain);
        WhenModal([&](QDialog& inner) {
            EXPECT_EQ(Find<QPlainTextEdit>(inner, "txtSpace").toPlainText(), QStringLiteral("Card 10"));
            ++opened;
            Click(inner, "cmdCancel");
        });
        QTest::keyClick(&Find<QWidget>(form, "picCards"), Qt::Key_Return);
    });
    EXPECT_EQ(opened, 1);
}

TEST_F(NewsTest, TheFirstCardIsFramedFromTheStartAndEnterOpensIt) {
    int opened = 0;
    Show(kGood, [&](QDialog& form) {
        auto& cards = Find<PictureBox>(form, "picCards");
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        const Color framed = cards.hDC().GetPixel(60, 3);
        Find<QPushButton>(form, "cmdDone").setFocus();
        EXPECT_NE(cards.hDC().GetPixel(60, 3), framed) << "only while the keys go to the cards";
        cards.setFocus();
        EXPECT_EQ(cards.hDC().GetPixel(60, 3), framed);
        EXPECT_TRUE(cards.accessibleName().contains(QStringLiteral("card 1 of 12: Card 0")))
            << cards.accessibleName().toStdString();
        WhenModal([&](QDialog& inner) {
            ++opened;
            Click(inner, "cmdCancel");
        });
        QTest::keyClick(&cards, Qt::Key_Return);
        EXPECT_EQ(viewer.Card(), 0);
    });
    EXPECT_EQ(opened, 1);
}

TEST_F(NewsTest, ACardThatDoesNotExistIsRefused) {
    bool changed = false;
    EXPECT_EQ(ErrorOf([&] { editor.ShowForm(kGood, 12, changed); }), quint32(ErrNumber::kSubscript));
}

TEST_F(NewsTest, WhatIsTooLongForACardOrItsTitleGoesWithAWord) {
    EXPECT_FALSE(Edit(kGood, 2, [this](QDialog& form) {
        auto& text = Find<QPlainTextEdit>(form, "txtSpace");
        const QString before = text.toPlainText();
        text.insertPlainText(QString(5001, u'x'));
        EXPECT_EQ(text.toPlainText(), before);
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("A text holds 5,000 letters at most.")});
        Click(form, "cmdOK");
    }));
    EXPECT_TRUE(Edit(kGood, 2, [this](QDialog& form) {
        auto& title = Find<QLineEdit>(form, "txtTitle");
        title.insert(QString(5001, u'x'));
        EXPECT_EQ(title.text().size(), 5000);
        EXPECT_EQ(desktop.boxes.size(), 2) << "told as well";
        Click(form, "cmdOK");
    }));
    EXPECT_EQ(DeckTitle(kGood).size(), 5000);
}

} // namespace
