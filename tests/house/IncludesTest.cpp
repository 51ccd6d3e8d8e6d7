// SPDX-License-Identifier: MIT
// The house keeps its floors: a file includes only from its own floor or below, and no circle of units.
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

struct Floor {
    const char* prefix; ///< Path under src that the file's path begins with.
    int number;
};

// The longest prefix that fits decides.
constexpr Floor kFloors[] = {
    {"platform/text/", 1},
    {"platform/files/", 2},
    {"platform/paint/", 3},
    {"platform/pictures/", 4},
    {"platform/printing/", 5},
    {"services/", 6},
    {"drawing/", 7},
    {"pictures/", 8},
    {"document/", 9},
    {"board/", 10},
    {"game/", 11},
    {"render/", 12},
    {"pieces/", 13},
    {"kit/", 14},
    {"windowing/", 15},
    {"windows/", 16},
    {"app/", 17},
    {"tools/", 17},
};

int FloorOf(const QString& path) {
    int floor = 0;
    qsizetype longest = 0;
    for (const Floor& candidate : kFloors) {
        const QString prefix = QString::fromLatin1(candidate.prefix);
        if (path.startsWith(prefix) && prefix.size() > longest) {
            longest = prefix.size();
            floor = candidate.number;
        }
    }
    return floor;
}

using Sources = QMap<QString, QString>;

Sources ReadSources() {
    Sources sources;
    const QString root = QStringLiteral(TAVLORA_SOURCE_DIR) + QStringLiteral("/src/");
    QDirIterator files(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            sources[file.fileName().mid(root.size())] = QString::fromUtf8(file.readAll());
    }
    return sources;
}

QStringList IncludesOf(const QString& text) {
    static const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                            QRegularExpression::MultilineOption);
    QStringList found;
    for (auto matches = include.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured(1));
    return found;
}

QStringList ArrowsUp(const Sources& sources) {
    QStringList wrong;
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        if (FloorOf(file.key()) == 0) wrong.append(file.key() + QStringLiteral(" stands on no floor"));
        for (const QString& target : IncludesOf(file.value())) {
            if (FloorOf(target) > FloorOf(file.key())) wrong.append(file.key() + QStringLiteral(" -> ") + target);
        }
    }
    return wrong;
}

// A unit is a header with its sources; "frmTAVL_board.cpp" belongs to the unit frmTAVL if that has a header.
QString UnitOf(const QString& path, const Sources& sources) {
    QString stem = path.left(path.lastIndexOf(u'.'));
    while (!sources.contains(stem + QStringLiteral(".h"))) {
        const qsizetype cut = stem.lastIndexOf(u'_');
        if (cut < stem.lastIndexOf(u'/')) return path;
        stem = stem.left(cut);
    }
    return stem;
}

using Graph = QMap<QString, QSet<QString>>;

bool ReachesItself(const Graph& graph, const QString& start, const QString& at, QSet<QString>& seen) {
    for (const QString& next : graph.value(at)) {
        if (next == start) return true;
        if (seen.contains(next)) continue;
        seen.insert(next);
        if (ReachesItself(graph, start, next, seen)) return true;
    }
    return false;
}

QStringList Circles(const Sources& sources) {
    Graph graph;
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        const QString unit = UnitOf(file.key(), sources);
        for (const QString& target : IncludesOf(file.value())) {
            const QString other = UnitOf(target, sources);
            if (other != unit) graph[unit].insert(other);
        }
    }
    QStringList circles;
    for (const QString& unit : graph.keys()) {
        QSet<QString> seen;
        if (ReachesItself(graph, unit, unit, seen)) circles.append(unit);
    }
    return circles;
}

const QString kNone;

} // namespace

TEST(House, NoFileIncludesFromAHigherFloor) {
    const Sources sources = ReadSources();
    ASSERT_GT(sources.size(), 20);
    EXPECT_EQ(ArrowsUp(sources).join(u'\n').toStdString(), "");
}

TEST(House, NoCircleOfUnits) { EXPECT_EQ(Circles(ReadSources()).join(u'\n').toStdString(), ""); }

TEST(House, TheCheckFindsAnArrowThatRunsUp) {
    const Sources sources{
        {QStringLiteral("platform/text/Bad.cpp"), QStringLiteral("#include \"document/C_Space.h\"\n")},
        {QStringLiteral("document/C_Space.h"), kNone}};
    EXPECT_EQ(ArrowsUp(sources), QStringList{QStringLiteral("platform/text/Bad.cpp -> document/C_Space.h")});
    EXPECT_EQ(ArrowsUp({{QStringLiteral("attic/Lost.h"), kNone}}).size(), 1) << "a file on no floor";
}

TEST(House, TheCheckFindsACircle) {
    const Sources sources{{QStringLiteral("document/A.h"), QStringLiteral("#include \"document/B.h\"\n")},
                          {QStringLiteral("document/B.h"), kNone},
                          {QStringLiteral("document/B_more.cpp"), QStringLiteral("#include \"document/C.h\"\n")},
                          {QStringLiteral("document/C.h"), QStringLiteral("#include \"document/A.h\"\n")}};
    EXPECT_EQ(Circles(sources).size(), 3);
}

TEST(House, OnlyThePlatformKnowsTheToolkitsPaintingPrintingAndDialogs) {
    static const QRegularExpression painting(QStringLiteral(
        "#include <Q(Painter|Image|Pixmap|Printer|PdfWriter|FileDialog|MessageBox|FontDialog|PrintDialog|"
        "File|SaveFile|ImageReader|ImageWriter|Color|Settings)>"));
    const Sources sources = ReadSources();
    QStringList wrong;
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        if (FloorOf(file.key()) > 5 && !file.key().startsWith(QStringLiteral("windowing/")) &&
            file.value().contains(painting))
            wrong.append(file.key());
    }
    EXPECT_EQ(wrong.join(u'\n').toStdString(), "");
}

TEST(House, NoFileGrowsOver500Lines) {
    const Sources sources = ReadSources();
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        EXPECT_LE(file.value().count(u'\n'), 500) << file.key().toStdString();
    }
}
