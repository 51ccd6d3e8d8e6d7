// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pictures/metafile/MetafileObjects.h"

#include <QPointF>
#include <QRegion>
#include <QSizeF>

#include <memory>
#include <optional>

/// How logical units become device pixels.
class MetafileMapping {
public:
    static constexpr int kText = 1;
    static constexpr int kIsotropic = 7;
    static constexpr int kAnisotropic = 8;

    /// Starts anisotropic with the viewport given, in device pixels.
    MetafileMapping(const QRectF& viewport, double dotsPerInch)
        : m_viewportOrg(viewport.topLeft()), m_viewportExt(viewport.size()), m_available(viewport.size()),
          m_dotsPerInch(dotsPerInch) {}

    void SetMode(int mode);
    void SetWindowOrg(QPoint origin) { m_windowOrg = origin; }
    void OffsetWindowOrg(QPoint by) { m_windowOrg += by; }
    void SetWindowExt(QPoint extent);
    void ScaleWindowExt(QPoint numerator, QPoint denominator);
    void SetViewportOrg(QPoint origin) { m_viewportOrg = origin; }
    void OffsetViewportOrg(QPoint by) { m_viewportOrg += by; }
    void SetViewportExt(QPoint extent);
    void ScaleViewportExt(QPoint numerator, QPoint denominator);

    /// The whole pixel that a point falls on.
    QPoint ToDevice(QPoint logical) const;
    double ScaleX() const { return m_viewportExt.width() / m_windowExt.width(); }
    double ScaleY() const { return m_viewportExt.height() / m_windowExt.height(); }
    /// A length along x in pixels, without sign.
    double Length(double logical) const { return qAbs(logical * ScaleX()); }

private:
    bool HasFreeExtents() const { return m_mode == kIsotropic || m_mode == kAnisotropic; }
    void KeepProportions();

    int m_mode = kAnisotropic;
    QPointF m_windowOrg;
    QSizeF m_windowExt{1, 1};
    QPointF m_viewportOrg;
    QSizeF m_viewportExt;
    QSizeF m_available; ///< What an isotropic viewport may take.
    double m_dotsPerInch;
};

/// All that SaveDC keeps.
struct MetafileState {
    static constexpr int kCopyPen = 13;

    explicit MetafileState(const MetafileMapping& startMapping) : mapping(startMapping) {}

    MetafileMapping mapping;
    QPoint position; ///< Logical units.
    std::shared_ptr<const MetafilePen> pen = std::make_shared<MetafilePen>();
    std::shared_ptr<const MetafileBrush> brush = std::make_shared<MetafileBrush>();
    std::shared_ptr<const MetafileFont> font = std::make_shared<MetafileFont>();
    std::shared_ptr<const MetafilePalette> palette = MetafilePalette::Fixed();
    int paletteSlot = -1;
    quint32 textColour = 0x00000000;
    quint32 bkColour = 0x00FFFFFF;
    bool opaqueBackground = true;
    bool fillsWinding = false;
    int rop2 = kCopyPen;
    int stretchMode = 1;
    int textAlign = 0;
    int charExtra = 0;
    int breakExtra = 0;
    int breakCount = 0;
    /// Pixels that may be painted; nothing: all of the target.
    std::optional<QRegion> clip;

    QRgb Colour(quint32 colour) const { return palette->Resolve(colour); }
};
