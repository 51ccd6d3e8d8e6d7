// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

/// Help in every window, whichever has the keys: F1 opens the window's page of the guide, Shift+F1 tells what the
/// control in hand is for. It listens to the whole program, so that no window has to know of it.
class WindowHelp : public QObject {
    Q_OBJECT

public:
    explicit WindowHelp(QObject* parent = nullptr) : QObject(parent) {}

    /// Opens the page of a window; of the window that it stands before, for one that has none; else the first page.
    static void ShowPageOf(const QWidget& window);
    /// The next click is answered with what the clicked control is for.
    static void AskForControl();
    /// Gives each control of a window its text, for "What is this?" and for screen readers.
    static void GiveTexts(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static bool TakesKey(QWidget& widget, int iKey, Qt::KeyboardModifiers modifiers);
    static void Tell(QWidget& widget);
};
