// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSize>

/// How the mouse and the slider of the positioning window become zoom and centre of an image. No windows
/// here; the part of the picture that a zoom and centre show is the image's own matter (ZoomedSource).
namespace ImagePlacing {

/// Slider and zoom step are told from each other: the slider's top is the largest magnification.
constexpr int kSliderTop = 0;
constexpr int kSliderBottom = 100;
constexpr int kSliderAtStepZero = 90;
constexpr int SliderOfZoom(int iZoom) { return kSliderAtStepZero - iZoom; }
constexpr int ZoomOfSlider(int iValue) { return kSliderAtStepZero - iValue; }

/// What is shown how large.
struct Scale {
    /// Side of the square of the picture that is shown, in picture pixels; at least 1.
    int iSide = 1;
    /// Preview pixels for a picture pixel.
    double dblScale = 1;

    /// Sizes in pixels. An empty picture gives the default scale.
    static Scale Of(QSize picture, QSize preview, int iZoom);
};

/// A place in the picture, in picture pixels; may lie outside it.
struct Center {
    double x = 0;
    double y = 0;
};

/// The centre after the mouse moved from where it went down: the picture follows it.
Center Dragged(Center start, QPointF down, QPointF now, double dblScale);

/// The centre after a click that brings the point clicked to the middle.
Center CenteredOn(Center center, QPointF clicked, const Scale& scale);

/// A centre as an image can hold it: within 16 bits, so that dragging a picture far away is no error.
Center WithinLimits(Center center);

/// The ring that hides what a round cut takes away, in pixels: its inner edge is the circle in a square box
/// of this width, and its outer edge reaches the box's corners.
struct Ring {
    int iDrawWidth = 0;
    double dblRadius = 0;

    static Ring For(int lW);
};

} // namespace ImagePlacing
