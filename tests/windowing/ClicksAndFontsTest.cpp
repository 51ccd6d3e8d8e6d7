// SPDX-License-Identifier: MIT
// Double clicks that open a window, and what the dialog for fonts offers.
#include "support/ModalSteps.h"
#include "support/TestFixture.h"
#include "windowing/Application.h"
#include "windowing/DesktopWidgets.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

namespace {

/// A button that opens a window whose own button comes to lie under the mouse.
class SecondPressTest : public TavloraTest {
protected:
    SecondPressTest() {
        qApp->installEventFilter(&filter);
        for (QPushButton* button : {&opener, &closer})
            button->setGeometry(0, 0, 80, 40);
        QObject::connect(&opener, &QPushButton::pressed, &opened, &QDialog::show);
        QObject::connect(&closer, &QPushButton::clicked, &opened, &QDialog::hide);
        for (QWidget* window : std::initializer_list<QWidget*>{&first, &opened})
            window->setGeometry(100, 100, 200, 100);
        first.show();
    }
    /// A press and a release, so many milliseconds after the last ones.
    void Click(QPushButton& button, int after, QPoint at = {20, 20}) {
        m_when += quint64(after);
        Send(button, QEvent::MouseButtonPress, at);
        Send(button, QEvent::MouseButtonRelease, at);
    }

    SecondPressFilter filter;
    QWidget first;
    QPushButton opener{&first};
    QDialog opened;
    QPushButton closer{&opened};

private:
    void Send(QPushButton& button, QEvent::Type type, QPoint at) const {
        const Qt::MouseButtons down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, button.mapToGlobal(at), Qt::LeftButton, down, Qt::NoModifier);
        event.setTimestamp(m_when);
        QApplication::sendEvent(&button, &event);
    }

    quint64 m_when = 100000;
};

} // namespace

TEST_F(SecondPressTest, OfADoubleClickIsNotHandedToTheWindowThatTheFirstOpened) {
    Click(opener, 1000);
    ASSERT_TRUE(opened.isVisible());
    Click(closer, 200);
    EXPECT_TRUE(opened.isVisible());
    Click(closer, 200);
    EXPECT_TRUE(opened.isVisible()) << "nor the third";
    Click(closer, 2000);
    EXPECT_FALSE(opened.isVisible()) << "a click that was meant";
}

TEST_F(SecondPressTest, ElsewhereItWasMeant) {
    Click(opener, 1000);
    Click(closer, 200, {70, 20});
    EXPECT_FALSE(opened.isVisible());
}

TEST_F(SecondPressTest, InTheSameWindowItWasMeant) {
    opened.show();
    Click(closer, 1000);
    EXPECT_FALSE(opened.isVisible());
    opened.show();
    Click(opener, 1000);
    bool pressed = false;
    QObject::connect(&opener, &QPushButton::pressed, [&] { pressed = true; });
    Click(opener, 100);
    EXPECT_TRUE(pressed);
}

TEST(FontDialogTest, OffersNoUnderlineThatNothingWouldComeOf) {
    int seen = 0;
    ModalSteps person;
    person.OnceIn("", [&](QWidget& window) {
        for (const QCheckBox* effect : window.findChildren<QCheckBox*>()) {
            EXPECT_FALSE(effect->isVisible()) << effect->text().toStdString();
            ++seen;
        }
        EXPECT_TRUE(window.findChild<QLineEdit*>()->isVisible());
    });
    CommonDialog dialog;
    dialog.sFontName = QStringLiteral("Arial");
    EXPECT_FALSE(DesktopWidgets().ShowFont(dialog));
    EXPECT_EQ(seen, 2);
}
