// SPDX-License-Identifier: MIT
#include "windows/print/PrintPreview.h"
#include "support/Waiting.h"

#include "ConsoleFixture.h"

#include "pieces/MadePicture.h"
#include "windowing/PageView.h"

#include <QListWidget>

namespace {

class PrintPreviewTest : public ConsoleTest {
protected:
    PrintPreviewTest() {
        window.TellInPrint = [this](bool now) { pages.append(now); };
    }
    /// Opens the window, waits for all pages, does what a person does in it, and closes it.
    PrintPreview::Wish Show(
        const std::vector<WholeKit::Run>& runs, const std::function<void()>& act = [] {},
        PrintPreview::From from = PrintPreview::From::Console) {
        ModalSteps person;
        person.In("PrintPreview", [&](QWidget& shown) {
            EXPECT_TRUE(Comes([&] { return Drawn() == int(runs.size()); }));
            act();
            if (shown.isVisible()) Click(shown, "cmdClose");
        });
        return window.ShowForm(printer, runs, from);
    }
    std::vector<WholeKit::Run> Runs(const QStringList& names) {
        std::vector<WholeKit::Run> runs;
        for (const QString& name : names)
            runs.push_back({FindSheet(name), 1});
        return runs;
    }
    QListWidget& List() { return Find<QListWidget>(window, "lstPages"); }
    int Drawn() {
        int drawn = 0;
        for (int row = 0; row < List().count(); ++row)
            drawn += List().item(row)->icon().isNull() ? 0 : 1;
        return drawn;
    }
    PageView& View() { return Find<PageView>(window, "view"); }
    QString Label(const char* name) { return Find<QLabel>(window, name).text(); }

    PrintPreview window;
};

double InkOf(const QImage& image) {
    qint64 ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
    }
    return double(ink) / (image.width() * image.height());
}

} // namespace

TEST_F(PrintPreviewTest, ShowsEachSheetOfTheKitAndPrintsNone) {
    const std::vector<WholeKit::Run> kit = WholeKit::Runs(Kit::Eight, 6);
    EXPECT_EQ(Show(kit,
                   [&] {
                       ASSERT_EQ(List().count(), int(kit.size()));
                       EXPECT_EQ(List().item(0)->text(), QStringLiteral("Box Top & Token Stickers"));
                       EXPECT_EQ(List().item(7)->text(), QStringLiteral("$ 100 (5 sheets)"));
                       for (int row = 0; row < List().count(); ++row) {
                           List().setCurrentRow(row);
                           EXPECT_GT(InkOf(View().Image()), 0.1) << row;
                           EXPECT_EQ(window.InFront(), kit[size_t(row)].sheet);
                       }
                   }),
              PrintPreview::Wish::Nothing);
    EXPECT_TRUE(printer.ended.isEmpty());
    EXPECT_EQ(printer.killed, 0);
    EXPECT_TRUE(desktop.boxes.isEmpty());
    EXPECT_EQ(pages.count(true), pages.count(false));
}

TEST_F(PrintPreviewTest, ThePaperIsNamedWithWhoPrintsOnIt) {
    Show(Runs({QStringLiteral("good")}), [&] {
        EXPECT_EQ(Label("lblPaper"), QStringLiteral("US Letter paper. 'Laser' prints as far as the dashed line."));
        EXPECT_FALSE(List().isVisible()) << "one page needs no list";
    });
    printer.device.clear();
    Show(Runs({QStringLiteral("good")}), [&] {
        EXPECT_EQ(Label("lblPaper"), QStringLiteral("US Letter paper. The dashed line is the margin of the PDF page."));
    });
}

