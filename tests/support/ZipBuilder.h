// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

/// A zip file byte by byte, right or wrong in one chosen detail; knows nothing of the library that reads it.
struct ZipBuilder {
    struct Entry {
        QByteArray name;
        QByteArray bytes;
        quint32 attributes = 0100644U << 16U;
        quint16 flags = 0x0800; ///< Names are UTF-8.
        quint16 method = 0;     ///< Stored; 8 for bytes that are deflated already.
        /// What the entry says of its bytes; -1 for the truth.
        qint64 saidSize = -1;
        qint64 saidChecksum = -1;
    };

    QList<Entry> entries;

    void Add(const QByteArray& name, const QByteArray& bytes) { entries.append({name, bytes}); }
    QByteArray Bytes() const;
};
