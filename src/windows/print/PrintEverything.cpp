// SPDX-License-Identifier: MIT
#include "windows/print/PrintEverything.h"

#include "document/GameHost.h"
#include "kit/ConsoleSheets.h"
#include "platform/files/Files.h"
#include "platform/printing/Printer.h"
#include "services/basAPI.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/PrinterCorrections.h"
#include "windowing/basCommon_forms.h"
#include "windowing/ElidedLabel.h"
#include "windowing/HourGlass.h"
#include "windowing/OpenPath.h"
#include "windows/print/PageUnderWay.h"
#include "windows/print/PrintPreview.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

namespace {

const QString kTitleOfPdf = QStringLiteral("Whole Kit");
constexpr int kButtonRole = Qt::UserRole;

QString PdfPath() {
    const QString name = ConsoleSheets::DocumentName(GameHost::Current().GameName(), kTitleOfPdf);
    return basCommon::JoinPath(ConsoleSheets::PrintedFolder(), name + QStringLiteral(".pdf"));
}

// A dozen rows: nobody should have to scroll to see what will be printed.
void ShowAllRows(QListWidget& list) {
    const int frame = 2 * list.frameWidth();
    constexpr int kRoom = 12;
    list.setMinimumSize(list.sizeHintForColumn(0) + frame + kRoom,
                        list.count() * list.sizeHintForRow(0) + frame + kRoom / 2);
}

bool GoesIntoFile() { return Printer::Current()->DeviceName().isEmpty(); }

QStringList WordsOf(const std::vector<WholeKit::Run>& runs) {
    QStringList words;
    for (const WholeKit::Run& run : runs)
        words.append(QString::fromLatin1(run.sheet->sName));
    return words;
}

} // namespace

bool PrintEverything::ShowForm(bool bPrintStarted) try {
    m_bPrintStarted = bPrintStarted;
    basErrLog::ErrAssert(Printer::Current() != nullptr, QStringLiteral("There is no printer"));
    Printer::Current()->ChoosePaper(ConsoleSheets::PaperInUse());
    FillSheets();
    ShowDestination();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
    return m_bPrintStarted;
} catch (...) {
    ErrTail("PrintEverything!", "ShowForm", bPrintStarted);
}

// What was left over of a print that was stopped stays ticked, as long as it is the same kit.
void PrintEverything::FillSheets() {
    const bool stopped = m_sheets->count() > 0 && !TickedRuns().empty() && m_kit == KitInUse();
    if (!stopped) {
        m_kit = KitInUse();
        const QSignalBlocker silent(m_sheets);
        m_sheets->clear();
        for (const WholeKit::Run& run : WholeKit::Runs(m_kit, Players::kMost)) {
            auto* item = new QListWidgetItem(run.sheet->Title(m_kit), m_sheets);
            item->setData(kButtonRole, run.sheet->iButton);
            item->setCheckState(Qt::Checked);
        }
        ShowAllRows(*m_sheets);
    }
    ShowWhatIsNeeded();
}

void PrintEverything::ShowDestination() {
    m_pdf.clear();
    m_page->SetWholeText(QString());
    m_progress->hide();
    m_open->hide();
    m_showFolder->hide();
    const bool file = GoesIntoFile();
    m_destination->setText(file ? QStringLiteral("No printer is set up: all pages go into one PDF file.")
                                : QStringLiteral("Printer: ") + Printer::Current()->DeviceName());
    m_print->setText(file ? QStringLiteral("&Make PDF") : QStringLiteral("&Print"));
}

std::vector<WholeKit::Run> PrintEverything::TickedRuns() const {
    std::vector<WholeKit::Run> ticked;
    int row = 0;
    for (const WholeKit::Run& run : WholeKit::Runs(m_kit, m_players->currentText().toInt())) {
        const QListWidgetItem* item = m_sheets->item(row++);
        if (item && item->checkState() == Qt::Checked) ticked.push_back(run);
    }
    return ticked;
}

void PrintEverything::Untick(const Sheet& sheet) {
    for (int row = 0; row < m_sheets->count(); ++row) {
        if (m_sheets->item(row)->data(kButtonRole).toInt() == sheet.iButton)
            m_sheets->item(row)->setCheckState(Qt::Unchecked);
    }
}

void PrintEverything::ShowWhatIsNeeded() {
    const std::vector<WholeKit::Run> runs = TickedRuns();
    QStringList lines;
    for (const WholeKit::Pile& pile : WholeKit::Piles(runs, m_kit))
        lines.append(pile.Text());
    m_needed->setText(lines.isEmpty() ? QStringLiteral("Tick the sheets that you would like to print.")
                                      : QStringLiteral("This takes:\n") + lines.join(u'\n'));
    m_print->setEnabled(!runs.empty() && !m_bBusy);
    m_preview->setEnabled(m_print->isEnabled());
}

