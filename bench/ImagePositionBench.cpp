// SPDX-License-Identifier: MIT
// Dragging a photograph of 12 megapixels behind its box: each step from the mouse's move to the painted
// window. TAVLORA_BENCH_PHOTOS names a folder with a real one; without it a made one is used.
#include "platform/files/Console.h"
#include "windowing/PictureBox.h"
#include "windows/pictures/frmImagePosition.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kSteps = 200;
constexpr int kSide = 600;
constexpr QSize kPhotoSize(4000, 3000);

// Waves with some noise, so that it decodes at about the speed of a photograph.
QString MakePhoto(const QString& sFolder) {
    QImage image(kPhotoSize, QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int value = int(128 + 90 * std::sin(x / 97.0) * std::cos(y / 61.0)) + int(noise >> 28);
            line[x] = qRgb(value, 255 - value, (x + y) & 0xFF);
        }
    }
    const QString path = sFolder + QStringLiteral("/photo.jpg");
    image.save(path, "jpg", 90);
    return path;
}

QString PhotoPath(const QString& sFolder) {
    const QDir photos(qEnvironmentVariable("TAVLORA_BENCH_PHOTOS"));
    const QStringList names = photos.entryList({QStringLiteral("*.jpg")}, QDir::Files);
    const bool given = qEnvironmentVariableIsSet("TAVLORA_BENCH_PHOTOS") && !names.isEmpty();
    return given ? photos.filePath(names.front()) : MakePhoto(sFolder);
}

/// What a hand does in the window: presses, moves in a wide curve, lets go, presses OK.
class Dragging : public QObject {
public:
    Dragging(frmImagePosition& form, std::vector<double>& milliseconds) : m_form(form), m_milliseconds(milliseconds) {
        QTimer::singleShot(0, this, &Dragging::Run);
    }

private:
    void Send(QEvent::Type type, Qt::MouseButton button, QPointF at) {
        QMouseEvent event(type, at, m_preview->mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_preview, &event);
    }

    void Run() {
        m_preview = m_form.findChild<PictureBox*>(QStringLiteral("picZoomed"));
        const QPointF middle(kSide / 2.0, kSide / 2.0);
        QApplication::processEvents();
        Send(QEvent::MouseButtonPress, Qt::LeftButton, middle);
        for (int step = 0; step < kSteps; ++step) {
            const double angle = step * 0.05;
            QElapsedTimer time;
            time.start();
            Send(QEvent::MouseMove, Qt::NoButton, middle + QPointF(150 * std::sin(angle), 90 * std::sin(2 * angle)));
            m_preview->repaint();
            m_milliseconds.push_back(double(time.nsecsElapsed()) / 1e6);
        }
        Send(QEvent::MouseButtonRelease, Qt::LeftButton, middle);
        m_form.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    }

    frmImagePosition& m_form;
    std::vector<double>& m_milliseconds;
    PictureBox* m_preview = nullptr;
};

double Quantile(const std::vector<double>& sorted, double share) {
    return sorted[size_t(share * double(sorted.size() - 1))];
}

void BM_DragPhoto(benchmark::State& state) {
    const TemporaryFolder folder;
    const QString photo = PhotoPath(folder.Path());
    std::vector<double> milliseconds;
    for (auto _ : state) {
        C_Image image;
        image.Init(photo, QString(), 0);
        image.Let_Zoom(qint16(state.range(0)));
        frmImagePosition form;
        form.SetPreviewWidth(kSide);
        const Dragging dragging(form, milliseconds);
        form.ShowForm(image, 1.0, state.range(1) != 0);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    state.counters["median_ms"] = Quantile(milliseconds, 0.5);
    state.counters["p99_ms"] = Quantile(milliseconds, 0.99);
    state.counters["most_ms"] = milliseconds.back();
}
// Zoom step, and whether the preview is masked round.
BENCHMARK(BM_DragPhoto)
    ->Args({0, 0})
    ->Args({0, 1})
    ->Args({9, 0})
    ->Args({25, 0})
    ->Args({45, 0})
    ->Unit(benchmark::kMillisecond);

} // namespace
