// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/TextSelection.h"
#include "windows/editors/TypedHistory.h"
#include "windows/editors/TypedText.h"

#include <QDialog>
#include <QPoint>
#include <QStringList>

#include <optional>

class HoldFocusBox;
class PaperLine;
class PictureBox;
class TipLabel;

/// A window in which one text is typed straight onto a picture of what it stands on. Brings keyboard, input
/// method, clipboard and Tab key to the text and its caret; what becomes of the text, and how it looks, is for
/// the editor.
class TypingWindow : public QDialog {
    Q_OBJECT
public:
    /// The lines being edited, never fewer than one.
    virtual QStringList GetTextArray() const = 0;
    virtual void Redraw() = 0;

protected:
    /// Prefix of the error stack, with "!", and the name of the small floating text.
    TypingWindow(const char* sModule, const char* sTip, QWidget* parent);

    /// Stores the lines after typing and fits them; the window is redrawn next.
    virtual void KeepTyped(const QStringList& sTextLines) = 0;
    /// Units of the lines that are kept.
    virtual TypedText::LineRoom Room() const { return {}; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Points the drawing layer at the picture, as fitting a text measures there.
    void UsePicDest();
    /// Places the caret behind the text, as whoever comes without a click expects it.
    void PlaceCaretBehind();
    /// What was typed before isn't taken back any more, nor told: another text is edited.
    void BeginTyping();
    /// A second click in a row marks the word, a third the line, and with Shift the text up to the click. False for a
    /// plain click.
    bool MarkByClick(int iShift, int iCol, int iRow);
    /// The place in the text at a point of the picture, in pixels; nothing beside the text.
    virtual std::optional<QPoint> TextPlaceAt(QPoint at) = 0;
    /// Brings the focus back to where keys go to the text.
    void TakeFocus();
    /// Tells the input method whether and where text can be typed now.
    void ShowTyping();

    TextSelection m_selection;
    /// From the left button going down on the text until it is released.
    bool m_bSelecting = false;
    PictureBox* const picDest;
    HoldFocusBox* const txtHoldFocus;
    TipLabel* const m_tip;
    /// Told anew with each redraw; where it stands is for the editor.
    PaperLine* const lblPaper;

private:
    bool TakesKey(const QKeyEvent& event);
    void Form_KeyDown(const TypedText::Key& key);
    void Form_KeyPress(const QString& sText);
    void StoreTyped(basEditTextArray::KeyResult result, const QStringList& sTextLines, const TypedText::Entry& before);
    void Step(bool bUndo);
    TypedHistory::State State() const { return {0, GetTextArray(), m_selection}; }
    void HoldFocus_Tabbed();
    void HoldFocus_TabbedOut();
    void HoldFocus_Composing(const QString& sText);

    const char* const m_sModule;
    TypedHistory m_history;
};
