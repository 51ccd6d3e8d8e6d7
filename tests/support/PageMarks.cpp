// SPDX-License-Identifier: MIT
#include "support/PageMarks.h"

#include "platform/printing/Printer.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTransform>

#include <cmath>
#include <numbers>

namespace {

constexpr double kPointsPerInch = 72;

// The objects of a file, found by its table of places.
class PdfObjects {
public:
    explicit PdfObjects(const QString& sPath) {
        QFile file(sPath);
        if (file.open(QIODevice::ReadOnly)) m_bytes = file.readAll();
        ReadPlaces();
    }

    /// Everything of an object ahead of its stream.
    QByteArray Head(int object) const {
        const qsizetype at = m_places.value(object, m_bytes.size());
        const qsizetype end = m_bytes.indexOf("endobj", at);
        const qsizetype stream = m_bytes.indexOf("stream\n", at);
        return m_bytes.mid(at, (stream >= 0 && stream < end ? stream : end) - at);
    }
    QByteArray Stream(int object) const {
        const QByteArray head = Head(object);
        const qsizetype from = m_places.value(object) + head.size() + qsizetype(sizeof("stream\n")) - 1;
        const QByteArray bytes = m_bytes.mid(from, Length(head));
        if (!head.contains("/FlateDecode")) return bytes;
        // The toolkit wants the length ahead; any will do, as it grows when that is too little.
        return qUncompress(QByteArray("\0\0\x10\0", 4) + bytes);
    }
    /// Number of the object that a key of a head refers to; 0 where it doesn't.
    static int Reference(const QByteArray& head, const char* key, int which = 1) {
        return Match(head, QStringLiteral("/%1\\s+\\[?\\s*(?:\\d+ 0 R\\s+){%2}(\\d+) 0 R")
                               .arg(QString::fromLatin1(key))
                               .arg(which - 1))
            .toInt();
    }
    static double Number(const QByteArray& head, const char* key) {
        return Match(head, QStringLiteral("/%1\\s+(-?[\\d.]+)").arg(QString::fromLatin1(key))).toDouble();
    }
    static QString Match(const QByteArray& head, const QString& sPattern) {
        return QRegularExpression(sPattern).match(QString::fromLatin1(head)).captured(1);
    }

private:
    void ReadPlaces() {
        const qsizetype start = m_bytes.lastIndexOf("startxref");
        QList<QByteArray> rows =
            m_bytes.mid(m_bytes.mid(start + 10).trimmed().split('\n').first().toLongLong()).split('\n');
        for (qsizetype i = 2; i < rows.size() && !rows[i].startsWith("trailer"); ++i) {
            const qsizetype at = rows[i].left(10).toLongLong();
            m_places.insert(int(i - 2), m_bytes.indexOf("obj", at) + 3);
        }
    }
    qsizetype Length(const QByteArray& head) const {
        const int elsewhere = Reference(head, "Length");
        return elsewhere == 0 ? qsizetype(Number(head, "Length")) : Head(elsewhere).trimmed().toLongLong();
    }

