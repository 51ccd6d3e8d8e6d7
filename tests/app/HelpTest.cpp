// SPDX-License-Identifier: MIT
// Every window has its page of the guide, and every control of it a text that says what it is for.
#include "EveryWindow.h"

#include "app/frmAbout.h"
#include "app/frmPrintManual.h"
#include "kit/Sheets.h"
#include "pack/Packing.h"
#include "services/Guide.h"
#include "support/AllWindows.h"
#include "support/WindowList.h"
#include "windows/check/frmCheck.h"
#include "windows/check/GameChecker.h"
#include "windows/editors/frmEditNews.h"
#include "windows/help/HelpPages.h"
#include "windows/help/WhatIsThis.h"
#include "windows/help/WindowHelp.h"
#include "windows/print/frmColor.h"
#include "windows/print/frmTavlPrint.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <QWhatsThis>

namespace {

class HelpTest : public AppTest {
protected:
    using AppTest::Find;
    template <typename Widget>
    static Widget& Find(const char* name, QWidget& in) {
        return ::Find<Widget>(in, name);
    }

    using Windows = std::map<QString, std::unique_ptr<QWidget>>;

    Windows AllWindows() {
        Start();
        Session& session = window->Commands().InHand();
        Windows all = ::AllWindows(session);
        const auto add = [&all](QWidget* made) { all.emplace(made->objectName(), made); };
        all.emplace(window->objectName(), nullptr); // stands already
        add(new frmAbout);
        add(new frmPrintManual);
        add(new frmCheck(*new GameChecker(session, window.get()), {}));
        return all;
    }

    // Whether a person can do anything with it or look at what it shows.
    static bool IsControl(const QWidget& widget) {
        const char* const kinds[] = {"QAbstractButton", "QAbstractItemView", "QAbstractSlider", "QAbstractSpinBox",
                                     "QComboBox",       "QLineEdit",         "QPlainTextEdit",  "QTextEdit",
                                     "HoldFocusBox",    "PictureBox"};
        return std::ranges::any_of(kinds, [&](const char* kind) { return widget.inherits(kind); });
    }
    // Named by the toolkit, and the told ones that nobody ever sees.
    static bool IsKept(const QString& name) {
        static const QStringList unseen{QStringLiteral("cmdIndex"), QStringLiteral("cmdHoleFiller"),
                                        QStringLiteral("Command1")};
        return name.isEmpty() || name.startsWith(QStringLiteral("qt_")) || name.startsWith(QStringLiteral("Scroll")) ||
               unseen.contains(name);
    }
    // Those without a text of their own.
    static QStringList Untold(const QWidget& in) {
        QStringList untold;
        for (const QWidget* control : in.findChildren<QWidget*>()) {
            if (control->window() != &in || IsKept(control->objectName()) || !IsControl(*control)) continue;
            if (WhatIsThis::TextOf(in.objectName(), control->objectName()).isEmpty())
                untold.append(in.objectName() + u' ' + control->objectName());
        }
        return untold;
    }
    // The page that something opens in the browser.
    static QString PageOpenedBy(const std::function<void()>& act) {
        QTextBrowser browser;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &browser, "setSource");
        act();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        return browser.source().fileName();
    }
    static QWidget* TextShown() {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->inherits("QWhatsThat") && top->isVisible()) return top;
        }
        return nullptr;
    }

    WindowHelp help;
};

} // namespace

TEST_F(HelpTest, NothingThatTheMainWindowSaysChangesUnseen) {
    const Windows all = AllWindows();
    for (const char* name : {"frmAbout", "frmPrintManual", "frmCheck"})
        WindowList::ExpectListed(*all.at(QString::fromLatin1(name)));
    WindowList::ExpectListed(*window);
}

TEST_F(HelpTest, EveryWindowOfTheSourcesHasAPage) {
    const QStringList windows = WindowsOfTheSources();
    EXPECT_GE(windows.size(), 20);
    for (const QString& name : windows)
        EXPECT_FALSE(HelpPages::PageOf(name).isEmpty())
            << name.toStdString() << " wants a row in src/windows/help/HelpPages.cpp";
}

TEST_F(HelpTest, EveryPageThatIsNamedIsOneOfTheGuide) {
    for (const QString& name : HelpPages::Windows())
        EXPECT_TRUE(Guide::Pages().contains(HelpPages::PageOf(name))) << name.toStdString();
}

