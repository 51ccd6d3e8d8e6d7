// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditCenter.h"

#include "platform/paint/Surface.h"
#include "support/EditorFixture.h"
#include "support/Ink.h"
#include "windowing/PictureBox.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPushButton>

namespace {

// Pixels of the window.
const QRect kName(16, 32, 429, 96);
const QRect kSubtitle(127, 144, 207, 80);
const QRect kOccasion(467, 144, 207, 96);
const QRect kArea[] = {kName, kSubtitle, kOccasion};
constexpr QPoint kOutside(60, 200);
const QPoint kAheadOfSubtitle(kSubtitle.left() + 1, kSubtitle.center().y());
const QPoint kBehindSubtitle(kSubtitle.right() - 1, kSubtitle.center().y());
// The place of the game's name within its area.
constexpr QPoint kInName(150, 75);

// In letters as wide as the typeface's own it would be narrower.
constexpr const char* kLong = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH"
                              "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH";

constexpr int kNameRecord = 1;
constexpr int kSubtitleRecord = 2;
constexpr int kOccasionRecord = 3;

class EditCenterTest : public EditorTest {
protected:
    EditCenterTest() {
        basPosit::SetSpecialText(0, QStringLiteral("TAVLO"));
        basPosit::SetSpecialText(kNameRecord, QStringLiteral("Our Town"));
        basPosit::SetSpecialText(kSubtitleRecord, QStringLiteral("A game"));
        basPosit::SetSpecialText(kOccasionRecord, QStringLiteral("Summer"));
    }

    static QString Text(int record) { return basPosit::m_CenterText(record).sText; }
    static const SpecialText& TypedRecord(QDialog& form, int record) {
        return static_cast<frmEditCenter&>(form).Typed().Text(record);
    }
    static QString Typed(QDialog& form, int record) { return TypedRecord(form, record).sText; }
    static QString Lines(int count) { return QStringList(count, QStringLiteral("ab")).join(QStringLiteral("\r\n")); }

    bool Edit(const std::function<void(QDialog&)>& act) {
        WhenModal(act);
        bool changed = false;
        editor.ShowForm(changed);
        return changed;
    }

    static QWidget& Canvas(QDialog& form) { return Find<QWidget>(form, "picForm"); }
    static void ClickAt(QDialog& form, QPoint at) { QTest::mouseClick(&Canvas(form), Qt::LeftButton, {}, at); }
    // Keys go where a person's would: to whatever has the focus.
    static void Type(QDialog& form, const QString& sText) { QTest::keyClicks(form.focusWidget(), sText); }
    static void Press(QDialog& form, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(form.focusWidget(), key, modifiers);
    }
    // Behind the last character of a text.
    static void ClickBehind(QDialog& form, const QRect& area) {
        ClickAt(form, QPoint(area.right() - 2, area.bottom() - 2));
    }
    static void MoveWith(QDialog& form, Qt::MouseButton button, QPoint to) {
        QWidget& canvas = Canvas(form);
        QMouseEvent move(QEvent::MouseMove, to, canvas.mapToGlobal(QPointF(to)), Qt::NoButton, button, {});
        QApplication::sendEvent(&canvas, &move);
    }
    static void SelectSubtitle(QDialog& form) {
        QTest::mousePress(&Canvas(form), Qt::LeftButton, {}, kAheadOfSubtitle);
        MoveWith(form, Qt::LeftButton, kBehindSubtitle);
        QTest::mouseRelease(&Canvas(form), Qt::LeftButton, {}, kBehindSubtitle);
    }
    static QImage Shown(QDialog& form) { return Find<PictureBox>(form, "picForm").Image().copy(); }
    static QImage Shown(QDialog& form, const QRect& area) { return Shown(form).copy(area); }

