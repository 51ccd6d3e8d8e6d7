// SPDX-License-Identifier: MIT
// What holds in every window: the way of the Tab key, letters that press buttons, and names for who can't see them.
#include "EveryWindow.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

namespace {

// Where a person sees it: a text that is typed onto a picture stands where the picture does.
QRect SeenPlace(const QWidget& control) {
    const QWidget* seen = &control;
    if (control.objectName() == QStringLiteral("txtHoldFocus")) {
        for (const char* picture : {"picDest", "picForm"}) {
            if (const auto* found = control.window()->findChild<QWidget*>(QString::fromLatin1(picture))) seen = found;
        }
    }
    return {seen->mapTo(seen->window(), QPoint(0, 0)), seen->size()};
}

// Down, to the right, or up to where a column to the right begins.
bool IsNextForTheEye(const QRect& at, const QRect& next) {
    const bool up = next.bottom() < at.top();
    if (up) return next.left() > at.right();
    const bool sameRow = next.top() <= at.bottom() && at.top() <= next.bottom();
    return !sameRow || next.right() >= at.left();
}

QWidgetList Walk(const QWidgetList& stops, Qt::Key key) {
    QWidgetList walked = {QApplication::focusWidget()};
    // Some controls keep the key for places of their own.
    constexpr int kMostPlaces = 40;
    for (qsizetype i = 0; i < stops.size() + kMostPlaces && walked.last(); ++i) {
        QTest::keyClick(walked.last(), key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* const now = QApplication::focusWidget();
        if (now == walked.last()) continue;
        if (now == walked.first()) break;
        walked.append(now);
    }
    return walked;
}

QChar LetterOf(const QString& sCaption) {
    const QString key = QKeySequence::mnemonic(sCaption).toString();
    return key.isEmpty() ? QChar() : key.back();
}

// By letter, whatever in a window answers to it.
using Letters = std::map<QChar, QStringList>;

void Note(Letters& letters, const QString& sCaption) {
    const QChar letter = LetterOf(sCaption);
    if (!letter.isNull()) letters[letter].append(sCaption);
}

Letters LettersOf(const QWidget& window) {
    Letters letters;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (control->window() != &window || !control->isVisible()) continue;
        if (const auto* button = qobject_cast<const QAbstractButton*>(control)) Note(letters, button->text());
        if (const auto* label = qobject_cast<const QLabel*>(control); label && label->buddy())
            Note(letters, label->text());
        if (const auto* box = qobject_cast<const QGroupBox*>(control)) Note(letters, box->title());
        if (const auto* bar = qobject_cast<const QTabBar*>(control)) {
            for (int i = 0; i < bar->count(); ++i)
                Note(letters, bar->tabText(i));
        }
        if (const auto* bar = qobject_cast<const QMenuBar*>(control)) {
            for (const QAction* menu : bar->actions())
                Note(letters, menu->text());
        }
    }
    return letters;
}

// Captions that families know from before: the letter goes from one to the other, and Enter presses.
bool IsKept(const QString& sWindow, const QStringList& captions) {
    const QStringList both = {QStringLiteral("Change &Font"), QStringLiteral("&Find Image")};
    if (sWindow == QStringLiteral("frmEditSpace") || sWindow == QStringLiteral("frmEditCorner"))
        return captions == both;
    return sWindow == QStringLiteral("&View") &&
           captions == QStringList{QStringLiteral("&Token"), QStringLiteral("&Tool Tips")};
}

void ExpectUnique(const QString& sWhere, const Letters& letters) {
    for (const auto& [letter, captions] : letters) {
        if (IsKept(sWhere, captions)) continue;
        EXPECT_EQ(captions.size(), 1) << sWhere.toStdString() << ": " << captions.join(u'|').toStdString();
    }
}

// What the words of a control need to show whole; nothing where it breaks or elides them by itself.
QSize NeededBy(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        if (label->text().isEmpty() || label->inherits("ElidedLabel") || label->inherits("TipLabel")) return {};
        if (!label->wordWrap()) return label->sizeHint();
        return {0, label->heightForWidth(label->width())};
    }
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    if (!button || button->text().isEmpty()) return {};
    return button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
}

