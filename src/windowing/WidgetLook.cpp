// SPDX-License-Identifier: MIT
#include "windowing/WidgetLook.h"

#include "platform/paint/Painting.h"
#include "platform/pictures/LoadPicture.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace WidgetLook {

void SetFill(QWidget& widget, Color color) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, ToQColor(color));
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

Color FillOf(const QWidget& widget) { return FromQRgb(widget.palette().color(QPalette::Window).rgb()); }

void ScaleFont(QWidget& widget, double factor) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    widget.setFont(font);
}

void FitCaption(QPushButton& button) {
    // Below this nobody reads it; it is cut instead.
    constexpr double kSmallest = 0.5;
    constexpr double kStep = 0.95;
    constexpr int kRoundLetters = 12;
    const auto isCut = [&button] {
        return button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + kRoundLetters > button.width();
    };
    for (double factor = 1; factor > kSmallest && isCut(); factor *= kStep)
        ScaleFont(button, kStep);
}

void UnfitCaption(QPushButton& button) {
    if (button.testAttribute(Qt::WA_SetFont)) button.setFont(QFont());
}

void SetPicture(QLabel& label, const QString& sPath, int side) {
    QString error;
    const Picture picture = LoadPicture(sPath, error);
    if (picture.IsNull()) return;
    const double ratio = label.devicePixelRatioF();
    const int dots = int(side * ratio);
    QPixmap pixmap =
        QPixmap::fromImage(picture.Image().scaled(dots, dots, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    label.setPixmap(pixmap);
}

void SetWindowIcon(const QString& sPath) {
    QString error;
    const Picture picture = LoadPicture(sPath, error);
    if (!picture.IsNull()) QApplication::setWindowIcon(QIcon(QPixmap::fromImage(picture.Image())));
}

void SetToolTip(QWidget& widget, const QString& sText) {
    const QString tip = Qt::mightBeRichText(sText) ? sText.toHtmlEscaped() : sText;
    if (widget.toolTip() == tip) return;
    widget.setToolTip(tip);
    if (QToolTip::isVisible()) QToolTip::hideText();
}

QString WithoutMnemonics(const QString& sText) {
    return QString(sText).replace(QStringLiteral("&"), QStringLiteral("&&"));
}

QString WindowTitle(const QString& sText) {
    const QString marker = QStringLiteral("[*]");
    return QString(sText).replace(marker, marker + marker) + marker;
}

} // namespace WidgetLook
