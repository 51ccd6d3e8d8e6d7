// SPDX-License-Identifier: MIT
#include "windowing/PhotoGrid.h"

#include "platform/pictures/PhotoLoader.h"

#include <QAbstractListModel>
#include <QFileInfo>
#include <QHash>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QUrl>

#include <algorithm>

namespace {

// Some screens full; more of them would only take memory, as they are made again in no time.
constexpr int kMostKept = 600;
constexpr int kCellBeside = 24;
constexpr int kLines = 2;
constexpr double kPale = 0.25;

QPixmap Blank() {
    QPixmap blank(PhotoGrid::kSide, PhotoGrid::kSide);
    blank.fill(Qt::transparent);
    QPainter painter(&blank);
    painter.setPen(QColor(0x80, 0x80, 0x80, 0x60));
    painter.drawRect(blank.rect().adjusted(12, 18, -13, -19));
    return blank;
}

// A picture that can't be shown: its frame, crossed.
QPixmap Crossed() {
    QPixmap crossed = Blank();
    QPainter painter(&crossed);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 2));
    const QRect frame = crossed.rect().adjusted(12, 18, -13, -19);
    painter.drawLine(frame.topLeft(), frame.bottomRight());
    painter.drawLine(frame.bottomLeft(), frame.topRight());
    return crossed;
}

void Tick(QPainter& painter, const QSize& size) {
    constexpr int kBadge = 22;
    const QRectF badge(size.width() - kBadge - 2, size.height() - kBadge - 2, kBadge, kBadge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(QColor(0x1E, 0x7B, 0x34));
    painter.drawEllipse(badge);
    painter.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF from = badge.topLeft();
    painter.drawPolyline(QPolygonF{from + QPointF(6, 11.5), from + QPointF(9.5, 15.5), from + QPointF(16, 7)});
}

QPixmap WithLook(const QPixmap& picture, const PhotoGrid::Look& look) {
    if (!look.bFaded && !look.bTicked) return picture;
    QPixmap shown(picture.size());
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.setOpacity(look.bFaded ? kPale : 1);
    painter.drawPixmap(0, 0, picture);
    painter.setOpacity(1);
    if (look.bTicked) Tick(painter, picture.size());
    return shown;
}

} // namespace

/// The files as a list; asks for a small picture when one is about to be painted.
class PhotoModel : public QAbstractListModel {
public:
    explicit PhotoModel(PhotoGrid& grid)
        : QAbstractListModel(&grid), m_grid(grid), m_loader(PhotoGrid::kSide), m_blank(Blank()), m_crossed(Crossed()) {
        connect(&m_loader, &PhotoLoader::Arrived, this, &PhotoModel::Take);
    }

    void Show(const QStringList& files) {
        beginResetModel();
        m_files = files;
        m_loader.Forget();
        endResetModel();
    }
    void SetLooks(PhotoGrid::Looks looks) {
        m_looks = std::move(looks);
        Refresh();
    }
    void Refresh() {
        if (!m_files.isEmpty()) Q_EMIT dataChanged(index(0), index(int(m_files.size()) - 1));
    }
    void LetDrag() { m_bDrags = true; }
    void SetCell(QSize cell) { m_cell = cell; }
    const QStringList& Files() const { return m_files; }
    int Made() const { return int(m_made.size()); }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : int(m_files.size()); }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const QString file = m_files.value(index.row());
        if (role == Qt::DecorationRole) return WithLook(PictureOf(file), LookOf(index));
        if (role == Qt::DisplayRole) return Fitted(LookOf(index).sCaption);
        if (role == Qt::AccessibleTextRole) return LookOf(index).sCaption;
        if (role == Qt::ToolTipRole) return file;
        // The same for all, as long as their captions may become.
        if (role == Qt::SizeHintRole) return m_cell;
        return {};
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const Qt::ItemFlags own = QAbstractListModel::flags(index);
        return m_bDrags && index.isValid() ? own | Qt::ItemIsDragEnabled : own;
    }
    QStringList mimeTypes() const override { return {QStringLiteral("text/uri-list")}; }
    QMimeData* mimeData(const QModelIndexList& indexes) const override {
        auto* const data = new QMimeData;
        QList<QUrl> urls;
        for (const QModelIndex& index : indexes)
            urls.append(QUrl::fromLocalFile(m_files.value(index.row())));
        data->setUrls(urls);
        return data;
    }

