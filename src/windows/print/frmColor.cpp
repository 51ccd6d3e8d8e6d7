// SPDX-License-Identifier: MIT
#include "windows/print/frmColor.h"

#include "platform/text/Numbers.h"
#include "render/PrintBlackAs.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/PictureBox.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr std::array<const char*, 3> kLabels = {"&Red", "&Green", "&Blue"};
constexpr int kMost = 255;
constexpr int kBoxWidth = 60;
constexpr int kSampleWidth = 150;
constexpr int kTextWidth = 380;
const QString kDefaultText = QStringLiteral("10");
const Color kDefaultColor = Color::FromValue(PrintBlackAs::kDefault);

std::optional<int> PartOfColor(const QString& sText) {
    const std::optional<double> value = ParseNumber(sText);
    if (!value || *value < 0 || *value > kMost) return {};
    return CLng(*value);
}

} // namespace

frmColor::frmColor(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmColor"));
    setWindowTitle(QStringLiteral("Setup"));
    BuildControls();
    Form_Initialize();
}

QPushButton* frmColor::MakeButton(const char* sName, const char* sCaption) {
    auto* button = new QPushButton(QString::fromLatin1(sCaption), this);
    button->setObjectName(QString::fromLatin1(sName));
    return button;
}

QVBoxLayout* frmColor::BuildBoxes() {
    chkUseDefaults = new QCheckBox(QStringLiteral("Use &Default Color"), this);
    chkUseDefaults->setObjectName(QStringLiteral("chkUseDefaults"));
    chkUseDefaults->setToolTip(QStringLiteral("Uncheck to allow changing the printing color."));
    connect(chkUseDefaults, &QCheckBox::toggled, this, &frmColor::chkUseDefaults_Click);
    auto* grid = new QGridLayout;
    for (size_t i = 0; i < kBoxes; ++i) {
        txtColor[i] = new QLineEdit(kDefaultText, this);
        txtColor[i]->setObjectName(QStringLiteral("txtColor_") + QString::number(i));
        txtColor[i]->setFixedWidth(kBoxWidth);
        txtColor[i]->installEventFilter(this);
        auto* label = new QLabel(QString::fromLatin1(kLabels[i]), this);
        label->setBuddy(txtColor[i]);
        grid->addWidget(label, int(i), 0);
        grid->addWidget(txtColor[i], int(i), 1);
    }
    auto* column = new QVBoxLayout;
    column->addWidget(chkUseDefaults);
    column->addLayout(grid);
    column->addStretch();
    return column;
}

