// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "platform/paint/DeviceContext.h"
#include "platform/paint/Units.h"

#include <QImage>
#include <QString>

class Picture;
class Recording;
struct LaidDrawing;

enum class ScaleModeKind { Twips = 1, Pixels = 3 };
enum class LineForm { Line, Box, FilledBox };

/// What drawing code sets before it draws, and what stays so until other code sets it anew.
class DrawingSettings {
public:
    QString FontName = QStringLiteral("Arial");
    bool FontBold = false;
    bool FontItalic = false;
    Color ForeColor = Color::Black();
    int DrawWidth = 1;
    /// 0 solid, 1 dash, 2 dot, 5 nothing.
    int DrawStyle = 0;
    bool FontTransparent = true;
    ScaleModeKind ScaleMode = ScaleModeKind::Pixels;
    double CurrentX = 0;
    double CurrentY = 0;

    double FontSize() const { return m_fontSize; }
    Color BackColor() const { return m_backColor; }

protected:
    double m_fontSize = 8.25;
    Color m_backColor = Color::White();
};

/// A drawing object: a window's picture box, the printer's page, a hidden form. It keeps its own font,
/// colours and position, so that one routine draws on all of them. Coordinates are in its ScaleMode.
class Surface : public DrawingSettings {
public:
    virtual ~Surface() = default;

    /// Points at the surface's own dots an inch. Anything not above 0 raises the platform's complaint by
    /// leaving the size as it was and giving false.
    bool SetFontSize(double points);

    /// Clears the surface to the colour.
    void SetBackColor(Color color);

    virtual double DotsPerInch() const = 0;
    virtual bool IsPrinter() const { return false; }
    double TwipsPerPixelX() const { return kTwipsPerInch / DotsPerInch(); }
    virtual DeviceContext& hDC() = 0;
    /// Size in pixels.
    virtual QSize SizeInPixels() const = 0;

    double TextWidth(const QString& sText);
    double TextHeight(const QString& sText);
    /// Writes with the top left at CurrentX, CurrentY, then moves to the start of the next line.
    void Print(const QString& sText);
    void Line(double x1, double y1, double x2, double y2, Color color, LineForm form = LineForm::Line);
    /// An outline DrawWidth wide.
    void Circle(double x, double y, double radius, Color color);
    void PaintPicture(const Picture& picture, double x, double y, double width, double height,
                      RasterOp operation = RasterOp::SourceCopy);
    /// Paints a part of the picture, given in the picture's own pixels.
    void PaintPicture(const Picture& picture, double x, double y, double width, double height, const QRectF& source,
                      RasterOp operation = RasterOp::SourceCopy);
    /// Paints a drawing, or part of it; its target is in pixels whatever the ScaleMode.
    void PaintDrawing(const Recording& drawing, const LaidDrawing& laid);
    /// How many pixels of a picture are worth having along a length of this surface, in its ScaleMode.
    virtual int PicturePixels(double length);
    /// Clears to the back colour.
    virtual void Cls();

protected:
    double ToPixels(double value) const;
    double FromPixels(double pixels) const;
};

/// A hidden drawing surface of its own size, with a window's dots an inch.
class ScratchForm : public Surface {
public:
    explicit ScratchForm(QSize sizeInPixels, double devicePixelRatio = 1.0);
    double DotsPerInch() const override { return kScreenDotsPerInch; }
    DeviceContext& hDC() override { return m_context; }
    QSize SizeInPixels() const override { return m_size; }
    /// The picture as painted so far.
    const QImage& Image();

    /// Largest size, in pixels, that a hidden drawing surface may take. The same on every display, so that what is
    /// printed never depends on the monitor.
    static QSize LargestSize();
    static void SetLargestSize(QSize limit);

private:
    QSize m_size;
    QImage m_image;
    DeviceContext m_context;
};
