// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_Corner.h"
#include "windows/editors/Likeness.h"
#include "windows/editors/TypedText.h"

/// A corner of the board in its editor: turned so that its diagonal stands upright and its text, which runs
/// at 45 degrees on the board, reads level. Block 0 of the text is edited.
class CornerLikeness : public Likeness {
public:
    /// Private copy being edited.
    C_Corner oCorner;

    GamePiece Piece() const override { return GamePiece::Corner(m_iCorner); }
    QSize Size() const override;
    C_FontInfo& Font() override { return oCorner.Font; }
    C_Image& Image() override { return oCorner.Image; }
    QString TextAll() const override { return oCorner.TextAll(kBlock); }
    void SetText(const QString& sText) override { oCorner.SetText(kBlock, sText); }
    void SetImagePath(const QString& sFullPath) override { oCorner.Image.Let_FullPath(sFullPath); }
    /// Lines of any length; of the last one a record keeps no more than of others.
    QString Joined(const QStringList& sTextLines) const override;
    TypedText::LineRoom Room() const override { return {.iLine = TypedText::kAnyLength}; }

    void LoadFromGame(const Game& game, int iIndex) override;
    void TakeBack(const Game& game) override;
    bool IsDifferentFromGame(const Game& game) const override;
    Edit ChangeOf(const Game& game) const override;
    Edit AllFontsOf(const Game& game) const override;

protected:
    QStringList LinesInUse() const override { return oCorner.TextArray(kBlock); }
    TextBox TextPlace() override;
    QRect ImagePlace() override;
    int LineHeight() override;
    void DrawOutline() override;

private:
    static constexpr int kBlock = 0;

    const C_Corner& InGame(const Game& game) const;

    int m_iCorner = 0;
};
