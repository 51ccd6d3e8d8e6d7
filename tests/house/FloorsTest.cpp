// SPDX-License-Identifier: MIT
// The house keeps its floors: a file includes and names only what stands on its own floor or below, no units run in a
// circle, and a test stands in the folder of what it tests.
#include "House.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace House;

namespace {

// A file on no floor may include from all: the support of the tests.
QStringList ArrowsUp(const Sources& sources, const Floors& floors) {
    QStringList wrong;
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        const int floor = floors.Of(WithinTop(file.key()));
        if (floor == Floors::kNone) continue;
        for (const QString& target : IncludesOf(file.value())) {
            if (!floors.MayInclude(floor, floors.Of(target)))
                wrong.append(file.key() + QStringLiteral(" -> ") + target);
        }
    }
    return wrong;
}

QStringList OnNoFloor(const Sources& sources, const Floors& floors) {
    QStringList wrong;
    for (const QString& path : sources.keys()) {
        if (floors.Of(WithinTop(path)) == Floors::kNone) wrong.append(path);
    }
    return wrong;
}

// What a file declares by hand, and what of it is only known on floors that the file may not include from.
QStringList KnownAboveOnly(const Sources& sources, const Floors& floors, const QRegularExpression& definition,
                           const QRegularExpression& declaration) {
    QMap<QString, QSet<int>> homes;
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        for (auto matches = definition.globalMatch(file.value()); matches.hasNext();)
            homes[matches.next().captured(1)].insert(floors.Of(WithinTop(file.key())));
    }
    QStringList wrong;
    for (auto file = sources.begin(); file != sources.end(); ++file) {
        const int floor = floors.Of(WithinTop(file.key()));
        for (auto matches = declaration.globalMatch(file.value()); matches.hasNext();) {
            const QString name = matches.next().captured(1);
            const QSet<int> known = homes.value(name);
            const bool reached =
                std::any_of(known.begin(), known.end(), [&](int home) { return floors.MayInclude(floor, home); });
            if (!known.isEmpty() && !reached) wrong.append(file.key() + QStringLiteral(" -> ") + name);
        }
    }
    return wrong;
}

QRegularExpression AtALinesStart(const char* sPattern) {
    return QRegularExpression(u'^' + QString::fromLatin1(sPattern), QRegularExpression::MultilineOption);
}

// "class X;" and "void X();", where X stands above.
QStringList DeclaredFromAbove(const Sources& sources, const Floors& floors) {
    static const QRegularExpression classes = AtALinesStart(R"((?:class|struct) (\w+)[^;{()]*\{)");
    static const QRegularExpression classNamed = AtALinesStart(R"((?:class|struct) (\w+);)");
    // Where it stands it may have the name of its namespace, or of its class, ahead of its own.
    static const QRegularExpression routines =
        AtALinesStart(R"([A-Za-z_][\w:<>,&* ]*[&* ](?:\w+::)*(\w+)\([^;{}]*\)[^;{}()]*\{)");
    static const QRegularExpression routineNamed =
        AtALinesStart(R"([A-Za-z_][\w:<>,&* ]*[&* ](\w+)\([^;{}]*\)(?: noexcept)?;)");
    return KnownAboveOnly(sources, floors, classes, classNamed) +
           KnownAboveOnly(sources, floors, routines, routineNamed);
}

