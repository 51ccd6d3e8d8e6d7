// SPDX-License-Identifier: MIT
// The window's controls: what they are, where they stand, and what they set off.
#include "platform/text/Numbers.h"
#include "windowing/ButtonKeys.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windows/pictures/frmImagePosition.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace {

// Pixels. Together with a usual title bar the margins and the frame make the window 705 twips higher than
// the preview.
constexpr int kMargin = 8;
constexpr int kGap = 12;
constexpr int kFocusFrame = 2;
constexpr int kTitleBar = 27;
constexpr int kBesidePreview = 280;
constexpr int kAroundPreview = 2 * (kMargin + kFocusFrame) + kTitleBar;
constexpr int kLeastPreviewWidth = 200;
constexpr int kUsualPreviewWidth = 600;

constexpr int kTickInterval = 10;
constexpr int kSharpenMs = 150;
/// The browser comes up once this window has been on the screen for a moment.
constexpr int kSelectMs = 50;

const char* const kTexts[] = {"Left click mouse and drag \nto move the image.\n",
                              "Right click to center the \nimage on the point clicked.\n",
                              "Use slider at left to zoom \nthe image.\n"};

template <typename Control>
Control* Named(Control* control, const char* name, const QString& sToolTip) {
    control->setObjectName(QString::fromLatin1(name));
    control->setToolTip(sToolTip);
    return control;
}

QTimer* OneShot(QObject* parent, const char* name, int milliseconds) {
    auto* timer = new QTimer(parent);
    timer->setObjectName(QString::fromLatin1(name));
    timer->setSingleShot(true);
    timer->setInterval(milliseconds);
    return timer;
}

} // namespace

QWidget* frmImagePosition::BuildPreview() {
    shpZoomed = new QFrame(this);
    shpZoomed->setAutoFillBackground(true);
    shpZoomed->setBackgroundRole(QPalette::Mid);
    picZoomed = Named(new PictureBox(shpZoomed), "picZoomed",
                      QStringLiteral("Drag to move, wheel to zoom, arrow keys to move by keyboard"));
    picZoomed->setAccessibleName(QStringLiteral("Picture"));
    picZoomed->setFocusPolicy(Qt::StrongFocus);
    picZoomed->setCursor(Qt::OpenHandCursor);
    picZoomed->installEventFilter(this);
    auto* inside = new QVBoxLayout(shpZoomed);
    inside->setContentsMargins(kFocusFrame, kFocusFrame, kFocusFrame, kFocusFrame);
    inside->addWidget(picZoomed);
    return shpZoomed;
}

QWidget* frmImagePosition::BuildTexts() {
    auto* side = new QWidget(this);
    cmdSelectImage = Named(new QPushButton(QStringLiteral("&Select Different Image"), side), "cmdSelectImage",
                           QStringLiteral("Choose another picture"));
    cmdOK = Named(new QPushButton(QStringLiteral("&OK"), side), "cmdOK", QStringLiteral("Use the picture as shown"));
    cmdCancel = Named(new QPushButton(QStringLiteral("&Cancel"), side), "cmdCancel",
                      QStringLiteral("Leave the picture as it was"));
    cmdOK->setDefault(true);
    LetEnterPressWithFocusOnly(*cmdSelectImage);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    for (const char* text : kTexts) {
        auto* label = new QLabel(QString::fromLatin1(text), side);
        label->setTextFormat(Qt::PlainText);
        column->addWidget(label);
    }
    column->addWidget(cmdSelectImage);
    column->addStretch(1);
    column->addWidget(cmdOK);
    column->addWidget(cmdCancel);
    return side;
}

void frmImagePosition::BuildControls() {
    QWidget* const preview = BuildPreview();
    sldZoom = Named(new QSlider(Qt::Vertical, this), "sldZoom", QStringLiteral("Up: larger. Down: smaller."));
    sldZoom->setRange(ImagePlacing::kSliderTop, ImagePlacing::kSliderBottom);
    sldZoom->setTickPosition(QSlider::TicksBothSides);
    sldZoom->setTickInterval(kTickInterval);
    // Its values grow downwards, and so go its keys and the wheel.
    sldZoom->setInvertedAppearance(true);
    sldZoom->setInvertedControls(true);
    auto* caption = new QLabel(QStringLiteral("&Zoom"), this);
    caption->setBuddy(sldZoom);
    auto* slider = new QVBoxLayout;
    slider->addWidget(caption, 0, Qt::AlignHCenter);
    slider->addWidget(sldZoom, 1, Qt::AlignHCenter);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kGap);
    row->addWidget(preview);
    row->addLayout(slider);
    row->addWidget(BuildTexts());
    row->setSizeConstraint(QLayout::SetFixedSize);
    timSelectAnImage = OneShot(this, "timSelectAnImage", kSelectMs);
    timSharpen = OneShot(this, "timSharpen", kSharpenMs);
    setTabOrder(picZoomed, sldZoom);
    setTabOrder(sldZoom, cmdSelectImage);
    setTabOrder(cmdSelectImage, cmdOK);
    setTabOrder(cmdOK, cmdCancel);
}

void frmImagePosition::Connect() {
    connect(picZoomed, &PictureBox::MouseDown, this, &frmImagePosition::picZoomed_MouseDown);
    connect(picZoomed, &PictureBox::MouseMove, this, &frmImagePosition::picZoomed_MouseMove);
    connect(picZoomed, &PictureBox::MouseUp, this, &frmImagePosition::picZoomed_MouseUp);
    connect(picZoomed, &PictureBox::BackingChanged, this, &frmImagePosition::Zoom);
    connect(sldZoom, &QSlider::valueChanged, this, &frmImagePosition::sldZoom_MouseMove);
    connect(cmdSelectImage, &QPushButton::clicked, this, &frmImagePosition::cmdSelectImage_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmImagePosition::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmImagePosition::cmdCancel_Click);
    connect(timSelectAnImage, &QTimer::timeout, this, &frmImagePosition::timSelectAnImage_Timer);
    connect(timSharpen, &QTimer::timeout, this, &frmImagePosition::timSharpen_Timer);
}

void frmImagePosition::SizePreview(double dblHeightToWidth) {
    const QSize room = Screen::FreeArea().size() - QSize(kBesidePreview, kAroundPreview);
    const int high = int(room.height() / dblHeightToWidth);
    const int fitting = std::max(std::min({kUsualPreviewWidth, room.width(), high}), kLeastPreviewWidth);
    const int width = m_fixedPreviewWidth > 0 ? m_fixedPreviewWidth : fitting;
    picZoomed->setFixedSize(width, CLng(width * dblHeightToWidth));
    adjustSize();
}
