// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <QByteArray>

#include <vector>

struct Game;

/// Findings in words, for a list or a terminal.
namespace FindingWords {

/// "should: Space "Acorn Lane": The letters are too small to read. Start new lines." in one line.
QString LineOf(const Game& game, const Finding& finding);
/// For scripts: an array of objects, each with check, severity, piece, name, text, advice and sheets.
QByteArray Json(const Game& game, const std::vector<Finding>& findings);
/// "3 things to look at", "Nothing to look at"; hints aren't counted.
QString Summary(const std::vector<Finding>& findings);

/// The findings that are worth a question.
int SeriousOnes(const std::vector<Finding>& findings);

} // namespace FindingWords
