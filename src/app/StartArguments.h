// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the program was started with.
struct StartArguments {
    /// Requests for something else than a game's file, as they are handed to the program that runs already; no complete
    /// path of a file reads like one.
    static constexpr const char* kNew = "--new";
    static constexpr const char* kRecent = "--recent";

    bool bHelp = false;
    bool bVersion = false;
    /// A game's complete path or one of the requests; empty for whatever was worked on last.
    QString sRequest;

    /// Reads the words behind the program's name. Nothing, and a sentence in sError, for wrong usage.
    static std::optional<StartArguments> Parse(const QStringList& words, QString& sError);
    static QString Usage();
    static QString Version();
};
