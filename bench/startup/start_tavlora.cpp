// SPDX-License-Identifier: MIT
// The program itself, but it ends with the first paint of the board, and shows its splash without waiting.
#include "app/RunProgram.h"
#include "FirstPaint.h"
#include "windowing/DesktopWidgets.h"

namespace {

/// Lets the windows be painted, and goes on.
class HurriedDesktop : public DesktopWidgets {
public:
    void Sleep(int) override { DoEvents(); }
};

FirstPaint& BoardPainted() {
    static FirstPaint firstPaint("picBoard");
    return firstPaint;
}

void Watch() { QCoreApplication::instance()->installEventFilter(&BoardPainted()); }

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)

int main(int argc, char** argv) {
    HurriedDesktop desktop;
    return RunProgram(argc, argv, desktop);
}
