// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/LikenessPicture.h"

#include "services/basCommon.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ButtonKeys.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windows/editors/ImageGroup.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr std::array<const char*, basTAVL::kMoney> kCaptions = {"100", "500", "1000", "5000"};
// The note at 96 dots an inch: 3.75 by 2 inches.
constexpr QSize kNote(360, 192);
constexpr int kButtonWidth = 190;
// More lines than a note has room for.
constexpr int kLinesOfText = 4;
constexpr int kGap = 12;

int HeightOfLines(const QPlainTextEdit& box, int lines) {
    const int frame = 2 * box.frameWidth() + 2 * int(box.document()->documentMargin());
    return lines * box.fontMetrics().lineSpacing() + frame;
}

} // namespace

frmEditMoney::frmEditMoney(Session& session, QWidget* parent) : QDialog(parent), m_session(session) {
    setObjectName(QStringLiteral("frmEditMoney"));
    setWindowTitle(QStringLiteral("Edit Money"));
    BuildControls();
    basCommon::ShowEntireForm(*this);
}

void frmEditMoney::BuildControls() {
    cmdIndex = MakeButton("cmdIndex", QString(), nullptr);
    cmdIndex->hide();
    picNote = new PictureBox(this);
    new LikenessPicture(*picNote, m_session,
                        {.image = [this]() -> C_Image& { return FaceImage(); },
                         .place = [this] { return InMiddleOfNote(picNote->DotsPerInch()).toAlignedRect(); },
                         .changed = [this] { RedrawMoney(); },
                         .take = std::bind_front(&frmEditMoney::TakeDropped, this)});
    picNote->setObjectName(QStringLiteral("picNote"));
    picNote->setFixedSize(kNote);
    connect(picNote, &PictureBox::BackingChanged, this, &frmEditMoney::picNote_BackingChanged);

    auto* const left = new QVBoxLayout;
    left->addLayout(BuildChoice());
    left->addWidget(picNote);
    left->addSpacing(kGap);
    left->addLayout(BuildTexts());
    left->addStretch();
    auto* const all = new QHBoxLayout(this);
    all->addLayout(left);
    all->addSpacing(kGap);
    all->addLayout(BuildRight());
    all->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* frmEditMoney::BuildChoice() {
    auto* const group = new QButtonGroup(this);
    auto* const row = new QHBoxLayout;
    for (int i = 0; i < basTAVL::kMoney; ++i) {
        auto* const option = new QRadioButton(QString::fromLatin1(kCaptions[size_t(i)]), this);
        option->setObjectName(QStringLiteral("optMoney_%1").arg(i));
        group->addButton(option, i);
        row->addWidget(option);
        optMoney[size_t(i)] = option;
    }
    row->addStretch();
    connect(group, &QButtonGroup::idClicked, this, &frmEditMoney::optMoney_Click);
    return row;
}

QLayout* frmEditMoney::BuildTexts() {
    auto* const label = new QLabel(QStringLiteral("&Edit text here:"), this);
    auto* const boxes = new QHBoxLayout;
    boxes->setSpacing(kGap);
    for (int i = 0; i < C_Money::kTexts; ++i) {
        auto* const box = new QPlainTextEdit(this);
        box->setObjectName(QStringLiteral("txtSpace_%1").arg(i));
        box->setAccessibleName(i == 0 ? QStringLiteral("Text on the left") : QStringLiteral("Text on the right"));
        // Lines end where Enter was pressed, as they do on the note.
        box->setLineWrapMode(QPlainTextEdit::NoWrap);
        box->setTabChangesFocus(true);
        // Each under its half of the note, however wide a box would like to be.
        box->setFixedWidth((kNote.width() - boxes->spacing()) / C_Money::kTexts);
        box->setFixedHeight(HeightOfLines(*box, kLinesOfText));
        connect(box, &QPlainTextEdit::textChanged, this, &frmEditMoney::txtSpace_Change);
        boxes->addWidget(box);
        txtSpace[size_t(i)] = box;
    }
    label->setBuddy(txtSpace[0]);
    auto* const texts = new QVBoxLayout;
    texts->addWidget(label);
    texts->addLayout(boxes);
    return texts;
}

QLayout* frmEditMoney::BuildRight() {
    fraBitmap = new ImageGroup(QStringLiteral("Bitmap"), QStringLiteral("C&rop Image"), this);
    chkIncludeImage = fraBitmap->chkIncludeImage;
    cmdBitmap = fraBitmap->cmdBitmap;
    cmdCropImage = fraBitmap->cmdCropImage;
    txtBitmapPath = fraBitmap->txtBitmapPath;
    cmdBitmap->setMinimumWidth(kButtonWidth);
    connect(chkIncludeImage, &QCheckBox::clicked, this, &frmEditMoney::chkIncludeImage_Click);
    connect(cmdBitmap, &QPushButton::clicked, this, &frmEditMoney::cmdBitmap_Click);
    connect(cmdCropImage, &QPushButton::clicked, this, &frmEditMoney::cmdCropImage_Click);
    connect(fraBitmap, &ImageGroup::PathClicked, this, &frmEditMoney::txtBitmapPath_Click);

    auto* const right = new QVBoxLayout;
    right->addWidget(fraBitmap);
    right->addStretch();
    right->addWidget(MakeButton("cmdOK", QStringLiteral("&OK"), &frmEditMoney::cmdOK_Click));
    right->addWidget(MakeButton("cmdCancel", QStringLiteral("&Cancel"), &frmEditMoney::cmdCancel_Click));
    return right;
}

QPushButton* frmEditMoney::MakeButton(const char* sName, const QString& sCaption, void (frmEditMoney::*click)()) {
    auto* const button = new QPushButton(sCaption, this);
    button->setObjectName(QString::fromLatin1(sName));
    LetEnterPressWithFocusOnly(*button);
    if (click) connect(button, &QPushButton::clicked, this, click);
    return button;
}
