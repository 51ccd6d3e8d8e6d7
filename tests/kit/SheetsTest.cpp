// SPDX-License-Identifier: MIT
// The table of the sheets: every row is whole, and says what is told of it.
#include "kit/Sheets.h"

#include "kit/ConsoleSheets.h"
#include "kit/LabelSheet.h"
#include "platform/printing/PicturePrinter.h"
#include "support/TestFixture.h"
#include "support/ToldSheets.h"

#include <QRegularExpression>

namespace {

constexpr QSizeF kMostInches(8.0, 10.5);
constexpr Kit kKits[] = {Kit::Two, Kit::TwoA, Kit::Five, Kit::Eight, Kit::Unknown};

std::vector<const Sheet*> AllRows() {
    std::vector<const Sheet*> rows;
    for (const std::span<const Sheet> table : {Sheets(), ButtonsWithoutSheet()}) {
        for (const Sheet& sheet : table)
            rows.push_back(&sheet);
    }
    return rows;
}

// The letter that a person presses with Alt; nothing without one or with several.
QChar Mnemonic(QString caption) {
    caption.remove(QStringLiteral("&&"));
    return caption.count(u'&') == 1 ? caption.at(caption.indexOf(u'&') + 1).toUpper() : QChar();
}

// A letter or a digit that nobody mistakes; none only where the other buttons of the frame have taken all.
bool HasKey(const Sheet& sheet, Kit kit) {
    const QChar key = Mnemonic(sheet.Caption(kit));
    if (!key.isNull() || sheet.Caption(kit).contains(u'&')) return key.isLetterOrNumber();
    QString taken;
    for (const Sheet& other : Sheets()) {
        if (other.frame == sheet.frame && other.IsShown(kit)) taken.append(Mnemonic(other.Caption(kit)));
    }
    const QString caption = sheet.Caption(kit).toUpper();
    return std::ranges::all_of(caption, [&](QChar c) { return !c.isLetterOrNumber() || taken.contains(c); });
}

// The list and the question speak of the same stock; a paper that isn't used has neither.
bool IsAskedFor(const Paper& paper) {
    const QStringList asked = QString::fromLatin1(paper.sPrompt).split(u' ');
    return std::ranges::all_of(QString::fromLatin1(paper.sStock).split(u' ', Qt::SkipEmptyParts),
                               [&](const QString& word) { return asked.contains(word); });
}

// What a row lacks, in words.
QStringList LackingIn(const Sheet& sheet) {
    static const QRegularExpression word(QStringLiteral("^[a-z0-9]+$"));
    QStringList lacking;
    const auto want = [&lacking](bool is, const char* what) {
        if (!is) lacking.append(QString::fromLatin1(what));
    };
    want(word.match(QString::fromLatin1(sheet.sName)).hasMatch(), "a name for the command line");
    want(sheet.frame && *sheet.frame != Frame::Menu, "a frame for its button");
    for (const Kit kit : kKits) {
        want(HasKey(sheet, kit), "a caption with one mnemonic");
        const QSizeF needed = sheet.NeededInches(kit);
        want(*sheet.ends.right.sPieces && *sheet.ends.bottom.sPieces, "names of the pieces at its ends");
        const bool upright = sheet.OrientationOf(kit) == PageOrientation::Portrait;
        const QSizeF most = upright ? kMostInches : kMostInches.transposed();
        want(!needed.isEmpty() && needed.boundedTo(most) == needed, "inches that a page has");
    }
    want(sheet.paper && *sheet.paper->white.sStock, "a stock for the list");
    want(!sheet.paper || (IsAskedFor(sheet.paper->white) && IsAskedFor(sheet.paper->coloured)),
         "a question for its stock");
    want(sheet.paint, "a routine that paints it");
    lacking.removeDuplicates();
    return lacking;
}

using SheetsTest = TavloraTest;

} // namespace

TEST_F(SheetsTest, EveryRowIsWhole) {
    for (const Sheet& sheet : Sheets()) {
        EXPECT_EQ(LackingIn(sheet).join(QStringLiteral(", ")).toStdString(), "")
            << "in the row of button " << sheet.iButton << ", '" << sheet.sName << "'";
    }
}

