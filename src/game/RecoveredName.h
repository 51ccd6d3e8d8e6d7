// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The name that a game goes on under when it was taken up from an autosave. A file's header may come from anybody, and
/// saving writes to the name without a question.
namespace RecoveredName {

/// The name in the header of an autosave, if a game lies there, or nothing yet and it is a game's name; otherwise a
/// new game's.
QString For(const QString& sNameInHeader);

} // namespace RecoveredName
