// SPDX-License-Identifier: MIT
// The print console when the printer or the disk lets it down: what a person is told, and what can still be done.
#include "ConsoleFixture.h"

#include "drawing/basDraw.h"
#include "drawing/basDraw_state.h"
#include "windowing/SystemPrinter.h"

namespace {

constexpr int kBox = 0;
constexpr int kWest = 1;
constexpr int kEast = 3;
constexpr int kGoodNews = 5;
constexpr int kMoney100 = 7;
constexpr int kRules = 11;
constexpr int kDeeds1 = 12;

const QString kNotPrinted = QStringLiteral("This sheet could not be printed.\r\n\r\n");

const QString kGone = QStringLiteral("The printer 'Laser' doesn't answer. Please see that it is switched on and "
                                     "connected, then print again.\r\n\r\nClick 'OK' to print nevertheless.");

} // namespace

TEST_F(ConsoleTest, APrinterThatHasGoneIsAskedAboutBeforeTheSheetIsPainted) {
    printer.there = false;
    desktop.answers = {vbCancel, vbOK};
    Print(kRules);
    EXPECT_EQ(desktop.Texts(), QStringList{kGone});
    EXPECT_EQ(desktop.boxes[0].iStyle, vbOKCancel | vbExclamation);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_FALSE(Hourglass());
    Print(kRules);
    EXPECT_EQ(desktop.boxes.size(), 2) << "asked each time";
    EXPECT_EQ(printer.ended.size(), 1);
    printer.there = true;
    Print(kRules);
    EXPECT_EQ(desktop.boxes.size(), 2);
    EXPECT_EQ(printer.ended.size(), 2);
}

TEST_F(ConsoleTest, ADiskThatFillsUpAmidASheetIsNamedAndTheWindowsAreFreeAgain) {
    Files::SetFaultHook([](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
        if (operation != Files::Operation::Write || !sPath.endsWith(QStringLiteral("BmpOneFullSpace.bmp"))) return {};
        return QStringLiteral("No space left on device");
    });
    Print(kWest);
    Files::SetFaultHook({});
    ASSERT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(desktop.boxes[0].sText.contains(QStringLiteral("No space left on device")))
        << qPrintable(desktop.boxes[0].sText);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(pages, (QList<bool>{true, false}));
    EXPECT_EQ(Text("lblSheet"), QStringLiteral("Printing has stopped."));
    // The menus work on, and the window closes.
    Click(*console, "cmdNav_0");
    EXPECT_TRUE(Shows("fraPrint_0"));
    Click(*console, "cmdCancel");
    EXPECT_FALSE(console->isVisible());
}

// ---- A sheet that isn't whole.

TEST_F(ConsoleTest, ASheetThatIsNotWholeIsThrownAwayAndSaysWhichPieceFailedAndWhy) {
    {
        const Blocked blocked("TokenBMP2.bmp");
        Print(kBox);
    }
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(printer.killed, 1);
    const QString told = desktop.boxes.constLast().sText;
    EXPECT_TRUE(told.startsWith(kNotPrinted + QStringLiteral("Token 3 could not be made: "))) << qPrintable(told);
    EXPECT_TRUE(told.contains(QStringLiteral("TokenBMP2.bmp"))) << qPrintable(told);
    EXPECT_EQ(desktop.boxes.constLast().iStyle, vbExclamation);
    EXPECT_FALSE(Hourglass());
    Print(kBox);
    EXPECT_EQ(printer.ended.size(), 1) << "the next one is printed";
}