TEST_F(PrintPreviewTest, TheZoomIsChosenTypedAndShown) {
    Show(Runs({QStringLiteral("good")}), [&] {
        auto& zoom = Find<QComboBox>(window, "cboZoom");
        EXPECT_EQ(zoom.currentText(), QStringLiteral("Whole page"));
        zoom.setCurrentIndex(zoom.count() - 1);
        Q_EMIT zoom.activated(zoom.count() - 1);
        EXPECT_EQ(View().Zoom(), 4);
        Click(window, "cmdZoomIn");
        EXPECT_EQ(View().Zoom(), 4) << "no further";
        EXPECT_EQ(zoom.currentText(), QStringLiteral("400 %"));
        Click(window, "cmdZoomOut");
        EXPECT_DOUBLE_EQ(View().Zoom(), 3.2);
        EXPECT_EQ(zoom.currentIndex(), -1);
        EXPECT_EQ(zoom.placeholderText(), QStringLiteral("320 %"));
        Q_EMIT zoom.activated(0);
        EXPECT_TRUE(View().ShowsWholePage());
    });
}

TEST_F(PrintPreviewTest, PrintFromTheConsoleMeansTheSheetInFrontOrAll) {
    const auto runs = Runs({QStringLiteral("good"), QStringLiteral("bad")});
    const auto print = [&] {
        List().setCurrentRow(1);
        Click(window, "cmdPrintSheet");
    };
    EXPECT_EQ(Show(runs, print), PrintPreview::Wish::PrintSheet);
    EXPECT_EQ(window.InFront(), FindSheet(QStringLiteral("bad")));
    EXPECT_EQ(Show(runs, [&] { Click(window, "cmdPrintAll"); }), PrintPreview::Wish::PrintAll);
}

TEST_F(PrintPreviewTest, PrintFromPrintEverythingMeansWhatIsTicked) {
    EXPECT_EQ(Show(
                  Runs({QStringLiteral("good")}),
                  [&] {
                      EXPECT_FALSE(Find<QWidget>(window, "cmdPrintSheet").isVisible());
                      Click(window, "cmdPrintAll");
                  },
                  PrintPreview::From::Everything),
              PrintPreview::Wish::PrintAll);
}

TEST_F(PrintPreviewTest, ClosingEndsDrawingAheadOfTheNextPage) {
    bool acted = false;
    desktop.onPump = [&] {
        if (window.isVisible() && Drawn() == 1 && !std::exchange(acted, true)) window.close();
    };
    window.ShowForm(printer, WholeKit::Runs(Kit::Eight, 6), PrintPreview::From::Console);
    desktop.onPump = nullptr;
    EXPECT_TRUE(acted);
    EXPECT_LE(Drawn(), 2);
    EXPECT_EQ(pages.count(true), pages.count(false));
}

TEST_F(PrintPreviewTest, TheConsoleShowsTheSheetsOfItsFrameAndPrintsTheOneThatIsChosen) {
    Click(*console, "cmdNav_3");
    ModalSteps person;
    person.In("PrintPreview", [&](QWidget& shown) {
        auto& list = Find<QListWidget>(shown, "lstPages");
        EXPECT_EQ(list.count(), 2);
        EXPECT_TRUE(Comes([&] { return !list.item(1)->icon().isNull(); }));
        list.setCurrentRow(1);
        Click(shown, "cmdPrintSheet");
    });
    person.In("frmPrntPrep", [](QWidget& paper) { Click(paper, "cmd_2"); });
    Click(*console, "cmdPreview");
    EXPECT_EQ(printer.ended, QStringList{QStringLiteral("Ours - Bad News Cards")});
}

TEST_F(PrintPreviewTest, WhatIsNotWholeIsToldBesideItsPage) {
    const QString blocked = MadePicture::PathOf(QStringLiteral("TempNewsBMP1.temp"));
    QFile::remove(blocked);
    QDir().mkpath(blocked);
    Show(Runs({QStringLiteral("bad")}), [&] {
        EXPECT_EQ(List().item(0)->text(), QStringLiteral("Bad News Cards\nNot whole"));
        EXPECT_TRUE(List().item(0)->toolTip().startsWith(QStringLiteral("Bad News card 1 could not be made")));
    });
    QDir().rmdir(blocked);
}
