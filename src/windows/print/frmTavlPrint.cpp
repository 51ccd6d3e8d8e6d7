// SPDX-License-Identifier: MIT
#include "windows/print/frmTavlPrint.h"

#include "document/basTAVL.h"
#include "document/GameHost.h"
#include "drawing/basBMP.h"
#include "kit/ConsoleSheets.h"
#include "pieces/MadePicture.h"
#include "platform/paint/Units.h"
#include "platform/printing/Printer.h"
#include "services/basAPI.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/PrinterCorrections.h"
#include "windowing/ElidedLabel.h"
#include "windowing/PictureBox.h"
#include "windowing/Screen.h"
#include "windowing/WidgetLook.h"
#include "windows/checkpage/CheckPrinter.h"
#include "windows/nokit/PrintWithoutKit.h"
#include "windows/print/ChangePrinter.h"
#include "windows/print/frmPrntPrep.h"
#include "windows/print/PageUnderWay.h"
#include "windows/print/PdfReady.h"
#include "windows/print/PrinterWatch.h"
#include "windows/print/PrintEverything.h"
#include "windows/print/PrintPreview.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QPushButton>

#include <utility>

namespace {

constexpr int kHidden = -1;
constexpr int kWholeBar = 1000;
constexpr int kFirstWidthTwips = 15;
const QString kCancelled = QStringLiteral("Cancel");

} // namespace

frmTavlPrint::frmTavlPrint(QWidget* parent) : QDialog(parent) {
    BuildControls();
    m_watch = new PrinterWatch(this);
    m_watch->MayTell = [this] { return !bInPrint; };
    m_watch->Tell = std::bind_front(&frmTavlPrint::TellTrouble, this);
    Form_Load();
}

frmTavlPrint::~frmTavlPrint() = default;

bool frmTavlPrint::ShowForm(bool bPrintStarted) try {
    m_bPrintStarted = bPrintStarted;
    cmdNav_Click(0);
    if (Printer::Current()) Printer::Current()->ChoosePaper(ConsoleSheets::PaperInUse());
    ShowDestination();
    exec();
    return m_bPrintStarted;
} catch (...) {
    ErrTail("frmTavlPrint!", "ShowForm", bPrintStarted);
}

void frmTavlPrint::ShowDestination() {
    const Printer* const printer = Printer::Current();
    const QString device = printer ? printer->DeviceName() : QString();
    lblPrinter->setText(device.isEmpty() ? QStringLiteral("No printer is set up: each sheet becomes a PDF file.")
                                         : QStringLiteral("Printer: ") + device);
    const PaperChoice choice = ConsoleSheets::PaperInUse();
    cboPaper->setCurrentIndex(int(choice));
    const QString paper =
        printer ? QStringLiteral("\nSheets are laid out for ") + printer->PagePaper().Name() + u'.' : QString();
    WidgetLook::SetToolTip(*cboPaper, QStringLiteral("The size of the paper in the printer.") + paper);
    ShowCorrection();
}

void frmTavlPrint::ShowCorrection() {
    const Printer* const printer = Printer::Current();
    const PageCorrection correction =
        printer ? PrinterCorrections::Of(printer->DeviceName(), printer->PagePaper()) : PageCorrection();
    lblCorrection->SetWholeText(QStringLiteral("Corrected: ") + PrinterCorrections::Words(correction));
    for (QWidget* control : {static_cast<QWidget*>(lblCorrection), static_cast<QWidget*>(cmdClearCorrection)})
        control->setVisible(!correction.IsNothing());
}

void frmTavlPrint::cmdNav_Click(int Index) try {
    for (QGroupBox* frame : fraPrint)
        frame->hide();
    fraPrint.at(Index)->show();
    m_frame = Frame(Index);
    for (QAbstractButton* button : fraPrint[Index]->findChildren<QAbstractButton*>()) {
        if (button->isHidden()) continue;
        button->setFocus();
        break;
    }
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdNav_Click", Index);
}

void frmTavlPrint::cmdCancel_Click() { hide(); }

void frmTavlPrint::reject() { cmdCancel_Click(); }

void frmTavlPrint::cmdChangePrinter_Click() try {
    const bool amidASheet = bInPrint && !m_stoppedAt;
    ChangePrinter(dlgCommon, m_bPrintStarted || amidASheet);
    ShowDestination();
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdChangePrinter_Click");
}

bool frmTavlPrint::ShowEverything(bool bPrintStarted) try {
    if (!m_everything) {
        m_everything = new PrintEverything(this);
        m_everything->TellInPrint = [this](bool bNow) { TellInPrint(bNow); };
        m_everything->MayPrint = [this](QDialog& window, const QStringList& sheets) {
            return MayPrint(window, sheets);
        };
    }
    return m_everything->ShowForm(bPrintStarted);
} catch (...) {
    ErrTail("frmTavlPrint!", "ShowEverything", bPrintStarted);
}

