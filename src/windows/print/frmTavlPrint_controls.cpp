// SPDX-License-Identifier: MIT
// The window's controls: what they are, and where they stand.
#include "kit/ConsoleSheets.h"
#include "platform/paint/Units.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ElidedLabel.h"
#include "windowing/MakeControls.h"
#include "windowing/PictureBox.h"
#include "windowing/WidgetLook.h"
#include "windows/print/frmPrntPrep.h"
#include "windows/print/frmTavlPrint.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Twips.
constexpr int kWidth = 5925;
constexpr int kHeight = 5325;
constexpr int kFrameLeftTop = 120;

// Pixels.
constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kBarWidth = 140;
constexpr int kBarHeight = 16;
constexpr int kTestSide = 100;

const Color kProgressFill = Color::Rgb(0xC0, 0xC0, 0xC0);
const Color kBarBack = Color::White();
const Color kBarFore = Color::Rgb(0, 0, 128);

} // namespace

void frmTavlPrint::BuildControls() {
    setObjectName(QStringLiteral("frmTavlPrint"));
    setWindowTitle(QStringLiteral("Print Your Own Tavlo"));
    cmdNav = new QButtonGroup(this);
    cmdPrint = new QButtonGroup(this);
    for (int i = 0; i < int(ConsoleSheets::Frames().size()); ++i)
        fraPrint.append(BuildFrame(Frame(i)));
    // In the order of the eye, which is that of the Tab key.
    BuildDestination();
    BuildClosing();
    BuildProgress();
    BuildDebugAids();
    m_frmPrntPrep = new frmPrntPrep(this);
    connect(cmdNav, &QButtonGroup::idClicked, this, &frmTavlPrint::cmdNav_Click);
    connect(cmdPrint, &QButtonGroup::idClicked, this, &frmTavlPrint::cmdPrint_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmTavlPrint::cmdCancel_Click);
    connect(cmdChangePrinter, &QPushButton::clicked, this, &frmTavlPrint::cmdChangePrinter_Click);
}

QGroupBox* frmTavlPrint::BuildFrame(Frame frame) {
    const QString number = QString::number(int(frame));
    auto* box = Named(new QGroupBox(QString::fromLatin1(ConsoleSheets::Frames()[size_t(frame)].sCaption), this),
                      QStringLiteral("fraPrint_") + number);
    lbl.append(MakeLabel(box, QStringLiteral("lbl_") + number, ConsoleSheets::FrameLabel(frame, KitInUse())));
    auto* column = new QVBoxLayout(box);
    column->addWidget(lbl.constLast());
    column->addSpacing(kGap);
    if (frame == Frame::Menu) AddMenuButtons(column);
    AddButtons(frame, column);
    if (frame == Frame::Money) BuildNumberOfSheets(column);
    column->addStretch();
    return box;
}

void frmTavlPrint::AddMenuButtons(QVBoxLayout* column) {
    for (int i = 1; i < int(ConsoleSheets::Frames().size()); ++i) {
        auto* button = MakeButton(column->parentWidget(), QStringLiteral("cmdNav_") + QString::number(i),
                                  QString::fromLatin1(ConsoleSheets::Frames()[size_t(i)].sButton), QString());
        cmdNav->addButton(button, i);
        column->addWidget(button);
    }
    auto* everything =
        MakeButton(column->parentWidget(), QStringLiteral("cmdEverything"), QStringLiteral("Print &Everything..."),
                   QStringLiteral("Print the whole kit in one go"));
    connect(everything, &QPushButton::clicked, this, &frmTavlPrint::cmdEverything_Click);
    column->addWidget(everything);
    auto* noKit = MakeButton(column->parentWidget(), QStringLiteral("cmdNoKit"), QStringLiteral("I &have no kit..."),
                             QStringLiteral("Print the game on plain paper and card"));
    connect(noKit, &QPushButton::clicked, this, &frmTavlPrint::cmdNoKit_Click);
    auto* check =
        MakeButton(column->parentWidget(), QStringLiteral("cmdCheckPrinter"), QStringLiteral("Chec&k the Printer..."),
                   QStringLiteral("See whether the printer prints in its place, and put it right"));
    connect(check, &QPushButton::clicked, this, &frmTavlPrint::cmdCheckPrinter_Click);
    // In one row, as the window keeps its size.
    auto* row = new QHBoxLayout;
    row->addWidget(noKit, 1);
    row->addWidget(check, 1);
    column->addLayout(row);
    AddCorrection(column);
}

