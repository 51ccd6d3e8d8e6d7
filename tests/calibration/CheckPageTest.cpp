// SPDX-License-Identifier: MIT
#include "calibration/CheckPage.h"

#include "kit/Sheets.h"
#include "support/SheetFixture.h"
#include "support/WornPrinter.h"

#include <QLineF>
#include <QSet>

namespace {

constexpr double kMillimetresPerInch = 25.4;

/// A line of a scale and what stands at its end.
struct NamedLine {
    QLineF line;
    QString sName;
};

/// Where two lines go straight on in each other.
struct Meeting {
    QString sNames;
    double apart = 1e9;
};

bool IsNameOfLine(const PageMark& text) { return text.sText.size() <= 2 && !text.sText.contains(u'.'); }

QString NameBeside(const QPointF& end, const QList<PageMark>& marks) {
    constexpr double kFarthest = 3;
    double nearest = kFarthest;
    QString name;
    for (const PageMark& mark : marks) {
        if (mark.kind != PageMark::Kind::Text || !IsNameOfLine(mark)) continue;
        const double away = QLineF(end, mark.Box().center()).length();
        if (away >= nearest) continue;
        nearest = away;
        name = mark.sText;
    }
    return name;
}

// Those of a print that run along the given way and have a name at one end, within a part of the sheet.
QList<NamedLine> ScaleOf(const QList<PageMark>& print, bool bUpright, const QRectF& within) {
    constexpr double kShortest = 30;
    QList<NamedLine> scale;
    for (const PageMark& mark : print) {
        if (mark.kind != PageMark::Kind::Line || mark.points.size() != 2) continue;
        const QLineF line(mark.points[0], mark.points[1]);
        const bool upright = std::abs(line.dy()) > std::abs(line.dx());
        if (line.length() < kShortest || line.length() > 2 * kShortest || upright != bUpright) continue;
        if (!within.contains(line.center())) continue;
        const QString first = NameBeside(line.p1(), print);
        scale.append({line, first.isEmpty() ? NameBeside(line.p2(), print) : first});
    }
    return scale;
}

// How far two nearly parallel lines lie apart where both are; far where they nowhere lie side by side.
double Apart(const QLineF& a, const QLineF& b, bool bUpright) {
    const auto along = [bUpright](QPointF p) { return bUpright ? p.y() : p.x(); };
    const auto across = [bUpright](QPointF p) { return bUpright ? p.x() : p.y(); };
    const double from = std::max(std::min(along(a.p1()), along(a.p2())), std::min(along(b.p1()), along(b.p2())));
    const double to = std::min(std::max(along(a.p1()), along(a.p2())), std::max(along(b.p1()), along(b.p2())));
    constexpr double kSeen = 0.8;
    if (to - from < kSeen) return 1e9;
    const auto at = [&](const QLineF& line) {
        const double t = ((from + to) / 2 - along(line.p1())) / (along(line.p2()) - along(line.p1()));
        return across(line.pointAt(t));
    };
    return std::abs(at(a) - at(b));
}

Meeting BestOf(const QList<NamedLine>& numbers, const QList<NamedLine>& letters, bool bUpright) {
    Meeting best;
    for (const NamedLine& number : numbers) {
        for (const NamedLine& letter : letters) {
            const double apart = Apart(number.line, letter.line, bUpright);
            if (apart < best.apart) best = {number.sName + u' ' + letter.sName, apart};
        }
    }
    return best;
}

} // namespace

/// A person with a printer that isn't what it should be, who sees well.
class CheckPageTest : public SheetTest {
protected:
    CheckPageTest() {
        Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
        UseKit(QStringLiteral("tavlora"));
        basPosit::SetSpecialText(1, QStringLiteral("Our Town"));
    }

    QSizeF PaperMm(bool bLengthwise = false) const {
        const QSizeF mm = QPageSize(paper).size(QPageSize::Millimeter);
        const QSizeF exact = paper == QPageSize::Letter ? QSizeF(8.5, 11) * kMillimetresPerInch : mm;
        return bLengthwise ? exact.transposed() : exact;
    }

    template <typename Painting>
    QString PrintFile(const char* sName, const PageCorrection& undone, const Painting& paint) {
        const QString path = PathOf(QString::fromLatin1(sName));
        PdfPrinter printer(path, QStringLiteral("check"), paper);
        printer.Correct([undone](const PaperOfPage&) { return undone; });
        paint(printer);
        printer.EndDoc();
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
        return path;
    }

