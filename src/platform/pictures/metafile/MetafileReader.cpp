// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileReader.h"

#include <QtEndian>

QByteArrayView MetafileReader::Bytes(qsizetype count) {
    if (m_failed || count < 0 || count > Left()) {
        m_failed = true;
        return {};
    }
    const QByteArrayView run = m_bytes.sliced(m_position, count);
    m_position += count;
    return run;
}

quint8 MetafileReader::U8() {
    const QByteArrayView run = Bytes(1);
    return run.isEmpty() ? 0 : quint8(run[0]);
}

quint16 MetafileReader::U16() {
    const QByteArrayView run = Bytes(2);
    return run.isEmpty() ? 0 : qFromLittleEndian<quint16>(run.data());
}

quint32 MetafileReader::U32() {
    const QByteArrayView run = Bytes(4);
    return run.isEmpty() ? 0 : qFromLittleEndian<quint32>(run.data());
}

QPoint MetafileReader::PointYX() {
    const int y = S16();
    const int x = S16();
    return QPoint(x, y);
}

QPoint MetafileReader::PointXY() {
    const int x = S16();
    const int y = S16();
    return QPoint(x, y);
}