void PrintEverything::cmdPrint_Click() try {
    const std::vector<WholeKit::Run> runs = TickedRuns();
    if (m_bBusy || runs.empty()) return;
    const double dblFree = basAPI::FreeSpaceOnDisk(QStringLiteral("C:\\"));
    if (dblFree < ConsoleSheets::kLeastFreeForMoney) {
        MsgBox(ConsoleSheets::LittleDiskMessage(dblFree, ConsoleSheets::kMegabytesToldForMoney));
        return;
    }
    if (!MayPrint(*this, WordsOf(runs))) return;
    ShowDestination();
    m_nPages = WholeKit::Pages(runs);
    m_nPagesDone = 0;
    m_bStop = false;
    SetBusy(true);
    if (GoesIntoFile()) {
        PrintIntoFile(runs);
    } else if (Printer& printer = *Printer::Current(); AcceptsPages(printer, runs)) {
        PrintOnPaper(printer, runs);
    }
    SetBusy(false);
} catch (...) {
    SetBusy(false);
    ErrTop("PrintEverything!", "cmdPrint_Click");
}

void PrintEverything::PrintIntoFile(const std::vector<WholeKit::Run>& runs) {
    const QString path = PdfPath();
    QString error;
    // A folder that can't be made shows when the file is put in place.
    Files::MakeDirectory(ConsoleSheets::PrintedFolder(), error);
    error.clear();
    PdfPrinter printer(path, ConsoleSheets::DocumentName(GameHost::Current().GameName(), kTitleOfPdf),
                       Printer::Current()->PaperOfFiles());
    printer.Correct(PrinterCorrections::OfPrinter({}));
    bool written = false;
    const WholeKit::Outcome outcome = Paint(printer, runs, [&] { written = printer.Close(error); });
    if (outcome.sheet) return TellWhatIsLacking(outcome);
    if (outcome.bStopped) return m_page->SetWholeText(QStringLiteral("Stopped. No file was written."));
    if (!written) {
        MsgBox(QStringLiteral("The kit could not be printed.\r\n\r\nThe file '%1' could not be written: %2")
                   .arg(path, error),
               vbExclamation);
        return;
    }
    m_pdf = path;
    m_destination->setText(
        QStringLiteral("All %1 pages are now in one PDF file. Print it at actual size (100 %), never "
                       "\"fit to page\": only then the pieces have their right size.")
            .arg(m_nPages));
    m_page->SetWholeText(path);
    m_open->show();
    m_showFolder->show();
    m_open->setFocus();
}

void PrintEverything::PrintOnPaper(Printer& printer, const std::vector<WholeKit::Run>& runs) {
    for (const WholeKit::Pile& pile : WholeKit::Piles(runs, m_kit)) {
        const int answer = MsgBox(QStringLiteral("Please load %1 into the printer, then click 'OK'.\r\n\r\n'Cancel' "
                                                 "stops here; what has come out of the printer loses its tick.")
                                      .arg(pile.Text()),
                                  vbOKCancel | vbInformation);
        if (answer != vbOK) return m_page->SetWholeText(QStringLiteral("Stopped."));
        for (const WholeKit::Run& run : runs) {
            if (run.sheet->Stock(m_kit) != pile.sStock) continue;
            if (!IsReady(printer) || !PrintSheet(printer, run)) return;
        }
    }
    m_page->SetWholeText(QStringLiteral("All %1 pages went to the printer.").arg(m_nPagesDone));
}

// No more pages go to a printer that doesn't print those that it has.
bool PrintEverything::IsReady(const Printer& printer) {
    for (QString trouble = printer.Trouble(); !trouble.isEmpty(); trouble = printer.Trouble()) {
        const int answer =
            MsgBox(ConsoleSheets::TroubleMessage(printer, trouble) +
                       QStringLiteral("\r\n\r\nClick 'OK' when it prints again, or 'Cancel' to stop here. "
                                      "A sheet that is lost is printed again when you tick it."),
                   vbOKCancel | vbExclamation);
        if (answer == vbOK) continue;
        m_page->SetWholeText(QStringLiteral("Stopped."));
        return false;
    }
    return true;
}

