// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/BinaryFile.h"
#include "platform/pictures/PictureFormat.h"

#include <QByteArray>
#include <QIODevice>

#include <optional>

/// The file of a picture, of which no more is read than its kind needs: whoever names a file as a picture may have made
/// it as large as a disk.
class PictureFile : public QIODevice {
public:
    /// False and a sentence in sError on failure.
    bool Open(const QString& sPath, QString& sError);
    PictureFormat Format() const { return PictureFormatOf(m_start); }
    /// What it begins with, which has room for what cameras put ahead of the pixels.
    const QByteArray& Start() const { return m_start; }
    /// All of it, for kinds whose decoders take nothing else. Nothing, and a sentence without its full stop in sError,
    /// where it is larger than any picture of its kind, or can't be read.
    std::optional<QByteArray> Whole(QString& sError);
    /// False and a sentence in sError when the disk couldn't be read.
    bool WasRead(QString& sError) const { return m_file.WasRead(sError); }

    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    BinaryFile m_file;
    QByteArray m_start;
    qint64 m_size = 0;
    qint64 m_at = 0; ///< Where the file stands, so that it isn't sent where it is.
};
