// SPDX-License-Identifier: MIT
// Paints what becomes of a picture on the board and beside it, to be looked at: docs/pictures.png.
//   contact_sheet OUT.png [PHOTO]
#include "document/basTAVL.h"
#include "pictures/C_Image.h"
#include "pieces/frmBMP.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "services/ProgramSettings.h"
#include "support/PictureFiles.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int kMargin = 14;
constexpr int kStep = 100 + kMargin;

// A landscape of our own with fine detail: fence, tiles, ripples.
QImage Scene(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width / 400.0, height / 300.0);
    QLinearGradient sky(0, 0, 0, 180);
    sky.setColorAt(0, QColor(60, 110, 190));
    sky.setColorAt(1, QColor(235, 225, 205));
    painter.fillRect(0, 0, 400, 300, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 236, 160));
    painter.drawEllipse(QPointF(310, 60), 24, 24);
    painter.setBrush(QColor(70, 120, 70));
    painter.drawEllipse(QRectF(-80, 130, 330, 220));
    painter.setBrush(QColor(96, 150, 70));
    painter.drawEllipse(QRectF(170, 150, 330, 220));
    painter.setBrush(QColor(190, 70, 50));
    painter.drawPolygon(QPolygonF({{110, 140}, {165, 95}, {220, 140}}));
    painter.setBrush(QColor(238, 226, 200));
    painter.drawRect(QRectF(120, 140, 90, 66));
    painter.setBrush(QColor(60, 70, 100));
    painter.drawRect(QRectF(134, 152, 20, 20));
    painter.drawRect(QRectF(176, 152, 20, 20));
    painter.setBrush(QColor(110, 60, 30));
    painter.drawRect(QRectF(156, 176, 18, 30));
    painter.setPen(QPen(QColor(120, 30, 20), 0.5));
    for (int i = 0; i < 11; ++i)
        painter.drawLine(QPointF(165 - i * 5, 95 + i * 4.1), QPointF(165 + i * 5, 95 + i * 4.1));
    painter.setPen(QPen(Qt::white, 1.4));
    for (int x = 4; x < 400; x += 6)
        painter.drawLine(QPointF(x, 226), QPointF(x, 250));
    painter.drawLine(0, 232, 400, 232);
    painter.drawLine(0, 244, 400, 244);
    painter.end();
    QRandomGenerator random(28);
    for (int y = 0; y < height; ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int noise = int(random.bounded(3U)) - 1;
            const auto with = [noise](int value) { return std::clamp(value + noise, 0, 255); };
            row[x] = qRgb(with(qRed(row[x])), with(qGreen(row[x])), with(qBlue(row[x])));
        }
    }
    return image;
}

// A key in thin and thick lines, black on white.
QImage LineDrawing() {
    QImage image(900, 900, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 14));
    painter.drawEllipse(QPointF(280, 280), 150, 150);
    painter.drawEllipse(QPointF(280, 280), 80, 80);
    painter.setPen(QPen(Qt::black, 5));
    painter.drawLine(376, 400, 760, 784);
    painter.drawLine(400, 376, 784, 760);
    painter.drawLine(760, 784, 784, 760);
    for (int i = 0; i < 4; ++i)
        painter.drawLine(560 + i * 50, 584 + i * 50, 500 + i * 50, 644 + i * 50);
    painter.setPen(QPen(Qt::black, 2));
    for (int r = 170; r < 260; r += 8)
        painter.drawEllipse(QPointF(280, 280), r, r);
    return image;
}

class Sheet {
public:
    explicit Sheet(const QString& sFolder) : m_folder(sFolder), m_form(QSize(8 * kStep + kMargin, 880)) {
        m_form.SetBackColor(Color::Rgb(224, 255, 224));
        m_form.FontName = QStringLiteral("Arial");
        m_form.SetFontSize(9);
    }

    QString Write(const QString& sName, const QByteArray& bytes) const {
        QFile file(m_folder + u'/' + sName);
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
        return file.fileName();
    }
    void Caption(const QString& sText) {
        m_form.CurrentX = kMargin;
        m_form.CurrentY = m_y;
        m_form.Print(sText);
        m_y += 18;
    }
    void NextRow(int height) { m_y += height + 10; }

