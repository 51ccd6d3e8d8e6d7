// SPDX-License-Identifier: MIT
#include "app/EditorRoutes.h"

#include <utility>

namespace {

// In force until start-up has installed the windows: no door opens.
class NoWindows : public EditorRoutes {
public:
    bool EditSpace(int) override { return false; }
    bool EditCorner(int) override { return false; }
    bool EditCenter() override { return false; }
    bool ShowNews(int) override { return false; }
    bool EditMoney() override { return false; }
    bool ShowTokens() override { return false; }
    bool Print() override { return false; }
    void Setup() override {}
};

NoWindows& Default() {
    static NoWindows routes;
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