void frmTavlPrint::cmdEverything_Click() try {
    if (!bInPrint) m_bPrintStarted = ShowEverything(m_bPrintStarted);
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdEverything_Click");
}

void frmTavlPrint::cmdNoKit_Click() try {
    if (bInPrint) return;
    PrintWithoutKit form(this);
    form.TellInPrint = [this](bool bNow) { TellInPrint(bNow); };
    form.MayPrint = [this](QDialog& window, const QStringList& sheets) { return MayPrint(window, sheets); };
    form.ShowForm();
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdNoKit_Click");
}

void frmTavlPrint::ShowCheckPrinter() try {
    CheckPrinter form(this);
    form.TellInPrint = [this](bool bNow) { TellInPrint(bNow); };
    form.ShowForm();
} catch (...) {
    ErrTail("frmTavlPrint!", "ShowCheckPrinter");
}

void frmTavlPrint::cmdCheckPrinter_Click() try {
    if (bInPrint) return;
    ShowCheckPrinter();
    ShowDestination();
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdCheckPrinter_Click");
}

void frmTavlPrint::cmdClearCorrection_Click() try {
    if (bInPrint || !Printer::Current()) return;
    PrinterCorrections::Keep(Printer::Current()->DeviceName(), Printer::Current()->PagePaper(), {});
    ShowDestination();
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdClearCorrection_Click");
}

void frmTavlPrint::cboPaper_Activated(int Index) try {
    if (bInPrint || !Printer::Current()) return ShowDestination();
    ConsoleSheets::KeepPaper(PaperChoice(Index));
    Printer::Current()->ChoosePaper(PaperChoice(Index));
    m_acceptedPages.clear();
    ShowDestination();
} catch (...) {
    ErrTop("frmTavlPrint!", "cboPaper_Activated", Index);
}

void frmTavlPrint::cmdPreview_Click() try {
    if (bInPrint) return;
    std::vector<WholeKit::Run> runs = WholeKit::Runs(KitInUse(), Players::kMost);
    std::erase_if(runs,
                  [this](const WholeKit::Run& run) { return m_frame != Frame::Menu && run.sheet->frame != m_frame; });
    if (runs.empty()) {
        MsgBox(ConsoleSheets::WhyNotPrinted(ConsoleSheets::SheetOf(0), KitInUse()));
        return;
    }
    for (WholeKit::Run& run : runs)
        run.nCopies = 1;
    if (!m_preview) {
        m_preview = new PrintPreview(this);
        m_preview->TellInPrint = [this](bool bNow) { TellInPrint(bNow); };
    }
    const PrintPreview::Wish wish = m_preview->ShowForm(JobPrinter(), runs, PrintPreview::From::Console);
    if (wish == PrintPreview::Wish::PrintSheet) cmdPrint_Click(m_preview->InFront()->iButton);
    if (wish == PrintPreview::Wish::PrintAll) cmdEverything_Click();
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdPreview_Click");
}

void frmTavlPrint::cmdPrint_Click(int Index) try {
    if (bInPrint) return;
    bInPrint = true;
    const Sheet& sheet = ConsoleSheets::SheetOf(Index);
    if (const QString why = ConsoleSheets::WhyNotPrinted(sheet, KitInUse()); !why.isEmpty()) {
        CleanUp();
        MsgBox(why);
        return;
    }
    if (!MayPrint(*this, {QString::fromLatin1(sheet.sName)})) return CleanUp();
    QString answer;
    if (const auto prompt = sheet.Prompt(KitInUse())) answer = m_frmPrntPrep->ShowForm(*prompt);
    if (answer != kCancelled && !RunJob(sheet, ConsoleSheets::DoneMark(answer))) {
        Stop(Index);
        return;
    }
    CleanUp();
    TellWhereItWent();
} catch (...) {
    // Hourglass and guard stay as they are, on purpose, until somebody has seen that a sheet is missing.
    Stop(Index);
    ErrTop("frmTavlPrint!", "cmdPrint_Click", Index);
}

void frmTavlPrint::Stop(int iButton) {
    m_stoppedAt = iButton;
    for (QAbstractButton* button : cmdPrint->buttons())
        button->setEnabled(false);
    lblSheet->SetWholeText(QStringLiteral("Printing has stopped."));
    if (const QString piece = lblPiece->text(); !piece.isEmpty())
        lblPiece->SetWholeText(QStringLiteral("It got as far as: ") + piece);
    // What was told already didn't say why.
    if (!m_sFailure.isEmpty()) lblPiece->SetWholeText(std::exchange(m_sFailure, QString()));
    shpProgressBack->hide();
    cmdTryAgain->show();
    fraProgress->show();
    fraProgress->raise();
    cmdTryAgain->setFocus();
}

