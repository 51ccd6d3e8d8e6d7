// SPDX-License-Identifier: MIT
// The window's controls: what they are, and where they stand.
#include "calibration/CheckSketches.h"
#include "platform/paint/Units.h"
#include "windowing/MakeControls.h"
#include "windowing/PictureBox.h"
#include "windowing/TabWay.h"
#include "windows/checkpage/CheckPrinter.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using CheckSketches::Step;

struct Told {
    Step step;
    const char* sWords;
};
constexpr Told kSteps[] = {
    {Step::Print, "1. Print the page on plain paper."},
    {Step::Turn, "2. Turn the sheet round, head to foot, the printed side as it was, and put it back."},
    {Step::PrintAgain, "3. Print the page again, onto the same side."},
    {Step::Read, "4. Find where two lines run straight on, and type their names."},
};

PictureBox* MakeSketch(QWidget* parent, Step step) {
    auto* sketch = Named(new PictureBox(parent), QStringLiteral("picStep_%1").arg(int(step) + 1));
    sketch->setFixedSize((CheckSketches::kInches * kScreenDotsPerInch).toSize());
    sketch->setFocusPolicy(Qt::NoFocus);
    PageCanvas canvas(*sketch, CheckSketches::kInches);
    CheckSketches::Draw(canvas, step);
    return sketch;
}

} // namespace

CheckPrinter::CheckPrinter(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("CheckPrinter"));
    setWindowTitle(QStringLiteral("Check the Printer"));
    BuildControls();
}

void CheckPrinter::BuildControls() {
    auto* intro = MakeLabel(this, "lblIntro");
    intro->setText(QStringLiteral("Most printers print a little beside the place, or a little too large or small. One "
                                  "sheet of paper shows by how much, and Tavlora puts it right from then on."));
    m_printer = MakeLabel(this, "lblPrinter");
    m_told = MakeLabel(this, "lblTold");
    m_inForce = MakeLabel(this, "lblInForce");
    // Room for what can be wrong, so that nothing moves while somebody types.
    constexpr int kLines = 3;
    m_told->setMinimumHeight(kLines * m_told->fontMetrics().lineSpacing());
    m_told->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* all = new QVBoxLayout(this);
    all->addWidget(intro);
    all->addWidget(m_printer);
    all->addLayout(BuildSteps());
    all->addLayout(BuildReading());
    all->addWidget(m_told);
    all->addWidget(m_inForce);
    all->addStretch();
    all->addLayout(BuildButtons());
    TabAlongTheLayout(*this);
}

QLayout* CheckPrinter::BuildSteps() {
    auto* steps = new QGridLayout;
    int column = 0;
    for (const Told& told : kSteps) {
        auto* words = MakeLabel(this, QStringLiteral("lblStep_%1").arg(column + 1), QString::fromLatin1(told.sWords));
        words->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        constexpr int kLetters = 16;
        MakeRoomForWords(*words, int(CheckSketches::kInches.width() * kScreenDotsPerInch), kLetters);
        steps->addWidget(MakeSketch(this, told.step), 0, column, Qt::AlignLeft);
        steps->addWidget(words, 1, column);
        ++column;
    }
    return steps;
}

QLineEdit* CheckPrinter::MakeField(const char* sName, const char* sWhat) {
    auto* field = Named(new QLineEdit(this), sName);
    field->setAccessibleName(QString::fromLatin1(sWhat));
    constexpr int kLetters = 10;
    field->setMaxLength(kLetters);
    field->setMaximumWidth(kLetters * field->fontMetrics().averageCharWidth() * 2);
    connect(field, &QLineEdit::textEdited, this, &CheckPrinter::ShowWhatIsRead);
    return field;
}

QLayout* CheckPrinter::BuildReading() {
    m_sideways = MakeField("txtSideways", "The number and the letter that meet on the scale Sideways");
    m_upAndDown = MakeField("txtUpAndDown", "The number and the letter that meet on the scale Up and down");
    m_across = MakeField("txtAcross", "Millimeters of the line across");
    m_down = MakeField("txtDown", "Millimeters of the line down");
    for (QLineEdit* field : {m_sideways, m_upAndDown})
        field->setPlaceholderText(QStringLiteral("such as 12 K"));
    auto* scales = new QFormLayout;
    scales->addRow(QStringLiteral("&Sideways, number and letter:"), m_sideways);
    scales->addRow(QStringLiteral("&Up and down, number and letter:"), m_upAndDown);
    auto* lines = new QFormLayout;
    lines->addRow(QStringLiteral("The line &across, in mm:"), m_across);
    lines->addRow(QStringLiteral("The line &down, in mm:"), m_down);
    auto* row = new QHBoxLayout;
    row->addLayout(scales, 1);
    row->addLayout(lines, 1);
    return row;
}

QLayout* CheckPrinter::BuildButtons() {
    m_print = MakeButton(this, "cmdPrint", "Print the &Page");
    m_open = MakeButton(this, "cmdOpen", "&Open PDF");
    m_clear = MakeButton(this, "cmdClear", "C&lear Correction");
    auto* close = MakeButton(this, "cmdClose", "&Close");
    m_correct = MakeButton(this, "cmdCorrect", "Co&rrect");
    m_open->hide();
    connect(m_print, &QPushButton::clicked, this, &CheckPrinter::cmdPrint_Click);
    connect(m_open, &QPushButton::clicked, this, &CheckPrinter::cmdOpen_Click);
    connect(m_clear, &QPushButton::clicked, this, &CheckPrinter::cmdClear_Click);
    connect(m_correct, &QPushButton::clicked, this, &CheckPrinter::cmdCorrect_Click);
    connect(close, &QPushButton::clicked, this, &CheckPrinter::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(m_print);
    row->addWidget(m_open);
    row->addStretch();
    for (QPushButton* button : {m_clear, close, m_correct})
        row->addWidget(button);
    return row;
}
