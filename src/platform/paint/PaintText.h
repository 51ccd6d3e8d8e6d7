// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QRawFont>

/// Text from a point of its base line on, the same on every device. Some letters, emoji above all, have no outline but
/// are pictures in their font; paper takes only outlines, so there they are put in as pictures.
void PaintText(QPainter& painter, QPointF at, const QFont& font, const QString& sText);

/// Whether the letters of a font are pictures. Such a font must never be asked for an outline: the toolkit then no
/// longer draws that letter anywhere.
bool HoldsPictures(const QRawFont& font);
