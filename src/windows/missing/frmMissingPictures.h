// SPDX-License-Identifier: MIT
#pragma once

#include "game/MissingPictures.h"

#include <QDialog>
#include <QTimer>

#include <optional>

class QLabel;
class QPushButton;
class QTreeWidget;
class Session;
struct GamePiece;

/// The pictures of the game in hand that aren't where they were. One that the user finds again leads to the others.
class frmMissingPictures : public QDialog {
    Q_OBJECT

public:
    explicit frmMissingPictures(Session& session, QWidget* parent = nullptr);
    ~frmMissingPictures() override;

    /// Modal. The picture of a piece is chosen at first, that of none for the whole game. True when the game has
    /// changed.
    bool ShowForm(const GamePiece& first);
    /// Closing the window while it looks for pictures ends the looking first, and keeps what was found.
    void reject() override;

private Q_SLOTS:
    void cmdFind_Click();
    void cmdStop_Click();
    void timSearch_Timer();
    void lstMissing_Change();

private:
    void BuildControls();
    void Fill();
    void Choose(const GamePiece& piece);
    void ShowState();
    /// Path of the picture that is chosen in the list; empty for none.
    QString Chosen() const;
    bool AskWhere(const QString& sOld, QString& sNew);
    void StartSearch(const QString& sOld, const QString& sNew);
    void EndSearch();

    Session& m_session;
    std::optional<MissingPictures::Search> m_search;
    QTimer timSearch;
    /// What came of the last looking.
    QString m_sOutcome;
    bool m_bChanged = false;

    QLabel* lblState = nullptr;
    QTreeWidget* lstMissing = nullptr;
    QPushButton* cmdFind = nullptr;
    QPushButton* cmdStop = nullptr;
    QPushButton* cmdClose = nullptr;
};
