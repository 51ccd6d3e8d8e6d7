// SPDX-License-Identifier: MIT
#include "windowing/MakeControls.h"

#include "windowing/ButtonKeys.h"
#include "windowing/WidgetLook.h"

#include <QLabel>
#include <QPushButton>

QPushButton* MakeButton(QWidget* parent, const QString& sName, const QString& sCaption, const QString& sToolTip) {
    auto* button = Named(new QPushButton(sCaption, parent), sName);
    LetEnterPressWithFocusOnly(*button);
    if (!sToolTip.isEmpty()) WidgetLook::SetToolTip(*button, sToolTip);
    return button;
}

QPushButton* MakeButton(QWidget* parent, const char* sName, const char* sCaption) {
    return MakeButton(parent, QString::fromLatin1(sName), QString::fromLatin1(sCaption));
}

QLabel* MakeLabel(QWidget* parent, const QString& sName, const QString& sText) {
    auto* label = Named(new QLabel(sText, parent), sName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* MakeLabel(QWidget* parent, const char* sName) { return MakeLabel(parent, QString::fromLatin1(sName)); }

void MakeRoomForWords(QLabel& label, int width, int letters) {
    const int all = qMax(width, letters * label.fontMetrics().averageCharWidth());
    label.setFixedWidth(all);
    label.setMinimumHeight(label.heightForWidth(all));
}
