// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QSet>
#include <QString>
#include <QThreadPool>

#include <memory>

/// Makes small pictures of many files beside the window that shows them, on all processors. What is asked for last is
/// made first, as that is what the eye rests on.
class PhotoLoader : public QObject {
    Q_OBJECT
public:
    /// Neither side of a small picture has more pixels than this.
    explicit PhotoLoader(int iSide, QObject* parent = nullptr);
    ~PhotoLoader() override;

    /// Asked again before it has arrived, nothing happens but that it comes first.
    void Ask(const QString& sPath);
    /// What isn't begun yet isn't wanted any more.
    void Forget();

Q_SIGNALS:
    /// A null picture where the file holds none. Comes by the event loop.
    void Arrived(const QString& sPath, const QImage& picture);

private:
    void Begin(const QString& sPath);

    const int m_iSide;
    QThreadPool m_pool;
    /// Last one first.
    QStringList m_waiting;
    QSet<QString> m_begun;
};
