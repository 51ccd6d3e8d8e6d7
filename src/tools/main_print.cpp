// SPDX-License-Identifier: MIT
#include "platform/Printer.h"
#include "print/clsRenderDestination.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

int PrintRules(const QString& sPath) {
    PdfPrinter printer(sPath, QStringLiteral("Rules"));
    clsRenderDestination destination;
    destination.Init(printer, 1.0);
    destination.InstructionSheet({QStringLiteral("Family Tavlo"), QStringLiteral("Good News"),
                                  QStringLiteral("Bad News"), QStringLiteral("Start"), QStringLiteral("Lose Turn"),
                                  QStringLiteral("Free Space"), QStringLiteral("Fate!")});
    printer.EndDoc();
    QString error;
    if (printer.Close(error)) return 0;
    std::fprintf(stderr, "%s: %s\n", qPrintable(sPath), qPrintable(error));
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QStringLiteral("--rules-only") &&
        arguments[2] == QStringLiteral("-o")) {
        return PrintRules(arguments[3]);
    }
    std::fprintf(stderr, "usage: tavlora-print --rules-only -o FILE.pdf\n");
    return 2;
}
