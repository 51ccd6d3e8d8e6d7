// SPDX-License-Identifier: MIT
#pragma once

#include "windows/check/frmBeforePrint.h"

#include <QSet>

#include <optional>

class GameChecker;

/// Asks about what would come out badly before anything is printed, and about each thing once in a printing, however
/// many sheets show it. Whoever has nothing to mend is never asked.
class PrintQuestion {
public:
    using Answer = frmBeforePrint::Answer;

    explicit PrintQuestion(GameChecker& checker) : m_checker(checker) {}

    /// A printing begins.
    void Begin();
    /// Whether to print these sheets, by their words. Where they are printed without pictures that are away, no box
    /// tells of those amid a page.
    Answer Ask(const QStringList& sheets, QWidget* parent);
    /// What was to be shown, once.
    std::optional<Finding> TakeMeant();

private:
    GameChecker& m_checker;
    /// Keys of what is printed nevertheless.
    QSet<QString> m_accepted;
    std::optional<Finding> m_meant;
};