    // Prints the page twice, the sheet turned round in between, and reads it.
    CheckPage::Reading Read(const WornPrinter& worn, const PageCorrection& undone) {
        const QString path = PrintFile("check.pdf", undone, [](Printer& printer) { CheckPage::Paint(printer, {}); });
        first = worn.Print(path, 1, PaperMm());
        second = worn.Print(path, 1, PaperMm(), true);
        return {.sSideways = MeetingOn(true, QRectF(-100, -115, 200, 65)).sNames,
                .sUpAndDown = MeetingOn(false, QRectF(-100, -60, 80, 120)).sNames,
                .sAcross = QString::number(RulerMm(false), 'f', 1),
                .sDown = QString::number(RulerMm(true), 'f', 1)};
    }
    Meeting MeetingOn(bool bUpright, const QRectF& within) const {
        const QList<NamedLine> numbers = ScaleOf(first, bUpright, within);
        const QList<NamedLine> letters = ScaleOf(second, bUpright, within);
        EXPECT_EQ(numbers.size(), 36);
        EXPECT_EQ(letters.size(), 24);
        const Meeting best = BestOf(numbers, letters, bUpright);
        EXPECT_LT(best.apart, 0.08) << "nothing meets";
        return best;
    }
    double RulerMm(bool bUpright) const {
        double longest = 0;
        for (const PageMark& mark : first) {
            if (mark.kind != PageMark::Kind::Line || mark.points.size() != 2) continue;
            const QLineF line(mark.points[0], mark.points[1]);
            if ((std::abs(line.dy()) > std::abs(line.dx())) == bUpright) longest = std::max(longest, line.length());
        }
        return longest;
    }
    PageCorrection Understood(const CheckPage::Reading& reading) const {
        QStringList why;
        const auto found = CheckPage::Understand(reading, {200, 200}, why);
        EXPECT_TRUE(found) << qPrintable(why.join(u'\n')) << qPrintable(reading.sSideways);
        return found.value_or(PageCorrection());
    }

    // How far anything on a sheet of the kit comes out from where a good printer would have put it.
    double FarthestOff(const char* sSheet, const WornPrinter& worn, const PageCorrection& undone) {
        const Sheet& sheet = *FindSheet(QString::fromLatin1(sSheet));
        const auto paint = [&](Printer& printer) {
            sheet.LayOn(printer, Kit::Eight);
            // The reader knows no pages with names.
            printer.SetPageName({});
            SheetJob job{printer};
            EXPECT_TRUE(sheet.Print(job));
        };
        const bool lengthwise = sheet.OrientationOf(Kit::Eight) == PageOrientation::Landscape;
        const auto wanted = WornPrinter::PrintWell(PrintFile("well.pdf", {}, paint), 1, PaperMm(lengthwise));
        const auto found =
            worn.Print(PrintFile("undone.pdf", undone, paint), 1, PaperMm(lengthwise && undone.IsNothing()));
        EXPECT_GT(found.size(), 20);
        if (wanted.size() != found.size()) return 1e9;
        double farthest = 0;
        for (qsizetype i = 0; i < found.size(); ++i) {
            for (qsizetype point = 0; point < found[i].points.size(); ++point)
                farthest = std::max(farthest, QLineF(found[i].points[point], wanted[i].points[point]).length());
        }
        return farthest;
    }

    QPageSize::PageSizeId paper = QPageSize::Letter;
    QList<PageMark> first;
    QList<PageMark> second;
};

// Nor do those of the second print: the sheet is turned by half, and both prints stay readable.
TEST_F(CheckPageTest, NoLineTouchesWords) {
    constexpr double kClear = 0.5;
    constexpr qsizetype kNameOfALine = 3; // letters, close to the line that it names
    for (const auto each : {QPageSize::Letter, QPageSize::A4}) {
        paper = each;
        Read({}, {});
        int words = 0;
        for (const PageMark& text : first) {
            if (text.kind != PageMark::Kind::Text) continue;
            ++words;
            const double room = text.sText.size() <= kNameOfALine ? 0 : kClear;
            const QRectF clear = text.Box().adjusted(-room, -room, room, room);
            for (const PageMark& line : first + second) {
                if (line.kind == PageMark::Kind::Text) continue;
                const QRectF drawn = line.Box().adjusted(-0.05, -0.05, 0.05, 0.05);
                EXPECT_FALSE(clear.intersects(drawn)) << qPrintable(text.sText);
            }
        }
        EXPECT_GT(words, 60);
    }
}