    // On the board, 100 by 100 and larger.
    void Rotated(const QString& sPath, int column, const QString& sKind, int iIndex, int side = 100) {
        C_Image image;
        image.Init(sPath, sKind, qint16(iIndex));
        image.DrawBitmapToScreen(m_form, kMargin + column * kStep, m_y, side, side);
    }
    void Oval(const QString& sPath, int column, const QString& sKind, int zoom) {
        C_Image image;
        image.Init(sPath, sKind, 0);
        image.Let_Zoom(qint16(zoom));
        QString error;
        const Picture thumb = LoadPicture(image.GetThumbnail(false), error);
        m_form.PaintPicture(thumb, kMargin + column * kStep, m_y, thumb.Width(), thumb.Height());
    }
    void Whole(const QString& sPath, int column, int side) {
        C_Image image;
        image.Let_FullPath(sPath);
        const int x = kMargin + column * kStep;
        image.PaintPictureCentered(m_form, x, m_y, x + side, m_y + side, Color::None());
    }
    const QImage& Image() { return m_form.Image(); }

private:
    QString m_folder;
    ScratchForm m_form;
    int m_y = 6;
};

// What a camera held in one of the eight ways would store.
QImage StoredFor(const QImage& upright, int tag) {
    const QTransform right = QTransform().rotate(90);
    const QTransform left = QTransform().rotate(-90);
    switch (tag) {
        case 2:
            return upright.mirrored(true, false);
        case 3:
            return upright.mirrored(true, true);
        case 4:
            return upright.mirrored(false, true);
        case 5:
            return upright.transformed(right).mirrored(true, false);
        case 6:
            return upright.transformed(left);
        case 7:
            return upright.transformed(right).mirrored(false, true);
        case 8:
            return upright.transformed(right);
        default:
            return upright;
    }
}

void Paint(Sheet& sheet, const QString& sPhoto, const QString& sArt) {
    const QString kSpace = QStringLiteral("Space");
    const QString kCorner = QStringLiteral("Corner");
    sheet.Caption(QStringLiteral("A photograph on the four sides and three corners, as thumbnails"));
    for (int i = 0; i < 4; ++i) {
        sheet.Rotated(sPhoto, i, kSpace, i * 7);
        // The fourth corner shows the kit's own picture, whatever its image.
        if (i < 3) sheet.Rotated(sPhoto, i + 4, kCorner, i);
    }
    sheet.NextRow(100);
    sheet.Caption(QStringLiteral("A line drawing: its paper takes the colour of the board"));
    for (int i = 0; i < 4; ++i) {
        sheet.Rotated(sArt, i, kSpace, i * 7 + 1);
        if (i < 3) sheet.Rotated(sArt, i + 4, kCorner, i);
    }
    sheet.NextRow(100);
    sheet.Caption(QStringLiteral("All eight orientations of a camera"));
    for (int tag = 1; tag <= 8; ++tag) {
        QString error;
        const QImage upright = LoadPicture(sPhoto, error, 256).Image();
        const QByteArray jpeg = PictureFiles::Encoded(StoredFor(upright, tag), "jpg", 90);
        sheet.Whole(sheet.Write(QStringLiteral("tag%1.jpg").arg(tag), PictureFiles::WithOrientation(jpeg, tag, true)),
                    tag - 1, 100);
    }
    sheet.NextRow(88);
    sheet.Caption(QStringLiteral("A token, a banknote's oval, both again zoomed in"));
    sheet.Oval(sPhoto, 0, QStringLiteral("Token"), 0);
    sheet.Oval(sPhoto, 2, QStringLiteral("Money"), 0);
    sheet.Oval(sPhoto, 4, QStringLiteral("Token"), 15);
    sheet.Oval(sPhoto, 6, QStringLiteral("Money"), 15);
    sheet.NextRow(200);
    sheet.Caption(QStringLiteral("Rendered finer where the board is large"));
    sheet.Rotated(sPhoto, 0, kSpace, 9, 240);
    sheet.Rotated(sPhoto, 2, kCorner, 1, 240);
    sheet.Rotated(sArt, 4, kCorner, 2, 240);
    sheet.Rotated(sArt, 6, kSpace, 20, 220);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: contact_sheet OUT.png [PHOTO]\n", stderr);
        return 2;
    }
    const QTemporaryDir folder;
    Settings().sMyGamesDirectory = folder.path();
    frmBMP::InstallAsThumbnailMaker();
    basTAVL::g_oMoney(0).BackColor = Color::Rgb(255, 236, 190);
    Sheet sheet(folder.path());
    const QString photo =
        argc > 2 ? QString::fromLocal8Bit(argv[2])
                 : sheet.Write(QStringLiteral("photo.jpg"), PictureFiles::Encoded(Scene(2000, 1500), "jpg", 92));
    Paint(sheet, photo, sheet.Write(QStringLiteral("art.bmp"), PictureFiles::MonochromeBmp(LineDrawing())));
    return sheet.Image().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