    frmEditCenter editor{session};
};

TEST_F(EditCenterTest, Edge_EnterDoesNothingInTheGamesName) {
    Edit([](QDialog& form) {
        ClickAt(form, kInName);
        const QImage before = Shown(form);
        Press(form, Qt::Key_Return);
        Press(form, Qt::Key_Enter);
        EXPECT_EQ(Typed(form, kNameRecord), QStringLiteral("Our Town"));
        EXPECT_EQ(Shown(form), before);
        EXPECT_TRUE(form.isVisible());
    });
}

TEST_F(EditCenterTest, Edge_EachLineIsCutToFortyCharacters) {
    Edit([](QDialog& form) {
        for (int i = 0; i < 3; ++i) {
            ClickBehind(form, kArea[i]);
            Type(form, QString(60, u'i'));
            EXPECT_EQ(Typed(form, i + 1).size(), 40) << i + 1;
        }
        ClickBehind(form, kSubtitle);
        Press(form, Qt::Key_Return);
        Type(form, QString(50, u'j'));
        EXPECT_EQ(TypedRecord(form, kSubtitleRecord).Lines().last(), QString(40, u'j'));
    });
}

TEST_F(EditCenterTest, Edge_TenLinesTakeNoMoreCharactersButBackspaceAndTheArrows) {
    basPosit::SetSpecialText(kSubtitleRecord, Lines(10));
    basPosit::SetSpecialText(kOccasionRecord, Lines(10));
    Edit([](QDialog& form) {
        for (const int record : {kSubtitleRecord, kOccasionRecord}) {
            ClickBehind(form, kArea[record - 1]);
            const QImage before = Shown(form, kArea[record - 1]);
            Type(form, QStringLiteral("x"));
            Press(form, Qt::Key_Return);
            EXPECT_EQ(Typed(form, record), Lines(10));
            EXPECT_EQ(Shown(form, kArea[record - 1]), before);
            Press(form, Qt::Key_Left);
            EXPECT_NE(Shown(form, kArea[record - 1]), before) << "the caret has moved";
            Press(form, Qt::Key_Backspace);
            EXPECT_EQ(Typed(form, record), Lines(9) + QStringLiteral("\r\nb"));
            for (int i = 0; i < 2; ++i)
                Press(form, Qt::Key_Backspace);
            EXPECT_EQ(TypedRecord(form, record).iNLines, 9);
            Type(form, QStringLiteral("x"));
            EXPECT_TRUE(Typed(form, record).contains(u'x'));
        }
    });
}

TEST_F(EditCenterTest, Edge_CancelRestoresAllThreeAndOkWithAnEmptyTitleStays) {
    const char* const messages[] = {"Please specify a name for your game.",
                                    "Please specify the Subtitle for your game.",
                                    "Please specify the Second Subtitle for your game."};
    EXPECT_FALSE(Edit([&](QDialog& form) {
        for (int i = 2; i >= 0; --i) {
            ClickBehind(form, kArea[i]);
            for (int n = 0; n < 10; ++n)
                Press(form, Qt::Key_Backspace);
            EXPECT_EQ(Typed(form, i + 1), QString());
            Click(form, "cmdOK");
            EXPECT_TRUE(form.isVisible());
            EXPECT_EQ(desktop.boxes.last().sText, QString::fromLatin1(messages[i]));
        }
        EXPECT_EQ(desktop.boxes.size(), 3);
        Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(Text(kNameRecord), QStringLiteral("Our Town"));
    EXPECT_EQ(Text(kSubtitleRecord), QStringLiteral("A game"));
    EXPECT_EQ(Text(kOccasionRecord), QStringLiteral("Summer"));
}

TEST_F(EditCenterTest, Edge_TheFixedWordShowsInItsPartAndCannotBeEdited) {
    Edit([](QDialog& form) {
        ClickAt(form, kOutside);
        // Its part is 150 pixels about the middle of the right half; the strips above and below are left out.
        const QRect part(kName.left() + 245, kName.top() + 22, 160, 52);
        const QRect ink = DarkBox(Shown(form), part, 100);
        EXPECT_NEAR(ink.width(), 150, 16);
        EXPECT_NEAR(ink.center().x(), 16 + 429 * 0.7619, 4);
        const QImage word = Shown(form).copy(part);
        ClickAt(form, ink.center());
        Type(form, QStringLiteral("xx"));
        EXPECT_EQ(basPosit::m_CenterText(0).sText, QStringLiteral("TAVLO"));
        EXPECT_EQ(Typed(form, kNameRecord), QStringLiteral("Our Townxx")) << "the area is the game name's";
        EXPECT_EQ(Shown(form).copy(part), word);
    });
}

TEST_F(EditCenterTest, TheFixedWordShowsInUprightThinLettersAndNoLineUnderIt) {
    // Half as high as the box of 96, from a quarter of it. The five letters are 1251, 1366, 1366, 1139 and 1593 units
    // wide where the typeface's own width is 904: at 20 they fill 0.35 of 429 pixels.
    ScratchForm told(QSize(700, 260));
    basDraw::Draw_SetHdc(&told.hDC());
    basDraw::Draw_SetBrush(Color::Rgb(224, 255, 224));
    basDraw::Draw_Rect(kName.x(), kName.y(), kName.x() + kName.width(), kName.y() + kName.height());
    basDraw::Draw_SetFont(QStringLiteral("Arial"), 48, 20, 0, 0, false, false, false);
    basDraw::Draw_Text(QStringLiteral("TAVLO"), QStringLiteral("C"), 343, 56, Color::Black());
    basDraw::Draw_ReleaseObjects();
    // Between the strips above and below.
    const QRect part(kName.left() + 245, kName.top() + 22, 160, 52);
    Edit([&](QDialog& form) { EXPECT_EQ(Shown(form, part), told.Image().copy(part)); });
}

TEST_F(EditCenterTest, TheGamesNameIs212PixelsWideInItsPart) {
    // Two of its letters reach their edges, so that the ink is as wide as the letters but for a pixel or two.
    basPosit::SetSpecialText(kNameRecord, QStringLiteral("VIV"));
    Edit([](QDialog& form) {
        ClickAt(form, kOutside); // no caret stands in it
        // 0.4952 of 429 pixels about 0.3167 of them; the strips above and below are left out.
        const QRect ink = DarkBox(Shown(form), QRect(16 + 136 - 112, 32 + 22, 224, 52), 100);
        EXPECT_NEAR(ink.width(), 212 - 2, 2);
        EXPECT_NEAR(ink.left() + ink.right() + 1, 2 * (16 + 136), 2) << "twice the middle";
    });
}

TEST_F(EditCenterTest, BothSubtitlesShowInItalicLettersOfTheirOwnWidth) {
    const struct {
        const char* text;
        int record;
        Color face;
        int height; ///< Of a line: the area's less 2, in equal parts.
        int width;  ///< Half the height less 1, halves to even.
        int middle;
        int top;
    } rows[] = {{"Hg", kSubtitleRecord, Color::Rgb(255, 0, 0), 78, 38, 230, 144},
                {"Hg\r\nTo", kSubtitleRecord, Color::Rgb(255, 0, 0), 39, 18, 230, 144},
                {"Hg", kOccasionRecord, Color::Rgb(224, 255, 224), 94, 46, 570, 144},
                {"Hg\r\nTo\r\nUs", kOccasionRecord, Color::Rgb(224, 255, 224), 31, 14, 570, 144},
                // Of a file: at the least height half of it less 1 is nothing, which would mean the font's own width.
                {kLong, kSubtitleRecord, Color::Rgb(255, 0, 0), 2, 1, 230, 182}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const QString text = QString::fromLatin1(row.text);
        basPosit::SetSpecialText(row.record, text);
        const QRect area = kArea[row.record - 1];
        ScratchForm told(QSize(700, 260));
        basDraw::Draw_SetHdc(&told.hDC());
        basDraw::Draw_SetPen(PenStyle::Solid, 1, Color::Black());
        basDraw::Draw_SetBrush(row.face);
        basDraw::Draw_Rect(area.x(), area.y(), area.x() + area.width(), area.y() + area.height());
        basDraw::Draw_SetFont(QStringLiteral("Times New Roman"), row.height, row.width, 0, 0, false, true, false);
        basDraw::Draw_TextArray(text.split(QStringLiteral("\r\n")), QStringLiteral("C"), row.middle, row.top,
                                Color::Black());
        basDraw::Draw_ReleaseObjects();
        Edit([&](QDialog& form) { EXPECT_EQ(Shown(form, area), told.Image().copy(area)); });
    }
}

TEST_F(EditCenterTest, TheCaretIsAsThickAsInTheOtherEditors) {
    Edit([](QDialog& form) {
        for (const QRect& area : kArea) {
            ClickAt(form, kOutside);
            const QImage plain = Shown(form);
            ClickBehind(form, area);
            EXPECT_EQ(ChangedBox(plain, Shown(form)).width(), 3);
        }
    });
}

TEST_F(EditCenterTest, Edge_AClickOutsideAllAreasEndsTheEditing) {
    Edit([](QDialog& form) {
        ClickAt(form, kOutside);
        const QImage plain = Shown(form);
        ClickBehind(form, kSubtitle);
        EXPECT_NE(Shown(form), plain) << "a caret stands";
        ClickAt(form, kOutside);
        EXPECT_EQ(Shown(form), plain);
        Type(form, QStringLiteral("x"));
        Press(form, Qt::Key_Backspace);
        Press(form, Qt::Key_Delete);
        Press(form, Qt::Key_Return);
        EXPECT_EQ(Typed(form, kSubtitleRecord), QStringLiteral("A game"));
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(Shown(form), plain);
    });
}

TEST_F(EditCenterTest, TypingReachesTheGameWhenTheWindowClosesAndTheAnswerTellsTheChange) {
    EXPECT_TRUE(Edit([](QDialog& form) {
        ClickBehind(form, kSubtitle);
        Type(form, QStringLiteral(" of 3"));
        Press(form, Qt::Key_Return);
        Type(form, QStringLiteral("rounds"));
        EXPECT_EQ(Typed(form, kSubtitleRecord), QStringLiteral("A game of 3\r\nrounds"));
        EXPECT_EQ(Text(kSubtitleRecord), QStringLiteral("A game")) << "half a title is no title";
        Click(form, "cmdOK");
        EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(Text(kSubtitleRecord), QStringLiteral("A game of 3\r\nrounds"));
    EXPECT_EQ(session.UndoName(), QStringLiteral("Subtitle"));
    EXPECT_FALSE(Edit([](QDialog& form) { Click(form, "cmdOK"); })) << "looking is no change";
}

TEST_F(EditCenterTest, EscapeAndTheCloseButtonCancel) {
    for (const bool escape : {true, false}) {
        EXPECT_FALSE(Edit([&](QDialog& form) {
            ClickBehind(form, kOccasion);
            Type(form, QStringLiteral("!"));
            if (escape) {
                Press(form, Qt::Key_Escape);
            } else {
                form.close();
            }
            EXPECT_FALSE(form.isVisible());
        }));
        EXPECT_EQ(Text(kOccasionRecord), QStringLiteral("Summer"));
    }
}

TEST_F(EditCenterTest, WhileACaretStandsEnterAndBlankBelongToTheTextWhateverHasTheFocus) {
    Edit([](QDialog& form) {
        ClickBehind(form, kSubtitle);
        Find<QPushButton>(form, "cmdCancel").setFocus();
        Press(form, Qt::Key_Space);
        Press(form, Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(Typed(form, kSubtitleRecord), QStringLiteral("A game \r\n"));
    });
}

TEST_F(EditCenterTest, EnterPressesTheButtonThatHasTheFocus) {
    EXPECT_FALSE(Edit([](QDialog& form) {
        for (int i = 0; i < 4; ++i)
            Press(form, Qt::Key_Tab);
        EXPECT_EQ(form.focusWidget(), &Find<QPushButton>(form, "cmdCancel"));
        Press(form, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    }));
}

TEST_F(EditCenterTest, ASelectionThatAKeyCollapsesIsSeenToBeGone) {
    Edit([](QDialog& form) {
        SelectSubtitle(form);
        const QImage selected = Shown(form, kSubtitle);
        // The caret stands at the start of the text already.
        Press(form, Qt::Key_Left);
        EXPECT_NE(Shown(form, kSubtitle), selected);
    });
}

TEST_F(EditCenterTest, DraggingSelectsAndTypingReplacesWhatIsSelected) {
    Edit([](QDialog& form) {
        const QImage plain = Shown(form);
        SelectSubtitle(form);
        EXPECT_NE(Shown(form), plain);
        Press(form, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("A game"));
        Type(form, QStringLiteral("Z"));
        EXPECT_EQ(Typed(form, kSubtitleRecord), QStringLiteral("Z"));
    });
}

TEST_F(EditCenterTest, ADragThatLeavesItsTextKeepsWhatItHasSelectedThere) {
    // Longer than the subtitle, so that a column of it would be beyond the subtitle's end.
    basPosit::SetSpecialText(kOccasionRecord, QStringLiteral("Summer holidays"));
    const QPoint besideAllAreas(kSubtitle.right() + 60, kSubtitle.center().y());
    const QPoint atTheEndOfTheOccasion(kOccasion.right() - 1, kOccasion.center().y());
    Edit([&](QDialog& form) {
        for (const QPoint outside : {besideAllAreas, atTheEndOfTheOccasion, kName.center()}) {
            QTest::mousePress(&Canvas(form), Qt::LeftButton, {}, kAheadOfSubtitle);
            MoveWith(form, Qt::LeftButton, kBehindSubtitle);
            const QImage selected = Shown(form);
            MoveWith(form, Qt::LeftButton, outside);
            EXPECT_EQ(Shown(form), selected);
            QTest::mouseRelease(&Canvas(form), Qt::LeftButton, {}, outside);
            QGuiApplication::clipboard()->clear();
            Press(form, Qt::Key_C, Qt::ControlModifier);
            EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("A game"));
        }
        EXPECT_TRUE(desktop.boxes.isEmpty());
    });
}

TEST_F(EditCenterTest, OnlyADragWithTheLeftButtonThatBeganOnTheTextSelects) {
    const auto typedAfter = [](QDialog& form) {
        Type(form, QStringLiteral("!"));
        const QString text = Typed(form, kSubtitleRecord);
        Press(form, Qt::Key_Backspace);
        return text;
    };
    Edit([&](QDialog& form) {
        ClickAt(form, kAheadOfSubtitle);
        MoveWith(form, Qt::LeftButton, kBehindSubtitle);
        EXPECT_EQ(typedAfter(form), QStringLiteral("!A game")) << "the button was released before";
        ClickAt(form, kAheadOfSubtitle);
        QTest::mousePress(&Canvas(form), Qt::RightButton, {}, kAheadOfSubtitle);
        MoveWith(form, Qt::RightButton, kBehindSubtitle);
        EXPECT_EQ(typedAfter(form), QStringLiteral("!A game")) << "the right button selects nothing";
        ClickAt(form, kAheadOfSubtitle);
        QTest::mousePress(&Canvas(form), Qt::LeftButton, {}, kAheadOfSubtitle);
        QTest::mouseRelease(&Canvas(form), Qt::RightButton, {}, kAheadOfSubtitle);
        MoveWith(form, Qt::RightButton, kBehindSubtitle);
        EXPECT_EQ(typedAfter(form), QStringLiteral("!")) << "still held: any button counts while it moves";
    });
}

TEST_F(EditCenterTest, TheClipboardIsTypedACharacterAtATime) {
    Edit([](QDialog& form) {
        QGuiApplication::clipboard()->setText(QStringLiteral("\x01\nx\ty"));
        ClickBehind(form, kName);
        Press(form, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Typed(form, kNameRecord), QStringLiteral("Our Townx y")) << "a break is refused in the game's name";
        ClickBehind(form, kOccasion);
        Press(form, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Typed(form, kOccasionRecord), QStringLiteral("Summer\r\nx y"));
    });
}

TEST_F(EditCenterTest, BlanksInThePlaceOfATitleAreNoTitle) {
    EXPECT_FALSE(Edit([this](QDialog& form) {
        ClickBehind(form, kOccasion);
        for (int i = 0; i < 6; ++i)
            Press(form, Qt::Key_Backspace);
        Type(form, QStringLiteral(" "));
        QTest::mouseClick(&Find<QPushButton>(form, "cmdOK"), Qt::LeftButton);
        EXPECT_TRUE(form.isVisible());
        ASSERT_EQ(desktop.boxes.size(), 1);
        EXPECT_EQ(desktop.boxes[0].sText, QStringLiteral("Please specify the Second Subtitle for your game."));
        QTest::mouseClick(&Find<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
    }));
    basPosit::SetSpecialText(kOccasionRecord, QStringLiteral(" "));
    EXPECT_FALSE(Edit([](QDialog& form) {
        QTest::mouseClick(&Find<QPushButton>(form, "cmdOK"), Qt::LeftButton);
        EXPECT_FALSE(form.isVisible()) << "it stood there before, and may be meant";
    }));
}

TEST_F(EditCenterTest, AccentsFromAnInputMethodAreTyped) {
    Edit([](QDialog& form) {
        ClickBehind(form, kOccasion);
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("\u00E9"));
        QApplication::sendEvent(form.focusWidget(), &event);
        EXPECT_EQ(Typed(form, kOccasionRecord), QStringLiteral("Summer\u00E9"));
    });
}

TEST_F(EditCenterTest, TheTabKeyGoesThroughTheTextsAndOnToTheButtons) {
    Edit([](QDialog& form) {
        Type(form, QStringLiteral("1"));
        Press(form, Qt::Key_Tab);
        Type(form, QStringLiteral("2"));
        Press(form, Qt::Key_Tab);
        Type(form, QStringLiteral("3"));
        Press(form, Qt::Key_Tab);
        EXPECT_EQ(form.focusWidget(), &Find<QPushButton>(form, "cmdOK"));
        EXPECT_EQ(Typed(form, kNameRecord), QStringLiteral("Our Town1"));
        EXPECT_EQ(Typed(form, kSubtitleRecord), QStringLiteral("A game2"));
        EXPECT_EQ(Typed(form, kOccasionRecord), QStringLiteral("Summer3"));
        Press(form, Qt::Key_Space);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(EditCenterTest, TheMousePointerAndTheTipTellWhatAClickDoes) {
    const char* const tips[] = {"Click to Edit Name of Game", "Click to Edit Subtitle", "Click to Edit Occasion"};
    Edit([&](QDialog& form) {
        for (int i = 0; i < 3; ++i) {
            QTest::mouseMove(&Canvas(form), kArea[i].center());
            EXPECT_EQ(Canvas(form).toolTip(), QString::fromLatin1(tips[i]));
            EXPECT_EQ(Canvas(form).cursor().shape(), Qt::IBeamCursor);
        }
        QTest::mouseMove(&Canvas(form), kOutside);
        EXPECT_EQ(Canvas(form).toolTip(), QString());
        EXPECT_EQ(Canvas(form).cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(Find<QPushButton>(form, "cmdOK").toolTip(), QStringLiteral("Click to Save Your Changes"));
        EXPECT_EQ(Find<QPushButton>(form, "cmdCancel").toolTip(), QStringLiteral("Click to Undo Your Changes"));
    });
}

TEST_F(EditCenterTest, TheWindowShowsItsThreeAreasTheLogoAndTheirLabels) {
    Edit([](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Edit Game Titles"));
        const QImage image = Shown(form);
        EXPECT_EQ(image.pixel(kName.topLeft() + QPoint(2, 2)), qRgb(224, 255, 224));
        EXPECT_EQ(image.pixel(kSubtitle.topLeft() + QPoint(2, 2)), qRgb(255, 0, 0));
        EXPECT_EQ(image.pixel(kOccasion.topLeft() + QPoint(2, 2)), qRgb(224, 255, 224));
        const QRect logo = Find<QLabel>(form, "cmdLogo").geometry();
        EXPECT_EQ(image.pixel(logo.center()), qRgb(224, 255, 224));
        QStringList labels;
        for (const QLabel* label : form.findChildren<QLabel*>())
            labels.append(label->text());
        for (const char* label : {"Game Name on Box Top and Game Board:", "Subtitle on Box and Game Board:",
                                  "Second Subtitle on Box Only", "Display Area for Logo"})
            EXPECT_TRUE(labels.contains(QString::fromLatin1(label))) << label;
    });
}

TEST_F(EditCenterTest, AnAreaThatDoesNotExistIsAFailure) {
    EXPECT_NE(ErrorOf([&] { editor.Redraw(4); }), 0U);
    EXPECT_EQ(ErrorOf([&] { editor.Redraw(0); }), 0U);
}

TEST_F(EditCenterTest, TheDecorationLeavesTheBoardsViewAlone) {
    basPosit::PosSetScale(480);
    basPosit::PosSetOffsetX(-7);
    basPosit::PosSetOffsetY(-9);
    editor.Redraw(0);
    EXPECT_EQ(basPosit::GetScale(), 480);
    EXPECT_EQ(basPosit::GetOffsetX(), -7);
    EXPECT_EQ(basPosit::GetOffsetY(), -9);
}

} // namespace