void ExpectNothingCut(const QWidget& shown) {
    for (const QWidget* control : shown.findChildren<QWidget*>()) {
        if (control->window() != &shown || !control->isVisible()) continue;
        const QSize needed = NeededBy(*control);
        const bool whole = control->width() >= needed.width() && control->height() >= needed.height();
        EXPECT_TRUE(whole) << shown.objectName().toStdString() << ' ' << control->objectName().toStdString() << " is "
                           << control->width() << " x " << control->height() << " and needs " << needed.width() << " x "
                           << needed.height();
    }
}

QString SpokenName(QWidget& control) {
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&control);
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

} // namespace

TEST_F(EveryWindowTest, EveryWindowOfTheSourcesIsOpened) {
    const QStringList opened = Opened();
    for (const QString& name : WindowsOfTheSources())
        EXPECT_TRUE(opened.contains(name)) << name.toStdString() << " wants a row in tests/app/EveryWindow.cpp";
}

TEST_F(EveryWindowTest, TabReachesEveryControlOnceInTheOrderOfTheEye) {
    InEach([](QWidget& shown) {
        const std::string form = shown.objectName().toStdString();
        const QWidgetList stops = TabStops(shown);
        if (stops.isEmpty()) return;
        stops.first()->setFocus(Qt::OtherFocusReason);
        const QWidgetList walked = Walk(stops, Qt::Key_Tab);
        for (QWidget* stop : stops)
            EXPECT_EQ(walked.count(stop), 1) << form << ' ' << NameOf(*stop);
        std::string back;
        int timesBack = 0;
        for (qsizetype i = 0; i < walked.size() && walked.size() > 1; ++i) {
            const QWidget& next = *walked[(i + 1) % walked.size()];
            if (IsNextForTheEye(SeenPlace(*walked[i]), SeenPlace(next))) continue;
            ++timesBack;
            back += NameOf(*walked[i]) + ", then " + NameOf(next) + "; ";
        }
        EXPECT_LE(timesBack, 1) << form << " goes back but from its last control to its first: " << back;
    });
}

TEST_F(EveryWindowTest, ShiftAndTabGoTheSameWayBack) {
    InEach([](QWidget& shown) {
        const QWidgetList stops = TabStops(shown);
        if (stops.isEmpty()) return;
        stops.first()->setFocus(Qt::OtherFocusReason);
        const QWidgetList there = Walk(stops, Qt::Key_Tab);
        there.first()->setFocus(Qt::OtherFocusReason);
        QWidgetList back = Walk(stops, Qt::Key_Backtab);
        back.append(back.takeFirst());
        std::reverse(back.begin(), back.end());
        EXPECT_EQ(there, back) << shown.objectName().toStdString();
    });
}

TEST_F(EveryWindowTest, EveryLetterPressesOneControlOnly) {
    InEach([](QWidget& shown) { ExpectUnique(shown.objectName(), LettersOf(shown)); });
}

TEST_F(EveryWindowTest, EveryLetterOfAMenuChoosesOneEntryOnly) {
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
        Letters letters;
        for (const QAction* entry : menu->actions())
            Note(letters, entry->text());
        ExpectUnique(menu->title(), letters);
    }
}

TEST_F(EveryWindowTest, EveryControlHasANameThatIsSpoken) {
    // Of a letter, as it stands in a caption.
    static const QRegularExpression mark(QStringLiteral("&\\w"));
    InEach([](QWidget& shown) {
        std::map<QString, const QWidget*> names;
        for (QWidget* stop : TabStops(shown)) {
            const std::string control = shown.objectName().toStdString() + ' ' + NameOf(*stop);
            const QString name = SpokenName(*stop);
            EXPECT_FALSE(name.trimmed().isEmpty()) << control;
            EXPECT_FALSE(name.contains(mark)) << control << ": " << name.toStdString();
            const auto [other, fresh] = names.emplace(name, stop);
            EXPECT_TRUE(fresh) << control << " and " << NameOf(*other->second) << ": " << name.toStdString();
        }
    });
}

TEST_F(EveryWindowTest, NoWordsAreCutHoweverLargeTheDesktopsLettersAre) {
    const QFont before = QApplication::font();
    for (const int points : {9, 12, 15, 18}) {
        SCOPED_TRACE(points);
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        StartWithSample();
        InEach(ExpectNothingCut);
    }
    QApplication::setFont(before);
}