void frmTavlPrint::cmdTryAgain_Click() try {
    if (!m_stoppedAt) return;
    const int index = *std::exchange(m_stoppedAt, std::nullopt);
    for (QAbstractButton* button : cmdPrint->buttons())
        button->setEnabled(true);
    cmdTryAgain->hide();
    shpProgressBack->show();
    CleanUp();
    cmdPrint_Click(index);
} catch (...) {
    ErrTop("frmTavlPrint!", "cmdTryAgain_Click");
}

Printer& frmTavlPrint::JobPrinter() {
    if (bPrintOnScreen) return m_screen;
    basErrLog::ErrAssert(Printer::Current() != nullptr, QStringLiteral("There is no printer"));
    return *Printer::Current();
}

bool frmTavlPrint::RunJob(const Sheet& sheet, const QString& sDone) {
    const Kit kit = KitInUse();
    Printer& printer = JobPrinter();
    m_sWrittenPdf.clear();
    m_sFailure.clear();
    lblSheet->SetWholeText(sheet.Title(kit));
    lblPiece->SetWholeText(QString());
    sheet.LayOn(printer, kit);
    if (!AcceptsPrinter(printer) || !AcceptsPage(printer, sheet)) return true;
    Screen::SetMousePointer(Screen::MousePointer::HourGlass);
    const double dblFree = basAPI::FreeSpaceOnDisk(QStringLiteral("C:\\"));
    if (dblFree < ConsoleSheets::kLeastFree) {
        MsgBox(ConsoleSheets::LittleDiskMessage(dblFree, ConsoleSheets::kMegabytesTold));
        return true;
    }
    const PageUnderWay page(*this, printer, TellInPrint);
    SheetJob job{printer, std::bind_front(&frmTavlPrint::Let_Progress, this),
                 std::bind_front(&frmTavlPrint::ShowPiece, this)};
    if (!sheet.Prepare(job)) {
        m_sFailure = ConsoleSheets::LackingMessage(job.lacking);
        return false;
    }
    if (PrintCopies(job, sheet, dblFree, sDone)) Let_Progress(kHidden);
    return true;
}

// A sheet sent to a printer that has gone would be lost without a word.
bool frmTavlPrint::AcceptsPrinter(const Printer& printer) {
    if (printer.IsThere()) return true;
    return MsgBox(ConsoleSheets::NoPrinterMessage(printer), vbOKCancel | vbExclamation) == vbOK;
}

bool frmTavlPrint::AcceptsPage(const Printer& printer, const Sheet& sheet) {
    if (printer.DeviceName().isEmpty()) return true;
    const QString question = ConsoleSheets::SmallPageMessage(printer, sheet, KitInUse());
    if (question.isEmpty() || m_acceptedPages.contains(question)) return true;
    if (MsgBox(question, vbOKCancel | vbExclamation) != vbOK) return false;
    m_acceptedPages.append(question);
    return true;
}

// False when the disk has too little room for money.
bool frmTavlPrint::PrintCopies(SheetJob& job, const Sheet& sheet, double dblFree, const QString& sDone) {
    const Kit kit = KitInUse();
    job.nCopies = ConsoleSheets::Copies(sheet, cboNumberOfSheets->currentText());
    for (job.iCopy = 0; job.iCopy < job.nCopies; ++job.iCopy) {
        if (sheet.bMoney && dblFree < ConsoleSheets::kLeastFreeForMoney) {
            MsgBox(ConsoleSheets::LittleDiskMessage(dblFree, ConsoleSheets::kMegabytesToldForMoney));
            return false;
        }
        job.printer.SetDocumentName(ConsoleSheets::DocumentName(GameHost::Current().GameName(), sheet.Title(kit)));
        if (!sheet.Print(job)) {
            // Neither paper nor the file of before is wasted on a page with holes.
            m_sFailure = ConsoleSheets::LackingMessage(job.lacking);
            return true;
        }
        MarkDone(sheet, sDone);
        CloseDocument(job.printer);
        if (m_sFailure.isEmpty()) {
            m_iLastSent = sheet.iButton;
            m_watch->PageSent(job.printer);
        }
    }
    return true;
}

void frmTavlPrint::MarkDone(const Sheet& sheet, const QString& sDone) {
    QAbstractButton* const button = cmdPrint->button(sheet.iButton);
    if (!button || sDone.isEmpty() || button->text().endsWith(sDone)) return;
    button->setText(button->text() + sDone);
}

