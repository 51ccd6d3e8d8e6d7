// SPDX-License-Identifier: MIT
#include "platform/paint/FontFace.h"

#include "platform/paint/PaintText.h"
#include "platform/text/TextColumns.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QSet>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <mutex>
#include <vector>

namespace {

struct LetterWeight {
    char letter;
    int perMille;
};

// How often each letter occurs in a thousand of running text.
constexpr std::array<LetterWeight, 27> kLetterWeights = {{
    {'a', 64}, {'b', 14}, {'c', 27}, {'d', 35}, {'e', 100}, {'f', 20}, {'g', 14}, {'h', 42}, {'i', 63},
    {'j', 3},  {'k', 6},  {'l', 35}, {'m', 20}, {'n', 56},  {'o', 56}, {'p', 17}, {'q', 4},  {'r', 49},
    {'s', 56}, {'t', 71}, {'u', 31}, {'v', 10}, {'w', 18},  {'x', 3},  {'y', 18}, {'z', 2},  {' ', 166},
}};

// The toolkit joins letters into ligatures unless they are spaced; this is too little to be seen or to
// change a width, and enough to keep f and i apart.
constexpr double kNoLigatures = 1.0 / 64;

QFont LargeFont(const QString& sFamily, bool bBold, bool bItalic) {
    QFont font(sFamily.isEmpty() ? QStringLiteral("Arial") : sFamily);
    font.setPixelSize(int(FontFace::kUnitsPerEm));
    font.setBold(bBold);
    font.setItalic(bItalic);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::PreferOutline));
    font.setLetterSpacing(QFont::AbsoluteSpacing, kNoLigatures);
    return font;
}

// Letters much wider than high, or the other way round, make the toolkit's glyph pictures so large that it
// fails; drawn as outlines they are safe.
bool IsDistorted(const QTransform& transform) {
    constexpr double kMostStretch = 6;
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    return across > down * kMostStretch || down > across * kMostStretch;
}

// Metafiles are decoded on any thread, and hold text.
std::mutex& Guard() {
    static std::mutex mutex;
    return mutex;
}

using Face = std::shared_ptr<const FontFace>;

struct Faces {
    std::array<QHash<QString, Face>, 4> byStyle;
    // Still drawn with by whoever got them before fonts were added.
    std::vector<Face> former;
};

// Never taken down: a thread may be measuring while the program ends, and the toolkit's fonts mustn't outlive it.
Faces& AllFaces() {
    static Faces& faces = *new Faces;
    return faces;
}

} // namespace

const FontFace& FontFace::Get(const QString& sFamily, bool bBold, bool bItalic) {
    const std::lock_guard lock(Guard());
    Face& face = AllFaces().byStyle[(bBold ? 1U : 0U) + (bItalic ? 2U : 0U)][sFamily];
    if (!face) face.reset(new FontFace(sFamily, bBold, bItalic));
    return *face;
}

void FontFace::ForgetAll() {
    const std::lock_guard lock(Guard());
    for (QHash<QString, Face>& faces : AllFaces().byStyle) {
        AllFaces().former.insert(AllFaces().former.end(), faces.begin(), faces.end());
        faces.clear();
    }
}

FontFace::FontFace(const QString& sFamily, bool bBold, bool bItalic) : m_font(LargeFont(sFamily, bBold, bItalic)) {
    const QFontMetricsF metrics(m_font);
    m_ascent = metrics.ascent();
    m_descent = metrics.descent();
    for (const LetterWeight& weight : kLetterWeights) {
        m_averageWidth += metrics.horizontalAdvance(QString(QLatin1Char(weight.letter))) * weight.perMille / 1000.0;
    }
}

// The same few words are measured at every paint, and shaping them is what takes the time.
double FontFace::Advance(const QString& sText) const {
    constexpr qsizetype kMost = 4096;
    const std::lock_guard lock(Guard());
    const auto known = m_advances.constFind(sText);
    if (known != m_advances.constEnd()) return *known;
    if (m_advances.size() >= kMost) m_advances.clear();
    return *m_advances.insert(sText, QFontMetricsF(m_font).horizontalAdvance(sText));
}

