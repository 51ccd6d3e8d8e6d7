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
     .bToldElsewhere = true},
    {.sName = "picture-unreadable",
     .severity = Severity::Must,
     .run = RunCheck<class PictureUnreadable>,
     .bToldElsewhere = true},
    {.sName = "letters-missing", .severity = Severity::Must, .run = RunCheck<class LettersMissing>},
    {.sName = "paper-small", .severity = Severity::Must, .run = RunCheck<class PaperSmall>},
    {.sName = "piece-empty", .severity = Severity::Should, .run = RunCheck<class PieceEmpty>},
    {.sName = "rules-name", .severity = Severity::Should, .run = RunCheck<class RulesName>},
    {.sName = "text-small", .severity = Severity::Should, .run = RunCheck<class TextSmall>},
    {.sName = "text-squeezed", .severity = Severity::Should, .run = RunCheck<class TextSqueezed>},
    {.sName = "text-edge", .severity = Severity::Should, .run = RunCheck<class TextEdge>},
    {.sName = "text-cut", .severity = Severity::Should, .run = RunCheck<class TextCut>},
    {.sName = "font-away", .severity = Severity::Should, .run = RunCheck<class FontAway>},
    {.sName = "colours-near", .severity = Severity::Should, .run = RunCheck<class ColoursNear>},
    {.sName = "prices-odd", .severity = Severity::Should, .run = RunCheck<class PricesOdd>},
    {.sName = "picture-coarse", .severity = Severity::Should, .run = RunCheck<class PictureCoarse>},
    {.sName = "picture-bars", .severity = Severity::Hint, .run = RunCheck<class PictureBars>},
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

bool IsToldElsewhere(const Finding& finding) {
    return std::ranges::any_of(kChecks, [&](const Check& check) {
        return check.bToldElsewhere && finding.sCheck == QLatin1String(check.sName);
    });
}

std::vector<Finding> CheckGame(const Game& game, PictureFacts& facts, const CheckOptions& options) try {
    const DrawingAside aside;
    const CheckedGame checked(game, facts, options);
    std::vector<Finding> all;
    for (const Check& check : kChecks) {
        Findings findings(check.sName, check.severity);
        check.run(checked, findings);
        all.insert(all.end(), findings.List().begin(), findings.List().end());
    }
    std::ranges::stable_sort(all, std::less(), &Finding::piece);
    return all;
} catch (...) {
    ErrTail("basCheck!", "CheckGame");
}
