// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QTemporaryDir;

/// What a program without windows asks of the system.
namespace Console {

/// Runs without a display, even where one is named that can't be reached; before the toolkit starts. A
/// platform that the user has chosen stands.
void UseNoDisplay();

/// Keeps the toolkit's remarks about the desktop off standard error, where each line is to say what went
/// wrong.
void SilenceToolkit();

/// True when somebody watches what goes to standard error.
bool ErrorIsTerminal();

/// True when both paths lead to one file that exists.
bool IsSameFile(const QString& sPathA, const QString& sPathB);

/// The path made complete from the current folder.
QString CompletePath(const QString& sPath);

} // namespace Console

/// A folder that vanishes with its object, with all that was written into it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    /// Empty when none could be made.
    QString Path() const;

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
