// SPDX-License-Identifier: MIT
#include "platform/printing/SaveDrawing.h"

#include "platform/files/Files.h"
#include "platform/paint/Picture.h"
#include "platform/paint/Recording.h"
#include "platform/pictures/SavePicture.h"
#include "platform/printing/SvgDevice.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace {

const QString kNotMade = QStringLiteral("The drawing could not be made");

bool Paint(QPaintDevice& device, const Recording& drawing, const QRectF& target, QString& sError) {
    QPainter painter(&device);
    if (!painter.isActive()) {
        sError = kNotMade;
        return false;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    drawing.Play(painter, target);
    return true;
}

bool SaveAsPdf(const Recording& drawing, QSizeF inches, const QString& sTitle, const QString& sPath, QString& sError) {
    constexpr int kDpi = 600;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kDpi);
    writer.setTitle(sTitle);
    writer.setCreator(QStringLiteral("Tavlora"));
    writer.setPageSize(QPageSize(inches, QPageSize::Inch, QString(), QPageSize::ExactMatch));
    // A wide piece would otherwise be turned.
    writer.setPageOrientation(QPageLayout::Portrait);
    writer.setPageMargins(QMarginsF());
    return Paint(writer, drawing, QRectF(QPointF(), inches * kDpi), sError) && Files::WriteWhole(sPath, bytes, sError);
}

bool SaveAsSvg(const Recording& drawing, QSizeF inches, const QString& sTitle, const QString& sPath, QString& sError) {
    SvgDevice device(drawing.Size(), inches, sTitle);
    if (!Paint(device, drawing, QRectF(QPointF(), drawing.Size()), sError)) return false;
    return Files::WriteWhole(sPath, device.Bytes(), sError);
}

bool SaveAsPng(const Recording& drawing, QSizeF inches, int iDotsPerInch, const QString& sPath, QString& sError) {
    QImage image((inches * iDotsPerInch).toSize(), QImage::Format_RGB32);
    if (image.isNull()) {
        sError = kNotMade;
        return false;
    }
    image.fill(Qt::white);
    if (!Paint(image, drawing, QRectF(QPointF(), image.size()), sError)) return false;
    return SavePicture(Picture(image), sPath, sError);
}

} // namespace

bool SaveDrawing(const Recording& drawing, QSizeF inches, int iDotsPerInch, const QString& sTitle, const QString& sPath,
                 QString& sError) {
    const auto endsIn = [&](const char* sEnding) {
        return sPath.endsWith(QLatin1String(sEnding), Qt::CaseInsensitive);
    };
    if (endsIn(".pdf")) return SaveAsPdf(drawing, inches, sTitle, sPath, sError);
    if (endsIn(".svg")) return SaveAsSvg(drawing, inches, sTitle, sPath, sError);
    return SaveAsPng(drawing, inches, iDotsPerInch, sPath, sError);
}
