// SPDX-License-Identifier: MIT
#include "platform/paint/FontFace.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <array>
#include <cmath>
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

QString FontFace::FamilyInUse() const {
    const std::lock_guard lock(Guard());
    return QFontInfo(m_font).family();
}

bool FontFace::Prints(const QString& sCharacter) const {
    const auto known = m_prints.constFind(sCharacter);
    if (known != m_prints.constEnd()) return *known;
    QTextLayout layout(sCharacter, m_font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    bool prints = true;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        for (const quint32 glyph : run.glyphIndexes())
            prints = prints && glyph != 0 && !run.rawFont().pathForGlyph(glyph).isEmpty();
    }
    return *m_prints.insert(sCharacter, prints);
}

QStringList FontFace::Unprintable(const QString& sText) const {
    constexpr ushort kLastPlain = 0x7E;
    const std::lock_guard lock(Guard());
    QStringList missing;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, sText);
    for (qsizetype from = 0, to = 0; (to = characters.toNextBoundary()) >= 0; from = to) {
        const QString character = sText.mid(from, to - from);
        const QChar first = character.front();
        if (first.unicode() <= kLastPlain || first.isSpace() || missing.contains(character)) continue;
        if (!Prints(character)) missing.append(character);
    }
    return missing;
}

void FontFace::Draw(QPainter& painter, const QString& sText, bool bUnderline) const {
    // Changed, it no longer shares what the toolkit fills in as it measures, so any thread may draw with it.
    QFont font = m_font;
    font.setUnderline(bUnderline);
    if (IsDistorted(painter.deviceTransform())) {
        QPainterPath outline;
        outline.addText(0, 0, font, sText);
        painter.fillPath(outline, painter.pen().color());
        return;
    }
    painter.setFont(font);
    painter.drawText(QPointF(0, 0), sText);
}
