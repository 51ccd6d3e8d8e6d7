// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Tavlora"));
    window.resize(960, 960);
    window.show();
    return QApplication::exec();
}