TEST_F(ConsoleTest, EachKindOfPieceThatFailsIsNamed) {
    basTAVL::g_oSpaces(5).SetText(QStringLiteral("Elm\r\nStreet"));
    basTAVL::g_oSpaces(13).SetText(QStringLiteral("Oak Lane"));
    basTAVL::g_oTokens(4).SetText(QStringLiteral("Car"));
    const struct {
        int sheet;
        const char* file;
        const char* told;
    } rows[] = {
        {kBox, "BmpTitle.temp", "The title could not be made: "},
        {kBox, "BmpSubtitleML.temp", "The subtitle could not be made: "},
        {kBox, "TokenBMP4.bmp", "The token 'Car' could not be made: "},
        {kWest, "BmpOneFullSpace.bmp", "The space 'Oak Lane' could not be made: "},
        {kWest, "CornerImage1.bmp", "Corner 2 could not be made: "},
        {kEast, "BmpTitle.temp", "The title could not be made: "},
        {kEast, "BmpSubtitle.temp", "The subtitle could not be made: "},
        {kDeeds1, "Side1Image.bmp", "The band of side 2 could not be made: "},
        {kDeeds1, "Rent5Image.bmp", "The deed of 'Elm Street' could not be made: "},
        {kDeeds1, "TempDeedBMP1.temp", "The deed of space 2 could not be made: "},
        {kGoodNews, "TempNewsBMP0.temp", "Good News card 1 could not be made: "},
        {kGoodNews + 1, "TempNewsBMP1.temp", "Bad News card 1 could not be made: "},
    };
    for (const auto& row : rows) {
        desktop.boxes.clear();
        const Blocked blocked(row.file);
        Print(row.sheet);
        ASSERT_FALSE(desktop.boxes.isEmpty()) << row.file;
        const QString told = desktop.boxes.constLast().sText;
        EXPECT_TRUE(told.startsWith(kNotPrinted)) << qPrintable(told);
        EXPECT_TRUE(told.contains(QString::fromLatin1(row.told))) << row.file << ": " << qPrintable(told);
        EXPECT_TRUE(told.contains(QString::fromLatin1(row.file))) << qPrintable(told);
        EXPECT_TRUE(printer.ended.isEmpty()) << row.file;
    }
}

TEST_F(ConsoleTest, OfManyPiecesThatFailOnlyTheFirstAreNamed) {
    const Blocked blocked("BmpOneFullSpace.bmp");
    Print(kWest);
    const QString told = desktop.boxes.constLast().sText;
    EXPECT_EQ(told.count(QStringLiteral("could not be made")), 3) << qPrintable(told);
    EXPECT_TRUE(told.endsWith(QStringLiteral("\r\nand 9 more."))) << qPrintable(told);
}

TEST_F(ConsoleTest, ALineOfTheRulesThatCannotBeReadIsNamedByItsNumber) {
    const QString file = WriteFile(QStringLiteral("program/GamePlay.dat"), "<Head>\r\n\r\nno layout at all\r\n");
    Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
    Print(kRules);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(desktop.boxes.constLast().sText,
              kNotPrinted + QStringLiteral("The rules could not be made: Line 3 of the file named '%1' is in no form "
                                           "that rules have: no layout at all")
                                .arg(file));
}

TEST_F(ConsoleTest, APdfOfBeforeStaysWhenItsSheetFails) {
    SystemPrinter system(PathOf(QStringLiteral("Printed")));
    Printer* const before = Printer::Install(&system);
    const QString pdf = PathOf(QStringLiteral("Printed/Ours - Box Top & Token Stickers.pdf"));
    {
        ModalSteps person;
        person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
        person.In("PdfReady", [](QWidget& window) { Click(window, "cmdClose"); });
        ClickSheet(kBox);
    }
    const QByteArray good = ReadFile(pdf);
    EXPECT_TRUE(good.startsWith("%PDF-"));
    const Blocked blocked("BmpTitle.temp");
    Print(kBox);
    EXPECT_TRUE(ReadFile(pdf) == good);
    EXPECT_EQ(QDir(PathOf(QStringLiteral("Printed"))).entryList(QDir::Files | QDir::Hidden).size(), 1);
    Printer::Install(before);
}

// ---- Another printer, and another try.

TEST_F(ConsoleTest, QuestionsRefusalsAndFilesDoNotKeepAnybodyFromChangingThePrinter) {
    int dialogs = 0;
    desktop.onDialog = [&](CommonDialog&) {
        ++dialogs;
        return true;
    };
    printer.printable = QSizeF(6, 9);
    desktop.answers = {vbCancel};
    Print(kRules);
    printer.printable = {};
    printer.there = false;
    desktop.answers = {vbCancel};
    Print(kRules);
    printer.there = true;
    printer.device.clear();
    Print(kRules);
    EXPECT_EQ(printer.ended.size(), 1) << "into a file";
    Open("2");
    ClickSheet(kWest);
    Click(*console, "cmdChangePrinter");
    EXPECT_EQ(dialogs, 1);
}

TEST_F(ConsoleTest, APageThatThePrinterDidNotTakeKeepsNobodyFromChangingIt) {
    int dialogs = 0;
    desktop.onDialog = [&](CommonDialog&) { return ++dialogs > 0; };
    printer.error = QStringLiteral("The printer 'Laser' can't be opened");
    Print(kRules);
    Click(*console, "cmdChangePrinter");
    EXPECT_EQ(dialogs, 1);
}

