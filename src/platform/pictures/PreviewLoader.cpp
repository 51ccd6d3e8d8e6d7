// SPDX-License-Identifier: MIT
#include "platform/pictures/PreviewLoader.h"

#include "platform/pictures/LoadPicture.h"

#include <QMetaObject>

#include <chrono>
#include <condition_variable>
#include <mutex>

struct PreviewLoader::Request {
    QString sPath;
    quint64 number = 0;
    std::mutex mutex;
    std::condition_variable arrived;
    bool done = false;
};

PreviewLoader::PreviewLoader(QObject* parent) : QObject(parent) { m_pool.setMaxThreadCount(1); }

PreviewLoader::~PreviewLoader() {
    m_pool.clear();
    m_pool.waitForDone();
}

bool PreviewLoader::Ask(const QString& sPath, int longerSideWanted, int iPatienceMs) {
    m_pool.clear();
    m_request = std::make_shared<Request>();
    m_request->sPath = sPath;
    m_request->number = ++m_number;
    m_pool.start([this, request = m_request, longerSideWanted] {
        QString error;
        LoadPicture(request->sPath, error, longerSideWanted);
        {
            const std::scoped_lock lock(request->mutex);
            request->done = true;
        }
        request->arrived.notify_all();
        const quint64 number = request->number;
        QMetaObject::invokeMethod(
            this, [this, number] { Finish(number); }, Qt::QueuedConnection);
    });
    std::unique_lock lock(m_request->mutex);
    if (!m_request->arrived.wait_for(lock, std::chrono::milliseconds(iPatienceMs), [this] { return m_request->done; }))
        return false;
    // Whoever asked goes on by itself: nothing is to be told later.
    ++m_number;
    return true;
}

void PreviewLoader::Finish(quint64 number) {
    if (number == m_number) Q_EMIT Arrived(m_request->sPath);
}
