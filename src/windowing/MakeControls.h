// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLabel;
class QPushButton;
class QWidget;

// Controls as most windows make them. Windows, tests and help find them by their names.

template <typename Control>
Control* Named(Control* control, const QString& sName) {
    control->setObjectName(sName);
    return control;
}
template <typename Control>
Control* Named(Control* control, const char* sName) {
    return Named(control, QString::fromLatin1(sName));
}

/// Enter presses it only where it has the focus.
QPushButton* MakeButton(QWidget* parent, const QString& sName, const QString& sCaption, const QString& sToolTip = {});
QPushButton* MakeButton(QWidget* parent, const char* sName, const char* sCaption);

/// Plain text of as many lines as it needs.
QLabel* MakeLabel(QWidget* parent, const QString& sName, const QString& sText = {});
QLabel* MakeLabel(QWidget* parent, const char* sName);
/// Makes a label that breaks its lines so wide, in pixels, or as wide as so many letters of a large font, and as high
/// as its words are then: a window's layout asks no label how high it is.
void MakeRoomForWords(QLabel& label, int width, int letters);
