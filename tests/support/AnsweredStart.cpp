// SPDX-License-Identifier: MIT
// A whole start of the program, as its main does it, with somebody in front of it who answers every box. Tests run it
// as a process of its own. What is seen goes to standard output, a line each: "box: ..." for a box, "splash" while the
// splash stands, and, once the window is up, "title: ..." with its title; then the program ends.
//   answered_start ANSWER MILLISECONDS [GAME]
// ANSWER (yes, no) goes to every question; the splash stands for so many milliseconds in place of its own time.
#include "app/RunProgram.h"
#include "board/basPositPaint.h"
#include "support/EndAtOperation.h"
#include "windowing/DesktopWidgets.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

void Say(const char* what, const QString& text = QString()) {
    std::printf("%s%s\n", what, qUtf8Printable(text.simplified()));
    std::fflush(stdout);
}

class AnsweringDesktop : public DesktopWidgets {
public:
    AnsweringDesktop(bool bYes, int iSplash) : m_yes(bYes), m_splash(iSplash) {}

    int MsgBox(const QString& sText, int iStyle, const QString& /*sTitle*/) override {
        Say("box: ", sText);
        switch (iStyle & 0xF) {
            case vbYesNo:
            case vbYesNoCancel:
                return m_yes ? vbYes : vbNo;
            default:
                return vbOK;
        }
    }
    void Sleep(int /*milliseconds*/) override {
        Say("splash");
        DesktopWidgets::Sleep(m_splash);
        QTimer::singleShot(0, [this] { EndWhenUp(); });
    }

private:
    void EndWhenUp() {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() != QStringLiteral("frmTAVL") || !top->isVisible()) continue;
            // Not before its pictures are painted.
            top->grab();
            if (basPosit::PosPicturesAwaited() > 0) break;
            Say("title: ", top->windowTitle());
            EndProgram(0);
        }
        QTimer::singleShot(20, [this] { EndWhenUp(); });
    }

    bool m_yes;
    int m_splash;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    EndAtOperation::AsTold();
    AnsweringDesktop desktop(std::strcmp(argv[1], "yes") == 0, std::atoi(argv[2]));
    std::array<char, 8> name = {"tavlora"};
    std::array<char*, 3> words = {name.data(), argc > 3 ? argv[3] : nullptr, nullptr};
    return RunProgram(argc > 3 ? 2 : 1, words.data(), desktop);
}
