// SPDX-License-Identifier: MIT
#include "check/Checks.h"

#include "drawing/DrawingAside.h"
#include "services/basErrLog.h"

#include <algorithm>
#include <functional>

// Not in a namespace without a name, whose kinds no other file could define.
constexpr Check kChecks[] = {
    {.sName = "picture-missing",
     .severity = Severity::Must,
     .run = RunCheck<class PictureMissing>,
     .mending = Mending::BySearch,
     .bToldElsewhere = true},
    {.sName = "picture-unreadable",
     .severity = Severity::Must,
     .run = RunCheck<class PictureUnreadable>,
     .mending = Mending::ByPicture,
     .mend = MendFinding<class PictureUnreadable>,
     .bToldElsewhere = true},
    {.sName = "letters-missing", .severity = Severity::Must, .run = RunCheck<class LettersMissing>},
    {.sName = "paper-small", .severity = Severity::Should, .run = RunCheck<class PaperSmall>},
    {.sName = "piece-empty", .severity = Severity::Should, .run = RunCheck<class PieceEmpty>},
    {.sName = "rules-name", .severity = Severity::Should, .run = RunCheck<class RulesName>},
    {.sName = "text-small",
     .severity = Severity::Should,
     .run = RunCheck<class TextSmall>,
     .mending = Mending::ByClick,
     .mend = MendFinding<class TextSmall>},
    {.sName = "text-squeezed",
     .severity = Severity::Should,
     .run = RunCheck<class TextSqueezed>,
     .mending = Mending::ByClick,
     .mend = MendFinding<class TextSqueezed>},
    {.sName = "text-edge",
     .severity = Severity::Should,
     .run = RunCheck<class TextEdge>,
     .mending = Mending::ByClick,
     .mend = MendFinding<class TextEdge>},
    {.sName = "text-cut", .severity = Severity::Should, .run = RunCheck<class TextCut>},
    {.sName = "font-away",
     .severity = Severity::Should,
     .run = RunCheck<class FontAway>,
     .mending = Mending::ByClick,
     .mend = MendFinding<class FontAway>},
    {.sName = "colours-near", .severity = Severity::Should, .run = RunCheck<class ColoursNear>},
    {.sName = "prices-odd", .severity = Severity::Should, .run = RunCheck<class PricesOdd>},
    {.sName = "picture-coarse",
     .severity = Severity::Should,
     .run = RunCheck<class PictureCoarse>,
     .mending = Mending::ByClick,
     .mend = MendFinding<class PictureCoarse>},
    {.sName = "picture-bars",
     .severity = Severity::Hint,
     .run = RunCheck<class PictureBars>,
     .mending = Mending::ByClick,
     .mend = MendFinding<class PictureBars>},
    {.sName = "same-words", .severity = Severity::Hint, .run = RunCheck<class SameWords>},
    {.sName = "same-picture", .severity = Severity::Hint, .run = RunCheck<class SamePicture>},
    {.sName = "much-ink", .severity = Severity::Hint, .run = RunCheck<class MuchInk>},
};

QString NameOf(Severity severity) {
    switch (severity) {
        case Severity::Must:
            return QStringLiteral("must");
        case Severity::Should:
            return QStringLiteral("should");
        default:
            return QStringLiteral("hint");
    }
}

std::span<const Check> Checks() { return kChecks; }

namespace {

const Check& CheckOf(const Finding& finding) {
    const auto* const found =
        std::ranges::find_if(kChecks, [&](const Check& check) { return finding.sCheck == QLatin1String(check.sName); });
    basErrLog::ErrAssert(found != std::end(kChecks), QStringLiteral("Every finding is of a kind"));
    return *found;
}

} // namespace

Mending MendingOf(const Finding& finding) { return CheckOf(finding).mending; }

std::optional<Edit> Mend(const Game& game, const Finding& finding, const QString& sPicture) try {
    const Check& check = CheckOf(finding);
    return check.mend ? check.mend(game, finding, sPicture) : std::nullopt;
} catch (...) {
    ErrTail("basCheck!", "Mend", sPicture);
}

bool IsToldElsewhere(const Finding& finding) { return CheckOf(finding).bToldElsewhere; }

CheckRun::CheckRun(const Game& game, PictureFacts& facts, const CheckOptions& options)
    : m_game(GameWords::OfReadableLength(game)), m_checked(m_game, facts, options) {}

bool CheckRun::Step() try {
    const DrawingAside aside;
    if (m_checked.Gather()) return true;
    if (m_check == std::size(kChecks)) return false;
    const Check& check = kChecks[m_check++];
    Findings findings(check.sName, check.severity);
    check.run(m_checked, findings);
    m_all.insert(m_all.end(), findings.List().begin(), findings.List().end());
    return true;
} catch (...) {
    ErrTail("basCheck!", "Step");
}

bool CheckRun::HasDecodedAll() const {
    return std::ranges::all_of(m_checked.Pictures(), [](const PaperPicture& picture) { return picture.fact.bDecoded; });
}

std::vector<Finding> CheckRun::Take() {
    std::ranges::stable_sort(m_all, std::less(), &Finding::piece);
    return std::move(m_all);
}

std::vector<Finding> CheckGame(const Game& game, PictureFacts& facts, const CheckOptions& options) try {
    CheckRun run(game, facts, options);
    while (run.Step()) {
    }
    return run.Take();
} catch (...) {
    ErrTail("basCheck!", "CheckGame");
}
