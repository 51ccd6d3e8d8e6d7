// SPDX-License-Identifier: MIT
#include "pack/ZipSource.h"

bool ZipFile::Open(const QString& sPath, QString& sError) {
    if (!m_file.OpenForReading(sPath, sError)) return false;
    m_size = m_file.Size();
    return true;
}

QByteArray ZipFile::At(qint64 from, qint64 count) {
    m_file.Seek(from);
    return m_file.Bytes(count);
}

QString ZipFile::WhyUnread() const {
    QString error;
    m_file.WasRead(error);
    return error;
}
