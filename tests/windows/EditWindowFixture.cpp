// SPDX-License-Identifier: MIT
#include "windows/EditWindowFixture.h"

#include "services/basPath.h"
#include "support/PictureFiles.h"
#include "windowing/PictureBox.h"

#include <QBuffer>
#include <QDataStream>
#include <QLabel>
#include <QListWidget>

namespace {

constexpr quint16 kRecordSetWindowOrg = 0x020B;
constexpr quint16 kRecordSetWindowExt = 0x020C;
constexpr quint16 kRecordCreateBrush = 0x02FC;
constexpr quint16 kRecordSelectObject = 0x012D;
constexpr quint16 kRecordRectangle = 0x041B;
constexpr quint16 kRecordEnd = 0;

void Record(QDataStream& out, quint16 function, std::initializer_list<quint16> words) {
    out << quint32(3 + words.size()) << function;
    for (const quint16 word : words)
        out << word;
}

// A red square that fills the whole of its window.
QByteArray RedMetafile() {
    constexpr quint16 kSide = 100;
    QByteArray records;
    QDataStream out(&records, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    Record(out, kRecordSetWindowOrg, {0, 0});
    Record(out, kRecordSetWindowExt, {kSide, kSide});
    Record(out, kRecordCreateBrush, {0, 0x00FF, 0, 0});
    Record(out, kRecordSelectObject, {0});
    Record(out, kRecordRectangle, {kSide, kSide, 0, 0});
    Record(out, kRecordEnd, {});

    QByteArray file;
    QDataStream whole(&file, QIODevice::WriteOnly);
    whole.setByteOrder(QDataStream::LittleEndian);
    constexpr quint16 kWordsOfHead = 9;
    constexpr quint16 kVersion = 0x0300;
    constexpr quint32 kLongestRecord = 7;
    whole << quint16(1) << kWordsOfHead << kVersion << quint32(kWordsOfHead + records.size() / 2) << quint16(1)
          << kLongestRecord << quint16(0);
    return file + records;
}

} // namespace

EditWindowTest::EditWindowTest() {
    frmBrowse::ResetForTest();
    C_Space& space = basTAVL::g_oSpaces(kSpace);
    space.Index = kSpace;
    space.Image.Init(QString(), QStringLiteral("Space"), kSpace);
    space.Cost = QStringLiteral("$140");
    space.SpaceColor = Color::Rgb(192, 0, 96);
    space.CostColor = Color::White();
    space.Font.Size = 48;
    space.SetText(QStringLiteral("Elm\r\nStreet"));
    C_Corner& corner = basTAVL::g_oCorners(kCorner);
    corner.Index = kCorner;
    corner.Image.Init(QString(), QStringLiteral("Corner"), kCorner);
    corner.Font.Size = 48;
    corner.SetText(1, QStringLiteral("Second\r\nblock"));
    corner.SetText(0, QStringLiteral("Lose\r\nTurn"));
}

EditWindowTest::~EditWindowTest() { frmBrowse::ResetForTest(); }

void EditWindowTest::InWindow(const std::function<void()>& doIt) {
    QTimer::singleShot(0, window, [this, doIt] {
        // Without a screen nobody activates a window that is shown a second time.
        QApplication::setActiveWindow(window);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
        doIt();
        window->hide();
    });
}

void EditWindowTest::Click(const char* button) { QTest::mouseClick(Find<QAbstractButton>(button), Qt::LeftButton); }

void EditWindowTest::ClickPicture(int x, int y, Qt::MouseButton button) {
    QTest::mouseClick(Find<PictureBox>("picDest"), button, {}, {x, y});
}

void EditWindowTest::PressPicture(QPoint at) { QTest::mousePress(Find<PictureBox>("picDest"), Qt::LeftButton, {}, at); }

void EditWindowTest::ReleasePicture(QPoint at) {
    QTest::mouseRelease(Find<PictureBox>("picDest"), Qt::LeftButton, {}, at);
}

void EditWindowTest::DragPicture(QPoint from, QPoint to) {
    PressPicture(from);
    MovePictureWith(Qt::LeftButton, to);
    ReleasePicture(to);
}

void EditWindowTest::MovePicture(int x, int y) { MovePictureWith(Qt::NoButton, {x, y}); }

void EditWindowTest::MovePictureWith(Qt::MouseButton button, QPoint at) {
    auto* picture = Find<PictureBox>("picDest");
    QMouseEvent move(QEvent::MouseMove, at, picture->mapToGlobal(at), Qt::NoButton, button, Qt::NoModifier);
    QApplication::sendEvent(picture, &move);
}

void EditWindowTest::Type(const QString& text) {
    for (const QChar character : text) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        if (character == u'\n') {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        } else {
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
        }
    }
}

void EditWindowTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

QString EditWindowTest::Tip() {
    const auto* tip = Find<QLabel>("txtToolTip");
    // One that belongs to a button comes when the mouse has rested there for a while.
    (void)QTest::qWaitFor([&] { return tip->isVisible() || tip->text().isEmpty(); }, 3000);
    return tip->isVisible() ? tip->text() : QString();
}

QImage EditWindowTest::Shown() { return Find<PictureBox>("picDest")->Image(); }

bool EditWindowTest::Redraws(const std::function<void()>& doIt) {
    // On a space and on a corner alike: filled with the board's colour, and no text comes there.
    constexpr QPoint kBelowTheText(180, 305);
    constexpr QRgb kMark = qRgb(1, 2, 3);
    auto* picture = Find<PictureBox>("picDest");
    picture->hDC().SetPixel(kBelowTheText.x(), kBelowTheText.y(), Color::Rgb(1, 2, 3));
    EXPECT_EQ(picture->Image().pixel(kBelowTheText), kMark);
    doIt();
    return picture->Image().pixel(kBelowTheText) != kMark;
}

void EditWindowTest::InBrowser(const std::function<void(frmBrowse&)>& doIt) {
    QTimer::singleShot(0, window, [this, doIt] {
        auto* browser = qobject_cast<frmBrowse*>(QApplication::activeModalWidget());
        if (!browser) return;
        ++browsersSeen;
        doIt(*browser);
        if (browser->isVisible()) browser->hide();
    });
}

void EditWindowTest::Choose(frmBrowse& browser, const QString& name) {
    auto* files = browser.findChild<QListWidget*>(QStringLiteral("filList"));
    const QList<QListWidgetItem*> found = files->findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    files->scrollToItem(found[0]);
    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualItemRect(found[0]).center());
    QTest::mouseClick(browser.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
}

void EditWindowTest::Cancel(QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdCancel")), Qt::LeftButton);
}

// Pictures lie where the user's games lie.
QString EditWindowTest::MakePicture(const QString& name, int width, int height) {
    const QString path = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), name);
    EXPECT_TRUE(PictureFiles::Quarters(width, height).save(path));
    return path;
}

QString EditWindowTest::MakeMetafile(const QString& name) {
    const QString path = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(RedMetafile());
    return path;
}
