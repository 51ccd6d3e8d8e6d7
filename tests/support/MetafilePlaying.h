// SPDX-License-Identifier: MIT
#pragma once

#include "support/MetafileBuilder.h"
#include "support/TestFixture.h"

#include "platform/pictures/Metafile.h"

#include <QPainter>

/// Plays metafiles onto white pictures and asks for single pixels.
class MetafileTest : public TavloraTest {
protected:
    static QImage Played(const QByteArray& bytes, int width, int height, Qt::GlobalColor ground = Qt::white) {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(ground);
        QString error;
        const std::optional<Metafile> metafile = Metafile::FromBytes(bytes, error);
        EXPECT_TRUE(metafile) << error.toStdString();
        if (!metafile) return picture;
        QPainter painter(&picture);
        EXPECT_TRUE(metafile->Play(painter, QRectF(0, 0, width, height)));
        return picture;
    }

    /// The box of all pixels that are not white.
    static QRect Ink(const QImage& picture) {
        QRect ink;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (qGray(picture.pixel(x, y)) < 250) ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }
    /// How many pixels have exactly the colour.
    static int Count(const QImage& picture, QRgb color) {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += (picture.pixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF);
        }
        return count;
    }
    static QRgb At(const QImage& picture, int x, int y) { return picture.pixel(x, y) | 0xFF000000; }

    static constexpr QRgb kRed = 0xFFFF0000;
    static constexpr QRgb kGreen = 0xFF00FF00;
    static constexpr QRgb kBlue = 0xFF0000FF;
    static constexpr QRgb kBlack = 0xFF000000;
    static constexpr QRgb kWhite = 0xFFFFFFFF;
    static constexpr Color Red() { return Color::Rgb(255, 0, 0); }
    static constexpr Color Green() { return Color::Rgb(0, 255, 0); }
    static constexpr Color Blue() { return Color::Rgb(0, 0, 255); }
};
