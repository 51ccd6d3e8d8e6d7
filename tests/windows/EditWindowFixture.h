// SPDX-License-Identifier: MIT
#pragma once

#include "support/GameFixture.h"

#include "game/Session.h"
#include "windows/pictures/frmBrowse.h"

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

class EditWindow;
class QLabel;

/// A game with a space, a corner and pictures, and a person in front of an editor window.
class EditWindowTest : public GameTest {
protected:
    static constexpr int kSpace = 5;
    static constexpr int kCorner = 1;

    EditWindowTest();
    ~EditWindowTest() override;

    /// Shows a window and does something in it; the window is closed afterwards if that left it open. Gives
    /// whether the game changed.
    template <typename Window>
    bool Edit(Window& form, int iIndex, const std::function<void()>& doIt) {
        window = &form;
        bool changed = false;
        InWindow(doIt);
        form.ShowForm(iIndex, changed);
        return changed;
    }

    template <typename Control>
    Control* Find(const char* name) {
        auto* control = window->findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void Click(const char* button);
    void ClickPicture(int x, int y, Qt::MouseButton button = Qt::LeftButton);
    void DragPicture(QPoint from, QPoint to);
    void PressPicture(QPoint at);
    void ReleasePicture(QPoint at);
    /// The mouse moves over the picture; the left button is held or none is.
    void MovePicture(int x, int y);
    void MovePictureWith(Qt::MouseButton button, QPoint at);
    /// Goes to whatever has the focus.
    void Type(const QString& text);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The text of the floating tip; empty while none shows.
    QString Tip();
    /// What the picture box shows.
    QImage Shown();
    /// Whether something draws the picture anew: nothing but a redraw takes a dot off that nobody draws.
    bool Redraws(const std::function<void()>& doIt);

    /// Does something in the image browser that the next action opens, then closes it.
    void InBrowser(const std::function<void(frmBrowse&)>& doIt);
    static void Choose(frmBrowse& browser, const QString& name);
    static void Cancel(QDialog& dialog);
    int browsersSeen = 0;

    QString MakePicture(const QString& name, int width = 60, int height = 60);
    QString MakeMetafile(const QString& name);

    /// Does something in the window once it stands, and closes it in the end.
    void InWindow(const std::function<void()>& doIt);

    Session session;
    QDialog* window = nullptr;
};
