// SPDX-License-Identifier: MIT
#include "platform/files/Console.h"
#include "simulator/PlayCommand.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    Console::ClearUpWhenEnded();
    const QCoreApplication application(argc, argv);
    return PlayCommand(std::cout, std::cerr, Console::ErrorIsTerminal()).Run(QCoreApplication::arguments().mid(1));
}
