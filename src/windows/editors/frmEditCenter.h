// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"
#include "platform/paint/Color.h"
#include "windows/editors/TextSelection.h"
#include "windows/editors/TypedHistory.h"
#include "windows/editors/TypedText.h"

#include <QDialog>
#include <QPoint>
#include <QRect>
#include <QStringList>

#include <array>
#include <optional>

class HoldFocusBox;
class PaperLine;
class PictureBox;
class QLabel;
class QPushButton;
class Session;
class TipLabel;

/// Edits the three titles of the game, typed straight onto a likeness of the places where they stand. Works on
/// copies of their records; nothing reaches the game before the window closes.
class frmEditCenter : public QDialog {
    Q_OBJECT

public:
    explicit frmEditCenter(Session& session, QWidget* parent = nullptr);

    /// Shows the window modally and gives what was done to the titles, or nothing.
    std::optional<Edit> Ask();
    /// Shows the window modally; bChanged tells whether a title differs from what it was.
    void ShowForm(bool& bChanged);

    /// The titles as they are typed so far.
    const Titles& Typed() const { return m_titles; }

    /// Paints everything (0) or one area (1 to 3). Raises for any other value.
    void Redraw(int iArea);

public Q_SLOTS:
    /// Escape and the close button do as Cancel does.
    void reject() override;

private Q_SLOTS:
    void RedrawAll();
    void Form_MouseDown(int Button, int Shift, float X, float Y);
    void Form_MouseMove(int Button, int Shift, float X, float Y);
    void Form_MouseUp(int Button, int Shift, float X, float Y);
    void Form_KeyPress(const QString& sCharacters);
    void HoldFocus_Composing(const QString& sText);
    void HoldFocus_TabbedInto(bool bBack);
    void HoldFocus_TabbedOutOf();
    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    static constexpr int kAreas = 3;
    static constexpr int kNoArea = 0;
    static constexpr int kGameName = 1;

    /// By area, 1 to 3.
    template <typename T>
    using PerArea = std::array<T, kAreas + 1>;

    /// How and where the text of an area stands; the same for drawing it and for finding a place in it.
    struct TextPlace {
        QStringList sTextLines;
        QString sFamily;
        bool bItalic = false;
        int lHeight = 0;
        int lWidth = 0;
        QPoint anchor;
        void SelectFont() const;
    };

    /// What lies at a point; the place in the text is told only within an area.
    struct Spot {
        PerArea<bool> bInArea;
        int iRow;
        int iCol;
    };

    double ScaleForLetters() const;
    void Form_Load();
    QLabel* MakeLabel(const QString& sText, const QRect& place);
    QPushButton* MakeButton(const char* sName, const QString& sCaption, const QString& sTip);

    void DrawLogo();
    void DrawName();
    void DrawSubtitle();
    void DrawOccasion();
    void DrawLines(int iArea, Color lBrush);
    void DrawTextOf(int iArea);
    TextPlace PlaceOf(int iArea) const;
    TextPlace PlaceOfName() const;
    TextPlace PlaceOfLines(int iArea) const;

    Spot WhereIsMouse(float X, float Y);
    void CheckMouseInArea(int iArea, float X, float Y, Spot& spot);
    void EditArea(int iArea, int iCol, int iRow);

    bool HandleKey(const QKeyEvent& event);
    bool HandleTab(bool bBack);
    void EditBehindText(int iArea);
    void Form_Key(const TypedText::Key& key);
    void Form_KeyDown(const TypedText::Key& key);
    QString WhatMayBeTyped(const QString& sCharacters) const;
    void StoreTyped(basEditTextArray::KeyResult result, const QStringList& sTextLines, const TypedText::Entry& before);
    void KeepLines(const QStringList& sTextLines);
    void TellOnPaper();
    void Step(bool bUndo);
    TypedHistory::State State(int iArea);
    void EditAt(QPoint at);
    bool MarkByClick(int iShift, int iArea, int iCol, int iRow);
    QStringList LinesUnderEdit() const;

    bool RangeCheck();
    void ExitAndHide();

    Session& m_session;
    /// The titles as they are typed.
    Titles m_titles;
    /// Text being edited: 0 none, 1 the game's name, 2 the subtitle, 3 the occasion. Also the index of its
    /// record.
    int m_iTextArea = kNoArea;
    PerArea<QString> m_sSaved;
    /// The left button went down on this text and is still held.
    PerArea<bool> m_bInArea{};
    TextSelection m_selection;
    TypedHistory m_history;
    bool m_bLoading = false;
    /// In pixels.
    PerArea<QRect> m_area;

    PictureBox* picForm;
    QLabel* cmdLogo;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    HoldFocusBox* txtHoldFocus;
    /// Shows what an input method is composing.
    TipLabel* txtToolTip;
    PaperLine* lblPaper;
};
