// SPDX-License-Identifier: MIT
#pragma once

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/paint/DeviceContext.h"
#include "services/basErrLog.h"
#include "services/TavloraError.h"
#include "support/TestFixture.h"

#include <QImage>

/// A game whose records nobody has touched, and a context to measure its texts on.
class GameTest : public TavloraTest {
protected:
    GameTest() {
        ResetModules();
        basDraw::Draw_SetHdc(&context);
    }
    ~GameTest() override { ResetModules(); }

    /// Number of the error that an action raises; 0 when it raises none.
    template <typename Action>
    static quint32 ErrorOf(Action action) {
        try {
            action();
        } catch (const TavloraError& error) {
            return error.Number();
        }
        return 0;
    }

    QImage canvas{100, 100, QImage::Format_RGB32};
    DeviceContext context{canvas};

private:
    static void ResetModules() {
        basDraw::Draw_Abandon();
        basTAVL::ResetForTest();
        basErrLog::ResetForTest();
    }
};
