// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <list>
#include <optional>

/// A zip archive made in memory. The same entries always give the same bytes: none of them has a date, an owner or
/// rights of its own, and they stand in the order in which they were added.
class ZipWriter {
public:
    enum class Method { Stored, Deflated };
    /// Gives the bytes of an entry when its turn comes, so that only one is in memory at a time; nothing and a sentence
    /// in sError when there are none to be had.
    using Content = std::function<std::optional<QByteArray>(QString& sError)>;

    /// size is the number of bytes that content will give.
    void Add(const QString& sName, Method method, qint64 size, Content content);
    void Add(const QString& sName, Method method, const QByteArray& bytes);

    /// The whole archive; nothing and a sentence in sError when an entry failed or there is too little memory.
    std::optional<QByteArray> Finish(QString& sError);

private:
    friend class ZipEntrySource;
    struct Entry {
        QByteArray sName;
        Method method;
        qint64 size;
        Content content;
        QString sError;
    };
    std::list<Entry> m_entries;
};
