// SPDX-License-Identifier: MIT
#include "simulator/Chart.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace Simulator {
namespace {

constexpr double kWidth = 800;
constexpr double kLeft = 240;
constexpr double kRight = 24;
constexpr double kTop = 64;
constexpr double kBottom = 48;
constexpr double kHillHeight = 64;
// Of the height of a row; the rest is air.
constexpr double kHillPart = 0.85;
constexpr double kDotRowHeight = 34;
constexpr double kDot = 3.5;

// Dark enough on white, apart from each other for those who see no red or green, too.
constexpr std::array<const char*, 6> kColors = {"#1f4e79", "#c55a11", "#3b7d4f", "#7a3b8f", "#806000", "#444444"};

QString Escaped(const QString& text) { return text.toHtmlEscaped(); }
QString Number(double value) { return QString::number(value, 'f', 2); }

class Svg {
public:
    Svg(const QString& title, double height) : m_height(height) {
        m_lines.append(QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %2\" "
                                      "font-family=\"Arial, Helvetica, sans-serif\" font-size=\"13\" role=\"img\">")
                           .arg(kWidth)
                           .arg(height));
        m_lines.append(QStringLiteral("<title>%1</title>").arg(Escaped(title)));
        Box(0, 0, kWidth, height, "#ffffff");
        Text(kLeft, 26, title, "start", " font-size=\"16\" font-weight=\"bold\"");
    }

    void Box(double x, double y, double width, double height, const char* fill) {
        m_lines.append(QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" fill=\"%5\"/>")
                           .arg(Number(x), Number(y), Number(width), Number(height), QString::fromLatin1(fill)));
    }
    void Line(double x1, double y1, double x2, double y2, const char* stroke) {
        m_lines.append(QStringLiteral("<path d=\"M%1 %2 L%3 %4\" stroke=\"%5\" stroke-width=\"1.5\"/>")
                           .arg(Number(x1), Number(y1), Number(x2), Number(y2), QString::fromLatin1(stroke)));
    }
    void Dot(double x, double y, const char* fill) {
        m_lines.append(QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"%4\"/>")
                           .arg(Number(x), Number(y), Number(kDot), QString::fromLatin1(fill)));
    }
    void Text(double x, double y, const QString& text, const char* anchor, const char* more = "") {
        m_lines.append(
            QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\"%4>%5</text>")
                .arg(Number(x), Number(y), QString::fromLatin1(anchor), QString::fromLatin1(more), Escaped(text)));
    }
    double Height() const { return m_height; }
    QString End() {
        m_lines.append(QStringLiteral("</svg>\n"));
        return m_lines.join(u'\n');
    }

private:
    QStringList m_lines;
    double m_height;
};

class Scale {
public:
    explicit Scale(const Axis& axis) : m_axis(axis) {}
    double X(double value) const {
        const double part = (std::clamp(value, m_axis.from, m_axis.to) - m_axis.from) / (m_axis.to - m_axis.from);
        return kLeft + part * (kWidth - kLeft - kRight);
    }

private:
    const Axis& m_axis;
};

void DrawAxis(Svg& svg, const Axis& axis, double tintFrom, double tintTo) {
    const Scale scale(axis);
    const double foot = svg.Height() - kBottom;
    if (tintTo > tintFrom)
        svg.Box(scale.X(tintFrom), kTop - 8, scale.X(tintTo) - scale.X(tintFrom), foot - kTop + 8, "#e8f0e4");
    const int decimals = axis.step < 1 ? 1 : 0;
    for (double mark = axis.from; mark < axis.to + axis.step / 2; mark += axis.step) {
        svg.Line(scale.X(mark), kTop - 8, scale.X(mark), foot, "#dddddd");
        svg.Text(scale.X(mark), foot + 18, QString::number(mark, 'f', decimals), "middle", " fill=\"#333333\"");
    }
    svg.Text((kLeft + kWidth - kRight) / 2, foot + 38, axis.title, "middle", " fill=\"#333333\"");
}

void DrawHill(Svg& svg, const Axis& axis, const Hill& hill, double foot) {
    const Scale scale(axis);
    const double most = hill.heights.empty() ? 0 : *std::max_element(hill.heights.begin(), hill.heights.end());
    const double step = (axis.to - axis.from) / double(std::max<std::size_t>(1, hill.heights.size()));
    for (std::size_t i = 0; i < hill.heights.size(); ++i) {
        if (hill.heights[i] <= 0) continue;
        const double height = hill.heights[i] / most * kHillHeight * kHillPart;
        const double left = scale.X(axis.from + double(i) * step);
        const double right = scale.X(axis.from + double(i + 1) * step);
        svg.Box(left + 0.5, foot - height, right - left - 1, height, kColors[0]);
    }
    svg.Text(kLeft - 12, foot - kHillHeight / 3, hill.label, "end");
}

void DrawDot(Svg& svg, const Scale& scale, const Estimate& estimate, double y, const char* color) {
    svg.Line(scale.X(estimate.low), y, scale.X(estimate.high), y, color);
    svg.Dot(scale.X(estimate.value), y, color);
}

void DrawLegend(Svg& svg, const std::vector<QString>& legend) {
    double x = kLeft;
    for (std::size_t i = 0; i < legend.size(); ++i) {
        svg.Dot(x, 42, kColors[i % kColors.size()]);
        svg.Text(x + 8, 46, legend[i], "start");
        x += 24 + 7.2 * double(legend[i].size());
    }
}

} // namespace

QString HillChart(const QString& title, const Axis& axis, const std::vector<Hill>& hills, double tintFrom,
                  double tintTo) {
    Svg svg(title, kTop + kBottom + kHillHeight * double(hills.size()));
    DrawAxis(svg, axis, tintFrom, tintTo);
    double foot = kTop;
    for (const Hill& hill : hills)
        DrawHill(svg, axis, hill, foot += kHillHeight);
    return svg.End();
}

QString DotChart(const QString& title, const Axis& axis, const std::vector<DotRow>& rows,
                 const std::vector<QString>& legend, double tintFrom, double tintTo) {
    Svg svg(title, kTop + kBottom + kDotRowHeight * double(rows.size()));
    DrawAxis(svg, axis, tintFrom, tintTo);
    DrawLegend(svg, legend);
    const Scale scale(axis);
    double top = kTop;
    for (const DotRow& row : rows) {
        svg.Text(kLeft - 12, top + kDotRowHeight / 2 + 4, row.label, "end");
        const double step = kDotRowHeight / double(row.dots.size() + 1);
        for (std::size_t i = 0; i < row.dots.size(); ++i)
            DrawDot(svg, scale, row.dots[i], top + step * double(i + 1), kColors[i % kColors.size()]);
        top += kDotRowHeight;
    }
    return svg.End();
}

} // namespace Simulator
