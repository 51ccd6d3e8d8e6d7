// SPDX-License-Identifier: MIT
#include "app/RunProgram.h"
#include "windowing/DesktopWidgets.h"

int main(int argc, char** argv) {
    DesktopWidgets desktop;
    return RunProgram(argc, argv, desktop);
}
