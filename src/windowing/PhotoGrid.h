// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

#include <functional>

class PhotoModel;

/// Photos as small pictures in rows, to choose among by eye. Only what is in sight is made, in the background, so that
/// a folder of thousands scrolls as smoothly as one of ten.
class PhotoGrid : public QListView {
    Q_OBJECT

public:
    /// What stands with a photo beside its picture.
    struct Look {
        /// Below the picture, a line or two.
        QString sCaption;
        /// Pale, as it plays no part.
        bool bFaded = false;
        /// A tick in its corner.
        bool bTicked = false;
    };
    using Looks = std::function<Look(const QString& sFile, int iRow)>;

    explicit PhotoGrid(QWidget* parent = nullptr);
    ~PhotoGrid() override;

    /// Complete paths; in another order, what is made already stays.
    void ShowFiles(const QStringList& files);
    /// How photos look from now on; by itself a photo has its file's name below it.
    void SetLooks(Looks looks);
    /// The looks have changed.
    void Refresh();
    /// Photos can be dragged to wherever files are taken.
    void LetDrag();

    /// Empty for none.
    QString FileAt(const QModelIndex& index) const;
    QString Current() const { return FileAt(currentIndex()); }
    /// Chooses the row of a file; none where it isn't shown.
    void Choose(const QString& sFile);
    /// Small pictures that are there by now.
    int Made() const;

    /// Pixels of a picture's longer side.
    static constexpr int kSide = 100;

Q_SIGNALS:
    /// A photo came into sight, and its file can't be shown.
    void Broken(const QString& sFile);

private:
    PhotoModel* m_model;
};