void frmTavlPrint::CloseDocument(Printer& printer) {
    printer.EndDoc();
    if (bPrintOnScreen) ShowPage(m_screen.Page());
    m_sWrittenPdf = printer.LastPdf();
    if (printer.LastError().isEmpty()) {
        if (!bPrintOnScreen) basCommon::WriteIniString(QStringLiteral("PrintedGame"), GameHost::Current().GameName());
        // The next page may belong to this one: from now on the printer stays the same.
        m_bPrintStarted = m_bPrintStarted || !printer.DeviceName().isEmpty();
        return;
    }
    // What a device reports isn't told, as the desktop tells of it itself; of a file nobody else does.
    if (printer.DeviceName().isEmpty()) m_sFailure = printer.LastError();
    const QString message = QStringLiteral("Your printer has reported a problem. "
                                           "Please close this game and make sure that your computer has "
                                           "50 to 100 MB of free disk space to use as a print buffer. "
                                           "Then try printing again. ");
    basErrLog::ErrLogToFile(message + printer.LastError(), true);
}

void frmTavlPrint::CleanUp() {
    Screen::SetMousePointer(Screen::MousePointer::Default);
    bInPrint = false;
    Let_Progress(kHidden);
}

void frmTavlPrint::TellTrouble(const QString& sTrouble) {
    const QString question =
        QStringLiteral("\r\n\r\nIf it is lost, the sheet '%1' can be sent once more. Send it now?");
    const Sheet& sheet = ConsoleSheets::SheetOf(m_iLastSent);
    const int answer =
        MsgBox(ConsoleSheets::TroubleMessage(JobPrinter(), sTrouble) + question.arg(sheet.Title(KitInUse())),
               vbYesNo | vbExclamation | vbDefaultButton2);
    if (answer == vbYes) cmdPrint_Click(m_iLastSent);
}

void frmTavlPrint::TellWhereItWent() {
    if (!m_sFailure.isEmpty())
        MsgBox(QStringLiteral("This sheet could not be printed.\r\n\r\n") + m_sFailure, vbExclamation);
    if (!m_sWrittenPdf.isEmpty()) PdfReady(m_sWrittenPdf, ConsoleSheets::SheetOf(m_iLastSent), this).exec();
    m_sFailure.clear();
    m_sWrittenPdf.clear();
}

void frmTavlPrint::Let_Progress(int lValue) try {
    if (lValue == m_lProgress) return;
    m_lProgress = lValue;
    if (lValue > 0) {
        shpProgressFore->resize(shpProgressBack->width() * lValue / kWholeBar, shpProgressFore->height());
    } else if (lValue == 0) {
        shpProgressFore->resize(TwipsToPixels(kFirstWidthTwips), shpProgressFore->height());
    }
    fraProgress->setVisible(lValue >= 0);
    if (lValue >= 0) fraProgress->raise();
    DoEvents();
} catch (...) {
    ErrTail("frmTavlPrint!", "Let_Progress", lValue);
}

void frmTavlPrint::ShowPiece(const char* sPiece, int iPiece, int nPieces) {
    lblPiece->SetWholeText(QStringLiteral("%1 %2 of %3").arg(QString::fromLatin1(sPiece)).arg(iPiece).arg(nPieces));
}

bool frmTavlPrint::CheckForNagMessage() try {
    if (m_bNagged) return false;
    const int answer = MsgBox(QStringLiteral("If you are using a color printer, "
                                             "your printer setting is VERY important. "
                                             "Please verify that your printer is set to "
                                             "the highest quality color photographic setting. "
                                             "If your printer offers an 'ICM' option, "
                                             "please turn this option on. "
                                             "\r\n\r\n"
                                             "After verifying this setting, click 'OK' below to continue printing. "
                                             "Click 'Cancel' if you do not wish to print at this time."),
                              vbOKCancel | vbExclamation);
    m_bNagged = answer == vbOK;
    return !m_bNagged;
} catch (...) {
    ErrTail("frmTavlPrint!", "CheckForNagMessage");
}

void frmTavlPrint::Command1_Click() try {
    const bool written = basBMP::ChangeMonoBmpBackColor(MadePicture::PathOf(QStringLiteral("MoneyImage.bmp")),
                                                        MadePicture::PathOf(QStringLiteral("MoneyImage2.bmp")),
                                                        basTAVL::g_oMoney(0).BackColor);
    if (!written) MsgBox(QStringLiteral("failure"));
} catch (...) {
    ErrTop("frmTavlPrint!", "Command1_Click");
}

void frmTavlPrint::picTest_Click() { picTest->hide(); }
