// SPDX-License-Identifier: MIT
#include "app/EditorRoutes.h"

#include "platform/Desktop.h"

#include <utility>

namespace {

bool SayThatItIsToCome(const QString& sWhat) {
    MsgBox(sWhat + QStringLiteral(" is not part of the program yet."), vbInformation);
    return false;
}

// Stands in while a window isn't built.
class WindowsToCome : public EditorRoutes {
public:
    bool EditSpace(int) override { return SayThatItIsToCome(QStringLiteral("The editor of spaces")); }
    bool EditCorner(int) override { return SayThatItIsToCome(QStringLiteral("The editor of corners")); }
    bool EditCenter() override { return SayThatItIsToCome(QStringLiteral("The editor of titles")); }
    bool ShowNews(int iGoodOrBad) override {
        return SayThatItIsToCome(iGoodOrBad == 0 ? QStringLiteral("The editor of Good News cards")
                                                 : QStringLiteral("The editor of Bad News cards"));
    }
    bool EditMoney() override { return SayThatItIsToCome(QStringLiteral("The editor of money")); }
    bool ShowTokens() override { return SayThatItIsToCome(QStringLiteral("The editor of tokens")); }
    bool Print() override { return SayThatItIsToCome(QStringLiteral("The print console")); }
    void Setup() override { SayThatItIsToCome(QStringLiteral("The setup of colours")); }
};

WindowsToCome& Default() {
    static WindowsToCome routes;
    return routes;
}

EditorRoutes*& Installed() {
    static EditorRoutes* routes = &Default();
    return routes;
}

} // namespace

EditorRoutes* EditorRoutes::Install(EditorRoutes* routes) {
    return std::exchange(Installed(), routes ? routes : &Default());
}

EditorRoutes& EditorRoutes::Current() { return *Installed(); }
