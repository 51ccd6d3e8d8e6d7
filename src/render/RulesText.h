// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <variant>
#include <vector>

/// The names of a game that its printed rules speak of.
struct InstructionNames {
    QString sTavlora;
    QString sGoodNews;
    QString sBadNews;
    QString sStart;
    QString sDetention;
    QString sRestStop;
    QString sFate;
};

/// Where the lines of the rules go on.
enum class RulesBlock { Head, Column1, Column2 };

/// A text of the rules and how it is written.
struct RulesLine {
    QString sFont;
    /// Pitch of the lines in points.
    int lSize = 0;
    /// "L", "C" or "R".
    QString sAlign;
    bool bBold = false;
    bool bItalic = false;
    QString sText;
};

/// The rules as their file lays them out, with a game's names in them.
struct RulesReading {
    std::vector<std::variant<RulesBlock, RulesLine>> items;
    /// False: behind the items there is a line in another form, and nothing was read of it or beyond it.
    bool bWhole = true;
    /// That line as it stands in the file, and its number, from 1.
    QString sBadLine;
    int iBadLine = 0;
};

/// Reads the rules from the bytes of their file.
RulesReading ReadRules(const QByteArray& bytes, const InstructionNames& names);

/// Takes a line "font,size,align,style:text" apart. False for a line in another form; what could be read of it is in
/// the fields all the same.
bool ReadRulesLine(const QString& sLine, RulesLine& line);

/// Every occurrence of a tag replaced; goes on behind what it put in, so that a name holding the tag can't hang the
/// print.
QString WithTagReplaced(const QString& sLine, const QString& sTag, const QString& sValue);