TEST_F(SheetsTest, TheCheckFindsWhatARowLacks) {
    Sheet sheet = *FindSheet(QStringLiteral("rules"));
    ASSERT_TRUE(LackingIn(sheet).isEmpty());
    sheet.sName = "";
    sheet.frame.reset();
    sheet.caption.others = "&Two &mnemonics";
    sheet.paper.reset();
    sheet.ends = {{8.5, "notes"}, {11, ""}};
    sheet.paint = nullptr;
    EXPECT_EQ(LackingIn(sheet).size(), 7);
}

TEST_F(SheetsTest, NoTwoRowsShareANameAButtonOrAMnemonicOfTheirFrame) {
    const std::vector<const Sheet*> rows = AllRows();
    for (size_t i = 0; i < rows.size(); ++i) {
        for (size_t j = 0; j < i; ++j) {
            const std::string both = std::to_string(rows[j]->iButton) + " and " + std::to_string(rows[i]->iButton);
            EXPECT_NE(rows[i]->iButton, rows[j]->iButton);
            EXPECT_TRUE(!*rows[i]->sName || qstrcmp(rows[i]->sName, rows[j]->sName) != 0) << both << " share a name";
            for (const Kit kit : kKits) {
                if (rows[i]->frame != rows[j]->frame || !rows[i]->IsShown(kit) || !rows[j]->IsShown(kit)) continue;
                EXPECT_NE(Mnemonic(rows[i]->Caption(kit)), Mnemonic(rows[j]->Caption(kit))) << both;
            }
        }
    }
}

TEST_F(SheetsTest, EveryIndexSaysWhatIsToldOfIt) {
    for (const ToldSheet& told : kToldSheets) {
        SCOPED_TRACE(told.button);
        const Sheet* const sheet = FindButton(told.button);
        ASSERT_TRUE(sheet);
        EXPECT_STREQ(sheet->sName, told.name);
        EXPECT_EQ(sheet->frame ? int(*sheet->frame) : -1, told.frame);
        EXPECT_STREQ(sheet->sToolTip, told.toolTip);
        for (const Kit kit : kKits) {
            SCOPED_TRACE(qPrintable(VariantOf(kit)));
            const bool eight = kit == Kit::Eight;
            const bool coloured = kit == Kit::Two || kit == Kit::TwoA;
            EXPECT_EQ(sheet->Title(kit), QString::fromLatin1(eight ? told.caption : told.captionOfOthers));
            EXPECT_EQ(sheet->IsShown(kit), coloured ? told.shownColoured : told.shown);
            EXPECT_EQ(sheet->OrientationOf(kit) == PageOrientation::Landscape,
                      eight ? told.lengthwise : told.lengthwiseOfOthers);
            const char* const prompt = coloured ? told.promptColoured : told.prompt;
            ASSERT_EQ(sheet->Prompt(kit).has_value(), prompt != nullptr);
            EXPECT_EQ(sheet->Prompt(kit).value_or(QString()), ToldSheet::Asked(prompt));
        }
    }
}

TEST_F(SheetsTest, CaptionsCarryMnemonicsAndTitlesNone) {
    EXPECT_EQ(FindButton(0)->Caption(Kit::Eight), QStringLiteral("&Box Top && Token Stickers"));
    EXPECT_EQ(FindButton(0)->Title(Kit::Eight), QStringLiteral("Box Top & Token Stickers"));
    EXPECT_EQ(FindButton(9)->Caption(Kit::Five), QStringLiteral("$ 1,&000"));
}

TEST_F(SheetsTest, WhatIsNeededTurnsWithThePageOfTheKit) {
    const Sheet& box = *FindSheet(QStringLiteral("box"));
    EXPECT_EQ(box.NeededInches(Kit::Eight), QSizeF(10.0, 7.96));
    EXPECT_EQ(box.NeededInches(Kit::Two), QSizeF(7.96, 10.0));
    EXPECT_EQ(FindSheet(QStringLiteral("east"))->NeededInches(Kit::Two), QSizeF(9.98, 7.72));
}

