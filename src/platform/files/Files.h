// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class SaveFile;

/// Every operation on the disk that can lose or keep a user's work goes through here, so that a test can
/// make any single one of them fail, or end the program at it.
namespace Files {

enum class Operation {
    OpenRead,
    Read,
    OpenWrite,
    Write,
    Commit,
    OpenAppend,
    Append,
    Remove,
    Rename,
    Copy,
    MakeDirectory
};

/// Asked before each operation; a text is the reason for which the operation fails without being tried.
using FaultHook = std::function<std::optional<QString>(Operation operation, const QString& sPath)>;
/// Puts a hook in force (an empty one takes it away) and returns the one it replaces.
FaultHook SetFaultHook(FaultHook hook);
/// Asks the hook; for the platform's own file classes.
bool IsPermitted(Operation operation, const QString& sPath, QString& sError);

/// Whole files by their complete paths. Spelling counts to the letter, a folder is there as soon as it is
/// named, and nothing has an age.
using MemoryFiles = QHash<QString, QByteArray>;
/// From here on these stand in place of the disk; nullptr brings the disk back. For fuzz targets, which read
/// files by the million and must find nothing but what they put there.
void UseMemory(MemoryFiles* files);

/// True for a file, not for a directory. The case of letters counts.
bool Exists(const QString& sPath);
bool IsDirectory(const QString& sPath);
/// True for whatever bears that name, a link that leads nowhere too.
bool IsAnything(const QString& sPath);
/// False and a sentence in sError for a folder, a device, or whatever else must not be read to its end.
bool IsNoSpecialFile(const QString& sPath, QString& sError);
/// True where there is no file yet, or a regular one. False and a sentence in sError for a folder or a
/// device, over which no file must ever be renamed.
bool CanBeReplaced(const QString& sPath, QString& sError);
/// The path in the spelling that the disk has: the exact name goes first; if just one name in the folder
/// differs only in case, that one is meant. Unchanged when there is no such file.
QString InDiskSpelling(const QString& sPath);
/// Whether two paths lead to one file, or would if there were one, in whatever spelling.
bool IsSameFile(const QString& sPathA, const QString& sPathB);
/// In bytes.
qint64 Size(const QString& sPath);
/// When a file was changed last and how large it is: enough to tell that it was changed. -1, -1 when it isn't
/// there.
struct Stamp {
    qint64 modifiedMs = -1; ///< Milliseconds since 1970.
    qint64 size = -1;       ///< Bytes.
    friend bool operator==(const Stamp&, const Stamp&) = default;
};
Stamp StampOf(const QString& sPath);

/// Twice what the largest picture takes that is ever opened. A longer file is none of ours, and reading it would
/// take the memory of everything else.
constexpr qint64 kMostBytes = qint64(1) << 30;

/// The whole file, or nothing and a sentence in sError. Regular files only, and never more of one than its size.
std::optional<QByteArray> ReadAll(const QString& sPath, QString& sError);

/// Replaces the file by these bytes so that either the old or the new content stands there whole, whatever
/// happens: written beside, flushed to the disk, then renamed over and the folder flushed too. In a folder that takes
/// no new file it is written in place. False and a sentence in sError on failure; the old file then stands.
bool WriteWhole(const QString& sPath, const QByteArray& bytes, QString& sError);

/// Writes a file of a name that is free, and fails where there is anything of that name. For what can be had again at
/// any time: the disk isn't waited for.
bool WriteNew(const QString& sPath, const QByteArray& bytes, QString& sError);

/// WriteWhole in steps, for a writer that tells at which of its parts the disk failed. What isn't committed is
/// thrown away.
class WholeFile {
public:
    explicit WholeFile(const QString& sPath);
    ~WholeFile();
    bool Open(QString& sError);
    bool Write(const QByteArray& bytes, QString& sError);
    /// Puts the file in place.
    bool Commit(QString& sError);

private:
    QString m_path;
    std::unique_ptr<SaveFile> m_file;
    /// What is to be put among the files in memory.
    QByteArray m_bytes;
};

bool Append(const QString& sPath, const QByteArray& bytes, QString& sError);
/// True as well when there was no such file.
bool Remove(const QString& sPath, QString& sError);
/// Fails when sTo exists.
bool Rename(const QString& sFrom, const QString& sTo, QString& sError);
/// Copies the content; replaces sTo safely when it exists.
bool Copy(const QString& sFrom, const QString& sTo, QString& sError);
/// Copies to a name that is free, and fails where there is anything of that name. For a file that can be had again at
/// any time: the disk isn't waited for, though the content goes there at once.
bool CopyNew(const QString& sFrom, const QString& sTo, QString& sError);
/// Creates one folder whose parent exists; true as well when it is there.
bool MakeDirectory(const QString& sPath, QString& sError);
/// Moves a user's file to the trash. False and a sentence in sError where there is none: the file then stays.
bool MoveToTrash(const QString& sPath, QString& sError);

} // namespace Files
