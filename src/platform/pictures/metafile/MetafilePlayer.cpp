// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafilePlayer.h"

namespace {

constexpr qint64 kUnitsPerRecord = 150;

} // namespace

MetafilePlayer::MetafilePlayer(MetafileCanvas& canvas, const QRectF& viewport)
    : m_canvas(canvas), m_state(MetafileMapping(viewport, canvas.DotsPerInch())) {}

void MetafilePlayer::Play(QByteArrayView orders) {
    MetafileRecords records(orders);
    while (const std::optional<MetafileRecord> record = records.Next()) {
        if (!m_canvas.Budget().Spend(kUnitsPerRecord + record->parameters.size())) return;
        // Not found by any means an order without effect on a picture, as notes to a printer are.
        ObeyState(*record) || ObeyMapping(*record) || ObeyObjects(*record) || ObeyPalettes(*record) ||
            ObeyShapes(*record) || ObeyText(*record) || ObeyBits(*record) || ObeyRegions(*record);
    }
}
