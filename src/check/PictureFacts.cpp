// SPDX-License-Identifier: MIT
#include "check/PictureFacts.h"

const PictureFacts::Fact& PictureFacts::Of(const QString& sPath) {
    const QString onDisk = Files::InDiskSpelling(sPath);
    const Files::Stamp stamp = Files::StampOf(onDisk);
    const auto known = m_known.constFind(sPath);
    if (known != m_known.constEnd() && known->stamp == stamp) return known->fact;
    Fact fact;
    fact.bThere = Files::Exists(onDisk);
    if (fact.bThere) {
        fact.head = ReadPictureHead(onDisk, fact.sError);
        ++m_readings;
    }
    return m_known.insert(sPath, {stamp, fact})->fact;
}
