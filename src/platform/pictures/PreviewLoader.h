// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <memory>

/// Loads pictures beside the window that wants to show them: a large photograph never holds up the list it
/// was chosen from. What has arrived is kept where LoadPicture finds it at once.
class PreviewLoader : public QObject {
    Q_OBJECT
public:
    explicit PreviewLoader(QObject* parent = nullptr);
    ~PreviewLoader() override;

    /// Asks for a picture with that many pixels on its longer side and forgets what was asked for before and
    /// hasn't been begun. Waits a moment (milliseconds); true when the picture is there by then, else
    /// Arrived follows.
    bool Ask(const QString& sPath, int longerSideWanted, int iPatienceMs);

Q_SIGNALS:
    /// The picture asked for last can be loaded without waiting now, or is known to be unreadable.
    void Arrived(const QString& sPath);

private:
    struct Request;
    void Finish(quint64 number);

    /// One thread, so that what is asked for last never waits for more than one picture.
    QThreadPool m_pool;
    std::shared_ptr<Request> m_request;
    quint64 m_number = 0;
};
