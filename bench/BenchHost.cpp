// SPDX-License-Identifier: MIT
#include "BenchHost.h"

#include "board/basPosit.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/ProgramSettings.h"

BenchHost::BenchHost() {
    Settings().sMyGamesDirectory = m_folder.Path();
    Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
    basErrLog::ErrInit(0);
    basCommon::InitIniPath();
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    basPosit::PosInit();
}
