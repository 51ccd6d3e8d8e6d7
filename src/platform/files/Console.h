// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a program without windows asks of the system.
namespace Console {

/// Runs without a display, even where one is named that can't be reached; before the toolkit starts. A
/// platform that the user has chosen stands.
void UseNoDisplay();

/// Keeps the toolkit's remarks about the desktop off standard error, where each line is to say what went
/// wrong.
void SilenceToolkit();

/// Whoever ends the program by Ctrl+C or a signal finds no temporary file or folder of it afterwards. Before any thread
/// is started.
void ClearUpWhenEnded();

/// True when somebody watches what goes to standard error.
bool ErrorIsTerminal();

/// True when both paths lead to one file that exists.
bool IsSameFile(const QString& sPathA, const QString& sPathB);

/// The path made complete from the current folder.
QString CompletePath(const QString& sPath);

} // namespace Console

/// A folder that vanishes with its object, with all that was written into it. What a program that was killed has left
/// of its own goes when the next one is made.
class TemporaryFolder {
public:
    /// Where the system has such folders, for this user only.
    TemporaryFolder();
    /// In another folder, with the rights that folders have there.
    explicit TemporaryFolder(const QString& sIn);
    ~TemporaryFolder();
    /// Empty when none could be made.
    const QString& Path() const { return m_path; }
    /// Gives it a name of its own, under which it stays, and none that anything bears already. False and a sentence in
    /// sError when that can't be.
    bool Become(const QString& sPath, QString& sError);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

private:
    void Make(const QString& sIn, bool bForThisUserOnly);
    QString m_path;
};
