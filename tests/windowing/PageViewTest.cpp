// SPDX-License-Identifier: MIT
#include "windowing/PageView.h"

#include "support/TestFixture.h"

#include <QIcon>
#include <QScrollBar>
#include <QtTest/QTest>
#include <QWheelEvent>

#include <memory>

namespace {

/// A page with a red square an inch from where printing begins, and a thin black line across.
class PageViewTest : public TavloraTest {
protected:
    PageViewTest() {
        PdfPrinter paper({}, {});
        PreviewPrinter printer(paper);
        printer.hDC().FillRect(600, 600, 1200, 1200, Color::Rgb(255, 0, 0));
        printer.hDC().FillRect(0, 3000, 4800, 3006, Color::Black());
        printer.EndDoc();
        view.resize(500, 600);
        view.show();
        view.ShowPage(printer.Page());
    }
    QRect BoxOf(QRgb color) {
        const QImage& image = view.Image();
        QRect box;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == color) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }
    // Edges are smoothed to a hair's width less or more, which nobody sees.
    static bool Differ(QRgb one, QRgb other) {
        constexpr int kSeen = 32;
        return std::abs(qRed(one) - qRed(other)) > kSeen || std::abs(qGreen(one) - qGreen(other)) > kSeen ||
               std::abs(qBlue(one) - qBlue(other)) > kSeen;
    }
    double PixelsPerInch() const { return view.Zoom() * view.logicalDpiX(); }

    static constexpr QRgb kRed = qRgb(255, 0, 0);
    PageView view;
};

} // namespace

TEST_F(PageViewTest, TheWholePageIsShownInItsProportions) {
    EXPECT_TRUE(view.ShowsWholePage());
    EXPECT_LE(11 * PixelsPerInch(), view.viewport()->height());
    EXPECT_NEAR(BoxOf(kRed).width(), PixelsPerInch(), 2);
    EXPECT_NEAR(BoxOf(kRed).height(), BoxOf(kRed).width(), 1);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
}

TEST_F(PageViewTest, AZoomIsKeptWithinItsBoundsAndMeasuresWhatItSays) {
    view.SetZoom(1);
    view.horizontalScrollBar()->setValue(0);
    view.verticalScrollBar()->setValue(0);
    EXPECT_NEAR(BoxOf(kRed).width(), view.logicalDpiX(), 1);
    view.SetZoom(9);
    EXPECT_EQ(view.Zoom(), 4);
    view.horizontalScrollBar()->setValue(300);
    view.verticalScrollBar()->setValue(300);
    const QRect box = BoxOf(kRed);
    const double inch = 4.0 * view.logicalDpiX();
    EXPECT_NEAR(box.left(), 16 + 1.25 * inch - 300, 1) << "margin, an inch, and the room round the page";
    EXPECT_EQ(box.right(), view.Image().width() - 1) << "the rest of it lies outside";
    view.SetZoom(0);
    EXPECT_EQ(view.Zoom(), PageView::kLeastZoom);
}

TEST_F(PageViewTest, WhatIsDrawnWhileScrollingIsWhatADrawingAnewShows) {
    view.SetZoom(2.5);
    view.Image();
    for (const int step : {7, 40, -13, 300, -90}) {
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() + step);
        view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() - step / 2);
        const QImage scrolled = view.Image();
        const QPoint at(view.horizontalScrollBar()->value(), view.verticalScrollBar()->value());
        // Draws all of it anew.
        view.SetZoom(view.Zoom());
        view.Image();
        view.horizontalScrollBar()->setValue(at.x());
        view.verticalScrollBar()->setValue(at.y());
        const QImage& anew = view.Image();
        QRect differ;
        for (int y = 0; y < anew.height(); ++y) {
            for (int x = 0; x < anew.width(); ++x) {
                if (Differ(scrolled.pixel(x, y), anew.pixel(x, y))) differ |= QRect(x, y, 1, 1);
            }
        }
        EXPECT_TRUE(differ.isEmpty()) << step << ": " << differ.x() << ' ' << differ.y() << ' ' << differ.width() << ' '
                                      << differ.height();
    }
}

TEST_F(PageViewTest, TheMiddleOfTheViewStaysWhereItWasWhenTheZoomChanges) {
    view.SetZoom(1);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    const auto middle = [this] {
        return (view.verticalScrollBar()->value() + view.viewport()->height() / 2.0 - 16) / PixelsPerInch();
    };
    const double before = middle();
    view.SetZoom(3);
    EXPECT_NEAR(middle(), before, 0.15);
}

TEST_F(PageViewTest, CtrlAndTheWheelZoom) {
    view.SetZoom(1);
    int told = 0;
    QObject::connect(&view, &PageView::ZoomChanged, &view, [&] { ++told; });
    const QPoint at = view.viewport()->rect().center();
    QWheelEvent wheel(at, view.viewport()->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    EXPECT_DOUBLE_EQ(view.Zoom(), 1.25);
    EXPECT_EQ(told, 1);
}

TEST_F(PageViewTest, TheMouseDragsThePage) {
    view.SetZoom(4);
    const int before = view.verticalScrollBar()->value();
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(200, 200));
    QMouseEvent move(QEvent::MouseMove, QPointF(200, 170), view.viewport()->mapToGlobal(QPointF(200, 170)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint(200, 170));
    EXPECT_EQ(view.verticalScrollBar()->value(), before + 30);
}
