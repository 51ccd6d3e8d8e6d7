// SPDX-License-Identifier: MIT
#include "platform/files/Console.h"
#include "tools/PrintCommand.h"

#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv) {
    Console::SilenceToolkit();
    Console::UseNoDisplay();
    Console::ClearUpWhenEnded();
    const QGuiApplication application(argc, argv);
    return PrintCommand(std::cout, std::cerr, Console::ErrorIsTerminal()).Run(QGuiApplication::arguments().mid(1));
}
