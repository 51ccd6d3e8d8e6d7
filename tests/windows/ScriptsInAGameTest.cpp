// SPDX-License-Identifier: MIT
// A name in the letters of many scripts, and of emoji, looks the same on the board, in its editor and on its sheet;
// board and sheet are made by the printing program from the file of a whole game.
#include "board/basPosit.h"
#include "game/Session.h"
#include "platform/pictures/PictureHolder.h"
#include "support/BoardFixture.h"
#include "support/PdfReader.h"
#include "windows/editors/SpaceLikeness.h"

#include <QDir>
#include <QImage>
#include <QProcess>

namespace {

constexpr int kSpace = 4; // on the bottom side, where text isn't turned
constexpr int kBoardPixels = 2400;
constexpr int kDpi = 300;
constexpr int kAcross = 64;
constexpr int kDown = 24;

constexpr const char16_t* kNames[] = {
    u"Żółćfiff", u"Καλημέρα", u"друзья", u"Բարեւ", u"გამარჯობა", u"לכולם", u"مرحبا",
    u"ສະບາຍດີ",   u"ⴰⵣⵓⵍ",     u"ߊߟߎ",    u"ᚁᚂᚃᚄ",  u"ᐊᐃᓐᖓᐃ",     u"⠓⠑⠇⠇⠕", u"\U0001F600\U0001F60E\U0001F63A"};
constexpr size_t kCount = std::size(kNames);

/// How much of each cell of a text's box is ink.
struct Look {
    QList<double> cells;
    double proportion = 0;
};

// The text is what a picture with it has more than one without.
Look LookOf(const QImage& with, const QImage& without) {
    QImage ink(with.size(), QImage::Format_Grayscale8);
    QRect box;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QRgb one = with.pixel(x, y);
            const QRgb other = without.pixel(x, y);
            const int more = std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                                       std::abs(qBlue(one) - qBlue(other))});
            ink.scanLine(y)[x] = uchar(more);
            if (more > 60) box |= QRect(x, y, 1, 1);
        }
    }
    Look look;
    if (box.isEmpty()) return look;
    look.proportion = double(box.width()) / box.height();
    const QImage cells = ink.copy(box).scaled(kAcross, kDown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int y = 0; y < kDown; ++y) {
        for (int x = 0; x < kAcross; ++x)
            look.cells.append(cells.pixelColor(x, y).value() / 255.0);
    }
    return look;
}

// 0 for the same, 1 for nothing in common.
double Difference(const Look& one, const Look& other) {
    double differ = 0;
    double ink = 0;
    for (qsizetype i = 0; i < std::min(one.cells.size(), other.cells.size()); ++i) {
        differ += std::abs(one.cells[i] - other.cells[i]);
        ink += one.cells[i] + other.cells[i];
    }
    return ink > 0 ? differ / ink : 1;
}

class ScriptsInAGameTest : public BoardTest {
protected:
    struct Shown {
        QImage board;
        QImage paper;
        QImage editor;
    };

    // The sample without its pictures, whose space is called so.
    Shown Show(const QString& sName) {
        const QString file = WriteFile(QStringLiteral("Scripts.gam"), GameWith(sName).toUtf8());
        const QString board = PathOf(QStringLiteral("board.png"));
        const QString pdf = PathOf(QStringLiteral("west.pdf"));
        QProcess program;
        program.start(QStringLiteral(TAVLORA_BIN_DIR "/tavlora-print"),
                      {file, QStringLiteral("--board"), board, QStringLiteral("--size"), QString::number(kBoardPixels),
                       QStringLiteral("--sheet"), QStringLiteral("west"), QStringLiteral("-o"), pdf,
                       QStringLiteral("--data"), QStringLiteral(TAVLORA_DATA_DIR)});
        EXPECT_TRUE(program.waitForFinished(60000) && program.exitCode() == 0)
            << program.readAllStandardError().toStdString();
        return {QImage(board), PdfReader(pdf).Pixels(1, kDpi), EditorOf(sName)};
    }
    QString GameWith(const QString& sName) {
        QStringList lines = QString::fromUtf8(ReadFile(QStringLiteral(TAVLORA_DATA_DIR "/Family_US.gam")))
                                .split(QStringLiteral("\r\n"));
        const QString head = QStringLiteral("%1, \"").arg(kSpace);
        for (QString& line : lines) {
            if (!line.startsWith(head)) continue;
            line = head + sName + QStringLiteral("\", \"\", 0, 0, 0, \"DejaVu Sans\",R,14");
            break;
        }
        return lines.join(QStringLiteral("\r\n"));
    }
    // As its window shows it.
    static QImage EditorOf(const QString& sName) {
        Session session;
        basPosit::PosSethDC(&session.MeasuringDevice());
        basTAVL::Let_g_sGameVersion(QStringLiteral("8"));
        basPosit::PosInit();
        C_Space& space = basTAVL::g_oSpaces(kSpace);
        space.Index = kSpace;
        space.SetImagePath({});
        space.Font.Family = QStringLiteral("DejaVu Sans");
        space.Font.Bold = false;
        space.SetText(sName);
        SpaceLikeness likeness;
        likeness.LoadFromGame(TheGame(), kSpace);
        ScratchForm picture(likeness.Size());
        PictureHolder scratch;
        likeness.Redraw(picture, scratch, {});
        return picture.Image();
    }
};

} // namespace

TEST_F(ScriptsInAGameTest, NamesLookTheSameOnTheBoardInTheEditorAndOnPaper) {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "poppler's tools are not installed";
    // A space without a name would say so.
    const Shown blank = Show(QString(QChar(QChar::Nbsp)));
    std::vector<Look> boards;
    std::vector<Look> papers;
    std::vector<Look> editors;
    for (const char16_t* name : kNames) {
        const Shown shown = Show(QString::fromUtf16(name));
        boards.push_back(LookOf(shown.board, blank.board));
        papers.push_back(LookOf(shown.paper, blank.paper));
        editors.push_back(LookOf(shown.editor, blank.editor));
    }
    for (size_t i = 0; i < kCount; ++i) {
        const std::string name = QString::fromUtf16(kNames[i]).toStdString();
        ASSERT_FALSE(boards[i].cells.isEmpty() || papers[i].cells.isEmpty() || editors[i].cells.isEmpty()) << name;
        EXPECT_LT(Difference(boards[i], papers[i]), 0.45) << name << " on paper";
        EXPECT_LT(Difference(boards[i], editors[i]), 0.45) << name << " in the editor";
        // Stickers have letters of their own width.
        EXPECT_NEAR(editors[i].proportion / boards[i].proportion, 1, 0.15) << name;
        // What is compared tells one script from another.
        for (size_t other = 0; other < kCount; ++other) {
            if (other == i) continue;
            EXPECT_GT(Difference(boards[i], papers[other]), Difference(boards[i], papers[i])) << name;
        }
    }
}
