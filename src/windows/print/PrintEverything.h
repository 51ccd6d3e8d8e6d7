// SPDX-License-Identifier: MIT
#pragma once

#include "kit/WholeKit.h"
#include "windows/print/MayPrintQuestion.h"

#include <QDialog>
#include <QString>

#include <functional>

class ElidedLabel;
class Printer;
class PrintPreview;
class QComboBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

/// The whole kit in one go: tells what paper it takes for so many players, and prints the sheets that are ticked,
/// asking for each stock once. A sheet that is done loses its tick, so that whoever stops takes it up again where it
/// was. Without a printer all pages become one PDF file.
class PrintEverything : public QDialog {
    Q_OBJECT

public:
    explicit PrintEverything(QWidget* parent = nullptr);

    /// Modal. Takes and gives whether a page has gone to a printer in this run.
    bool ShowForm(bool bPrintStarted);
    /// While pages are being printed closing the window stops ahead of the next one.
    void reject() override;

    /// Told when pages are begun and when they are finished, so that the program isn't closed in between.
    std::function<void(bool bInPrint)> TellInPrint = [](bool) {};
    /// Asked ahead of the first page, with the words of all sheets that are ticked.
    MayPrintQuestion MayPrint = [](QDialog&, const QStringList&) { return true; };

public Q_SLOTS:
    void cmdPrint_Click();
    void cmdStop_Click();
    void cmdPreview_Click();
    void cmdOpen_Click();
    void cmdShowFolder_Click();
    void ShowWhatIsNeeded();

private:
    void BuildControls();
    QLayout* BuildPlayers();
    QLayout* BuildButtons();
    void FillSheets();
    void ShowDestination();

    std::vector<WholeKit::Run> TickedRuns() const;
    void Untick(const Sheet& sheet);
    bool AcceptsPages(Printer& printer, const std::vector<WholeKit::Run>& runs);
    void PrintIntoFile(const std::vector<WholeKit::Run>& runs);
    void PrintOnPaper(Printer& printer, const std::vector<WholeKit::Run>& runs);
    bool IsReady(const Printer& printer);
    bool PrintSheet(Printer& printer, const WholeKit::Run& run);
    WholeKit::Outcome Paint(Printer& printer, const std::vector<WholeKit::Run>& runs,
                            const std::function<void()>& whenWhole);
    bool Tell(const WholeKit::Progress& progress);
    void TellWhatIsLacking(const WholeKit::Outcome& outcome);
    void SetBusy(bool bBusy);

    QComboBox* m_players = nullptr;
    QLabel* m_needed = nullptr;
    QListWidget* m_sheets = nullptr;
    QLabel* m_destination = nullptr;
    QProgressBar* m_progress = nullptr;
    ElidedLabel* m_page = nullptr;
    QPushButton* m_print = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_preview = nullptr;
    QPushButton* m_close = nullptr;
    QPushButton* m_open = nullptr;
    QPushButton* m_showFolder = nullptr;

    PrintPreview* m_frmPreview = nullptr;
    Kit m_kit = Kit::Unknown;
    bool m_bPrintStarted = false;
    bool m_bBusy = false;
    bool m_bStop = false;
    /// Of the print under way.
    int m_nPages = 0;
    int m_nPagesDone = 0;
    QString m_pdf;
};
