// SPDX-License-Identifier: MIT
#pragma once

#include "game/EarlierVersions.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QListWidgetItem;

/// Shows what a game was like before its last saves, by date and small board; one click chooses one.
class frmEarlierVersions : public QDialog {
    Q_OBJECT

public:
    explicit frmEarlierVersions(QWidget* parent = nullptr);

    /// Modal. The path of the version chosen; empty when none was.
    QString ShowForm(const QString& sGame);

private Q_SLOTS:
    void lstVersions_Click(QListWidgetItem* item);

private:
    void BuildControls();
    void Fill(const QString& sGame);

    QLabel* lblMain = nullptr;
    QListWidget* lstVersions = nullptr;
    QString m_sChosen;
};