TEST_F(CheckPageTest, AGoodPrinterReadsZero) {
    for (const auto each : {QPageSize::Letter, QPageSize::A4}) {
        paper = each;
        const CheckPage::Reading reading = Read({}, {});
        EXPECT_EQ(reading.sSideways, QStringLiteral("0 N"));
        EXPECT_EQ(reading.sUpAndDown, QStringLiteral("0 N"));
        EXPECT_EQ(reading.sAcross, QStringLiteral("200.0"));
        EXPECT_EQ(reading.sDown, QStringLiteral("200.0"));
    }
}

TEST_F(CheckPageTest, EveryShiftUpToEightMillimetresIsReadToATenthOfItsDouble) {
    for (double right = -8; right <= 8.01; right += 0.8) {
        const double down = -0.7 * right + 0.33;
        const CheckPage::Reading reading = Read({.dblRight = right, .dblDown = down}, {});
        QString why;
        EXPECT_NEAR(CheckPage::ShiftMm(reading.sSideways, why).value_or(99), right, 0.055) << right;
        EXPECT_NEAR(CheckPage::ShiftMm(reading.sUpAndDown, why).value_or(99), down, 0.055) << down;
    }
}

TEST_F(CheckPageTest, OneCorrectionBringsEverythingOnASheetWithinATenthOfAMillimetre) {
    constexpr WornPrinter kWorn{.dblRight = 1.37, .dblDown = -2.61, .dblAcross = 1.0035, .dblAlong = 0.9955};
    for (const auto each : {QPageSize::Letter, QPageSize::A4}) {
        paper = each;
        const PageCorrection undone = Understood(Read(kWorn, {}));
        for (const char* sheet : {"box", "deeds1", "rules"}) {
            EXPECT_GT(FarthestOff(sheet, kWorn, {}), 2) << sheet;
            EXPECT_LT(FarthestOff(sheet, kWorn, undone), 0.1) << sheet;
        }
        const CheckPage::Reading again = Read(kWorn, undone);
        EXPECT_EQ(again.sSideways, QStringLiteral("0 N"));
        EXPECT_EQ(again.sUpAndDown, QStringLiteral("0 N"));
        EXPECT_EQ(again.sAcross, QStringLiteral("200.0"));
        EXPECT_EQ(again.sDown, QStringLiteral("200.0"));
    }
}

// Nothing undoes a sheet that is drawn in askew, but it neither spoils what is read of place and size.
TEST_F(CheckPageTest, ASlantDoesNotSpoilPlaceAndSize) {
    constexpr WornPrinter kWorn{
        .dblRight = -3.2, .dblDown = 2.05, .dblAcross = 0.997, .dblAlong = 1.002, .dblSlantDegrees = 0.4};
    const PageCorrection undone = Understood(Read(kWorn, {}));
    EXPECT_NEAR(undone.dblRightMm, kWorn.dblRight, 0.06);
    EXPECT_NEAR(undone.dblDownMm, kWorn.dblDown, 0.06);
    EXPECT_NEAR(undone.dblAcross, kWorn.dblAcross, 0.0003);
    EXPECT_NEAR(undone.dblDown, kWorn.dblAlong, 0.0003);
    const CheckPage::Reading again = Read(kWorn, undone);
    EXPECT_EQ(again.sSideways + again.sUpAndDown, QStringLiteral("0 N0 N"));
    // What is left is the slant alone.
    WornPrinter straight = kWorn;
    straight.dblSlantDegrees = 0;
    EXPECT_LT(FarthestOff("box", straight, undone), 0.1);
}

TEST_F(CheckPageTest, WhatIsLeftIsUndoneBesidesWhatWas) {
    constexpr WornPrinter kWorn{.dblRight = 4, .dblDown = 1, .dblAcross = 1.01, .dblAlong = 0.99};
    constexpr PageCorrection kRoughly{.dblRightMm = 3, .dblDownMm = 2, .dblAcross = 1.005, .dblDown = 1};
    const PageCorrection undone = kRoughly.Then(Understood(Read(kWorn, kRoughly)));
    EXPECT_LT(FarthestOff("deeds1", kWorn, undone), 0.1);
}

