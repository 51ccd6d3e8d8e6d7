// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <QTreeWidget>

#include <vector>

struct Game;

/// Findings by piece: a row for each, under the name of its piece.
class FindingTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit FindingTree(QWidget* parent = nullptr);

    /// The row that is chosen stays chosen as long as it is there.
    void Fill(const Game& game, const std::vector<Finding>& findings);
    const std::vector<Finding>& Shown() const { return m_shown; }
    void Choose(const Finding& finding);
    /// Of the row that is chosen; nothing for that of a piece.
    const Finding* Chosen() const { return FindingOf(currentItem()); }
    const Finding* FindingOf(const QTreeWidgetItem* item) const;
    /// Of a piece its first one.
    const Finding* FirstOf(const QTreeWidgetItem* item) const;

private:
    void ChooseKey(const QString& sKey);

    std::vector<Finding> m_shown;
};
