// SPDX-License-Identifier: MIT
#include "platform/printing/NamedPdf.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype kHead = 16 * 1024;
// Holds the list of the pages and the table of a file of some thousand objects.
constexpr qsizetype kTail = 256 * 1024;

QByteArray Text(const QString& sText) {
    QByteArray hex = "<FEFF";
    for (const QChar c : sText)
        hex += QByteArray::number(c.unicode(), 16).toUpper().rightJustified(4, '0');
    return hex + '>';
}

QByteArray Reference(int object) { return QByteArray::number(object) + " 0 R"; }

QString Group(const QByteArray& from, const char* pattern) {
    const QRegularExpression expression(QString::fromLatin1(pattern), QRegularExpression::DotMatchesEverythingOption);
    return expression.match(QString::fromLatin1(from)).captured(1);
}

/// What the names have to know of a file.
struct Outer {
    int catalog = 0;
    QByteArray catalogEntries;
    QList<int> pages;
    int size = 0;
    QByteArray info;
    qint64 table = 0;

    static std::optional<Outer> Of(const QByteArray& head, const QByteArray& tail) {
        Outer outer;
        const QByteArray trailer = tail.mid(std::max<qsizetype>(tail.lastIndexOf("trailer"), 0));
        outer.catalog = Group(trailer, "/Root (\\d+) 0 R").toInt();
        outer.size = Group(trailer, "/Size (\\d+)").toInt();
        outer.info = Group(trailer, "(/Info \\d+ 0 R)").toLatin1();
        outer.table = Group(trailer, "startxref\\s+(\\d+)").toLongLong();
        const QByteArray begin = "\n" + QByteArray::number(outer.catalog) + " 0 obj\n<<\n";
        const qsizetype at = head.indexOf(begin);
        const qsizetype end = at < 0 ? -1 : head.indexOf(">>\nendobj", at);
        if (end < 0 || outer.table <= 0) return std::nullopt;
        outer.catalogEntries = head.mid(at + begin.size(), end - at - begin.size());
        const QRegularExpression reference(QStringLiteral("(\\d+) 0 R"));
        const QString kids = Group(tail, "/Type /Pages\\s+/Kids\\s*\\[([^\\]]*)\\]");
        for (auto match = reference.globalMatch(kids); match.hasNext();)
            outer.pages.append(match.next().captured(1).toInt());
        return outer.catalogEntries.contains("/Type /Catalog") && !outer.pages.isEmpty() ? std::optional(outer)
                                                                                         : std::nullopt;
    }
};

/// Objects put behind a file, with a table of their own that leads on to the file's.
class Update {
public:
    explicit Update(qint64 start) : m_start(start) {}

    void Add(int object, const QByteArray& dictionary) {
        m_places.append({object, m_start + m_bytes.size()});
        m_bytes += QByteArray::number(object) + " 0 obj\n<<\n" + dictionary + ">>\nendobj\n";
    }
    QByteArray Whole(const Outer& outer, int size) {
        const qint64 table = m_start + m_bytes.size();
        m_bytes += "xref\n";
        for (const auto& [object, place] : m_places)
            m_bytes +=
                QByteArray::number(object) + " 1\n" + QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
        m_bytes += "trailer\n<<\n/Size " + QByteArray::number(size) + "\n" + outer.info + "\n/Root " +
                   Reference(outer.catalog) + "\n/Prev " + QByteArray::number(outer.table) + "\n>>\nstartxref\n" +
                   QByteArray::number(table) + "\n%%EOF\n";
        return m_bytes;
    }

private:
    qint64 m_start;
    QByteArray m_bytes;
    QList<std::pair<int, qint64>> m_places;
};

QByteArray Labels(const QStringList& names) {
    QByteArray labels = "/PageLabels << /Nums [";
    for (qsizetype i = 0; i < names.size(); ++i)
        labels += ' ' + QByteArray::number(i) + " << /P " + Text(names[i]) + " >>";
    return labels + " ] >>\n";
}

void AddContents(Update& update, const Outer& outer, const QStringList& names, int first) {
    const int count = int(names.size());
    update.Add(first, "/Type /Outlines\n/First " + Reference(first + 1) + "\n/Last " + Reference(first + count) +
                          "\n/Count " + QByteArray::number(count) + "\n");
    for (int i = 0; i < count; ++i) {
        QByteArray entry = "/Title " + Text(names[i]) + "\n/Parent " + Reference(first) + "\n/Dest [" +
                           Reference(outer.pages[i]) + " /Fit]\n";
        if (i > 0) entry += "/Prev " + Reference(first + i) + "\n";
        if (i + 1 < count) entry += "/Next " + Reference(first + i + 2) + "\n";
        update.Add(first + 1 + i, entry);
    }
}

} // namespace

NamedPdf::NamedPdf(QIODevice& to) : m_to(to) { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

qint64 NamedPdf::writeData(const char* data, qint64 length) {
    const qint64 written = m_to.write(data, length);
    if (written <= 0) return written;
    if (m_head.size() < kHead) m_head.append(data, std::min<qint64>(written, kHead - m_head.size()));
    m_tail.append(data, written);
    if (m_tail.size() > 2 * kTail) m_tail = m_tail.right(kTail);
    m_written += written;
    return written;
}

void NamedPdf::NamePages(const QStringList& names) {
    const std::optional<Outer> outer = Outer::Of(m_head, m_tail);
    if (!outer || outer->pages.size() != names.size() || names.join(QString()).isEmpty()) return;
    Update update(m_written);
    update.Add(outer->catalog, outer->catalogEntries + Labels(names) + "/Outlines " + Reference(outer->size) + "\n");
    AddContents(update, *outer, names, outer->size);
    const QByteArray bytes = update.Whole(*outer, outer->size + 1 + int(names.size()));
    m_to.write(bytes);
}