// A test that names one header ahead of all others is a test of that one.
QStringList OutOfPlace(const Sources& tests, const Floors& floors) {
    static const QRegularExpression first(QStringLiteral("\\A(?:(?!#include)[^\n]*\n)*#include \"([^\"]+)\"\n\n"));
    QStringList wrong;
    for (auto file = tests.begin(); file != tests.end(); ++file) {
        const int home = floors.Of(first.match(file.value()).captured(1));
        const int floor = floors.Of(WithinTop(file.key()));
        if (home != Floors::kNone && floor != Floors::kNone && home != floor) wrong.append(file.key());
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
            const QString other = UnitOf(QStringLiteral("src/") + target, sources);
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

const QString kNothing;

Sources OneFile(const char* sPath, const char* sText) {
    return {{QString::fromLatin1(sPath), QString::fromLatin1(sText)}};
}

const Floors kThree(QStringLiteral("# lowest first\nlow   Some::Library\nside  beside\nhigh/er\n"));

} // namespace

TEST(House, NoFileIncludesFromAHigherFloor) {
    const Sources sources = Read({QStringLiteral("src"), QStringLiteral("tests")});
    ASSERT_GT(sources.size(), 20);
    EXPECT_EQ(ArrowsUp(sources, Floors::OfTheHouse()).join(u'\n').toStdString(), "");
}

TEST(House, NoFileStandsOutsideTheFloors) {
    EXPECT_EQ(OnNoFloor(Read({QStringLiteral("src")}), Floors::OfTheHouse()).join(u'\n').toStdString(), "");
}

TEST(House, NoFileDeclaresWhatStandsOnAHigherFloor) {
    EXPECT_EQ(DeclaredFromAbove(Read({QStringLiteral("src")}), Floors::OfTheHouse()).join(u'\n').toStdString(), "");
}

TEST(House, ATestStandsInTheFolderOfWhatItTests) {
    EXPECT_EQ(OutOfPlace(Read({QStringLiteral("tests")}), Floors::OfTheHouse()).join(u'\n').toStdString(), "");
}

TEST(House, NoCircleOfUnits) { EXPECT_EQ(Circles(Read({QStringLiteral("src")})).join(u'\n').toStdString(), ""); }

TEST(House, NoFileGrowsOver500Lines) {
    const Sources sources = Read({QStringLiteral("src"), QStringLiteral("tests"), QStringLiteral("bench"),
                                  QStringLiteral("fuzz"), QStringLiteral("tools")});
    for (auto file = sources.begin(); file != sources.end(); ++file)
        EXPECT_LE(file.value().count(u'\n'), 500) << file.key().toStdString();
}

TEST(HouseCheck, FindsAnArrowThatRunsUp) {
    EXPECT_EQ(ArrowsUp(OneFile("src/low/Bad.cpp", "#include \"high/er/A.h\"\n"), kThree),
              QStringList{QStringLiteral("src/low/Bad.cpp -> high/er/A.h")});
    EXPECT_EQ(ArrowsUp(OneFile("tests/low/BadTest.cpp", "#include \"side/A.h\"\n"), kThree).size(), 1) << "a test";
    EXPECT_EQ(ArrowsUp(OneFile("src/high/er/Bad.cpp", "#include \"side/A.h\"\n"), kThree).size(), 1)
        << "nobody stands on a floor beside";
    EXPECT_EQ(ArrowsUp(OneFile("src/high/er/Good.cpp", "#include \"low/A.h\"\n#include \"support/B.h\"\n"), kThree),
              QStringList());
    EXPECT_EQ(OnNoFloor(OneFile("src/attic/Lost.h", ""), kThree), QStringList{QStringLiteral("src/attic/Lost.h")});
}

TEST(HouseCheck, FindsAClassOfAHigherFloor) {
    Sources sources = OneFile("src/low/Bad.h", "class Tall;\nclass Unknown;\n");
    sources[QStringLiteral("src/high/er/Tall.h")] = QStringLiteral("class Tall : public Base {\n");
    EXPECT_EQ(DeclaredFromAbove(sources, kThree), QStringList{QStringLiteral("src/low/Bad.h -> Tall")});
    sources[QStringLiteral("src/low/Tall.h")] = QStringLiteral("struct Tall {\n");
    EXPECT_EQ(DeclaredFromAbove(sources, kThree), QStringList()) << "one of that name stands low enough";
}

TEST(HouseCheck, FindsARoutineOfAHigherFloor) {
    Sources sources =
        OneFile("src/low/Bad.cpp", "extern bool Climb(int iSteps,\n                  int iMore);\nvoid Unknown();\n");
    sources[QStringLiteral("src/high/er/Climb.cpp")] = QStringLiteral("bool Climb(int iSteps, int iMore) try {\n");
    EXPECT_EQ(DeclaredFromAbove(sources, kThree), QStringList{QStringLiteral("src/low/Bad.cpp -> Climb")});
    sources[QStringLiteral("src/low/Climb.cpp")] = QStringLiteral("bool Climb(int, int) {\n");
    EXPECT_EQ(DeclaredFromAbove(sources, kThree), QStringList()) << "one of that name stands low enough";
    sources[QStringLiteral("src/low/Climb.cpp")] = QStringLiteral("bool Stairs::Climb(int, int) {\n");
    EXPECT_EQ(DeclaredFromAbove(sources, kThree), QStringList()) << "and so it does in a namespace";
}

TEST(HouseCheck, FindsATestOutOfPlace) {
    EXPECT_EQ(OutOfPlace(OneFile("tests/high/er/ATest.cpp", "// x\n#include \"low/A.h\"\n\n#include \"high/er/B.h\"\n"),
                         kThree),
              QStringList{QStringLiteral("tests/high/er/ATest.cpp")});
    EXPECT_EQ(OutOfPlace(OneFile("tests/low/ATest.cpp", "#include \"low/A.h\"\n\n"), kThree), QStringList());
    EXPECT_EQ(
        OutOfPlace(OneFile("tests/high/er/BTest.cpp", "#include \"low/A.h\"\n#include \"support/B.h\"\n"), kThree),
        QStringList())
        << "it names none ahead of the others";
}

TEST(HouseCheck, FindsACircle) {
    const Sources sources{{QStringLiteral("src/low/A.h"), QStringLiteral("#include \"low/B.h\"\n")},
                          {QStringLiteral("src/low/B.h"), kNothing},
                          {QStringLiteral("src/low/B_more.cpp"), QStringLiteral("#include \"low/C.h\"\n")},
                          {QStringLiteral("src/low/C.h"), QStringLiteral("#include \"low/A.h\"\n")}};
    EXPECT_EQ(Circles(sources).size(), 3);
}
