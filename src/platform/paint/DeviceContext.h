// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QSize>
#include <QString>

#include <memory>
#include <span>
#include <vector>

class FontFace;

enum class PenStyle { Solid = 0, Dash = 1, Dot = 2, DashDot = 3, DashDotDot = 4, Null = 5, InsideFrame = 6 };
enum class BkMode { Transparent = 1, Opaque = 2 };

/// How source and destination pixels are combined; the values are those of the old platform.
enum class RasterOp : quint32 {
    SourceCopy = 0x00CC0020,
    SourceAnd = 0x008800C6,
    SourcePaint = 0x00EE0086,
    SourceInvert = 0x00660046,
};

struct Pen {
    PenStyle style = PenStyle::Solid;
    int width = 1; ///< Device units; 0 means 1.
    Color color;
};

/// A brush without colour fills nothing.
struct Brush {
    Color color = Color::White();
};

/// A font as it is asked for. Height is the cell height in device units (a negative one the em), width the
/// wanted average character width (0: the font's own), escapement tenths of a degree counter-clockwise.
struct FontRequest {
    QString sFamily;
    int lHeight = 0;
    int lWidth = 0;
    int lEscapement = 0;
    bool bBold = false;
    bool bItalic = false;
    bool bUnderline = false;
};

/// A font ready to measure and draw with.
class Font {
public:
    explicit Font(const FontRequest& request);
    const FontRequest& Request() const { return m_request; }
    const FontFace& Face() const { return *m_face; }
    /// Em height in device units; a real number, so that layout doesn't depend on the scale.
    double Em() const { return m_em; }
    /// Factor by which x is stretched.
    double Stretch() const { return m_stretch; }
    double Ascent() const;
    double CellHeight() const;
    double Width(const QString& sText) const;

private:
    FontRequest m_request;
    const FontFace* m_face;
    double m_em;
    double m_stretch;
};

using PenHandle = std::shared_ptr<const Pen>;
using BrushHandle = std::shared_ptr<const Brush>;
using FontHandle = std::shared_ptr<const Font>;

/// What the drawing layer calls the device context: a painter on a picture, a window's backing picture or a
/// printer's page, with a selected pen, brush and font, and the edge rules of the old platform (right and
/// bottom edges excluded, wide pens centred, thin lines without their last pixel). Coordinates are device
/// units; on a dense screen one unit covers several pixels and everything stays sharp.
class DeviceContext {
public:
    /// Draws on a picture that the caller keeps alive; its device pixel ratio says how many pixels make a
    /// unit.
    explicit DeviceContext(QImage& image);
    /// Draws through a painter that the caller keeps open, as on a printer's page.
    explicit DeviceContext(QPainter& painter);
    virtual ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;

    PenHandle CreatePen(PenStyle style, int width, Color color);
    BrushHandle CreateSolidBrush(Color color);
    /// Nothing when no such font can be made. Virtual so that a test can refuse one.
    virtual FontHandle CreateFont(const FontRequest& request);
    /// The brush that fills nothing.
    static BrushHandle HollowBrush();
    /// How many objects this context has made.
    struct Counts {
        int pens = 0;
        int brushes = 0;
        int fonts = 0;
    };
    const Counts& Created() const { return m_created; }

    // Each returns what it replaces.
    PenHandle SelectPen(PenHandle pen);
    BrushHandle SelectBrush(BrushHandle brush);
    FontHandle SelectFont(FontHandle font);
    Color SetTextColor(Color color);
    Color SetBkColor(Color color);
    BkMode SetBkMode(BkMode mode);

    const PenHandle& CurrentPen() const { return m_state.pen; }
    const BrushHandle& CurrentBrush() const { return m_state.brush; }
    const FontHandle& CurrentFont() const { return m_state.font; }
    Color TextColor() const { return m_state.textColor; }
    Color BkColor() const { return m_state.bkColor; }
    BkMode CurrentBkMode() const { return m_state.bkMode; }

    /// Keeps all that is selected; returns the depth to give to RestoreDC.
    int SaveDC();
    /// Back to the given depth; false when there is none such.
    bool RestoreDC(int depth);

    void MoveTo(int x, int y) { m_state.position = QPoint(x, y); }
    void LineTo(int x, int y);
    void Rectangle(int left, int top, int right, int bottom);
    void Ellipse(int left, int top, int right, int bottom);
    void Polygon(std::span<const QPoint> points);
    /// Left and top edge included, right and bottom excluded; no pen plays a part.
    void FillRect(int left, int top, int right, int bottom, Color color);

    /// Size of a text in the selected font, unrotated, rounded once. Virtual so that a test can make it
    /// fail (false).
    virtual bool GetTextExtentPoint(const QString& sText, QSize& size);
    /// Writes with the top left of the text box in the given point, turned about that point.
    void TextOut(int x, int y, const QString& sText);

    /// Paints part of a picture (in its own pixels) into a rectangle, smoothly scaled; what lies outside the
    /// picture or is transparent leaves the surface as it is.
    void DrawImage(const QRectF& destination, const QImage& image, const QRectF& source,
                   RasterOp operation = RasterOp::SourceCopy);

    /// Pixels that a unit takes.
    double PixelRatio() const { return m_image ? m_image->devicePixelRatio() : 1.0; }

    /// Colour of a pixel; none outside the picture or where the device can't be read.
    Color GetPixel(int x, int y) const;
    /// Colours of a row of pixels (units, where a unit has several), white outside the picture. False where
    /// the device can't be read.
    bool GetPixels(int x, int y, std::span<QRgb> row);
    void SetPixel(int x, int y, Color color) { FillRect(x, y, x + 1, y + 1, color); }

    /// The painter, open and without a clip of its own. For what this class has no word for.
    QPainter& Painter();
    /// Ends painting so that the picture may be read or copied; the next drawing call opens it again.
    void Flush();

private:
    struct State {
        PenHandle pen;
        BrushHandle brush;
        FontHandle font;
        Color textColor;
        Color bkColor = Color::White();
        BkMode bkMode = BkMode::Transparent;
        QPoint position;
    };

    bool HasPen() const { return m_state.pen && m_state.pen->style != PenStyle::Null; }
    QRectF OutlineRect(const QRect& shape) const;
    void ApplyPenAndBrush();
    void StrokeRectangle(const QRectF& outline);

    QImage* m_image = nullptr;
    QPainter* m_painter = nullptr;
    std::unique_ptr<QPainter> m_ownPainter;
    State m_state;
    std::vector<State> m_saved;
    Counts m_created;
};
