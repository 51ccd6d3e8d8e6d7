// SPDX-License-Identifier: MIT
#pragma once

#include "check/CheckedGame.h"
#include "check/Finding.h"
#include "check/GameWords.h"
#include "check/PieceSheets.h"
#include "game/Edit.h"

#include <optional>
#include <span>
#include <vector>

/// Takes what one check finds.
class Findings {
public:
    Findings(const char* sCheck, Severity severity) : m_check(sCheck), m_severity(severity) {}

    /// Whole sentences; the text doesn't name the piece, and is shortened where the name of a file or a typeface in it
    /// has no end. It counts for all sheets of the piece; where it shows on some of them only, or on others, the caller
    /// sets them in what is returned, ahead of the next call.
    Finding& Add(GamePiece piece, const QString& sText, const QString& sAdvice) {
        return Add(piece, m_severity, sText, sAdvice);
    }
    /// Less bad than such things usually are.
    Finding& Add(GamePiece piece, Severity severity, const QString& sText, const QString& sAdvice) {
        return m_list.emplace_back(Finding{QString::fromLatin1(m_check), severity, piece, GameWords::Shortened(sText),
                                           sAdvice, PieceSheets::Of(piece)});
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

/// The change that mends a finding of a kind with one click; nothing where there is none after all. The picture is the
/// one that somebody has found, for kinds that want one. Texts are measured on the drawing layer's current context.
template <class Kind>
std::optional<Edit> MendFinding(const Game& game, const Finding& finding, const QString& sPicture);

/// How a kind of finding is mended.
enum class Mending {
    ByHand, ///< In the piece's editor.
    ByClick,
    ByPicture, ///< By a click, once somebody has found a picture.
    BySearch   ///< In the window that finds all missing pictures.
};

/// A kind of finding.
struct Check {
    /// Word in scripts and settings; never changed, as families' settings hold it.
    const char* sName;
    Severity severity;
    void (*run)(const CheckedGame& game, Findings& findings);
    Mending mending = Mending::ByHand;
    std::optional<Edit> (*mend)(const Game& game, const Finding& finding, const QString& sPicture) = nullptr;
    /// Whoever reads or prints the game says it in words of their own.
    bool bToldElsewhere = false;
};

/// All that are looked for, a row each.
std::span<const Check> Checks();
/// How a finding is mended, and the change that does it; nothing where it has to be done by hand.
Mending MendingOf(const Finding& finding);
std::optional<Edit> Mend(const Game& game, const Finding& finding, const QString& sPicture = {});
/// Whether somebody else tells it too while the game is read or printed.
bool IsToldElsewhere(const Finding& finding);

/// What there is to tell of a game, by piece, and of a piece in the order of the table. Two calls with the same game
/// and the same files give the same. Touches neither game nor files, and leaves the drawing layer as it was. The kit's
/// sizes, colours and rents have to be in force.
std::vector<Finding> CheckGame(const Game& game, PictureFacts& facts, const CheckOptions& options = {});

/// The same a little at a time, for a window that stays alive meanwhile.
class CheckRun {
public:
    /// Looks at a copy: the game may be edited meanwhile.
    CheckRun(const Game& game, PictureFacts& facts, const CheckOptions& options = {});
    CheckRun(const CheckRun&) = delete;
    CheckRun& operator=(const CheckRun&) = delete;

    /// Goes on for the shortest while. False when nothing is left to do.
    bool Step();
    /// False where pictures are still being decoded, and there may be more to find.
    bool HasDecodedAll() const;
    /// What was found, once nothing is left to do.
    std::vector<Finding> Take();

private:
    const Game m_game;
    CheckedGame m_checked;
    size_t m_check = 0;
    std::vector<Finding> m_all;
};
