// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Whether what people read is spelled right: tests/data/words.txt has the words that the program uses.
namespace Spelling {

enum class Names {
    None,  ///< All words of the text are the program's own.
    Within ///< It may name a game, a person or a file, so capitalised words count at the beginning only.
};

/// The words of a text that the list hasn't got. What stands in quotes, has digits or looks like a path is no word.
QStringList Unknown(const QString& sText, Names names);

/// Fails the test, and names them, where a text has such words.
void ExpectKnown(const QString& sText, Names names);

} // namespace Spelling
