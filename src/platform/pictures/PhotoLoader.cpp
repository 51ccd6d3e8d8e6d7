// SPDX-License-Identifier: MIT
#include "platform/pictures/PhotoLoader.h"

#include "platform/pictures/LoadPicture.h"

#include <QThread>

PhotoLoader::PhotoLoader(int iSide, QObject* parent) : QObject(parent), m_iSide(iSide) {
    // The window itself goes first.
    m_pool.setThreadPriority(QThread::LowPriority);
}

PhotoLoader::~PhotoLoader() {
    m_pool.clear();
    m_pool.waitForDone();
}

void PhotoLoader::Ask(const QString& sPath) {
    if (m_begun.contains(sPath)) return;
    m_waiting.removeOne(sPath);
    if (m_begun.size() < m_pool.maxThreadCount()) {
        Begin(sPath);
    } else {
        m_waiting.prepend(sPath);
    }
}

void PhotoLoader::Forget() { m_waiting.clear(); }

void PhotoLoader::Begin(const QString& sPath) {
    m_begun.insert(sPath);
    m_pool.start([this, sPath, side = m_iSide] {
        QString error;
        const Picture picture = LoadPicture(sPath, error, side);
        QImage small;
        if (!picture.IsNull()) {
            // By hand to a size that is never empty: a panorama may be a thousand times as wide as it is high.
            const QSize size = picture.Image().size().scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
            small = picture.Image().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        QMetaObject::invokeMethod(
            this,
            [this, sPath, small] {
                m_begun.remove(sPath);
                if (!m_waiting.isEmpty()) Begin(m_waiting.takeFirst());
                Q_EMIT Arrived(sPath, small);
            },
            Qt::QueuedConnection);
    });
}
