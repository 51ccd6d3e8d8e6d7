// SPDX-License-Identifier: MIT
// A row for each window: how it is opened. EveryWindowTest names a window of the sources that has none.
#include "EveryWindow.h"

#include "app/frmAbout.h"
#include "app/frmPrintManual.h"
#include "kit/WholeKit.h"
#include "platform/printing/Printer.h"
#include "support/PictureFiles.h"
#include "windowing/SystemPrinter.h"
#include "windows/check/frmBeforePrint.h"
#include "windows/check/frmCheck.h"
#include "windows/check/GameChecker.h"
#include "windows/checkpage/CheckPrinter.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/frmEditNews.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmEditToken.h"
#include "windows/editors/frmShowNews.h"
#include "windows/editors/frmShowTokens.h"
#include "windows/games/frmEarlierVersions.h"
#include "windows/missing/frmMissingPictures.h"
#include "windows/nokit/PrintWithoutKit.h"
#include "windows/photos/frmDealPhotos.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/frmFileName.h"
#include "windows/pictures/frmImagePosition.h"
#include "windows/print/frmColor.h"
#include "windows/print/frmPrintTest.h"
#include "windows/print/frmPrntPrep.h"
#include "windows/print/frmTavlPrint.h"
#include "windows/print/PdfReady.h"
#include "windows/print/PrintEverything.h"
#include "windows/print/PrintPreview.h"
#include "windows/sending/frmPieces.h"
#include "windows/sending/frmSendGame.h"

#include <QButtonGroup>
#include <QDirIterator>
#include <QRadioButton>
#include <QTabWidget>

namespace {

std::vector<Finding> TwoFindings() {
    const QString text = QStringLiteral("The photo of this space isn't where the game looks for it any more.");
    return {{QStringLiteral("picture-missing"), Severity::Must, GamePiece::Space(3), text, text, {}},
            {QStringLiteral("text-small"), Severity::Should, GamePiece::Space(5), text, text, {}}};
}

// Tab comes to the option that is chosen, and the arrows go on from there to the others.
bool IsLeftToArrows(const QWidget& control) {
    const auto* const option = qobject_cast<const QRadioButton*>(&control);
    return option && option->group() && option->group()->checkedButton() && !option->isChecked();
}

// What is shown without a call of its own stands as a modal window for as long as it is looked at.
void ShowModally(QDialog& window) { window.exec(); }

} // namespace

EveryWindowTest::EveryWindowTest() { StartWithSample(); }

void EveryWindowTest::StartWithSample() {
    Start(QStringLiteral("tavlora"), QStringLiteral("false"), QStringLiteral(TAVLORA_DATA_DIR "/Town_US.gam"));
}

QString EveryWindowTest::MakePhoto() const {
    return WriteFile(QStringLiteral("photo.png"), PictureFiles::Encoded(PictureFiles::Quarters(400, 300), "png"));
}

std::vector<EveryWindowTest::Door> EveryWindowTest::EditorDoors() {
    Session& session = window->Commands().InHand();
    return {
        {"frmEditCenter", [&session] { frmEditCenter(session).Ask(); }},
        {"frmEditCorner", [&session] { frmEditCorner(session).Ask(1); }},
        {"frmEditMoney", [&session] { frmEditMoney(session).Ask(); }},
        {"frmEditNews", [&session] { frmEditNews(session).Ask(0, 1); }},
        {"frmEditSpace", [&session] { frmEditSpace(session).Ask(2); }},
        {"frmEditToken", [&session] { frmEditToken(session).Ask(0); }},
        {"frmShowNews",
         [&session] {
             bool changed = false;
             frmShowNews(session).ShowForm(0, changed);
         }},
        {"frmShowTokens",
         [&session] {
             bool changed = false;
             frmShowTokens(session).ShowForm(changed);
         }},
    };
}

std::vector<EveryWindowTest::Door> EveryWindowTest::PictureDoors() {
    Session& session = window->Commands().InHand();
    return {
        {"frmBrowse", [this] { frmBrowse().ShowForm(MakePhoto(), true); }},
        {"frmMissingPictures", [&session] { frmMissingPictures(session).ShowForm(GamePiece()); }},
        {"frmDealPhotos", [&session] { frmDealPhotos(session).ShowForm(); }},
        {"frmFileName", [this] { frmFileName().ShowForm(MakePhoto()); }},
        {"frmImagePosition",
         [this] {
             C_Image image;
             image.Init(MakePhoto(), QString(), 0);
             frmImagePosition().ShowForm(image, 1.0, false);
         }},
    };
}

