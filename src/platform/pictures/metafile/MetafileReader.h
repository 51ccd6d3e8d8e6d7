// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QPoint>

/// Reads little-endian numbers from a run of bytes and never beyond it. A read that doesn't fit gives 0 and
/// leaves the reader failed for good, so a record is read whole and asked about once.
class MetafileReader {
public:
    explicit MetafileReader(QByteArrayView bytes) : m_bytes(bytes) {}

    bool Failed() const { return m_failed; }
    qsizetype Left() const { return m_bytes.size() - m_position; }

    quint8 U8();
    quint16 U16();
    qint16 S16() { return qint16(U16()); }
    quint32 U32();
    qint32 S32() { return qint32(U32()); }
    /// A point as most records keep it: y before x.
    QPoint PointYX();
    /// A point as polygons keep it: x before y.
    QPoint PointXY();
    QByteArrayView Bytes(qsizetype count);
    QByteArrayView Rest() { return Bytes(Left()); }
    void Skip(qsizetype count) { Bytes(count); }

private:
    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    bool m_failed = false;
};
