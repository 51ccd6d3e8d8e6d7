// SPDX-License-Identifier: MIT
#include "windows/print/frmPrintTest.h"

#include "platform/paint/Picture.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windowing/basCommon_forms.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windows/print/frmTavlPrint.h"

namespace {

/// Builds for looking at sheets turn this on; see TAVLORA_PRINT_ON_SCREEN in the build's options.
constexpr bool kPrintOnScreen = TAVLORA_PRINT_ON_SCREEN;

// Of the screen's free area.
constexpr double kMostOfScreen = 0.9;

} // namespace

frmPrintTest::frmPrintTest(QWidget* parent)
    : QDialog(parent), m_frmTavlPrint(new frmTavlPrint(parent)), picPage(new PictureBox(this)) {
    setObjectName(QStringLiteral("frmPrintTest"));
    setWindowTitle(QStringLiteral("Form as dest for printing simulator"));
    picPage->setObjectName(QStringLiteral("picPage"));
    picPage->setAccessibleName(QStringLiteral("The page as it would be printed"));
    m_frmTavlPrint->ShowPage = std::bind_front(&frmPrintTest::ShowPage, this);
    m_frmTavlPrint->bPrintOnScreen = kPrintOnScreen;
}

frmPrintTest::~frmPrintTest() { delete m_frmTavlPrint; }

bool frmPrintTest::ShowForm(bool bPrintStarted) try { return m_frmTavlPrint->ShowForm(bPrintStarted); } catch (...) {
    ErrTail("frmPrintTest!", "ShowForm", bPrintStarted);
}

void frmPrintTest::ShowPage(const Picture& page) {
    const QSize most = (QSizeF(Screen::FreeArea().size()) * kMostOfScreen).toSize();
    const QSize shown = QSize(page.Width(), page.Height()).scaled(most, Qt::KeepAspectRatio);
    // Disabled with the main window while a page is under way.
    setEnabled(true);
    setFixedSize(shown);
    picPage->setGeometry(QRect(QPoint(0, 0), shown));
    picPage->PaintPicture(page, 0, 0, shown.width(), shown.height());
    basCommon::ShowEntireForm(*this);
    exec();
}