void frmColor::BuildControls() {
    lblExplain = new QLabel(QStringLiteral("Some color printers do better with a very dark color rather than pure "
                                           "black. Setting Red, Green, or Blue to something other than 10, 10, 10 "
                                           "will cause that color to be used for printing the green and red sheets."),
                            this);
    lblExplain->setObjectName(QStringLiteral("lblExplain"));
    lblExplain->setTextFormat(Qt::PlainText);
    lblExplain->setWordWrap(true);
    lblExplain->setFixedWidth(kTextWidth);
    // The toolkit would make room for fewer lines than large letters take.
    lblExplain->setMinimumHeight(lblExplain->heightForWidth(kTextWidth));
    auto* middle = new QHBoxLayout;
    middle->addLayout(BuildBoxes());
    middle->addStretch();
    picColorSample = new PictureBox(this);
    picColorSample->setObjectName(QStringLiteral("picColorSample"));
    picColorSample->setAccessibleName(QStringLiteral("The color chosen"));
    picColorSample->setFixedWidth(kSampleWidth);
    connect(picColorSample, &PictureBox::MouseDown, this, &frmColor::picColorSample_Click);
    middle->addWidget(picColorSample);
    cmdOK = MakeButton("cmdOK", "&OK");
    cmdOK->setDefault(true);
    // A click on either leaves the focus where it is: OK looks at all boxes itself, and nobody is told about an entry
    // that is being given up.
    cmdOK->setFocusPolicy(Qt::TabFocus);
    connect(cmdOK, &QPushButton::clicked, this, &frmColor::cmdOK_Click);
    cmdCancel = MakeButton("cmdCancel", "&Cancel");
    cmdCancel->setFocusPolicy(Qt::TabFocus);
    connect(cmdCancel, &QPushButton::clicked, this, &frmColor::cmdCancel_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* all = new QVBoxLayout(this);
    const int gap = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing);
    all->addWidget(lblExplain);
    all->addSpacing(gap);
    all->addLayout(middle);
    all->addSpacing(gap);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmColor::Form_Initialize() {
    m_lColor = PrintBlackAs::Read();
    chkUseDefaults->setChecked(m_lColor == kDefaultColor);
    chkUseDefaults_Click();
    picColorSample->SetBackColor(m_lColor);
    const std::array<int, kBoxes> parts = {m_lColor.Red(), m_lColor.Green(), m_lColor.Blue()};
    for (size_t i = 0; i < kBoxes; ++i)
        txtColor[i]->setText(QString::number(parts[i]));
}

bool frmColor::ShowForm() try {
    m_bOK = false;
    (chkUseDefaults->isChecked() ? static_cast<QWidget*>(chkUseDefaults) : txtColor[0])->setFocus();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
    return m_bOK;
} catch (...) {
    ErrTail("frmColor!", "ShowForm");
}

void frmColor::chkUseDefaults_Click() try {
    const bool defaults = chkUseDefaults->isChecked();
    for (QLineEdit* box : txtColor) {
        box->setEnabled(!defaults);
        if (defaults) box->setText(kDefaultText);
    }
    if (defaults) picColorSample->SetBackColor(kDefaultColor);
} catch (...) {
    ErrTop("frmColor!", "chkUseDefaults_Click");
}

// Leaves the sample as it was while one of the boxes holds what is no part of a colour; that has been told.
void frmColor::RebuildSample() {
    std::array<int, kBoxes> parts{};
    for (size_t i = 0; i < kBoxes; ++i) {
        const std::optional<int> part = PartOfColor(txtColor[i]->text());
        if (!part) return;
        parts[i] = *part;
    }
    picColorSample->SetBackColor(Color::Rgb(parts[0], parts[1], parts[2]));
}

bool frmColor::txtColor_LostFocus(int Index) try {
    if (!PartOfColor(txtColor.at(size_t(Index))->text())) {
        MsgBox(QStringLiteral("Entry must be number between 0 and 255"));
        return false;
    }
    RebuildSample();
    return true;
} catch (...) {
    ErrTop("frmColor!", "txtColor_LostFocus", Index);
    return false;
}

bool frmColor::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QDialog::eventFilter(watched, event);
    if (event->type() != QEvent::FocusOut || !isVisible()) return handled;
    // Not when the whole window loses the focus, which the box about a fault does as well.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return handled;
    const auto* const box = std::find(txtColor.begin(), txtColor.end(), watched);
    if (box != txtColor.end()) txtColor_LostFocus(int(box - txtColor.begin()));
    return handled;
}

void frmColor::picColorSample_Click() { m_lColor = picColorSample->BackColor(); }

void frmColor::cmdOK_Click() try {
    // All of them, as one that was told about when it was left may still hold the same.
    for (size_t i = 0; i < kBoxes; ++i) {
        if (txtColor_LostFocus(int(i))) continue;
        txtColor[i]->setFocus();
        txtColor[i]->selectAll();
        return;
    }
    m_lColor = picColorSample->BackColor();
    const bool kept = PrintBlackAs::Write(m_lColor);
    m_bOK = true;
    hide();
    if (!kept)
        MsgBox(QStringLiteral("The color is used from now on, but could not be kept for the next start: the disk is "
                              "full, or My Games can't be written to."),
               vbExclamation);
} catch (...) {
    ErrTop("frmColor!", "cmdOK_Click");
}

void frmColor::cmdCancel_Click() { hide(); }

void frmColor::reject() { cmdCancel_Click(); }
