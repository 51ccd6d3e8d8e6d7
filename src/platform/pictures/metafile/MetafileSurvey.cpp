// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafileSurvey.h"

#include "platform/pictures/metafile/MetafileCanvas.h"
#include "platform/pictures/metafile/MetafileRecords.h"
#include "platform/pictures/metafile/MetafileState.h"

namespace {

// The operations that are painted on any destination. All others, and a source that is what was painted
// before, need pixels that can be read.
bool IsPlainBlit(const MetafileBlit& blit) {
    switch (blit.Code()) {
        case MetafileRop::kBlackness:
        case MetafileRop::kPattern:
        case MetafileRop::kWhiteness:
            return true;
        case MetafileRop::kSource:
        case MetafileRop::kInvertedSource:
            return blit.kind != MetafileBlit::Bits::None;
        default:
            return false;
    }
}

bool DrawsWithPen(MetafileOrder order) {
    switch (order) {
        case MetafileOrder::LineTo:
        case MetafileOrder::Polygon:
        case MetafileOrder::Polyline:
        case MetafileOrder::PolyPolygon:
        case MetafileOrder::Ellipse:
        case MetafileOrder::Rectangle:
        case MetafileOrder::RoundRect:
        case MetafileOrder::Arc:
        case MetafileOrder::Pie:
        case MetafileOrder::Chord:
        case MetafileOrder::SetPixel:
        case MetafileOrder::FillRegion:
        case MetafileOrder::PaintRegion:
        case MetafileOrder::FrameRegion:
            return true;
        default:
            return false;
    }
}

bool SetsViewport(MetafileOrder order) {
    switch (order) {
        case MetafileOrder::SetViewportOrg:
        case MetafileOrder::SetViewportExt:
        case MetafileOrder::OffsetViewportOrg:
        case MetafileOrder::ScaleViewportExt:
            return true;
        default:
            return false;
    }
}

} // namespace

MetafileSurvey MetafileSurvey::Of(QByteArrayView orders) {
    MetafileSurvey survey;
    MetafileRecords records(orders);
    // Saved and restored operations aren't followed: one that was ever set counts from then on until a copy
    // is set, and a restore brings it back.
    bool everCombined = false;
    bool combines = false;
    while (const std::optional<MetafileRecord> record = records.Next()) {
        ++survey.orders;
        if (record->order == MetafileOrder::SetRop2) {
            const int rop2 = MetafileReader(record->parameters).U16();
            combines = rop2 != MetafileRop::kCopyPen && rop2 != MetafileRop::kNop;
            everCombined |= combines;
        } else if (record->order == MetafileOrder::RestoreDC) {
            combines = everCombined;
        } else if (record->order == MetafileOrder::FloodFill || record->order == MetafileOrder::ExtFloodFill) {
            survey.readsBack = true;
            ++survey.floodFills;
        } else if (SetsViewport(record->order)) {
            survey.countsPixels = true;
        } else if (record->order == MetafileOrder::InvertRegion) {
            survey.readsBack = true;
        } else if (DrawsWithPen(record->order)) {
            survey.readsBack |= combines;
        } else if (const auto blit = MetafileBlit::Read(*record)) {
            survey.readsBack |= !IsPlainBlit(*blit);
        }
    }
    return survey;
}
