// SPDX-License-Identifier: MIT
#include "windows/help/WindowHelp.h"

#include "services/basErrLog.h"
#include "services/Guide.h"
#include "windows/help/HelpPages.h"
#include "windows/help/OpenGuide.h"
#include "windows/help/WhatIsThis.h"

#include <QAction>
#include <QKeyEvent>
#include <QWhatsThis>
#include <QWidget>

namespace {

// What the toolkit shows such a text in.
constexpr const char* kTextWindow = "QWhatsThat";

QString PageFor(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        const QString page = HelpPages::PageOf(widget->objectName());
        if (!page.isEmpty()) return page;
    }
    return QString::fromLatin1(Guide::kStepsPage);
}

QString TextFor(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (!widget->whatsThis().isEmpty()) return widget->whatsThis();
        if (widget->isWindow()) break;
    }
    return {};
}

} // namespace

void WindowHelp::ShowPageOf(const QWidget& window) { OpenGuide(PageFor(&window)); }

void WindowHelp::AskForControl() { QWhatsThis::enterWhatsThisMode(); }

void WindowHelp::GiveTexts(QWidget& window) {
    const QString name = window.objectName();
    if (HelpPages::PageOf(name).isEmpty()) return;
    window.setWhatsThis(WhatIsThis::TextOf(name, QString()));
    for (QWidget* const control : window.findChildren<QWidget*>()) {
        if (control->window() != &window || control->objectName().isEmpty()) continue;
        const QString text = WhatIsThis::TextOf(name, control->objectName());
        if (!text.isEmpty()) control->setWhatsThis(text);
    }
    for (QAction* const entry : window.findChildren<QAction*>())
        entry->setWhatsThis(WhatIsThis::TextOf(name, entry->objectName()));
}

void WindowHelp::Tell(QWidget& widget) {
    const QString text = TextFor(&widget);
    if (text.isEmpty()) return AskForControl();
    const QString more = QStringLiteral("Press Shift+F1 once more, then click on anything else to be told about it.");
    QWhatsThis::showText(widget.mapToGlobal(widget.rect().center()),
                         QStringLiteral("<p>%1</p><p><i>%2</i></p>").arg(text.toHtmlEscaped(), more), &widget);
}

bool WindowHelp::TakesKey(QWidget& widget, int iKey, Qt::KeyboardModifiers modifiers) {
    if (iKey != Qt::Key_F1 || (modifiers & ~Qt::ShiftModifier) != 0) return false;
    if (!(modifiers & Qt::ShiftModifier)) {
        ShowPageOf(widget);
    } else if (widget.inherits(kTextWindow)) {
        QWhatsThis::hideText();
        AskForControl();
    } else {
        Tell(widget);
    }
    return true;
}

bool WindowHelp::eventFilter(QObject* watched, QEvent* event) try {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::Show) return false;
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (!widget) return false;
    if (event->type() == QEvent::Show) {
        if (widget->isWindow()) GiveTexts(*widget);
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return TakesKey(*widget, key.key(), key.modifiers());
} catch (...) {
    ErrTop("WindowHelp!", "eventFilter");
    return true;
}
