// SPDX-License-Identifier: MIT
#include "windows/check/FindingTree.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>

#include <algorithm>

namespace {

// Words beside the row, for whoever doesn't see colours.
QString SignOf(Severity severity) {
    switch (severity) {
        case Severity::Must:
            return QStringLiteral("Missing on paper");
        case Severity::Should:
            return QStringLiteral("Mend it");
        default:
            return QStringLiteral("Hint");
    }
}

constexpr int kSentence = 1;
constexpr int kNarrowest = 60;

// The toolkit's own knows no width to break a sentence at when it is asked for the height of a row.
class SentenceDelegate : public QStyledItemDelegate {
public:
    explicit SentenceDelegate(QTreeWidget& tree) : QStyledItemDelegate(&tree), m_tree(tree) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize line = QStyledItemDelegate::sizeHint(option, index);
        if (index.column() != kSentence) return line;
        const int margin = m_tree.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &m_tree) + 1;
        const int width = std::max(m_tree.columnWidth(kSentence) - 2 * margin, kNarrowest);
        const auto metrics = option.fontMetrics;
        constexpr int kTall = 10000;
        const int height =
            metrics.boundingRect(QRect(0, 0, width, kTall), Qt::TextWordWrap, index.data().toString()).height();
        return {line.width(), line.height() - metrics.height() + std::max(height, metrics.height())};
    }

private:
    const QTreeWidget& m_tree;
};

} // namespace

FindingTree::FindingTree(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("tvwFindings"));
    setAccessibleName(QStringLiteral("What was found"));
    setHeaderHidden(true);
    setColumnCount(2);
    setWordWrap(true);
    setExpandsOnDoubleClick(false);
    setItemDelegate(new SentenceDelegate(*this));
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    // How many lines a sentence takes depends on the width, which isn't known when the rows are filled in.
    connect(header(), &QHeaderView::sectionResized, this, &FindingTree::scheduleDelayedItemsLayout);
}

void FindingTree::Fill(const Game& game, const std::vector<Finding>& findings) {
    const Finding* const before = Chosen();
    const QString key = before ? before->Key() : QString();
    const QSignalBlocker quiet(this);
    clear();
    m_shown = findings;
    QTreeWidgetItem* piece = nullptr;
    for (size_t i = 0; i < m_shown.size(); ++i) {
        const Finding& finding = m_shown[i];
        if (i == 0 || !(m_shown[i - 1].piece == finding.piece)) {
            piece = new QTreeWidgetItem(this, {finding.piece.NameIn(game)});
            piece->setFirstColumnSpanned(true);
            piece->setExpanded(true);
        }
        auto* const row = new QTreeWidgetItem(piece, {SignOf(finding.severity), finding.sText});
        row->setData(0, Qt::UserRole, int(i));
        row->setToolTip(1, finding.sAdvice);
    }
    ChooseKey(key);
}

void FindingTree::Choose(const Finding& finding) { ChooseKey(finding.Key()); }

void FindingTree::ChooseKey(const QString& sKey) {
    for (QTreeWidgetItemIterator row(this); *row; ++row) {
        const Finding* const finding = FindingOf(*row);
        if (finding && finding->Key() == sKey) return setCurrentItem(*row);
    }
}

const Finding* FindingTree::FindingOf(const QTreeWidgetItem* item) const {
    const QVariant number = item ? item->data(0, Qt::UserRole) : QVariant();
    return number.isValid() ? &m_shown.at(size_t(number.toInt())) : nullptr;
}

const Finding* FindingTree::FirstOf(const QTreeWidgetItem* item) const {
    const Finding* const finding = FindingOf(item);
    return finding || !item || item->childCount() == 0 ? finding : FindingOf(item->child(0));
}