bool PrintEverything::PrintSheet(Printer& printer, const WholeKit::Run& run) {
    printer.SetDocumentName(ConsoleSheets::DocumentName(GameHost::Current().GameName(), run.sheet->Title(m_kit)));
    const WholeKit::Outcome outcome = Paint(printer, {run}, [] {});
    if (outcome.sheet) {
        TellWhatIsLacking(outcome);
        return false;
    }
    m_nPagesDone += outcome.nPages;
    m_bPrintStarted = m_bPrintStarted || outcome.nPages > 0;
    if (outcome.nPages == run.nCopies) Untick(*run.sheet);
    if (outcome.bStopped) m_page->SetWholeText(QStringLiteral("Stopped."));
    return !outcome.bStopped;
}

WholeKit::Outcome PrintEverything::Paint(Printer& printer, const std::vector<WholeKit::Run>& runs,
                                         const std::function<void()>& whenWhole) {
    const HourGlass working;
    const PageUnderWay pages(*this, printer, TellInPrint);
    const WholeKit::Outcome outcome =
        WholeKit::Print(printer, runs, m_kit, std::bind_front(&PrintEverything::Tell, this));
    // A document that is then still open is thrown away.
    if (outcome.IsWhole()) whenWhole();
    return outcome;
}

bool PrintEverything::AcceptsPages(Printer& printer, const std::vector<WholeKit::Run>& runs) {
    if (!printer.IsThere()) return MsgBox(ConsoleSheets::NoPrinterMessage(printer), vbOKCancel | vbExclamation) == vbOK;
    QStringList lost;
    for (const WholeKit::Run& run : runs) {
        run.sheet->LayOn(printer, m_kit);
        const QString lines = run.sheet->WhatIsLostOn(printer.PrintableInches(), m_kit);
        if (!lines.isEmpty()) lost.append(run.sheet->Title(m_kit) + QStringLiteral(": ") + lines);
    }
    if (lost.isEmpty()) return true;
    return MsgBox(QStringLiteral("The printer '%1' doesn't print as far as some sheets reach on their paper.\r\n\r\n%2"
                                 "\r\n\r\n'Change Printer' in the print window chooses other paper, smaller margins or "
                                 "another printer: click 'Cancel' for that, or 'OK' to print nevertheless.")
                      .arg(printer.DeviceName(), lost.join(QStringLiteral("\r\n"))),
                  vbOKCancel | vbExclamation) == vbOK;
}

bool PrintEverything::Tell(const WholeKit::Progress& progress) {
    const int done = m_nPagesDone + progress.nPagesDone;
    m_progress->setRange(0, m_nPages);
    m_progress->setValue(done);
    m_page->SetWholeText(QStringLiteral("Page %1 of %2: %3")
                             .arg(std::min(done + 1, m_nPages))
                             .arg(m_nPages)
                             .arg(progress.sheet.Title(m_kit)));
    DoEvents();
    return !m_bStop;
}

void PrintEverything::TellWhatIsLacking(const WholeKit::Outcome& outcome) {
    m_page->SetWholeText(QStringLiteral("Printing has stopped."));
    MsgBox(QStringLiteral("The sheet '%1' could not be printed.\r\n\r\n%2")
               .arg(outcome.sheet->Title(m_kit), ConsoleSheets::LackingMessage(outcome.lacking)),
           vbExclamation);
}

void PrintEverything::SetBusy(bool bBusy) {
    m_bBusy = bBusy;
    for (QWidget* control : {static_cast<QWidget*>(m_players), static_cast<QWidget*>(m_sheets)})
        control->setEnabled(!bBusy);
    m_progress->setVisible(bBusy);
    m_stop->setEnabled(bBusy);
    m_close->setEnabled(!bBusy);
    ShowWhatIsNeeded();
}

void PrintEverything::cmdPreview_Click() try {
    if (m_bBusy || TickedRuns().empty()) return;
    if (!m_frmPreview) {
        m_frmPreview = new PrintPreview(this);
        m_frmPreview->TellInPrint = [this](bool bNow) { TellInPrint(bNow); };
    }
    const auto wish = m_frmPreview->ShowForm(*Printer::Current(), TickedRuns(), PrintPreview::From::Everything);
    if (wish == PrintPreview::Wish::PrintAll) cmdPrint_Click();
} catch (...) {
    ErrTop("PrintEverything!", "cmdPreview_Click");
}

void PrintEverything::cmdStop_Click() { m_bStop = true; }

void PrintEverything::reject() {
    if (m_bBusy) {
        m_bStop = true;
        return;
    }
    hide();
}

void PrintEverything::cmdOpen_Click() try { OpenOrTell(m_pdf); } catch (...) {
    ErrTop("PrintEverything!", "cmdOpen_Click");
}

void PrintEverything::cmdShowFolder_Click() try { OpenOrTell(ConsoleSheets::PrintedFolder()); } catch (...) {
    ErrTop("PrintEverything!", "cmdShowFolder_Click");
}
