// SPDX-License-Identifier: MIT
#include "windows/editors/EditWindow.h"
#include "windows/editors/LikenessPicture.h"

#include "pictures/C_Image.h"
#include "windowing/ButtonKeys.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/ImageGroup.h"
#include "windows/editors/PaperLine.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kButtonWidth = 170;

} // namespace

void EditWindow::BuildControls() {
    auto* right = new QVBoxLayout;
    right->addWidget(BuildTextGroup());
    right->addWidget(BuildImageGroup());
    lblPlace = new QLabel(this);
    lblPlace->setObjectName(QStringLiteral("lblPlace"));
    lblPlace->setAlignment(Qt::AlignCenter);
    right->addStretch();
    right->addWidget(lblPlace);
    right->addStretch();
    right->addLayout(BuildClosing());

    auto* all = new QHBoxLayout(this);
    all->addWidget(BuildLikeness());
    all->addLayout(right);
    all->setSizeConstraint(QLayout::SetFixedSize);
    BuildHidden();
}

QWidget* EditWindow::BuildLikeness() {
    auto* area = new QWidget(this);
    picDest->setFixedSize(m_likeness.Size());
    picDest->SetBackColor(WidgetLook::FillOf(*this));
    txtlegend = new QLabel(area);
    txtlegend->setObjectName(QStringLiteral("txtlegend"));
    txtlegend->setTextFormat(Qt::PlainText);
    txtlegend->setAlignment(Qt::AlignHCenter);
    ShowLegend();
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picDest);
    layout->addWidget(txtlegend);
    lblPaper->KeepRoom(std::max(picDest->width(), txtlegend->sizeHint().width()));
    layout->addWidget(lblPaper);
    layout->addStretch();
    return area;
}

void EditWindow::ShowLegend() {
    const bool hasImage = !m_likeness.Image().FullPath().isEmpty();
    txtlegend->setText(hasImage ? QStringLiteral("Click the name to type.\nClick the picture to change it.\n"
                                                 "Right drag moves, wheel zooms.")
                                : QStringLiteral("Click the name to type.\n\u201cInclude Image\u201d adds a picture."));
}

QPushButton* EditWindow::MakeButton(const char* sName, const QString& sCaption) {
    auto* button = new QPushButton(sCaption, this);
    button->setObjectName(QString::fromLatin1(sName));
    LetEnterPressWithFocusOnly(*button);
    button->setMinimumWidth(kButtonWidth);
    Prepare(*button);
    return button;
}

void EditWindow::Prepare(QWidget& control) {
    // A click leaves the focus where the keys go to the text.
    control.setFocusPolicy(Qt::TabFocus);
    control.setMouseTracking(true);
    control.installEventFilter(this);
}

QGroupBox* EditWindow::BuildTextGroup() {
    auto* group = new QGroupBox(QStringLiteral("Text"), this);
    cmdChangeFont = MakeButton("cmdChangeFont", QStringLiteral("Change &Font"));
    cmdSetAllFonts = MakeButton("cmdSetAllFonts", QStringLiteral("Set &All Fonts"));
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(cmdChangeFont);
    layout->addWidget(cmdSetAllFonts);
    return group;
}

ImageGroup* EditWindow::BuildImageGroup() {
    fraBitmap = new ImageGroup(QString::fromLatin1(m_wording.sImageFrame), QStringLiteral("C&rop  Image"), this);
    chkIncludeImage = fraBitmap->chkIncludeImage;
    cmdBitmap = fraBitmap->cmdBitmap;
    cmdCropImage = fraBitmap->cmdCropImage;
    txtBitmapPath = fraBitmap->txtBitmapPath;
    Prepare(*chkIncludeImage);
    for (QPushButton* button : {cmdBitmap, cmdCropImage}) {
        button->setMinimumWidth(kButtonWidth);
        Prepare(*button);
    }
    return fraBitmap;
}

QBoxLayout* EditWindow::BuildClosing() {
    cmdOK = MakeButton("cmdOK", QStringLiteral("&OK"));
    cmdCancel = MakeButton("cmdCancel", QStringLiteral("&Cancel"));
    auto* layout = new QVBoxLayout;
    layout->addWidget(cmdOK);
    layout->addWidget(cmdCancel);
    return layout;
}

void EditWindow::BuildHidden() {
    // The keyboard's way goes from the text to the buttons.
    setTabOrder(txtHoldFocus, cmdChangeFont);
    txtSpace = new QPlainTextEdit(this);
    txtSpace->setObjectName(QStringLiteral("txtSpace"));
    txtSpace->setFocusPolicy(Qt::NoFocus);
    txtSpace->hide();
}

void EditWindow::Connect() {
    new LikenessPicture(*picDest, m_session,
                        {.image = [this]() -> C_Image& { return m_likeness.Image(); },
                         .place = [this] { return m_likeness.ImageBox(); },
                         .changed = [this] { Redraw(); },
                         .take = std::bind_front(&EditWindow::TakeDropped, this)});
    connect(picDest, &PictureBox::MouseDown, this, &EditWindow::picDest_MouseDown);
    connect(picDest, &PictureBox::MouseMove, this, &EditWindow::picDest_MouseMove);
    connect(picDest, &PictureBox::MouseUp, this, &EditWindow::picDest_MouseUp);
    connect(picDest, &PictureBox::MouseLeft, this, &EditWindow::picDest_MouseLeft);
    connect(picDest, &PictureBox::BackingChanged, this, &EditWindow::picDest_BackingChanged);
    connect(txtSpace, &QPlainTextEdit::textChanged, this, &EditWindow::txtSpace_Change);
    connect(cmdOK, &QPushButton::clicked, this, &EditWindow::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &EditWindow::cmdCancel_Click);
    connect(cmdChangeFont, &QPushButton::clicked, this, &EditWindow::cmdChangeFont_Click);
    connect(cmdSetAllFonts, &QPushButton::clicked, this, &EditWindow::cmdSetAllFonts_Click);
    connect(cmdBitmap, &QPushButton::clicked, this, &EditWindow::cmdBitmap_Click);
    connect(fraBitmap, &ImageGroup::PathClicked, this, &EditWindow::txtBitmapPath_Click);
    connect(cmdCropImage, &QPushButton::clicked, this, &EditWindow::cmdCropImage_Click);
    connect(chkIncludeImage, &QCheckBox::clicked, this, &EditWindow::chkIncludeImage_Click);
}
