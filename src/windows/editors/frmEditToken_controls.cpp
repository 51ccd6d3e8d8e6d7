// SPDX-License-Identifier: MIT
#include "windows/editors/frmEditToken.h"
#include "windows/editors/LikenessPicture.h"

#include "windowing/ButtonKeys.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/editors/HoldFocusBox.h"
#include "windows/editors/PaperLine.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int kSide = 300;
constexpr int kButtonWidth = 150;

} // namespace

void frmEditToken::BuildControls() {
    auto* right = new QVBoxLayout;
    right->addWidget(BuildIncludeGroup());
    right->addWidget(BuildImageGroup());
    right->addWidget(BuildTextGroup());
    right->addStretch();
    right->addLayout(BuildClosing());

    auto* all = new QHBoxLayout(this);
    all->addLayout(BuildPicture());
    all->addLayout(right);
    all->setSizeConstraint(QLayout::SetFixedSize);
    BuildHidden();
}

QBoxLayout* frmEditToken::BuildPicture() {
    picDest->setFixedSize(kSide, kSide);
    picDest->setMouseTracking(true);
    lblHint = new QLabel(this);
    lblHint->setObjectName(QStringLiteral("lblHint"));
    lblHint->setAlignment(Qt::AlignHCenter);
    auto* layout = new QVBoxLayout;
    layout->addWidget(picDest);
    layout->addWidget(lblHint);
    lblPlace = new QLabel(this);
    lblPlace->setObjectName(QStringLiteral("lblPlace"));
    lblPlace->setAlignment(Qt::AlignHCenter);
    layout->addWidget(lblPlace);
    lblPaper->KeepRoom(kSide);
    layout->addWidget(lblPaper);
    layout->addStretch();
    return layout;
}

QRadioButton* frmEditToken::MakeOption(Include iIndex, const QString& sCaption, const QString& sTip) {
    auto* option = new QRadioButton(sCaption, this);
    option->setObjectName(QStringLiteral("optInclude_%1").arg(int(iIndex)));
    option->setFocusPolicy(Qt::TabFocus);
    option->installEventFilter(this);
    WidgetLook::SetToolTip(*option, sTip);
    optInclude[iIndex] = option;
    return option;
}

QPushButton* frmEditToken::MakeButton(const char* sName, const QString& sCaption, const QString& sTip) {
    auto* button = new QPushButton(sCaption, this);
    button->setObjectName(QString::fromLatin1(sName));
    LetEnterPressWithFocusOnly(*button);
    button->setMinimumWidth(kButtonWidth);
    // A click leaves the focus where the keys go to the text.
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
    WidgetLook::SetToolTip(*button, sTip);
    return button;
}

QGroupBox* frmEditToken::BuildIncludeGroup() {
    auto* group = new QGroupBox(QStringLiteral("On the Token"), this);
    auto* layout = new QVBoxLayout(group);
    // No wider than what can be clicked of it.
    for (QRadioButton* option :
         {MakeOption(kImage, QStringLiteral("Use &Image"), QStringLiteral("Click to use an Image on the token")),
          MakeOption(kText, QStringLiteral("Use &Text"), QStringLiteral("Click to use Text on the token"))})
        layout->addWidget(option, 0, Qt::AlignLeft);
    return group;
}

QGroupBox* frmEditToken::BuildImageGroup() {
    auto* group = new QGroupBox(QStringLiteral("Image"), this);
    cmdBitmap = MakeButton("cmdBitmap", QString(), QStringLiteral("Click to select or change the image"));
    cmdCropImage = MakeButton("cmdCropImage", QStringLiteral("C&rop  Image"),
                              QStringLiteral("Click to crop or reposition the image"));
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(cmdBitmap);
    layout->addWidget(cmdCropImage);
    return group;
}

QGroupBox* frmEditToken::BuildTextGroup() {
    auto* group = new QGroupBox(QStringLiteral("Text"), this);
    cmdChangeFont = MakeButton("cmdChangeFont", QStringLiteral("Change &Font"),
                               QStringLiteral("Change font family, style and maximum size"));
    cmdSetAllFonts = MakeButton("cmdSetAllFonts", QStringLiteral("Set &All Fonts"),
                                QStringLiteral("Click to set fonts for ALL tokens"));
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(cmdChangeFont);
    layout->addWidget(cmdSetAllFonts);
    return group;
}

QBoxLayout* frmEditToken::BuildClosing() {
    cmdHelp = MakeButton("cmdHelp", QStringLiteral("&Help"), QStringLiteral("Click to see how text is typed"));
    cmdOK = MakeButton("cmdOK", QStringLiteral("&OK"), QStringLiteral("Click to Save Your Changes"));
    cmdCancel = MakeButton("cmdCancel", QStringLiteral("&Cancel"), QStringLiteral("Click to Undo Your Changes"));
    auto* layout = new QVBoxLayout;
    layout->addWidget(cmdHelp);
    layout->addWidget(cmdOK);
    layout->addWidget(cmdCancel);
    return layout;
}

void frmEditToken::BuildHidden() {
    WidgetLook::SetToolTip(*txtHoldFocus, QStringLiteral("Dummy text area needed to hold the focus"));
    // The keyboard's way goes from the text to the options.
    setTabOrder(txtHoldFocus, optInclude[kImage]);
    cmdIndex = MakeButton("cmdIndex", QString(), QString());
    cmdIndex->hide();
    txtToken = new QPlainTextEdit(this);
    txtToken->setObjectName(QStringLiteral("txtToken"));
    txtToken->setFocusPolicy(Qt::NoFocus);
    WidgetLook::SetToolTip(*txtToken, QStringLiteral("Enter or edit text for the token here"));
    txtToken->hide();
}

void frmEditToken::Connect() {
    new LikenessPicture(*picDest, m_session,
                        {.image = [this]() -> C_Image& { return m_oToken.Image; },
                         .place = [this] { return picDest->rect(); },
                         .changed = [this] { Redraw(); },
                         .take = std::bind_front(&frmEditToken::TakeDropped, this)});
    connect(picDest, &PictureBox::MouseDown, this, &frmEditToken::picDest_MouseDown);
    connect(picDest, &PictureBox::MouseMove, this, &frmEditToken::picDest_MouseMove);
    connect(picDest, &PictureBox::MouseUp, this, &frmEditToken::picDest_MouseUp);
    connect(picDest, &PictureBox::BackingChanged, this, &frmEditToken::picDest_BackingChanged);
    connect(txtToken, &QPlainTextEdit::textChanged, this, &frmEditToken::txtToken_Change);
    auto* const options = new QButtonGroup(this);
    for (int i = 0; i < kIncludes; ++i)
        options->addButton(optInclude[size_t(i)], i);
    connect(options, &QButtonGroup::idClicked, this, &frmEditToken::optInclude_Click);
    connect(cmdBitmap, &QPushButton::clicked, this, &frmEditToken::cmdBitmap_Click);
    connect(cmdCropImage, &QPushButton::clicked, this, &frmEditToken::cmdCropImage_Click);
    connect(cmdChangeFont, &QPushButton::clicked, this, &frmEditToken::cmdChangeFont_Click);
    connect(cmdSetAllFonts, &QPushButton::clicked, this, &frmEditToken::cmdSetAllFonts_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmEditToken::cmdHelp_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmEditToken::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmEditToken::cmdCancel_Click);
}
