// SPDX-License-Identifier: MIT
#include "windows/nokit/PrintWithoutKit.h"

#include "document/GameHost.h"
#include "kit/ConsoleSheets.h"
#include "kit/Sheets.h"
#include "nokit/NoKitPrint.h"
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

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <array>

namespace {

constexpr int kThousand = 1000;
// Of the sizes to choose from; the last is what the box beside it says.
constexpr std::array<double, 3> kSizes = {16, 20, NoKitChoices::kAsTheKit};

QString NameOfPdf() {
    return ConsoleSheets::DocumentName(GameHost::Current().GameName(), QStringLiteral("Without a Kit"));
}

QString PdfPath() { return basCommon::JoinPath(ConsoleSheets::PrintedFolder(), NameOfPdf() + QStringLiteral(".pdf")); }

} // namespace

void PrintWithoutKit::ShowForm() try {
    m_told->clear();
    m_page->SetWholeText(QString());
    m_open->hide();
    m_showFolder->hide();
    adjustSize();
    basCommon::ShowEntireForm(*this);
    exec();
} catch (...) {
    ErrTail("PrintWithoutKit!", "ShowForm");
}

void PrintWithoutKit::ShowWhatFits() { m_inches->setEnabled(m_size->currentIndex() >= int(kSizes.size()) && !m_bBusy); }

NoKitChoices PrintWithoutKit::Choices() const {
    NoKitChoices choices;
    choices.paper = PaperSize(m_paper->currentIndex());
    const size_t size = size_t(m_size->currentIndex());
    choices.dblWantedInches = size < kSizes.size() ? kSizes.at(size) : m_inches->value();
    choices.way = BoardWay(m_way->currentIndex());
    choices.nPlayers = m_players->currentText().toInt();
    choices.bSavesInk = m_colours->currentIndex() == 1;
    choices.bPictureOnDice = m_dice->isChecked();
    return choices;
}

void PrintWithoutKit::cmdMake_Click() try {
    if (m_bBusy) return;
    const double dblFree = basAPI::FreeSpaceOnDisk(QStringLiteral("C:\\"));
    if (dblFree < ConsoleSheets::kLeastFreeForMoney) {
        MsgBox(ConsoleSheets::LittleDiskMessage(dblFree, ConsoleSheets::kMegabytesToldForMoney));
        return;
    }
    if (!MayPrint(*this, SheetNames())) return;
    m_bStop = false;
    SetBusy(true);
    Make();
    SetBusy(false);
} catch (...) {
    SetBusy(false);
    ErrTop("PrintWithoutKit!", "cmdMake_Click");
}

void PrintWithoutKit::Make() {
    const QString path = PdfPath();
    QString error;
    // A folder that can't be made shows when the file is put in place.
    Files::MakeDirectory(ConsoleSheets::PrintedFolder(), error);
    error.clear();
    NoKitPrint::Job job{[this](const QString& sWhat, int iThousandths) { return Tell(sWhat, iThousandths); }};
    job.correction = PrinterCorrections::OfPrinter({});
    bool made = false;
    {
        const HourGlass working;
        const PageUnderWay pages(*this, *Printer::Current(), TellInPrint);
        made = NoKitPrint::IntoPdf(NoKitPrint::SheetsOf({}), Choices(), path, NameOfPdf(), PdfPrinter::kDefaultDpi, job,
                                   error);
    }
    if (job.bStopped) return m_page->SetWholeText(QStringLiteral("Stopped. No file was written."));
    if (!made) {
        m_page->SetWholeText(QString());
        const QString why = job.lacking.isEmpty()
                                ? QStringLiteral("The file '%1' could not be written: %2").arg(path, error)
                                : ConsoleSheets::LackingMessage(job.lacking);
        MsgBox(QStringLiteral("The game could not be printed.\r\n\r\n") + why, vbExclamation);
        return;
    }
    m_pdf = path;
    m_told->setText(QStringLiteral("All pages are now in one PDF file. Print it at actual size (100 %), never \"fit to "
                                   "page\": a line on the first page shows whether it was."));
    m_page->SetWholeText(path);
    m_open->show();
    m_showFolder->show();
    m_open->setFocus();
}

bool PrintWithoutKit::Tell(const QString& sWhat, int iThousandths) {
    m_progress->setRange(0, kThousand);
    m_progress->setValue(iThousandths);
    m_page->SetWholeText(sWhat);
    DoEvents();
    return !m_bStop;
}

void PrintWithoutKit::SetBusy(bool bBusy) {
    m_bBusy = bBusy;
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_paper, m_size, m_way, m_players, m_colours, m_dice, m_make, m_close})
        control->setEnabled(!bBusy);
    m_stop->setEnabled(bBusy);
    m_progress->setVisible(bBusy);
    if (bBusy) {
        m_told->clear();
        m_open->hide();
        m_showFolder->hide();
    }
    ShowWhatFits();
}

void PrintWithoutKit::cmdStop_Click() { m_bStop = true; }

void PrintWithoutKit::reject() {
    if (m_bBusy) {
        m_bStop = true;
        return;
    }
    hide();
}

void PrintWithoutKit::cmdOpen_Click() try { OpenOrTell(m_pdf); } catch (...) {
    ErrTop("PrintWithoutKit!", "cmdOpen_Click");
}

void PrintWithoutKit::cmdShowFolder_Click() try { OpenOrTell(ConsoleSheets::PrintedFolder()); } catch (...) {
    ErrTop("PrintWithoutKit!", "cmdShowFolder_Click");
}
