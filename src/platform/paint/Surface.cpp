// SPDX-License-Identifier: MIT
#include "platform/paint/Surface.h"

#include "platform/paint/FontFace.h"
#include "platform/paint/PaintImage.h"
#include "platform/paint/Painting.h"
#include "platform/paint/Picture.h"
#include "platform/paint/Recording.h"
#include "platform/text/Numbers.h"

namespace {

constexpr double kPointsPerInch = 72.0;

QSize& TheLargestSize() {
    static QSize limit(3840, 2160);
    return limit;
}

PenStyle ToPenStyle(int drawStyle) {
    switch (drawStyle) {
        case 1:
            return PenStyle::Dash;
        case 2:
            return PenStyle::Dot;
        case 5:
            return PenStyle::Null;
        default:
            return PenStyle::Solid;
    }
}

} // namespace

double Surface::ToPixels(double value) const {
    return ScaleMode == ScaleModeKind::Twips ? value / TwipsPerPixelX() : value;
}

double Surface::FromPixels(double pixels) const {
    return ScaleMode == ScaleModeKind::Twips ? pixels * TwipsPerPixelX() : pixels;
}

bool Surface::SetFontSize(double points) {
    if (!(points > 0)) return false;
    m_fontSize = points;
    return true;
}

void Surface::SetBackColor(Color color) {
    m_backColor = color;
    Cls();
}

void Surface::Cls() {
    const QSize size = SizeInPixels();
    hDC().FillRect(0, 0, size.width(), size.height(), m_backColor);
    CurrentX = 0;
    CurrentY = 0;
}

double Surface::TextWidth(const QString& sText) {
    const FontFace& face = FontFace::Get(FontName, FontBold, FontItalic);
    const double em = m_fontSize * DotsPerInch() / kPointsPerInch;
    return FromPixels(CLng(face.Advance(sText) * em / FontFace::kUnitsPerEm));
}

double Surface::TextHeight(const QString&) {
    const FontFace& face = FontFace::Get(FontName, FontBold, FontItalic);
    const double em = m_fontSize * DotsPerInch() / kPointsPerInch;
    return FromPixels(face.CellHeight() * em / FontFace::kUnitsPerEm);
}

void Surface::Print(const QString& sText) {
    const FontFace& face = FontFace::Get(FontName, FontBold, FontItalic);
    const double unit = m_fontSize * DotsPerInch() / kPointsPerInch / FontFace::kUnitsPerEm;
    QPainter& painter = hDC().Painter();
    painter.save();
    painter.translate(ToPixels(CurrentX), ToPixels(CurrentY));
    if (!FontTransparent) {
        painter.fillRect(QRectF(0, 0, face.Advance(sText) * unit, face.CellHeight() * unit), ToQColor(m_backColor));
    }
    painter.translate(0, face.Ascent() * unit);
    painter.scale(unit, unit);
    painter.setPen(ToQColor(ForeColor));
    face.Draw(painter, sText, false);
    painter.restore();
    CurrentX = 0;
    CurrentY += TextHeight(sText);
}

void Surface::Line(double x1, double y1, double x2, double y2, Color color, LineForm form) {
    const int left = CLng(ToPixels(x1));
    const int top = CLng(ToPixels(y1));
    const int right = CLng(ToPixels(x2));
    const int bottom = CLng(ToPixels(y2));
    DeviceContext& context = hDC();
    CurrentX = x2;
    CurrentY = y2;
    if (form == LineForm::FilledBox) {
        context.FillRect(std::min(left, right), std::min(top, bottom), std::max(left, right) + 1,
                         std::max(top, bottom) + 1, color);
        return;
    }
    const int depth = context.SaveDC();
    context.SelectPen(std::make_shared<const Pen>(Pen{ToPenStyle(DrawStyle), DrawWidth, color}));
    context.SelectBrush(DeviceContext::HollowBrush());
    if (form == LineForm::Box) {
        context.Rectangle(std::min(left, right), std::min(top, bottom), std::max(left, right) + 1,
                          std::max(top, bottom) + 1);
    } else {
        context.MoveTo(left, top);
        context.LineTo(right, bottom);
    }
    context.RestoreDC(depth);
}

void Surface::Circle(double x, double y, double radius, Color color) {
    const double r = ToPixels(radius);
    QPainter& painter = hDC().Painter();
    painter.setPen(QPen(ToQColor(color), std::max(DrawWidth, 1)));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(ToPixels(x), ToPixels(y)), r, r);
}

void Surface::PaintPicture(const Picture& picture, double x, double y, double width, double height,
                           RasterOp operation) {
    if (IsPrinter() && picture.Recording() && operation == RasterOp::SourceCopy) {
        const QRectF target(ToPixels(x), ToPixels(y), ToPixels(width), ToPixels(height));
        picture.Recording()->Play(hDC().Painter(), target);
        return;
    }
    PaintPicture(picture, x, y, width, height, QRectF(0, 0, picture.Width(), picture.Height()), operation);
}

void Surface::PaintPicture(const Picture& picture, double x, double y, double width, double height,
                           const QRectF& source, RasterOp operation) {
    hDC().DrawImage(QRectF(ToPixels(x), ToPixels(y), ToPixels(width), ToPixels(height)), picture.Image(),
                    picture.PartOfImage(source), operation);
}

void Surface::PaintDrawing(const Recording& drawing, const LaidDrawing& laid) { drawing.Play(hDC().Painter(), laid); }

int Surface::PicturePixels(double length) {
    const double worth = IsPrinter() ? kPaperDotsPerInch / DotsPerInch() : hDC().PixelRatio();
    return CLng(std::abs(ToPixels(length)) * worth);
}

ScratchForm::ScratchForm(QSize sizeInPixels, double devicePixelRatio)
    : m_size(sizeInPixels), m_image(sizeInPixels * devicePixelRatio, QImage::Format_RGB32), m_context(m_image) {
    m_image.setDevicePixelRatio(devicePixelRatio);
    m_image.fill(Qt::white);
}

QSize ScratchForm::LargestSize() { return TheLargestSize(); }
void ScratchForm::SetLargestSize(QSize limit) { TheLargestSize() = limit.expandedTo(QSize(1, 1)); }

const QImage& ScratchForm::Image() {
    m_context.Flush();
    return m_image;
}
