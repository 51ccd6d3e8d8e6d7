// SPDX-License-Identifier: MIT
// The least that a program of this toolkit does until somebody sees it: one window with a menu, a tool bar and
// a text. Ends with its first paint.
#include "FirstPaint.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    FirstPaint firstPaint("text");
    application.installEventFilter(&firstPaint);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&Game"))->addAction(QStringLiteral("E&xit"));
    window.addToolBar(QStringLiteral("Tools"))->addAction(QStringLiteral("New"));
    auto* text = new QLabel(QStringLiteral("A board game"));
    text->setObjectName(QStringLiteral("text"));
    text->setAutoFillBackground(true);
    window.setCentralWidget(text);
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
