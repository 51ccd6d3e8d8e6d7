// SPDX-License-Identifier: MIT
#pragma once

#include "support/BoardFixture.h"
#include "support/ToldText.h"

/// The board painted on a page, and what stands there. All texts, fonts, colours and pictures of its game differ, so
/// that nothing can stand in for anything else. Expectations come from the numbers told for the board and from
/// nothing that the program computes.
class BoardPageTest : public BoardTest {
protected:
    static constexpr int kScale = 4800;
    static constexpr int kPerSide = 7;
    static constexpr double kPitch = 0.0852;

    struct View {
        int scale = kScale;
        int offsetX = 0;
        int offsetY = 0;
        bool onScreen = true;
        int width = kScale;
    };

    BoardPageTest();

    /// As told: the nearest whole number, halves to the even one; and the next lower.
    static int Nearest(double value);
    static int Lower(double value);

    /// The font of a space or corner of the game.
    static const KnownFace& FaceOf(int number);
    static QString LineOf(int iSpace, int iLine);
    static int LinesOf(int iSpace) { return 1 + iSpace % 3; }
    static QColor BandColor(int iSpace) { return {200 - 5 * iSpace, 20 + 3 * iSpace, 7 * iSpace}; }
    static QColor CostColor(int iSpace) { return {3 * iSpace, 250 - 5 * iSpace, 100 + iSpace}; }
    /// Spaces by their number, behind them the corners.
    static QColor PictureColor(int number) { return {40 + 6 * number, 130 + 2 * number, 250 - 7 * number}; }
    /// Of the picture that the kit has for a corner, three quarters as wide as it is high.
    static constexpr QColor kFateColor = QColor(12, 34, 156);
    static constexpr bool HasPicture(int iSpace) { return iSpace % 3 == 0; }

    /// Sets texts, fonts, colours and pictures.
    void MakeGame();
    /// Path of a picture of one colour.
    QString PictureOf(QColor color, const QString& sName, QSize size = {40, 40}) const;

    /// Paints the board as it is, without setting it up again.
    QList<PageMark> Paint(const View& view);
    QList<PageMark> Paint() { return Paint(View()); }

    static QList<PageMark> Only(const QList<PageMark>& marks, PageMark::Kind kind);
    static QList<PageMark> OfColor(const QList<PageMark>& marks, QColor color);
    static QStringList TextsOf(const QList<PageMark>& marks);
    static void ExpectBox(const QRectF& found, double left, double top, double right, double bottom, const char* what,
                          int number = 0);

    /// Middle of a space along its side, as a fraction.
    static double Along(int iSpace);
};
