// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_Space.h"
#include "windows/editors/Likeness.h"
#include "windows/editors/TypedText.h"

/// A space of the board in its editor: upright, 174 by 300 pixels, a colour band with the price on top.
class SpaceLikeness : public Likeness {
public:
    /// Private copy being edited.
    C_Space oSpace;

    GamePiece Piece() const override { return GamePiece::Space(m_iSpace); }
    QSize Size() const override;
    C_FontInfo& Font() override { return oSpace.Font; }
    C_Image& Image() override { return oSpace.Image; }
    QString TextAll() const override { return oSpace.TextAll(); }
    void SetText(const QString& sText) override { oSpace.SetText(sText); }
    void SetImagePath(const QString& sFullPath) override { oSpace.SetImagePath(sFullPath); }
    /// Each line cut to its first 40 characters.
    QString Joined(const QStringList& sTextLines) const override;
    TypedText::LineRoom Room() const override { return {}; }

    void LoadFromGame(const Game& game, int iIndex) override;
    void TakeBack(const Game& game) override;
    bool IsDifferentFromGame(const Game& game) const override;
    Edit ChangeOf(const Game& game) const override;
    Edit AllFontsOf(const Game& game) const override;

protected:
    QStringList LinesInUse() const override { return oSpace.TextArray(); }
    TextBox TextPlace() override;
    QRect ImagePlace() override;
    int LineHeight() override;
    void DrawOutline() override;

private:
    const C_Space& InGame(const Game& game) const;

    int m_iSpace = 0;
};