    QByteArray m_bytes;
    QHash<int, qsizetype> m_places;
};

struct PageFont {
    QString sFace;
    double ascent = 0;
    double descent = 0;
    QHash<uint, QChar> letters;
    /// In thousandths of the em.
    QHash<uint, double> advances;
    /// Of letters that aren't in the list.
    double advance = 0;
};

void ReadLetters(const QByteArray& table, PageFont& font) {
    // Letters one by one, or the first of a run that follow each other.
    static const QRegularExpression range(QStringLiteral("<(\\w{4})> <(\\w{4})> (?:\\[([^\\]]*)\\]|<(\\w{4})>)"));
    const auto number = [](const QString& digits) { return digits.toUShort(nullptr, 16); };
    for (auto ranges = range.globalMatch(QString::fromLatin1(table)); ranges.hasNext();) {
        const auto match = ranges.next();
        uint glyph = number(match.captured(1));
        const auto keep = [&](ushort code) {
            // The toolkit names the blank by another letter that looks like it.
            font.letters.insert(glyph++, QChar(code).isSpace() ? QChar(u' ') : QChar(code));
        };
        for (const QString& code : match.captured(3).split(u' ', Qt::SkipEmptyParts))
            keep(number(code.mid(1, 4)));
        if (match.captured(4).isEmpty()) continue;
        for (ushort code = number(match.captured(4)); glyph <= number(match.captured(2));)
            keep(code++);
    }
}

void ReadAdvances(const QByteArray& head, PageFont& font) {
    font.advance = PdfObjects::Number(head, "DW");
    const QString table = PdfObjects::Match(head, QStringLiteral("/W \\[([^/]*)\\]"));
    static const QRegularExpression part(QStringLiteral("(\\d+) (?:\\[([^\\]]*)\\]|(\\d+) ([\\d.]+))"));
    for (auto parts = part.globalMatch(table); parts.hasNext();) {
        const auto match = parts.next();
        uint glyph = match.captured(1).toUInt();
        if (match.captured(3).isEmpty()) {
            for (const QString& advance : match.captured(2).split(u' ', Qt::SkipEmptyParts))
                font.advances.insert(glyph++, advance.toDouble());
        }
        for (; glyph <= match.captured(3).toUInt(); ++glyph)
            font.advances.insert(glyph, match.captured(4).toDouble());
    }
}

PageFont ReadFont(const PdfObjects& objects, int object) {
    const QByteArray head = objects.Head(object);
    const QByteArray glyphs = objects.Head(PdfObjects::Reference(head, "DescendantFonts"));
    const QByteArray measures = objects.Head(PdfObjects::Reference(glyphs, "FontDescriptor"));
    PageFont font;
    font.sFace = PdfObjects::Match(head, QStringLiteral("/BaseFont /(\\S+)"));
    font.ascent = PdfObjects::Number(measures, "Ascent") / 1000;
    font.descent = PdfObjects::Number(measures, "Descent") / 1000;
    ReadLetters(objects.Stream(PdfObjects::Reference(head, "ToUnicode")), font);
    ReadAdvances(glyphs, font);
    return font;
}

QImage ReadImage(const PdfObjects& objects, int object) {
    const QByteArray head = objects.Head(object);
    const QByteArray bytes = objects.Stream(object);
    if (head.contains("/DCTDecode")) return QImage::fromData(bytes, "JPEG").convertToFormat(QImage::Format_RGB32);
    const int width = int(PdfObjects::Number(head, "Width"));
    const int height = int(PdfObjects::Number(head, "Height"));
    const bool gray = head.contains("/DeviceGray");
    const int stride = width * (gray ? 1 : 3);
    if (width <= 0 || bytes.size() < qsizetype(stride) * height) return {};
    return QImage(reinterpret_cast<const uchar*>(bytes.constData()), width, height, stride,
                  gray ? QImage::Format_Grayscale8 : QImage::Format_RGB888)
        .convertToFormat(QImage::Format_RGB32);
}

// Plays the operators of a page's content.
class ContentPlayer {
public:
    ContentPlayer(const PdfObjects& objects, const QByteArray& resources, const QTransform& toUnits)
        : m_objects(objects), m_resources(resources), m_toUnits(toUnits) {}

    QList<PageMark> Play(const QByteArray& content) {
        for (const QByteArray& word : content.simplified().split(' ')) {
            const bool isOperator = !word.isEmpty() && (word[0] == 'f' || word[0] == 'n' || std::isalpha(word[0]));
            if (isOperator) {
                Do(word);
                m_operands.clear();
            } else {
                m_operands.append(word);
            }
        }
        return m_marks;
    }

private:
    struct State {
        QTransform ctm;
        QColor fill = Qt::black;
        QColor stroke = Qt::black;
        double pen = 1;
    };

    double At(qsizetype i) const { return m_operands.value(i).toDouble(); }
    QTransform Matrix() const { return {At(0), At(1), At(2), At(3), At(4), At(5)}; }
    QTransform ToUnits() const { return m_state.ctm * m_toUnits; }

    void Do(const QByteArray& word) {
        if (DoState(word) || DoPath(word) || DoText(word)) return;
        if (word == "Do") Picture();
    }

    bool DoState(const QByteArray& word) {
        if (word == "q") {
            m_saved.append(m_state);
        } else if (word == "Q") {
            if (!m_saved.isEmpty()) m_state = m_saved.takeLast();
        } else if (word == "cm") {
            m_state.ctm = Matrix() * m_state.ctm;
        } else if (word == "scn") {
            SetColor(m_state.fill);
        } else if (word == "SCN") {
            SetColor(m_state.stroke);
        } else if (word == "w") {
            m_state.pen = At(0);
        } else {
            return false;
        }
        return true;
    }
    void SetColor(QColor& color) const {
        const bool gray = m_operands.size() == 1;
        color = QColor::fromRgbF(float(At(0)), float(At(gray ? 0 : 1)), float(At(gray ? 0 : 2)));
    }

    bool DoPath(const QByteArray& word) {
        if (word == "m" || word == "l") {
            m_path << QPointF(At(0), At(1));
        } else if (word == "c") {
            m_path << QPointF(At(4), At(5));
        } else if (word == "re") {
            const QRectF rect(At(0), At(1), At(2), At(3));
            m_path << rect.topLeft() << rect.topRight() << rect.bottomRight() << rect.bottomLeft();
        } else if (word == "f" || word == "f*" || word == "B" || word == "B*" || word == "S" || word == "n") {
            if (word[0] == 'f' || word[0] == 'B') Shape(PageMark::Kind::Area, m_state.fill);
            if (word[0] == 'S' || word[0] == 'B') Shape(PageMark::Kind::Line, m_state.stroke);
            m_path.clear();
        } else {
            return false;
        }
        return true;
    }
    void Shape(PageMark::Kind kind, QColor color) {
        PageMark mark;
        mark.kind = kind;
        mark.color = color;
        mark.points = ToUnits().map(m_path);
        if (kind == PageMark::Kind::Line) mark.pen = m_state.pen * std::sqrt(std::abs(ToUnits().determinant()));
        m_marks.append(mark);
    }

