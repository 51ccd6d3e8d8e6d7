// SPDX-License-Identifier: MIT
#include "check/PictureFacts.h"

#include "platform/pictures/LoadPicture.h"

namespace {

// As the board's thumbnails want it, so that nothing is decoded for the check alone.
constexpr int kSmall = 100;

void Decode(const QString& sPath, PictureFacts::Fact& fact) {
    fact.bDecoded = true;
    if (LoadPicture(sPath, fact.sError, kSmall).IsNull()) fact.head.reset();
}

} // namespace

PictureFacts::Known& PictureFacts::HeadOf(const QString& sPath) {
    const QString onDisk = Files::InDiskSpelling(sPath);
    const Files::Stamp stamp = Files::StampOf(onDisk);
    const auto known = m_known.find(sPath);
    if (known != m_known.end() && known->stamp == stamp) return *known;
    Fact fact;
    fact.bThere = Files::Exists(onDisk);
    if (fact.bThere) {
        fact.head = ReadPictureHead(onDisk, fact.sError);
        ++m_readings;
    }
    // A drawing was read as a whole for its head.
    fact.bDecoded = !fact.head || fact.head->bDrawing;
    return *m_known.insert(sPath, {stamp, fact});
}

const PictureFacts::Fact& PictureFacts::Of(const QString& sPath, Decoding decoding) {
    Fact& fact = HeadOf(sPath).fact;
    if (!fact.bDecoded && (decoding == Decoding::Awaited || PrefetchPicture(sPath, kSmall))) Decode(sPath, fact);
    return fact;
}
