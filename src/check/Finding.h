// SPDX-License-Identifier: MIT
#pragma once

#include "check/GamePiece.h"

#include <QString>
#include <QStringList>

#include <algorithm>

/// How bad a finding is. Must: something will be missing on paper. Should: it will be there, but hardly as it was
/// meant. Hint: it may well be meant.
enum class Severity { Must, Should, Hint };

/// "must", "should" or "hint".
QString NameOf(Severity severity);

/// One thing that a family would rather know before it prints.
struct Finding {
    /// Word of the kind of finding: "picture-missing".
    QString sCheck;
    Severity severity = Severity::Hint;
    GamePiece piece;
    /// What is so, without the piece's name, and what can be done; whole sentences.
    QString sText;
    QString sAdvice;
    /// Words of the kit's sheets that show it; none for what shows on the board only.
    QStringList sheets;

    /// Stays the same as long as the piece has just this; for remembering that somebody doesn't mind it.
    QString Key() const { return sCheck + u'/' + piece.Word() + u'/' + sText; }
    /// Worth a question before printing.
    bool IsSerious() const { return severity != Severity::Hint; }
    /// Whether any of these sheets shows it.
    bool ShowsOn(const QStringList& others) const {
        return std::ranges::any_of(sheets, [&](const QString& sheet) { return others.contains(sheet); });
    }

    friend bool operator==(const Finding&, const Finding&) = default;
};
