// SPDX-License-Identifier: MIT
#pragma once

#include "kit/Sheets.h"
#include "platform/paint/Picture.h"
#include "platform/printing/PicturePrinter.h"
#include "services/Desktop.h"
#include "windows/print/MayPrintQuestion.h"

#include <QDialog>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

class ElidedLabel;
class frmPrntPrep;
class PictureBox;
class PrintEverything;
class PrintPreview;
class PrinterWatch;
class QButtonGroup;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// The print console: a small tree of menus with a button for each sheet of the kit. A button runs one job: it
/// asks for the right paper, looks at the disk, paints the sheet and ends the document.
class frmTavlPrint : public QDialog {
    Q_OBJECT

public:
    explicit frmTavlPrint(QWidget* parent = nullptr);
    ~frmTavlPrint() override;

    /// Modal, from the first menu on. Takes and gives whether a page has gone to a printer in this run.
    bool ShowForm(bool bPrintStarted);

    /// The whole kit in one go, whether or not the console is open. Takes and gives the same.
    bool ShowEverything(bool bPrintStarted);

    /// The page that shows whether the printer prints in its place, whether or not the console is open.
    void ShowCheckPrinter();

    /// Place of the progress bar, 0 to 1000; hidden below 0. Each change lets events run once.
    int Progress() const { return m_lProgress; }
    void Let_Progress(int lValue);

    /// A reminder that comes once a run. True when the user doesn't want to print.
    bool CheckForNagMessage();

    /// Closing the window means Done.
    void reject() override;

    /// Told when a page is begun and when it is finished, so that the program isn't closed in between.
    std::function<void(bool bInPrint)> TellInPrint = [](bool) {};
    /// Asked ahead of each job, by the window that asks, with the words of its sheets.
    MayPrintQuestion MayPrint = [](QDialog&, const QStringList&) { return true; };
    /// Sheets are painted into pictures and shown, and nothing is printed.
    bool bPrintOnScreen = false;
    std::function<void(const Picture&)> ShowPage = [](const Picture&) {};

public Q_SLOTS:
    void cmdNav_Click(int Index);
    void cmdPrint_Click(int Index);
    void cmdChangePrinter_Click();
    void cmdCancel_Click();
    void cmdTryAgain_Click();
    void cmdEverything_Click();
    void cmdNoKit_Click();
    void cmdCheckPrinter_Click();
    void cmdClearCorrection_Click();
    void cmdPreview_Click();
    void cboPaper_Activated(int Index);
    void Command1_Click();
    void picTest_Click();

private:
    // Building the window.
    void BuildControls();
    QGroupBox* BuildFrame(Frame frame);
    void AddMenuButtons(QVBoxLayout* column);
    void AddButtons(Frame frame, QVBoxLayout* column);
    void BuildNumberOfSheets(QVBoxLayout* column);
    void BuildProgress();
    void BuildDestination();
    void BuildClosing();
    void BuildDebugAids();
    void PlaceControls();
    void PlaceDestination(const QRect& room);
    void Form_Load();
    void AddCorrection(QVBoxLayout* column);
    void ShowDestination();
    void ShowCorrection();

    // A job.
    Printer& JobPrinter();
    /// False when the console has to stay as it is, hourglass and all.
    bool RunJob(const Sheet& sheet, const QString& sDone);
    static bool AcceptsPrinter(const Printer& printer);
    bool AcceptsPage(const Printer& printer, const Sheet& sheet);
    bool PrintCopies(SheetJob& job, const Sheet& sheet, double dblFree, const QString& sDone);
    void MarkDone(const Sheet& sheet, const QString& sDone);
    void CloseDocument(Printer& printer);
    void CleanUp();
    void TellTrouble(const QString& sTrouble);
    void TellWhereItWent();
    void ShowPiece(const char* sPiece, int iPiece, int nPieces);
    /// Nothing more is printed until somebody has pressed Try Again, which begins with this button's sheet.
    void Stop(int iButton);

    QList<QGroupBox*> fraPrint;
    QList<QLabel*> lbl;
    QButtonGroup* cmdNav = nullptr;
    QButtonGroup* cmdPrint = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdChangePrinter = nullptr;
    QLabel* lblNumberOfSheets = nullptr;
    QComboBox* cboNumberOfSheets = nullptr;
    QFrame* fraProgress = nullptr;
    QFrame* shpProgressBack = nullptr;
    QFrame* shpProgressFore = nullptr;
    ElidedLabel* lblSheet = nullptr;
    ElidedLabel* lblPiece = nullptr;
    QPushButton* cmdTryAgain = nullptr;
    QLabel* lblPrinter = nullptr;
    ElidedLabel* lblCorrection = nullptr;
    QPushButton* cmdClearCorrection = nullptr;
    QComboBox* cboPaper = nullptr;
    QPushButton* cmdPreview = nullptr;
    PictureBox* picTest = nullptr;
    QPushButton* Command1 = nullptr;
    CommonDialog dlgCommon;
    frmPrntPrep* m_frmPrntPrep = nullptr;
    PrintEverything* m_everything = nullptr;
    PrintPreview* m_preview = nullptr;
    PrinterWatch* m_watch = nullptr;
    /// Number of the button whose sheet has gone to a printer last.
    int m_iLastSent = 0;
    Frame m_frame = Frame::Menu;
    PicturePrinter m_screen;

    bool m_bPrintStarted = false;
    int m_lProgress = -1;
    /// Guards against a second job: events run while a sheet is being printed.
    bool bInPrint = false;
    /// Number of the button whose sheet has failed; the guard stays until it is tried again.
    std::optional<int> m_stoppedAt;
    bool m_bNagged = false;
    /// Questions about a page that is too small for a sheet, and was accepted.
    QStringList m_acceptedPages;
    QString m_sWrittenPdf;
    QString m_sFailure;
};
