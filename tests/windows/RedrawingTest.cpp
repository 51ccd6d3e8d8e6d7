// SPDX-License-Identifier: MIT
// While a window draws itself no box comes up, and none is lost whatever becomes of the drawing.
#include "windows/editors/Redrawing.h"

#include "services/Desktop.h"
#include "support/TestFixture.h"

#include <QGuiApplication>

#include <stdexcept>

namespace {

class Drawn : public QWidget {
public:
    void Again() {}
};

class RedrawingTest : public TavloraTest {
protected:
    static void Post(const char* sMessage) { basMsgQueue::MsgQueue_Post(QString::fromLatin1(sMessage), vbInformation); }

    Drawn window;
};

TEST_F(RedrawingTest, OneThatFailsLeavesNoQueueThatSwallowsBoxes) {
    try {
        const Redrawing redrawing(window, &Drawn::Again);
        Post("amid");
        EXPECT_TRUE(desktop.boxes.isEmpty());
        throw std::runtime_error("the drawing");
    } catch (const std::runtime_error&) {
        EXPECT_FALSE(basMsgQueue::MsgQueue_IsOpen());
    }
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("amid")});
    Post("behind");
    EXPECT_EQ(desktop.Texts(), (QStringList{QStringLiteral("amid"), QStringLiteral("behind")}));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "nor an hourglass";
}

TEST_F(RedrawingTest, BoxesOfOneWithinAnotherWaitForTheOuter) {
    {
        Redrawing outer(window, &Drawn::Again);
        {
            Redrawing inner(window, &Drawn::Again);
            Post("amid");
            inner.ShowMessages();
        }
        EXPECT_TRUE(desktop.boxes.isEmpty());
        outer.ShowMessages();
        EXPECT_EQ(desktop.boxes.size(), 1);
    }
    EXPECT_EQ(desktop.boxes.size(), 1);
}

} // namespace