TEST_F(ConsoleTest, AfterAFailureNothingPrintsUntilTryAgainWhichBeginsWithThatSheet) {
    desktop.onPump = [this] {
        if (console->Progress() > 500) ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory"));
    };
    Print(kGoodNews);
    desktop.onPump = nullptr;
    EXPECT_TRUE(Shows("cmdTryAgain"));
    EXPECT_EQ(Button("cmdTryAgain").text().remove(u'&'), QStringLiteral("Try Again"));
    EXPECT_EQ(Text("lblSheet"), QStringLiteral("Printing has stopped."));
    EXPECT_EQ(Text("lblPiece"), QStringLiteral("It got as far as: Card 8 of 12"));
    EXPECT_TRUE(Hourglass());
    for (const Sheet& sheet : Sheets())
        EXPECT_FALSE(Button(qPrintable(QStringLiteral("cmdPrint_%1").arg(sheet.iButton))).isEnabled());
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) {
        EXPECT_TRUE(Find<QLabel>(window, "lblMain").text().contains(QStringLiteral("colored card stock")));
        Click(window, "cmd_2");
    });
    Click(*console, "cmdTryAgain");
    EXPECT_EQ(printer.ended, QStringList{QStringLiteral("Ours - Good News Cards")});
    EXPECT_FALSE(Hourglass());
    EXPECT_FALSE(Shows("fraProgress"));
    for (const int sheet : {kMoney100, kBox}) {
        printer.ended.clear();
        Print(sheet);
        EXPECT_EQ(printer.ended.size(), 1) << sheet;
    }
    EXPECT_FALSE(Shows("cmdTryAgain"));
}

TEST_F(ConsoleTest, WhoeverTriesAgainMayLeaveItAtThePaper) {
    desktop.onPump = [] { ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory")); };
    Print(kGoodNews);
    desktop.onPump = nullptr;
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_0"); });
    Click(*console, "cmdTryAgain");
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_FALSE(Hourglass());
    Print(kRules);
    EXPECT_EQ(printer.ended.size(), 1);
}

TEST_F(ConsoleTest, APageAfterAFailureIsPaintedAsIfNothingHadFailed) {
    Print(kBox);
    const QImage good = printer.Page().Image().copy();
    bool selected = false;
    desktop.onPump = [&] {
        if (std::exchange(selected, true)) return;
        basDraw::Draw_SetHdc(&printer.hDC());
        basDraw::Draw_SetBrush(Color::Rgb(0xFF, 0, 0xFF));
        basDraw::Draw_SetFont(QStringLiteral("Times New Roman"), 90, 0, 0, 0, true, true, false);
        ErrRaise(ErrNumber::kOutOfMemory, QStringLiteral("Out of memory"));
    };
    Print(kBox);
    desktop.onPump = nullptr;
    ASSERT_TRUE(selected);
    ModalSteps person;
    person.In("frmPrntPrep", [](QWidget& window) { Click(window, "cmd_2"); });
    Click(*console, "cmdTryAgain");
    EXPECT_EQ(printer.Page().Image(), good);
    EXPECT_FALSE(basDraw::Module().m_hOldFont.has_value());
}

TEST_F(ConsoleTest, TryAgainIsNoneOfTheButtonsUntilSomethingFails) {
    Print(kRules);
    EXPECT_FALSE(Shows("cmdTryAgain"));
    EXPECT_GE(Control("fraProgress").height(), Control("cmdTryAgain").sizeHint().height()) << "it has its room";
}

// The bar goes while the page is still under way: the events that run then start nothing either.
TEST_F(ConsoleTest, AClickThatComesAsTheBarGoesIsIgnoredAsAnyOtherDuringAJob) {
    for (const char* const lacking : {"", "TempNewsBMP0.temp"}) {
        std::optional<Blocked> blocked;
        if (*lacking) blocked.emplace(lacking);
        printer.ended.clear();
        int goings = 0;
        desktop.onPump = [&] {
            goings += Shows("fraProgress") ? 0 : 1;
            Press(kGoodNews);
        };
        Print(kGoodNews);
        desktop.onPump = nullptr;
        EXPECT_EQ(goings, 1) << lacking;
        EXPECT_EQ(printer.ended.size(), *lacking ? 0 : 1);
    }
}
