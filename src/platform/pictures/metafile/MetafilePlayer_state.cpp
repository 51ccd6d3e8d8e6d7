// SPDX-License-Identifier: MIT
#include "platform/pictures/metafile/MetafilePlayer.h"

namespace {

constexpr size_t kDeepestSave = 512;
constexpr quint16 kOpaque = 2;
constexpr quint16 kWinding = 2;
// A file counts the caller's own saved state as the first one.
constexpr int kLevelOfFirstSave = 2;

} // namespace

void MetafilePlayer::Save() {
    if (m_saved.size() < kDeepestSave) m_saved.push_back(m_state);
}

void MetafilePlayer::Restore(int level) {
    const int depth = level < 0 ? int(m_saved.size()) + level : level - kLevelOfFirstSave;
    if (level == 0 || depth < 0 || size_t(depth) >= m_saved.size()) return;
    m_state = m_saved[size_t(depth)];
    m_saved.erase(m_saved.begin() + depth, m_saved.end());
    SetClip(m_state.clip);
}

MetafilePlayer::DeviceBox MetafilePlayer::ToDevice(const MetafileBox& box) const {
    const QPoint a = m_state.mapping.ToDevice(box.from);
    const QPoint b = m_state.mapping.ToDevice(box.to);
    return {qMin(a.x(), b.x()), qMin(a.y(), b.y()), qMax(a.x(), b.x()), qMax(a.y(), b.y())};
}

bool MetafilePlayer::ObeyState(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    switch (record.order) {
        case MetafileOrder::SaveDC:
            Save();
            return true;
        case MetafileOrder::RestoreDC:
            Restore(reader.S16());
            return true;
        case MetafileOrder::SetBkMode:
            m_state.opaqueBackground = reader.U16() == kOpaque;
            return true;
        case MetafileOrder::SetRop2:
            m_state.rop2 = qBound<int>(MetafileRop::kBlack, reader.U16(), MetafileRop::kWhite);
            return true;
        case MetafileOrder::SetPolyFillMode:
            m_state.fillsWinding = reader.U16() == kWinding;
            return true;
        case MetafileOrder::SetStretchMode:
            m_state.stretchMode = reader.U16();
            return true;
        case MetafileOrder::SetTextCharExtra:
            m_state.charExtra = reader.S16();
            return true;
        case MetafileOrder::SetTextAlign:
            m_state.textAlign = reader.U16();
            return true;
        case MetafileOrder::SetTextJustification:
            m_state.breakCount = reader.U16();
            m_state.breakExtra = reader.S16();
            return true;
        case MetafileOrder::SetBkColor:
            m_state.bkColour = reader.U32();
            return true;
        case MetafileOrder::SetTextColor:
            m_state.textColour = reader.U32();
            return true;
        default:
            return false;
    }
}

bool MetafilePlayer::ObeyMapping(const MetafileRecord& record) {
    MetafileReader reader(record.parameters);
    MetafileMapping& mapping = m_state.mapping;
    switch (record.order) {
        case MetafileOrder::SetMapMode:
            mapping.SetMode(reader.U16());
            return true;
        case MetafileOrder::SetWindowOrg:
            mapping.SetWindowOrg(reader.PointYX());
            return true;
        case MetafileOrder::SetWindowExt:
            mapping.SetWindowExt(reader.PointYX());
            return true;
        case MetafileOrder::SetViewportOrg:
            mapping.SetViewportOrg(reader.PointYX());
            return true;
        case MetafileOrder::SetViewportExt:
            mapping.SetViewportExt(reader.PointYX());
            return true;
        case MetafileOrder::OffsetWindowOrg:
            mapping.OffsetWindowOrg(reader.PointYX());
            return true;
        case MetafileOrder::OffsetViewportOrg:
            mapping.OffsetViewportOrg(reader.PointYX());
            return true;
        case MetafileOrder::ScaleWindowExt:
        case MetafileOrder::ScaleViewportExt: {
            // For y first, and of each the divisor first.
            const int yDivisor = reader.S16();
            const int yFactor = reader.S16();
            const int xDivisor = reader.S16();
            const int xFactor = reader.S16();
            const QPoint factor(xFactor, yFactor);
            const QPoint divisor(xDivisor, yDivisor);
            if (record.order == MetafileOrder::ScaleWindowExt) {
                mapping.ScaleWindowExt(factor, divisor);
            } else {
                mapping.ScaleViewportExt(factor, divisor);
            }
            return true;
        }
        default:
            return false;
    }
}
