// SPDX-License-Identifier: MIT
#pragma once

#include "check/FirstSteps.h"

#include <QWidget>

#include <array>
#include <functional>

class QCommandLinkButton;
class Session;

/// The five steps of the first evening, for whoever begins: each is ticked when it is done and opens its place when it
/// is clicked. A click sends them all away.
class GuideTab : public QWidget {
    Q_OBJECT

public:
    /// Name of the tab.
    static constexpr const char* kName = "Guide";

    struct Doors {
        /// A step was clicked; it goes on at this piece, where it is about pieces.
        std::function<void(FirstSteps::Step, const std::optional<GamePiece>&)> open;
        /// The guide isn't wanted any more.
        std::function<void()> sendAway;
    };

    GuideTab(const Session& session, Doors doors);

    /// Looks how far each step is.
    void Update();

    /// Kept over starts.
    static bool IsWanted();
    static void SetWanted(bool bWanted);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void ReadShipped();
    void Open(FirstSteps::Step step);

    const Session& m_session;
    Doors m_doors;
    FirstSteps::Shipped m_shipped;
    bool m_bShippedRead = false;
    std::array<QCommandLinkButton*, FirstSteps::kSteps> cmdStep{};
};
