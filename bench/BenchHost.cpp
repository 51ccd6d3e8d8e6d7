// SPDX-License-Identifier: MIT
#include "BenchHost.h"

#include "board/basPosit.h"
#include "platform/ProgramSettings.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"

BenchHost::BenchHost() {
    Settings().sMyGamesDirectory = m_folder.Path();
    Settings().sProgramDirectory = QStringLiteral(TAVLORA_DATA_DIR);
    basErrLog::ErrInit(0);
    basCommon::InitIniPath();
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    basPosit::PosInit();
}
