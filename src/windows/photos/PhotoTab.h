// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QWidget>

class ElidedLabel;
class PhotoGrid;
class QLabel;
class QPushButton;
class Session;

/// The photos of a folder beside the board: those in use are ticked, and each can be dragged onto a place.
class PhotoTab : public QWidget {
    Q_OBJECT

public:
    /// Name of the tab.
    static constexpr const char* kName = "Photos";

    explicit PhotoTab(const Session& session);

    /// Remembered for the next start.
    void ShowFolder(const QString& sFolder);

public Q_SLOTS:
    /// Ticks what the game shows.
    void Update();

private Q_SLOTS:
    void cmdFolder_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void List(const QString& sFolder);

    const Session& m_session;
    QString m_sFolder;
    QSet<QString> m_inUse;
    ElidedLabel* lblFolder;
    QLabel* lblHint;
    QPushButton* cmdFolder;
    PhotoGrid* lstPhotos;
};