void frmTavlPrint::AddCorrection(QVBoxLayout* column) {
    lblCorrection = Named(new ElidedLabel(column->parentWidget()), "lblCorrection");
    cmdClearCorrection = MakeButton(column->parentWidget(), QStringLiteral("cmdClearCorrection"),
                                    QStringLiteral("C&lear"), QStringLiteral("Print sheets as they are from now on"));
    connect(cmdClearCorrection, &QPushButton::clicked, this, &frmTavlPrint::cmdClearCorrection_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(lblCorrection, 1);
    row->addWidget(cmdClearCorrection);
    column->addLayout(row);
    lblCorrection->hide();
    cmdClearCorrection->hide();
}

void frmTavlPrint::AddButtons(Frame frame, QVBoxLayout* column) {
    const Kit kit = KitInUse();
    for (const std::span<const Sheet> table : {Sheets(), ButtonsWithoutSheet()}) {
        for (const Sheet& sheet : table) {
            if (sheet.frame != frame) continue;
            auto* button =
                MakeButton(column->parentWidget(), QStringLiteral("cmdPrint_") + QString::number(sheet.iButton),
                           sheet.Caption(kit), QString::fromLatin1(sheet.sToolTip));
            button->setVisible(sheet.IsShown(kit));
            cmdPrint->addButton(button, sheet.iButton);
            column->addWidget(button);
        }
    }
}

// Never shown: one sheet is printed for each click, as the frame's label says.
void frmTavlPrint::BuildNumberOfSheets(QVBoxLayout* column) {
    lblNumberOfSheets = MakeLabel(column->parentWidget(), QStringLiteral("lblNumberOfSheets"),
                                  QStringLiteral("Number of Sheets (1 - 5) to Print:"));
    cboNumberOfSheets = Named(new QComboBox(column->parentWidget()), QStringLiteral("cboNumberOfSheets"));
    for (int i = 1; i <= ConsoleSheets::kMostCopies; ++i)
        cboNumberOfSheets->addItem(QString::number(i));
    lblNumberOfSheets->hide();
    cboNumberOfSheets->hide();
}

void frmTavlPrint::BuildDestination() {
    lblPrinter = MakeLabel(this, QStringLiteral("lblPrinter"), QString());
    lblPrinter->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    cboPaper = Named(new QComboBox(this), QStringLiteral("cboPaper"));
    cboPaper->addItems({QStringLiteral("Usual Paper"), QStringLiteral("US Letter"), QStringLiteral("A4")});
    cboPaper->setAccessibleName(QStringLiteral("The paper in the printer"));
    cmdPreview = MakeButton(this, QStringLiteral("cmdPreview"), QStringLiteral("Pre&view..."),
                            QStringLiteral("Look at the sheets as they will be printed"));
    connect(cboPaper, &QComboBox::activated, this, &frmTavlPrint::cboPaper_Activated);
    connect(cmdPreview, &QPushButton::clicked, this, &frmTavlPrint::cmdPreview_Click);
}

void frmTavlPrint::BuildProgress() {
    fraProgress = Named(new QFrame(this), QStringLiteral("fraProgress"));
    WidgetLook::SetFill(*fraProgress, kProgressFill);
    shpProgressBack = Named(new QFrame(fraProgress), QStringLiteral("shpProgressBack"));
    WidgetLook::SetFill(*shpProgressBack, kBarBack);
    shpProgressBack->setFixedSize(kBarWidth, kBarHeight);
    shpProgressFore = Named(new QFrame(shpProgressBack), QStringLiteral("shpProgressFore"));
    WidgetLook::SetFill(*shpProgressFore, kBarFore);
    shpProgressFore->setGeometry(0, 0, 1, kBarHeight);
    lblSheet = Named(new ElidedLabel(fraProgress), QStringLiteral("lblSheet"));
    lblPiece = Named(new ElidedLabel(fraProgress), QStringLiteral("lblPiece"));
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(lblSheet);
    words->addWidget(lblPiece);
    auto* row = new QHBoxLayout(fraProgress);
    row->setContentsMargins(kGap, kGap / 2, kGap, kGap / 2);
    row->addWidget(shpProgressBack);
    row->addLayout(words, 1);
    cmdTryAgain = MakeButton(fraProgress, QStringLiteral("cmdTryAgain"), QStringLiteral("Try &Again"),
                             QStringLiteral("Print the sheet that has failed once more"));
    row->addWidget(cmdTryAgain);
    connect(cmdTryAgain, &QPushButton::clicked, this, &frmTavlPrint::cmdTryAgain_Click);
    // Its room is kept, so that nothing moves when a sheet fails.
    fraProgress->setMinimumHeight(row->sizeHint().height());
    cmdTryAgain->hide();
    fraProgress->hide();
}

void frmTavlPrint::BuildClosing() {
    auto* menu =
        MakeButton(this, QStringLiteral("cmdNav_0"), QString::fromLatin1(ConsoleSheets::Frames().front().sButton),
                   QStringLiteral("Go back to the first menu"));
    cmdNav->addButton(menu, int(Frame::Menu));
    cmdChangePrinter = MakeButton(this, QStringLiteral("cmdChangePrinter"), QStringLiteral("&Change Printer"),
                                  QStringLiteral("Change the destination printer"));
    cmdCancel = MakeButton(this, QStringLiteral("cmdCancel"), QStringLiteral("&Done"),
                           QStringLiteral("Go back to the main form"));
}

void frmTavlPrint::BuildDebugAids() {
    picTest = Named(new PictureBox(this), QStringLiteral("picTest"));
    picTest->setGeometry(0, 0, kTestSide, kTestSide);
    picTest->hide();
    connect(picTest, &PictureBox::MouseDown, this, &frmTavlPrint::picTest_Click);
    Command1 = MakeButton(this, QStringLiteral("Command1"), QStringLiteral("Command1"), QString());
    Command1->hide();
    connect(Command1, &QPushButton::clicked, this, &frmTavlPrint::Command1_Click);
}

// All frames lie in one place. With large letters the window grows beyond its usual size, so that nothing is cut.
void frmTavlPrint::PlaceControls() {
    const QPoint leftTop(TwipsToPixels(kFrameLeftTop), TwipsToPixels(kFrameLeftTop));
    const std::array<QWidget*, 3> row = {cmdNav->button(int(Frame::Menu)), cmdChangePrinter, cmdCancel};
    QSize frame;
    for (const QGroupBox* each : fraPrint)
        frame = frame.expandedTo(each->sizeHint());
    QSize button;
    for (const QWidget* each : row)
        button = button.expandedTo(each->sizeHint());
    const int progress = std::max(fraProgress->sizeHint().height(), fraProgress->minimumHeight());

    const int inner = std::max({TwipsToPixels(kWidth) - 2 * leftTop.x(), frame.width(),
                                int(row.size()) * button.width() + int(row.size() - 1) * kGap});
    const int below = kGap + progress + kGap + button.height() + kMargin;
    const int height = std::max(TwipsToPixels(kHeight), leftTop.y() + frame.height() + below);
    setFixedSize(inner + 2 * leftTop.x(), height);

    for (QGroupBox* each : fraPrint)
        each->setGeometry(QRect(leftTop, QSize(inner, height - leftTop.y() - below)));
    const QRect status(leftTop.x(), height - below + kGap, inner, progress);
    fraProgress->setGeometry(status);
    PlaceDestination(status);
    const int width = (inner - int(row.size() - 1) * kGap) / int(row.size());
    for (size_t i = 0; i < row.size(); ++i)
        row[i]->setGeometry(leftTop.x() + int(i) * (width + kGap), status.bottom() + 1 + kGap, width, button.height());
}

// In the room of the progress, which covers it while a sheet is printed.
void frmTavlPrint::PlaceDestination(const QRect& room) {
    int right = room.right() + 1;
    for (QWidget* control : {static_cast<QWidget*>(cmdPreview), static_cast<QWidget*>(cboPaper)}) {
        const QSize size = control->sizeHint();
        right -= size.width();
        control->setGeometry(right, room.top() + (room.height() - size.height()) / 2, size.width(), size.height());
        right -= kGap;
    }
    lblPrinter->setGeometry(room.left(), room.top(), right - room.left(), room.height());
}

void frmTavlPrint::Form_Load() try {
    ConsoleSheets::ReadBoxLabelSizes();
    PlaceControls();
    basCommon::ShowEntireForm(*this);
} catch (...) {
    ErrTail("frmTavlPrint!", "Form_Load");
}
