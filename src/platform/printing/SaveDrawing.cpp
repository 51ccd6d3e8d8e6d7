// SPDX-License-Identifier: MIT
#include "platform/printing/SaveDrawing.h"

#include "platform/files/Files.h"
#include "platform/paint/Recording.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace {

void Paint(QPainter& painter, const Recording& drawing, const QRectF& target) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    drawing.Play(painter, target);
    painter.end();
}

} // namespace

bool SaveAsPdf(const Recording& drawing, double inches, const QString& sTitle, const QString& sPath, QString& sError) {
    constexpr int kDpi = 600;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kDpi);
    writer.setTitle(sTitle);
    writer.setCreator(QStringLiteral("Tavlora"));
    writer.setPageSize(QPageSize(QSizeF(inches, inches), QPageSize::Inch, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    if (!painter.isActive()) {
        sError = QStringLiteral("The drawing could not be made");
        return false;
    }
    Paint(painter, drawing, QRectF(0, 0, inches * kDpi, inches * kDpi));
    return Files::WriteWhole(sPath, bytes, sError);
}