TEST_F(CheckPageTest, NoTwoLinesAreNamedAlikeAndNoPairSaysWhatAnotherDoes) {
    QSet<QString> names;
    for (int line = CheckPage::kFirstNumber; line <= CheckPage::kLastNumber; ++line)
        names.insert(CheckPage::NumberOf(line));
    for (int line = CheckPage::kFirstLetter; line <= CheckPage::kLastLetter; ++line)
        names.insert(CheckPage::LetterOf(line));
    EXPECT_EQ(names.size(), 36 + 24);
    EXPECT_FALSE(names.contains(QStringLiteral("I")) || names.contains(QStringLiteral("O")));
    QSet<int> shifts;
    int pairs = 0;
    for (int number = CheckPage::kFirstNumber; number <= CheckPage::kLastNumber; ++number) {
        for (int letter = CheckPage::kFirstLetter; letter <= CheckPage::kLastLetter; ++letter) {
            QString why;
            const QString typed = CheckPage::NumberOf(number) + CheckPage::LetterOf(letter);
            const std::optional<double> shift = CheckPage::ShiftMm(typed, why);
            EXPECT_NE(shift.has_value(), why.contains(QStringLiteral("more than 8 mm"))) << qPrintable(typed);
            if (!shift) continue;
            shifts.insert(qRound(*shift * 20));
            ++pairs;
        }
    }
    EXPECT_EQ(shifts.size(), pairs);
    // Each tenth of twice 8 mm either way.
    EXPECT_EQ(pairs, 321);
}

TEST_F(CheckPageTest, LinesAreTakenInAnyOrderAndCase) {
    QString why;
    const double shift = CheckPage::ShiftMm(QStringLiteral("2 P"), why).value_or(99);
    EXPECT_NEAR(shift, (2.3 - 2 * 2.4) / 2, 1e-9);
    for (const char* typed : {"2P", " p 2 ", "2-p", "P2", "2, p"})
        EXPECT_EQ(CheckPage::ShiftMm(QLatin1String(typed), why), shift) << typed;
}

TEST_F(CheckPageTest, WhatCannotBeReadIsToldWithWhatWouldBeRight) {
    const auto why = [](const char* typed) {
        QString text;
        EXPECT_FALSE(CheckPage::ShiftMm(QLatin1String(typed), text)) << typed;
        return text;
    };
    for (const char* typed : {"", "12", "K", "K K", "1.2 mm", "-3K", "12345 K"})
        EXPECT_TRUE(why(typed).contains(QStringLiteral("such as 12 K"))) << typed;
    EXPECT_EQ(why("19 K"), QStringLiteral("There is no line 19: the numbers are 0 to 17 and 21 to 38."));
    EXPECT_TRUE(why("39 K").startsWith(QStringLiteral("There is no line 39")));
    EXPECT_TRUE(why("3 O").startsWith(QStringLiteral("There is no line O")));
    EXPECT_TRUE(why("17 A").contains(QStringLiteral("more than 8 mm")));
}

TEST_F(CheckPageTest, LengthsAreTakenInMillimetresNearThatOfTheLine) {
    QString why;
    EXPECT_NEAR(CheckPage::Stretch(QStringLiteral("199,5 mm"), 200, why).value_or(0), 0.9975, 1e-9);
    EXPECT_NEAR(CheckPage::Stretch(QStringLiteral("180.9"), 180, why).value_or(0), 1.005, 1e-9);
    EXPECT_TRUE(CheckPage::Stretch(QStringLiteral("190"), 200, why) &&
                CheckPage::Stretch(QStringLiteral("210"), 200, why));
    for (const char* typed : {"", "long", "20 cm"}) {
        EXPECT_FALSE(CheckPage::Stretch(QLatin1String(typed), 200, why)) << typed;
        EXPECT_TRUE(why.contains(QStringLiteral("such as 199.5"))) << qPrintable(why);
    }
    for (const char* typed : {"189.9", "210.1", "20", "-200", "7.87"}) {
        EXPECT_FALSE(CheckPage::Stretch(QLatin1String(typed), 200, why)) << typed;
        EXPECT_TRUE(why.contains(QStringLiteral("actual size"))) << qPrintable(why);
    }
}

TEST_F(CheckPageTest, EachFaultIsToldUnderWhatItStandsBeside) {
    QStringList why;
    EXPECT_FALSE(CheckPage::Understand({QStringLiteral("x"), QStringLiteral("0 N"), QStringLiteral("200"), {}},
                                       {200, 200}, why));
    ASSERT_EQ(why.size(), 2);
    EXPECT_TRUE(why[0].startsWith(QStringLiteral("Sideways: ")));
    EXPECT_TRUE(why[1].startsWith(QStringLiteral("Line down: ")));
}

TEST_F(CheckPageTest, TheLineAcrossIsShorterWherePaperLeavesNoRoom) {
    const auto rulers = [](double margin) {
        return CheckPage::RulersMm(PaperOfPage::Of({8.5, 11}, QMarginsF(margin, margin, margin, margin), {}));
    };
    EXPECT_EQ(rulers(0.25), QSizeF(200, 200));
    EXPECT_EQ(rulers(0.5), QSizeF(180, 200));
}