TEST_F(SheetsTest, WhatAPageCutsOffIsToldByPieceAndOnlyThen) {
    const auto lost = [](const char* name, QSizeF printable, Kit kit = Kit::Eight) {
        return FindSheet(QString::fromLatin1(name))->WhatIsLostOn(printable, kit);
    };
    EXPECT_EQ(lost("deeds1", {8.0, 10.0}), QStringLiteral("The lowest row of deeds would lose 10 mm."));
    EXPECT_EQ(lost("deeds2", {7.5, 10.375}), QStringLiteral("The right-hand column of deeds would lose 6 mm."));
    EXPECT_EQ(lost("good", {6.0, 9.0}), QStringLiteral("The right-hand column of cards would lose 7 mm, and the lowest "
                                                       "row of cards would lose 25 mm."));
    EXPECT_EQ(lost("west", {11.35, 7.93}), QStringLiteral("The row of corner stickers would lose 1 mm."));
    EXPECT_EQ(lost("west", {7.93, 11.35}, Kit::Two), QStringLiteral("The row of corner stickers would lose 1 mm."));
    for (const char* fits : {"deeds1", "deeds2", "good", "bad", "money100", "money5000", "rules"})
        EXPECT_EQ(lost(fits, {7.93, 11.35}), QString()) << fits << " on A4 with margins of 12 points";
    EXPECT_EQ(lost("east", {11.35, 7.93}), QString());
}

TEST_F(SheetsTest, WhatThisBuildCannotPrintIsSaidPlainly) {
    const QString left =
        QStringLiteral("The label sheets of this kit are not part of this build. Kit \"8\" has all of its sheets; its "
                       "labels are printed on white label paper.");
    for (const Sheet& sheet : Sheets()) {
        EXPECT_EQ(sheet.WhyLeftOut(Kit::Eight), QString()) << sheet.sName;
        for (const Kit kit : {Kit::Two, Kit::TwoA, Kit::Five}) {
            const bool labels = sheet.frame == Frame::Labels;
            EXPECT_EQ(sheet.WhyLeftOut(kit), labels ? left : QString()) << sheet.sName;
        }
    }
    EXPECT_EQ(FindButton(4)->WhyLeftOut(Kit::Eight), left) << "the labels of the deeds";
    EXPECT_EQ(FindButton(2)->WhyLeftOut(Kit::Two), QString()) << "the obsolete sheet is an empty page";
}

TEST_F(SheetsTest, ButtonsWithoutASheetPaintNothing) {
    for (const Sheet& sheet : ButtonsWithoutSheet()) {
        if (!sheet.paint) continue;
        PicturePrinter page(60);
        SheetJob job{page};
        EXPECT_TRUE(sheet.Print(job)) << sheet.iButton;
        EXPECT_EQ(page.Page().Image(), PicturePrinter(60).Page().Image()) << sheet.iButton;
    }
}

TEST_F(SheetsTest, ButtonsWithoutASheetNeedNoRoomOnAnyPaper) {
    ASSERT_EQ(ButtonsWithoutSheet().size(), 3U);
    for (const Sheet& sheet : ButtonsWithoutSheet()) {
        for (const Kit kit : kKits) {
            EXPECT_EQ(sheet.NeededInches(kit), QSizeF(0, 0)) << sheet.iButton;
            EXPECT_EQ(sheet.WhatIsLostOn({0.5, 0.5}, kit), QString()) << sheet.iButton;
        }
    }
}

TEST_F(SheetsTest, ATitleThatCouldNotBeMadeIsToldInABoxAndKept) {
    using TitlePictures::Title;
    const struct {
        Title title;
        const char* name;
    } rows[] = {{Title::kTitle, "The title"},
                {Title::kSubtitle, "The subtitle"},
                {Title::kSubtitleRed, "The subtitle"},
                {Title::kSubtitleLines, "The subtitle"}};
    for (const auto& row : rows) {
        PicturePrinter page(60);
        SheetJob job{page};
        desktop.boxes.clear();
        EXPECT_FALSE(LabelSheet::TellTitle(job, row.title, "Cannot create it"));
        EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("Cannot create it")});
        ASSERT_EQ(job.lacking.size(), 1);
        const QString lacking = QLatin1String(row.name) + QStringLiteral(" could not be made: ");
        EXPECT_TRUE(job.lacking[0].startsWith(lacking)) << job.lacking[0].toStdString();
    }
}

TEST_F(SheetsTest, ANameOrAnIndexThatNoSheetHasIsNotFound) {
    EXPECT_EQ(FindSheet(QStringLiteral("rulez")), nullptr);
    EXPECT_EQ(FindSheet(QString()), nullptr);
    EXPECT_EQ(FindButton(99), nullptr);
}