std::vector<EveryWindowTest::Door> EveryWindowTest::PrintDoors() {
    return {
        {"frmColor", [] { frmColor().ShowForm(); }},
        {"frmPrintTest",
         [] {
             frmPrintTest page;
             ShowModally(page);
         }},
        {"frmPrntPrep", [] { frmPrntPrep().ShowForm(QStringLiteral("Position white paper in your printer.")); }},
        {"frmTavlPrint", [] { frmTavlPrint().ShowForm(false); }},
        {"PrintEverything", [] { PrintEverything().ShowForm(false); }},
        {"PrintWithoutKit", [] { PrintWithoutKit().ShowForm(); }},
        {"CheckPrinter", [] { CheckPrinter().ShowForm(); }},
        {"PdfReady",
         [] {
             PdfReady ready(QStringLiteral("Rules.pdf"), Sheets().back(), nullptr);
             ShowModally(ready);
         }},
        {"PrintPreview",
         [] {
             const std::vector<WholeKit::Run> runs = {WholeKit::Runs(Kit::Eight, 6).front()};
             PrintPreview().ShowForm(*Printer::Current(), runs, PrintPreview::From::Console);
         }},
    };
}

std::vector<EveryWindowTest::Door> EveryWindowTest::OtherDoors() {
    Session& session = window->Commands().InHand();
    return {
        {"frmAbout", [] { frmAbout().ShowForm(); }},
        {"frmPrintManual", [] { frmPrintManual().ShowForm(false); }},
        {"frmCheck",
         [&session] {
             GameChecker checker(session);
             frmCheck list(checker, {});
             ShowModally(list);
         }},
        {"frmBeforePrint", [&session] { frmBeforePrint(session.InHand(), TwoFindings(), 1, nullptr).Ask(); }},
        {"frmPieces", [] { frmPieces(QStringLiteral("Town")).ShowForm(); }},
        {"frmSendGame", [this] { frmSendGame({}, folder.path()).ShowForm(); }},
        {"frmEarlierVersions", [&session] { frmEarlierVersions().ShowForm(session.GameName()); }},
    };
}

std::vector<EveryWindowTest::Door> EveryWindowTest::Doors() {
    std::vector<Door> all;
    for (const std::vector<Door>& some : {EditorDoors(), PictureDoors(), PrintDoors(), OtherDoors()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

// With each tab of its panel in front.
void EveryWindowTest::LookAtMainWindow(const Look& look) {
    window->resize(1300, 850);
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    auto& panel = Find<QTabWidget>("SidePanel");
    EXPECT_TRUE(panel.isVisible());
    for (int tab = 0; tab < panel.count(); ++tab) {
        if (!panel.isTabVisible(tab)) continue;
        panel.setCurrentIndex(tab);
        look(*window);
    }
}

void EveryWindowTest::InEach(const Look& look) {
    LookAtMainWindow(look);
    SystemPrinter printer(PathOf(QStringLiteral("Printed")));
    Printer* const before = Printer::Install(&printer);
    for (const Door& door : Doors()) {
        bool seen = false;
        WithModal(door.sWindow, [&](QWidget& shown) {
            QTest::qWait(1); // for what a window does when it has come
            look(shown);
            seen = true;
        });
        door.open();
        EXPECT_TRUE(seen) << door.sWindow;
    }
    Printer::Install(before);
}

QStringList EveryWindowTest::Opened() {
    QStringList names = {window->objectName()};
    for (const Door& door : Doors())
        names.append(QString::fromLatin1(door.sWindow));
    names.sort();
    return names;
}

QStringList WindowsOfTheSources() {
    static const QRegularExpression aClass(
        QStringLiteral("\\nclass (\\w+)(?: final)? : public (?:QDialog|QMainWindow|TypingWindow|EditWindow)\\b"));
    QStringList windows;
    for (QDirIterator it(QStringLiteral(TAVLORA_SOURCE_DIR "/src"), {QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext();) {
        QFile header(it.next());
        if (!header.open(QIODevice::ReadOnly)) continue;
        const QString text = QString::fromUtf8(header.readAll());
        for (auto match = aClass.globalMatch(text); match.hasNext();)
            windows.append(match.next().captured(1));
    }
    // What the editors have in common is no window by itself.
    windows.removeAll(QStringLiteral("TypingWindow"));
    windows.removeAll(QStringLiteral("EditWindow"));
    windows.sort();
    return windows;
}

QWidgetList EveryWindowTest::TabStops(const QWidget& window) {
    QWidgetList stops;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->window() != &window || !control->isVisible() || !control->isEnabled()) continue;
        if (IsLeftToArrows(*control)) continue;
        if ((control->focusPolicy() & Qt::TabFocus) == 0 || control->focusProxy()) continue;
        stops.append(control);
    }
    return stops;
}

std::string EveryWindowTest::NameOf(const QWidget& widget) {
    const QString name =
        widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
    return name.toStdString();
}
