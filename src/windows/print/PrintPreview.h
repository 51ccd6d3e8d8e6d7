// SPDX-License-Identifier: MIT
#pragma once

#include "kit/WholeKit.h"
#include "platform/printing/PreviewPrinter.h"

#include <QDialog>

#include <functional>
#include <vector>

class PageView;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

/// Shows sheets on their paper before any is printed: each by what prints it, with its page beside the others as a
/// thumbnail that appears as soon as it is drawn.
class PrintPreview : public QDialog {
    Q_OBJECT

public:
    /// What a person would like when the window closes.
    enum class Wish { Nothing, PrintSheet, PrintAll };
    /// Who opens it: the console prints single sheets, Print Everything what is ticked.
    enum class From { Console, Everything };

    explicit PrintPreview(QWidget* parent = nullptr);

    /// Modal. The first run stands in front, on the paper of the printer, which stays untouched.
    Wish ShowForm(Printer& printer, const std::vector<WholeKit::Run>& runs, From from);
    /// The sheet in front.
    const Sheet* InFront() const;
    /// Closing the window ends drawing ahead of the next page.
    void reject() override;

    /// Told when drawing begins and when it is finished, so that the program isn't closed in between.
    std::function<void(bool bInPrint)> TellInPrint = [](bool) {};

public Q_SLOTS:
    void DrawPages();
    void ShowPage(int row);
    void cboZoom_Activated(int index);
    void cmdZoomIn_Click();
    void cmdZoomOut_Click();
    void ShowZoom();

private:
    void BuildControls();
    QLayout* BuildZoom();
    QLayout* BuildButtons();
    void ZoomBy(double factor);
    void DrawPage(size_t index);
    void Close(Wish wish);

    PageView* m_view = nullptr;
    QListWidget* m_list = nullptr;
    QComboBox* m_zoom = nullptr;
    QLabel* m_paper = nullptr;
    QPushButton* m_printSheet = nullptr;
    QPushButton* m_printAll = nullptr;

    Printer* m_printer = nullptr;
    Kit m_kit = Kit::Unknown;
    std::vector<WholeKit::Run> m_runs;
    std::vector<PreviewPage> m_pages;
    Wish m_wish = Wish::Nothing;
};
