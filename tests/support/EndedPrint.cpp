// SPDX-License-Identifier: MIT
// The program that prints, to be ended amid its work.
#include "platform/files/Console.h"
#include "support/EndAtOperation.h"
#include "tools/PrintCommand.h"

#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv) {
    EndAtOperation::AsTold();
    Console::SilenceToolkit();
    Console::UseNoDisplay();
    Console::ClearUpWhenEnded();
    const QGuiApplication application(argc, argv);
    return PrintCommand(std::cout, std::cerr, false).Run(QGuiApplication::arguments().mid(1));
}