namespace {

// Letter by the glyphs that show it: a caret's places as the toolkit tells them are those of another letter where words
// of both directions meet.
FontFace::Letter LetterOf(const QTextLine& line, int iFrom, int iTo) {
    double left = std::numeric_limits<double>::max();
    double right = std::numeric_limits<double>::lowest();
    bool fromRight = false;
    for (const QGlyphRun& run : line.glyphRuns(iFrom, iTo - iFrom)) {
        const QList<QPointF> advances = run.rawFont().advancesForGlyphIndexes(run.glyphIndexes());
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < positions.size(); ++i) {
            left = std::min(left, positions[i].x());
            right = std::max(right, positions[i].x() + advances[i].x());
        }
        fromRight = run.isRightToLeft();
    }
    if (left > right) left = right = -1;
    return {iFrom, iTo, fromRight ? right : left, fromRight ? left : right};
}

// Letters that are written as one sign have a part of it each, and one without a sign none.
void ShareSigns(QList<FontFace::Letter>& letters) {
    for (qsizetype from = 0; from < letters.size();) {
        const FontFace::Letter sign = letters[from];
        qsizetype to = from + 1;
        while (to < letters.size() && letters[to].dblAhead == sign.dblAhead && letters[to].dblBehind == sign.dblBehind)
            ++to;
        const double step = (sign.dblBehind - sign.dblAhead) / double(to - from);
        for (; from < to; ++from) {
            FontFace::Letter& letter = letters[from];
            const bool unseen = letter.dblAhead < 0 && letter.dblBehind < 0;
            letter.dblAhead =
                unseen ? (from > 0 ? letters[from - 1].dblBehind : 0) : sign.dblBehind - step * double(to - from);
            letter.dblBehind = unseen ? letter.dblAhead : letter.dblAhead + step;
        }
    }
}

} // namespace

QList<FontFace::Letter> FontFace::Letters(const QString& sText) const {
    const std::lock_guard lock(Guard());
    QTextLayout layout(sText, m_font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QList<Letter> letters;
    if (!line.isValid()) return letters;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, sText);
    for (qsizetype from = 0, to = 0; (to = boundaries.toNextBoundary()) >= 0; from = to)
        letters.append(LetterOf(line, int(from), int(to)));
    ShareSigns(letters);
    return letters;
}

QString FontFace::FamilyInUse() const {
    const std::lock_guard lock(Guard());
    return QFontInfo(m_font).family();
}

bool FontFace::Prints(const QString& sCharacter) const {
    const auto known = m_prints.constFind(sCharacter);
    if (known != m_prints.constEnd()) return *known;
    // Whether there is an outline doesn't hang on its size, and of a font of dots a large one takes long to trace.
    constexpr int kSmall = 16;
    QFont small = m_font;
    small.setPixelSize(kSmall);
    QTextLayout layout(sCharacter, small);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    bool prints = true;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        for (const quint32 glyph : run.glyphIndexes())
            prints =
                prints && glyph != 0 && (HoldsPictures(run.rawFont()) || !run.rawFont().pathForGlyph(glyph).isEmpty());
    }
    return *m_prints.insert(sCharacter, prints);
}

QStringList FontFace::Unprintable(const QString& sText) const {
    constexpr ushort kLastPlain = 0x7E;
    const std::lock_guard lock(Guard());
    QStringList missing;
    QSet<QString> asked;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, sText);
    for (qsizetype from = 0, to = 0; (to = characters.toNextBoundary()) >= 0; from = to) {
        const QString character = sText.mid(from, to - from);
        const QChar first = character.front();
        if (first.unicode() <= kLastPlain || first.isSpace() || asked.contains(character)) continue;
        asked.insert(character);
        if (!Prints(character)) missing.append(character);
    }
    return missing;
}

void FontFace::DrawLong(QPainter& painter, const QString& sText, bool bUnderline) const {
    const QString first = TextColumns::LeftCharacters(sText, kMostReadable);
    painter.save();
    painter.scale(Advance(sText) / std::max(Advance(first), 1.0), 1);
    Draw(painter, first, bUnderline);
    painter.restore();
}

void FontFace::Draw(QPainter& painter, const QString& sText, bool bUnderline) const {
    if (sText.size() > kMostReadable) return DrawLong(painter, sText, bUnderline);
    // Changed, it no longer shares what the toolkit fills in as it measures, so any thread may draw with it.
    QFont font = m_font;
    font.setUnderline(bUnderline);
    if (IsDistorted(painter.deviceTransform())) {
        QPainterPath outline;
        outline.addText(0, 0, font, sText);
        painter.fillPath(outline, painter.pen().color());
        return;
    }
    PaintText(painter, QPointF(0, 0), font, sText);
}
