// SPDX-License-Identifier: MIT
#include "platform/paint/DeviceContext.h"
#include "platform/paint/FontFace.h"
#include "platform/pictures/metafile/MetafileCharset.h"
#include "platform/pictures/metafile/MetafilePlayer.h"

#include <cmath>
#include <numbers>

namespace {

constexpr int kUpdatePosition = 1;
constexpr int kHorizontal = 6;
constexpr int kRight = 2;
constexpr int kCenter = 6;
constexpr int kVertical = 24;
constexpr int kBottom = 8;
constexpr int kBaseline = 24;
constexpr int kBoldFrom = 600;
// Letters higher than this are only seen as a blot, if at all.
constexpr int kLargestFont = 20'000;
constexpr qint64 kUnitsPerText = 20'000;
constexpr qint64 kUnitsPerCharacter = 15'000;
// Where a line through the letters runs, in parts of the em.
constexpr double kStrikeHeight = 0.26;
constexpr double kStrikeThickness = 0.06;

int FontPixels(double logical) {
    if (logical == 0) return 0;
    const int pixels = int(qBound<double>(-kLargestFont, std::round(logical), kLargestFont));
    return pixels != 0 ? pixels : (logical < 0 ? -1 : 1);
}

FontRequest RequestFor(const MetafileFont& font, const MetafileMapping& mapping) {
    FontRequest request;
    request.sFamily = MetafileCharset::FamilyFor(font);
    request.lHeight = FontPixels(font.height * qAbs(mapping.ScaleY()));
    request.lWidth = qAbs(FontPixels(font.width * qAbs(mapping.ScaleX())));
    request.lEscapement = font.escapement;
    request.bBold = font.weight >= kBoldFrom;
    request.bItalic = font.italic;
    request.bUnderline = font.underline;
    return request;
}

/// A line of text with the place of each run of characters, in pixels from its left end.
struct Line {
    struct Run {
        QString text;
        double x;
    };
    QList<Run> runs;
    double width = 0;
};

// Natural advances: the whole line is one run, as long as nothing is to be added between letters.
Line SetNaturally(const QList<MetafileCharset::Character>& characters, const Font& font, double charExtra,
                  double blankExtra) {
    Line line;
    bool joins = false;
    for (const MetafileCharset::Character& character : characters) {
        const bool blank = character.text == u' ';
        if (joins) {
            line.runs.last().text += character.text;
        } else {
            line.runs.append({character.text, line.width});
        }
        line.width += font.Width(character.text) + charExtra + (blank ? blankExtra : 0);
        joins = charExtra == 0 && !(blank && blankExtra != 0);
    }
    return line;
}

Line SetByDistances(const QList<MetafileCharset::Character>& characters, const QList<qint16>& distances, double scale) {
    Line line;
    qsizetype byte = 0;
    int logical = 0;
    for (const MetafileCharset::Character& character : characters) {
        line.runs.append({character.text, logical * scale});
        for (int i = 0; i < character.bytes && byte < distances.size(); ++i, ++byte)
            logical += distances[byte];
    }
    line.width = logical * scale;
    return line;
}

void PaintLine(QPainter& painter, const Line& line, const Font& font, bool strikeOut) {
    const double unit = font.Em() / FontFace::kUnitsPerEm;
    for (const Line::Run& run : line.runs) {
        if (run.text.isEmpty()) continue;
        painter.save();
        painter.translate(run.x, 0);
        painter.scale(unit * font.Stretch(), unit);
        font.Face().Draw(painter, run.text, font.Request().bUnderline);
        painter.restore();
    }
    if (!strikeOut) return;
    painter.fillRect(QRectF(0, -kStrikeHeight * font.Em(), line.width, kStrikeThickness * font.Em()),
                     painter.pen().color());
}

} // namespace

bool MetafilePlayer::ObeyText(const MetafileRecord& record) {
    switch (record.order) {
        case MetafileOrder::TextOut:
            if (const auto text = MetafileText::ReadPlain(record.parameters)) DrawText(*text);
            return true;
        case MetafileOrder::ExtTextOut:
            if (const auto text = MetafileText::ReadExtended(record.parameters)) DrawText(*text);
            return true;
        default:
            return false;
    }
}

void MetafilePlayer::DrawText(const MetafileText& text) {
    const DeviceBox box = ToDevice(text.box);
    const bool clips = text.options & MetafileText::kClipped;
    const QColor background(m_state.Colour(m_state.bkColour));
    if (text.options & MetafileText::kOpaque) {
        m_canvas.Draw(box.Rect(), MetafileRop::kCopyPen,
                      [&](QPainter& painter) { painter.fillRect(box.Rect(), background); });
    }
    // Numbers of glyphs mean nothing without the very font file that they were taken from.
    if (text.text.isEmpty() || text.options & MetafileText::kGlyphIndex) return;
    if (!m_canvas.Budget().Spend(kUnitsPerText + text.text.size() * kUnitsPerCharacter)) return;
    if (clips && (box.Rect() & m_canvas.Bounds()).isEmpty()) return;

    const Font font(RequestFor(*m_state.font, m_state.mapping));
    const double scale = qAbs(m_state.mapping.ScaleX());
    const auto characters = MetafileCharset::Decode(text.text, *m_state.font);
    const double blankExtra = m_state.breakCount > 0 ? double(m_state.breakExtra) / m_state.breakCount * scale : 0;
    const Line line = text.distances.isEmpty() ? SetNaturally(characters, font, m_state.charExtra * scale, blankExtra)
                                               : SetByDistances(characters, text.distances, scale);

    const bool updates = m_state.textAlign & kUpdatePosition;
    const int horizontal = m_state.textAlign & kHorizontal;
    const int vertical = m_state.textAlign & kVertical;
    const QPointF at = m_state.mapping.ToDevice(updates ? m_state.position : text.position);
    const double left = horizontal == kCenter ? -line.width / 2 : horizontal == kRight ? -line.width : 0;
    const double top = vertical == kBaseline ? -font.Ascent() : vertical == kBottom ? -font.CellHeight() : 0;
    QTransform turn = QTransform::fromTranslate(at.x(), at.y());
    turn.rotate(-font.Request().lEscapement / 10.0);
    const QRectF cell(left, top, line.width, font.CellHeight());
    // Slanting letters reach out of their cell.
    const double margin = font.CellHeight() / 2 + 2;
    const QRect touched = turn.mapRect(cell.normalized().adjusted(-margin, -margin, margin, margin)).toAlignedRect();
    m_canvas.Draw(touched, MetafileRop::kCopyPen, [&](QPainter& painter) {
        painter.save();
        if (clips) painter.setClipRect(box.Rect(), Qt::IntersectClip);
        painter.setTransform(turn, true);
        if (m_state.opaqueBackground) painter.fillRect(cell, background);
        painter.translate(left, top + font.Ascent());
        painter.setPen(QColor(m_state.Colour(m_state.textColour)));
        PaintLine(painter, line, font, m_state.font->strikeOut);
        painter.restore();
    });
    if (updates) MovePastText(line.width);
}

// The current position goes to where the next text is to go on. Width in pixels.
void MetafilePlayer::MovePastText(double width) {
    const int horizontal = m_state.textAlign & kHorizontal;
    if (horizontal == kCenter) return;
    const double along = (horizontal == kRight ? -width : width) / m_state.mapping.ScaleX();
    m_state.position.rx() += int(qBound(-1e6, std::round(along), 1e6));
}
