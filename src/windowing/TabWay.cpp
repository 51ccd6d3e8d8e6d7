// SPDX-License-Identifier: MIT
#include "windowing/TabWay.h"

#include <QLayout>
#include <QWidget>

namespace {

// Widgets inside a control, such as the parts of a list, stay in its own care.
void Collect(const QLayout& layout, QWidgetList& controls) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* const item = layout.itemAt(i);
        if (const QLayout* inner = item->layout()) Collect(*inner, controls);
        QWidget* const widget = item->widget();
        if (!widget) continue;
        if (widget->focusPolicy() != Qt::NoFocus) controls.append(widget);
        if (widget->layout()) Collect(*widget->layout(), controls);
    }
}

} // namespace

void TabAlongTheLayout(QWidget& window) {
    QWidgetList controls;
    if (window.layout()) Collect(*window.layout(), controls);
    for (qsizetype i = 0; i + 1 < controls.size(); ++i)
        QWidget::setTabOrder(controls[i], controls[i + 1]);
}
