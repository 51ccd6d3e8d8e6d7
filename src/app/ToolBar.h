// SPDX-License-Identifier: MIT
#pragma once

#include "app/ToolBarTable.h"

#include <QObject>
#include <QPointF>
#include <QString>

#include <array>
#include <functional>

class PictureBox;
class QWidget;
class ToolTips;

/// The hand-made toolbar: a picture of button faces, of which the one under the mouse has a frame. Coordinates
/// are twips of the picture.
class ToolBar : public QObject {
    Q_OBJECT

public:
    /// A click on a button runs an entry of a menu, by its index there.
    ToolBar(QWidget& parent, ToolTips& tips, std::function<void(Menu, int)> run);

    void InitButtonPositions();
    /// Paints the faces on the colour of the desktop's theme.
    void Draw();
    /// Keeps the button under the mouse and frames it.
    void WhichButton(int Button, int Shift, float X, float Y);

public Q_SLOTS:
    void imgToolBar_MouseDown(int Button, int Shift, float X, float Y);
    void imgToolBar_MouseMove(int Button, int Shift, float X, float Y);
    void imgToolBar_MouseUp(int Button, int Shift, float X, float Y);
    void imgToolBar_MouseLeft();

private Q_SLOTS:
    void imgToolBar_BackingChanged();

private:
    void FrameButton(int iButton, bool bPressed);
    void HideButtonFrame();
    void SetButtonTips(int iButton);

    ToolTips& m_tips;
    std::function<void(Menu, int)> m_run;

    PictureBox* imgToolBar;
    QWidget* linButTop;
    QWidget* linButLeft;
    QWidget* linButBottom;
    QWidget* linButRight;

    std::array<qint16, ToolBarTable::kButtons> m_iButtonLeft{};
    int m_iButton = -1;
    int m_iButtonState = 0;
    QString m_sToolBarTip;
    QPointF m_last{-1, -1};
};
