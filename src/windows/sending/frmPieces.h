// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTimer>

class PageView;
class QListWidget;
class QPushButton;

/// Saves a picture of a single piece of the game, for a message or for the copy shop.
class frmPieces : public QDialog {
    Q_OBJECT

public:
    /// The title stands in front of the names of the files that are proposed.
    explicit frmPieces(const QString& sGameTitle, QWidget* parent = nullptr);

    /// Modal.
    void ShowForm();

private Q_SLOTS:
    void cmdSaveAs_Click();

private:
    void FillPieces();
    QString WordInFront() const;
    void ShowPiece();

    QString m_title;
    QListWidget* lstPieces;
    PageView* m_view;
    /// So that walking through the list draws no more than where it stops.
    QTimer m_rest;
    QPushButton* cmdSaveAs;
};
