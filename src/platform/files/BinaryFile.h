// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QFile;

/// A file open for binary reading or writing, little-endian, with a position that counts from 0. Reading
/// behind the end gives zeros; whoever needs to know asks AtEnd first. Folders and devices are refused.
class BinaryFile {
public:
    BinaryFile();
    ~BinaryFile();
    BinaryFile(const BinaryFile&) = delete;
    BinaryFile& operator=(const BinaryFile&) = delete;

    /// In the spelling that the disk has. False and a sentence in sError on failure.
    bool OpenForReading(const QString& sPath, QString& sError);
    /// Under exactly this name. What stands in the file already is kept and written over from the start.
    bool OpenForWriting(const QString& sPath, QString& sError);
    /// The same for a new file; fails where there is anything of that name.
    bool OpenNew(const QString& sPath, QString& sError);
    void Close();

    /// In bytes, as of this moment.
    qint64 Size() const;
    void Seek(qint64 position);
    bool AtEnd() const;

    quint16 U16();
    quint32 U32();
    qint32 S32() { return qint32(U32()); }
    /// As many bytes as asked for, or those that are left. Behind an error nothing is left.
    QByteArray Bytes(qint64 count);
    /// False when the disk couldn't be read: what was read since then says nothing of the file. A sentence in sError.
    bool WasRead(QString& sError) const;

    void PutU16(quint16 value);
    void PutU32(quint32 value);
    void PutBytes(const QByteArray& bytes);
    /// True when all that was put has reached the file so far; else a sentence in sError.
    bool WasWritten(QString& sError);

    /// Called with the path of each file that is about to be written, by whoever keeps what stood in it. One
    /// listener; nullptr for none.
    using BeforeWriting = void (*)(const QString& sPath);
    static void TellBeforeWriting(BeforeWriting listener);

private:
    enum class Mode { Read, WriteOver, WriteNew };
    bool Open(const QString& sPath, Mode mode, QString& sError);
    void NoteWriteError();

    std::unique_ptr<QFile> m_file;
    QString m_writeError;
    QString m_readError;
};
