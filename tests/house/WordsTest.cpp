// SPDX-License-Identifier: MIT
// Only the floors made for it know the toolkit's painting, printing, dialogs and files. What counts are the words in
// the code: an include may come along with another header.
#include "House.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace House;

namespace {

struct Rule {
    const char* words;
    const char* floors;
};

constexpr Rule kRules[] = {
    {"QImage|QPainter|QPainterPath|QPaintDevice|QPixmap|QBitmap|QPicture|QColor|QPen|QBrush|QTransform|QImageReader|"
     "QImageWriter|QIcon|QFontMetricsF?",
     "platform/paint platform/pictures platform/printing windowing"},
    {"QFont|QFontDatabase", "platform/paint platform/pictures windowing"},
    {"QPdfWriter|QPageLayout|QPagedPaintDevice|QPrinter|QPrinterInfo|QPrintDialog", "platform/printing windowing"},
    {"QFile|QFileInfo|QDir|QDirIterator|QSaveFile|QLockFile|QTemporaryFile|QTemporaryDir|QStandardPaths|QStorageInfo|"
     "QFileDevice|QSettings|QTextStream|QDataStream|ifstream|ofstream|fopen|filesystem",
     "platform/files windowing"},
    {"QMessageBox|QFileDialog|QFontDialog|QLocalServer|QLocalSocket|QDesktopServices|QScreen|QClipboard", "windowing"},
    {"QWidget|QDialog|QMainWindow|QApplication", "windowing windows app"},
    {"QGuiApplication|QCursor", "windowing tools"},
};

// "src/board/x.cpp: QImage" for each file above or below the floors that may use the word.
QStringList Misused(const Sources& sources, const Floors& floors) {
    QStringList wrong;
    for (const Rule& rule : kRules) {
        const QRegularExpression word(QStringLiteral(R"(\b(?:%1)\b)").arg(QString::fromLatin1(rule.words)));
        const QStringList allowed = QString::fromLatin1(rule.floors).split(u' ');
        for (auto file = sources.begin(); file != sources.end(); ++file) {
            const int floor = floors.Of(WithinTop(file.key()));
            if (floor != Floors::kNone && allowed.contains(floors.Folders()[floor])) continue;
            const QRegularExpressionMatch match = word.match(CodeOf(file.value()));
            if (match.hasMatch()) wrong.append(file.key() + QStringLiteral(": ") + match.captured());
        }
    }
    return wrong;
}

} // namespace

TEST(House, OnlyTheFloorsMadeForItKnowPaintingPrintingDialogsAndFiles) {
    EXPECT_EQ(Misused(Read({QStringLiteral("src")}), Floors::OfTheHouse()).join(u'\n').toStdString(), "");
}

TEST(House, RulesNameFloorsThatThereAre) {
    for (const Rule& rule : kRules) {
        for (const QString& floor : QString::fromLatin1(rule.floors).split(u' '))
            EXPECT_TRUE(Floors::OfTheHouse().Folders().contains(floor)) << floor.toStdString();
    }
}

TEST(HouseCheck, FindsAWordWhereItMayNotStand) {
    const auto misused = [](const char* code) {
        return Misused({{QStringLiteral("src/board/A.cpp"), QString::fromLatin1(code)}}, Floors::OfTheHouse());
    };
    EXPECT_EQ(misused("void f(const QImage& image);\n"), QStringList{QStringLiteral("src/board/A.cpp: QImage")});
    EXPECT_EQ(misused("#include <QPainter>\n").size(), 1);
    EXPECT_EQ(misused("// a QImage\nf(\"QPainter // \"); /* QWidget */ MyQFile x;\n"), QStringList());
}