private:
    // Whole lines: the toolkit would break one that is too long, and leave out of both halves.
    QString Fitted(const QString& sCaption) const {
        constexpr int kBeside = 6;
        QStringList lines = sCaption.split(u'\n');
        if (lines.size() == 1) return sCaption;
        for (QString& line : lines)
            line = m_grid.fontMetrics().elidedText(line, Qt::ElideRight, m_cell.width() - kBeside);
        return lines.join(u'\n');
    }

    PhotoGrid::Look LookOf(const QModelIndex& index) const {
        const QString file = m_files.value(index.row());
        return m_looks ? m_looks(file, index.row()) : PhotoGrid::Look{QFileInfo(file).fileName()};
    }

    QPixmap PictureOf(const QString& sFile) const {
        const auto made = m_made.constFind(sFile);
        if (made != m_made.constEnd()) return *made;
        m_loader.Ask(sFile);
        return m_blank;
    }

    void Take(const QString& sPath, const QImage& picture) {
        // All of one size, or the captions would dance.
        QPixmap cell(PhotoGrid::kSide, PhotoGrid::kSide);
        cell.fill(Qt::transparent);
        QPainter painter(&cell);
        painter.drawImage((cell.width() - picture.width()) / 2, (cell.height() - picture.height()) / 2, picture);
        painter.end();
        m_made.insert(sPath, picture.isNull() ? m_crossed : cell);
        m_order.append(sPath);
        if (m_order.size() > kMostKept) m_made.remove(m_order.takeFirst());
        const int row = int(m_files.indexOf(sPath));
        if (row >= 0) Q_EMIT dataChanged(index(row), index(row), {Qt::DecorationRole});
        if (row >= 0 && picture.isNull()) Q_EMIT m_grid.Broken(sPath);
    }

    PhotoGrid& m_grid;
    QStringList m_files;
    PhotoGrid::Looks m_looks;
    mutable PhotoLoader m_loader;
    QHash<QString, QPixmap> m_made;
    QStringList m_order;
    const QPixmap m_blank;
    const QPixmap m_crossed;
    bool m_bDrags = false;
    QSize m_cell;
};

PhotoGrid::PhotoGrid(QWidget* parent) : QListView(parent), m_model(new PhotoModel(*this)) {
    setModel(m_model);
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setWordWrap(true);
    setTextElideMode(Qt::ElideMiddle);
    setIconSize(QSize(kSide, kSide));
    const QSize cell(kSide + kCellBeside, kSide + kCellBeside / 2 + kLines * fontMetrics().lineSpacing());
    setGridSize(cell);
    m_model->SetCell(cell);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAcceptDrops(false);
}

PhotoGrid::~PhotoGrid() = default;

void PhotoGrid::ShowFiles(const QStringList& files) { m_model->Show(files); }

void PhotoGrid::SetLooks(Looks looks) { m_model->SetLooks(std::move(looks)); }

void PhotoGrid::Refresh() { m_model->Refresh(); }

void PhotoGrid::LetDrag() {
    m_model->LetDrag();
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
}

QString PhotoGrid::FileAt(const QModelIndex& index) const {
    return index.isValid() ? m_model->Files().value(index.row()) : QString();
}

void PhotoGrid::Choose(const QString& sFile) {
    const int row = int(m_model->Files().indexOf(sFile));
    setCurrentIndex(row < 0 ? QModelIndex() : m_model->index(row));
    if (row >= 0) scrollTo(m_model->index(row));
}

int PhotoGrid::Made() const { return m_model->Made(); }
