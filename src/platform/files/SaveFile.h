// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

/// A file that takes the place of the old one only when it is whole: written beside it under a short name of our own,
/// brought to the disk, then renamed over. The toolkit's own kind keeps a write that came out short to itself, and its
/// PDF writer doesn't look at any, so on a disk that fills up half a file would take the old one's place: this one
/// remembers. Links are followed; the old file's rights stay. What isn't committed is thrown away.
class SaveFile : public QFile {
public:
    explicit SaveFile(const QString& sPath) : m_path(sPath) {}
    ~SaveFile() override;

    /// The file that is to be replaced.
    const QString& Path() const { return m_path; }
    /// In a folder that takes no new file the old one is written over in place. Before open.
    void WriteInPlaceIfNeedBe() { m_mayWriteInPlace = true; }
    /// For writing only. False with errorString when that isn't possible; the old file then stands.
    bool open(OpenMode mode) override;
    /// Puts the file in place, and sees to it that it stands there after a power cut. False and a sentence in
    /// sError when not all of it was written; the old file then stands.
    bool Commit(QString& sError);
    void Discard();

protected:
    qint64 writeData(const char* data, qint64 length) override;

private:
    bool Refuse(const QString& sWhy);
    bool OpenBeside(OpenMode mode);
    void NoteFailure();

    QString m_path;
    /// Where the path's links lead.
    QString m_target;
    /// Path of the file beside it; empty while there is none.
    QString m_beside;
    bool m_mayWriteInPlace = false;
    /// Why the first write that failed did.
    QString m_failure;
};
