// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Report.h"

#include <QStringList>

#include <iosfwd>

struct PlayArguments;

/// The work of tavlora-play. Writes nothing but the report that it was asked for.
class PlayCommand {
public:
    enum Status { kDone = 0, kFailed = 1, kWrongUsage = 2 };

    /// The report goes to out; what is wrong, and how far the games are, to err.
    PlayCommand(std::ostream& out, std::ostream& err, bool bShowProgress)
        : m_out(out), m_err(err), m_showProgress(bShowProgress) {}

    /// The words behind the program's name. Gives the exit status.
    int Run(const QStringList& words);

private:
    int Carry(const PlayArguments& arguments);
    Simulator::KitPlayed PlayKit(const PlayArguments& arguments, Kit kit, const Simulator::PlaySet& set);
    void Complain(const QString& sText);
    void Progress(const QString& sText);

    std::ostream& m_out;
    std::ostream& m_err;
    bool m_showProgress;
};
