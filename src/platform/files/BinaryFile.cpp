// SPDX-License-Identifier: MIT
#include "platform/files/BinaryFile.h"

#include "platform/files/Files.h"

#include <QFile>
#include <QtEndian>

#include <atomic>

namespace {

std::atomic<BinaryFile::BeforeWriting> s_beforeWriting = nullptr;

} // namespace

BinaryFile::BinaryFile() : m_file(std::make_unique<QFile>()) {}
BinaryFile::~BinaryFile() = default;

bool BinaryFile::OpenForReading(const QString& sPath, QString& sError) { return Open(sPath, Mode::Read, sError); }
bool BinaryFile::OpenForWriting(const QString& sPath, QString& sError) { return Open(sPath, Mode::WriteOver, sError); }
bool BinaryFile::OpenNew(const QString& sPath, QString& sError) { return Open(sPath, Mode::WriteNew, sError); }

bool BinaryFile::Open(const QString& sPath, Mode mode, QString& sError) {
    Close();
    m_writeError.clear();
    m_readError.clear();
    const bool reads = mode == Mode::Read;
    if (!Files::IsPermitted(reads ? Files::Operation::OpenRead : Files::Operation::OpenWrite, sPath, sError))
        return false;
    if (const BeforeWriting listener = reads ? nullptr : s_beforeWriting.load()) listener(sPath);
    // What is written bears exactly the name given: another spelling is another file, and not ours.
    const QString path = reads ? Files::InDiskSpelling(sPath) : sPath;
    if (!Files::IsNoSpecialFile(path, sError)) return false;
    m_file->setFileName(path);
    const QIODevice::OpenMode how = reads                     ? QIODevice::ReadOnly
                                    : mode == Mode::WriteOver ? QIODevice::ReadWrite
                                                              : QIODevice::WriteOnly | QIODevice::NewOnly;
    if (m_file->open(how)) return true;
    sError = m_file->errorString();
    return false;
}

void BinaryFile::TellBeforeWriting(BeforeWriting listener) { s_beforeWriting = listener; }

void BinaryFile::Close() { m_file->close(); }

qint64 BinaryFile::Size() const { return m_file->size(); }

void BinaryFile::Seek(qint64 position) { m_file->seek(position); }

bool BinaryFile::AtEnd() const { return m_file->atEnd(); }

QByteArray BinaryFile::Bytes(qint64 count) {
    if (count <= 0 || !m_readError.isEmpty()) return {};
    if (!Files::IsPermitted(Files::Operation::Read, m_file->fileName(), m_readError)) return {};
    QByteArray bytes = m_file->read(count);
    if (m_file->error() == QFileDevice::ReadError) m_readError = m_file->errorString();
    return bytes;
}

bool BinaryFile::WasRead(QString& sError) const {
    if (!m_readError.isEmpty()) sError = m_readError;
    return m_readError.isEmpty();
}

quint16 BinaryFile::U16() { return qFromLittleEndian<quint16>(Bytes(2).leftJustified(2, '\0').constData()); }
quint32 BinaryFile::U32() { return qFromLittleEndian<quint32>(Bytes(4).leftJustified(4, '\0').constData()); }

void BinaryFile::PutU16(quint16 value) {
    QByteArray bytes(2, '\0');
    qToLittleEndian(value, bytes.data());
    PutBytes(bytes);
}

void BinaryFile::PutU32(quint32 value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    PutBytes(bytes);
}

void BinaryFile::PutBytes(const QByteArray& bytes) {
    if (!m_writeError.isEmpty()) return;
    if (!Files::IsPermitted(Files::Operation::Write, m_file->fileName(), m_writeError)) return;
    if (m_file->write(bytes) != bytes.size()) NoteWriteError();
}

void BinaryFile::NoteWriteError() {
    // A write that only came out short says no reason; what is left is tried again, and does.
    m_file->flush();
    m_writeError = m_file->errorString();
}

bool BinaryFile::WasWritten(QString& sError) {
    if (m_writeError.isEmpty() && !m_file->flush()) NoteWriteError();
    if (!m_writeError.isEmpty()) sError = m_writeError;
    return m_writeError.isEmpty();
}
