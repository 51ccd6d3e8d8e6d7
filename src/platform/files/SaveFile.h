// SPDX-License-Identifier: MIT
#pragma once

#include <QSaveFile>

/// The toolkit's file that takes the place of the old one only when it is whole. The toolkit keeps a write that
/// came out short to itself, and its PDF writer doesn't look at any, so on a disk that fills up half a file would
/// take the old one's place: this one remembers.
class SaveFile : public QSaveFile {
public:
    using QSaveFile::QSaveFile;

    /// Puts the file in place, and sees to it that it stands there after a power cut. False and a sentence in
    /// sError when not all of it was written; the old file then stands.
    bool Commit(QString& sError);

protected:
    qint64 writeData(const char* data, qint64 length) override;

private:
    void NoteFailure();

    /// Why the first write that failed did.
    QString m_failure;
};