    bool DoText(const QByteArray& word) {
        if (word == "BT") {
            m_text = PageMark{};
            m_text.kind = PageMark::Kind::Text;
            m_text.color = m_state.fill;
        } else if (word == "Tf") {
            m_font = Font(m_operands.value(0).mid(1));
            m_fontSize = At(1);
        } else if (word == "Tm") {
            m_line = Matrix();
        } else if (word == "Td") {
            m_line = QTransform::fromTranslate(At(0), At(1)) * m_line;
        } else if (word == "Tj") {
            Letters(m_operands.value(0));
        } else if (word == "ET") {
            if (!m_text.sText.isEmpty()) m_marks.append(m_text);
        } else {
            return false;
        }
        return true;
    }
    void Letters(const QByteArray& hex) {
        const QTransform toUnits = QTransform::fromScale(m_fontSize, m_fontSize) * m_line * ToUnits();
        const QPointF origin = toUnits.map(QPointF(0, 0));
        const QPointF along = toUnits.map(QPointF(1, 0)) - origin;
        const QPointF up = toUnits.map(QPointF(0, 1)) - origin;
        const double em = std::hypot(up.x(), up.y());
        const double across = std::hypot(along.x(), along.y());
        if (m_text.sText.isEmpty()) {
            m_text.sFace = m_font.sFace;
            m_text.em = em;
            m_text.height = em * (m_font.ascent - m_font.descent);
            m_text.stretch = across / em;
            m_text.angle = std::atan2(-along.y(), along.x()) * 1800 / std::numbers::pi;
            if (m_text.angle < -0.5) m_text.angle += 3600;
            m_text.start = origin + up * m_font.ascent;
        }
        double advance = 0;
        for (qsizetype i = 1; i + 4 < hex.size(); i += 4) {
            const uint glyph = hex.mid(i, 4).toUInt(nullptr, 16);
            m_text.sText += m_font.letters.value(glyph, QChar(u'?'));
            advance += m_font.advances.value(glyph, m_font.advance) / 1000;
        }
        const QPointF end = origin + along * advance;
        const QPointF last = end + up * m_font.ascent;
        m_text.width = std::hypot(last.x() - m_text.start.x(), last.y() - m_text.start.y());
        const QPointF down = -up * (m_font.ascent - m_font.descent);
        m_text.points = QPolygonF({m_text.start, last, last + down, m_text.start + down});
    }
    const PageFont& Font(const QByteArray& name) {
        if (!m_fonts.contains(name))
            m_fonts.insert(name, ReadFont(m_objects, PdfObjects::Reference(m_resources, name.constData())));
        return m_fonts[name];
    }

    void Picture() {
        const int object = PdfObjects::Reference(m_resources, m_operands.value(0).mid(1).constData());
        PageMark mark;
        mark.kind = PageMark::Kind::Picture;
        mark.points = ToUnits().map(QPolygonF(QRectF(0, 0, 1, 1)));
        mark.picture = ReadImage(m_objects, object);
        mark.color = mark.picture.isNull()
                         ? QColor()
                         : QColor(mark.picture.pixel(mark.picture.width() / 2, mark.picture.height() / 2));
        m_marks.append(mark);
    }

    const PdfObjects& m_objects;
    QByteArray m_resources;
    QTransform m_toUnits;
    QList<QByteArray> m_operands;
    State m_state;
    QList<State> m_saved;
    QPolygonF m_path;
    QHash<QByteArray, PageFont> m_fonts;
    PageFont m_font;
    double m_fontSize = 1;
    QTransform m_line;
    PageMark m_text;
    QList<PageMark> m_marks;
};

} // namespace

QList<PageMark> ReadPageMarks(const QString& sPath, int iPage, double dUnitsPerInch) {
    const PdfObjects objects(sPath);
    constexpr int kCatalog = 2;
    const QByteArray pages = objects.Head(PdfObjects::Reference(objects.Head(kCatalog), "Pages"));
    const QByteArray page = objects.Head(PdfObjects::Reference(pages, "Kids", iPage));
    const double paperHeight =
        PdfObjects::Match(page, QStringLiteral("/MediaBox \\[\\S+ \\S+ \\S+ ([\\d.]+)\\]")).toDouble();
    const double units = dUnitsPerInch / kPointsPerInch;
    const double margin = PdfPrinter::kMarginInches * dUnitsPerInch;
    const QTransform toUnits(units, 0, 0, -units, -margin, paperHeight * units - margin);
    const QByteArray resources = objects.Head(PdfObjects::Reference(page, "Resources"));
    return ContentPlayer(objects, resources, toUnits).Play(objects.Stream(PdfObjects::Reference(page, "Contents")));
}