TEST_F(HelpTest, EveryControlOfEveryWindowHasAText) {
    const Windows all = AllWindows();
    QStringList made;
    QStringList untold = Untold(*window);
    for (const auto& [name, form] : all) {
        made.append(name);
        if (form) untold += Untold(*form);
    }
    EXPECT_EQ(untold.join(u'\n').toStdString(), "") << "each wants a row in src/windows/help";
    for (const QString& name : HelpPages::Windows())
        EXPECT_TRUE(made.contains(name)) << name.toStdString() << " isn't looked at by this test";
}

TEST_F(HelpTest, EveryEntryOfTheMenusHasAText) {
    Start();
    for (const QAction* entry : window->findChildren<QAction*>()) {
        const QString name = entry->objectName();
        if (!name.startsWith(QStringLiteral("mnu")) || entry->isSeparator() ||
            name.startsWith(QStringLiteral("mnuTop")) || name == QStringLiteral("mnuEdit"))
            continue;
        EXPECT_FALSE(WhatIsThis::TextOf(window->objectName(), name).isEmpty()) << name.toStdString();
    }
}

TEST_F(HelpTest, EveryTextBelongsToAControlThatThereIs) {
    const Windows all = AllWindows();
    for (const auto rows : {WhatIsThis::OfMainWindow(), WhatIsThis::OfMenus(), WhatIsThis::OfEditors(),
                            WhatIsThis::OfPicturesAndPrinting()}) {
        for (const WhatIsThis::Row& row : rows) {
            const QString name = QString::fromLatin1(row.sWindow);
            const QString control = QString::fromLatin1(row.sControl);
            if (name == QStringLiteral("*") || control.isEmpty() || control.endsWith(u'_')) continue;
            ASSERT_TRUE(all.contains(name)) << row.sWindow;
            const QWidget* const form = all.at(name) ? all.at(name).get() : window.get();
            EXPECT_TRUE(form->findChild<QObject*>(control)) << row.sWindow << " " << row.sControl;
        }
    }
}

TEST_F(HelpTest, TextOfTheControlGoesBeforeThatOfItsArrayAndOfAllWindows) {
    const QString console = QStringLiteral("frmTavlPrint");
    EXPECT_NE(WhatIsThis::TextOf(console, QStringLiteral("cmdNav_0")),
              WhatIsThis::TextOf(console, QStringLiteral("cmdNav_1")));
    EXPECT_EQ(WhatIsThis::TextOf(console, QStringLiteral("cmdPrint_12")),
              WhatIsThis::TextOf(console, QStringLiteral("cmdPrint_3")));
    EXPECT_NE(WhatIsThis::TextOf(console, QStringLiteral("cmdCancel")),
              WhatIsThis::TextOf(QStringLiteral("frmEditNews"), QStringLiteral("cmdCancel")));
    EXPECT_EQ(WhatIsThis::TextOf(console, QStringLiteral("cmdNobody")), QString());
}

TEST_F(HelpTest, F1OpensThePageOfTheWindowThatHasTheKeys) {
    qApp->installEventFilter(&help);
    Start();
    EXPECT_EQ(PageOpenedBy([&] { QTest::keyClick(&window->View().Board(), Qt::Key_F1); }),
              QStringLiteral("board.html"));
    frmEditNews news(window->Commands().InHand());
    EXPECT_EQ(PageOpenedBy([&] { QTest::keyClick(&Find<QLineEdit>("txtTitle", news), Qt::Key_F1); }),
              QStringLiteral("news.html"));
    QDialog nameless(&news);
    EXPECT_EQ(PageOpenedBy([&] { QTest::keyClick(&nameless, Qt::Key_F1); }), QStringLiteral("news.html"))
        << "the window that it stands before";
    EXPECT_EQ(PageOpenedBy([&] { ChooseMenu("mnuHelp_30"); }), QStringLiteral("board.html"));
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(HelpTest, ShiftF1TellsAboutTheControlAndThenLetsAskForAnother) {
    qApp->installEventFilter(&help);
    Start();
    frmColor form;
    form.show();
    auto& red = Find<QLineEdit>("txtColor_0", form);
    EXPECT_TRUE(red.whatsThis().startsWith(QStringLiteral("How much red")));
    QTest::keyClick(&red, Qt::Key_F1, Qt::ShiftModifier);
    QWidget* const text = TextShown();
    ASSERT_TRUE(text);
    QTest::keyClick(text, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    QWhatsThis::leaveWhatsThisMode();
}

TEST_F(HelpTest, MenuLetsAskForAnyControl) {
    qApp->installEventFilter(&help);
    Start();
    ChooseMenu("mnuHelp_31");
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    ClickButton(1);
    EXPECT_TRUE(TextShown()) << "told what the button is for";
    EXPECT_TRUE(routes.Take().isEmpty()) << "the button isn't pressed";
    QWhatsThis::hideText();
}
