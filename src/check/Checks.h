// SPDX-License-Identifier: MIT
#pragma once

#include "check/CheckedGame.h"
#include "check/Finding.h"

#include <span>
#include <vector>

/// Takes what one check finds.
class Findings {
public:
    Findings(const char* sCheck, Severity severity) : m_check(sCheck), m_severity(severity) {}

    /// Whole sentences; the text doesn't name the piece.
    void Add(GamePiece piece, const QString& sText, const QString& sAdvice) { Add(piece, m_severity, sText, sAdvice); }
    /// Less bad than such things usually are.
    void Add(GamePiece piece, Severity severity, const QString& sText, const QString& sAdvice) {
        m_list.push_back({QString::fromLatin1(m_check), severity, piece, sText, sAdvice});
    }
    const std::vector<Finding>& List() const { return m_list; }

private:
    const char* m_check;
    Severity m_severity;
    std::vector<Finding> m_list;
};

/// Looks for one kind of finding. The file of the kind defines it for the class that the row names: no header has to
/// know of a new kind, and a row without its file doesn't link.
template <class Kind>
void RunCheck(const CheckedGame& game, Findings& findings);

/// A kind of finding.
struct Check {
    /// Word in scripts and settings; never changed, as families' settings hold it.
    const char* sName;
    Severity severity;
    void (*run)(const CheckedGame& game, Findings& findings);
    /// Whoever reads or prints the game says it in words of their own.
    bool bToldElsewhere = false;
};

/// All that are looked for, a row each.
std::span<const Check> Checks();
/// Whether somebody else tells it too while the game is read or printed.
bool IsToldElsewhere(const Finding& finding);

/// What there is to tell of a game, by piece, and of a piece in the order of the table. Two calls with the same game
/// and the same files give the same. Touches neither game nor files, and leaves the drawing layer as it was. The kit's
/// sizes, colours and rents have to be in force.
std::vector<Finding> CheckGame(const Game& game, PictureFacts& facts, const CheckOptions& options = {});
