// SPDX-License-Identifier: MIT
#include "windows/print/PrintPreview.h"

#include "kit/ConsoleSheets.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "windowing/basCommon_forms.h"
#include "windowing/HourGlass.h"
#include "windowing/PageView.h"
#include "windowing/WidgetLook.h"
#include "windows/print/PageUnderWay.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <cmath>

namespace {

constexpr int kThumbnail = 110;
constexpr int kThumbnailRoom = 30;
constexpr double kZoomStep = 1.25;
constexpr int kWholePage = 0;
constexpr std::array kZooms{0.5, 0.75, 1.0, 1.5, 2.0, 3.0, 4.0};

QString Percent(double zoom) { return QStringLiteral("%1 %").arg(std::lround(zoom * 100)); }

QString Caption(const WholeKit::Run& run, Kit kit) {
    const QString title = run.sheet->Title(kit);
    return run.nCopies == 1 ? title : QStringLiteral("%1 (%2 sheets)").arg(title).arg(run.nCopies);
}

QString PaperText(const Printer& printer, const PaperOfPage& paper) {
    const QString on = QStringLiteral("%1 paper. ").arg(paper.Name());
    if (printer.DeviceName().isEmpty()) return on + QStringLiteral("The dashed line is the margin of the PDF page.");
    return on + QStringLiteral("'%1' prints as far as the dashed line.").arg(printer.DeviceName());
}

} // namespace

PrintPreview::Wish PrintPreview::ShowForm(Printer& printer, const std::vector<WholeKit::Run>& runs, From from) try {
    m_printer = &printer;
    m_kit = KitInUse();
    m_runs = runs;
    m_pages.assign(runs.size(), {});
    m_wish = Wish::Nothing;
    m_list->clear();
    // As large as they will be when they are drawn, so that nothing moves meanwhile.
    const QSize room(m_list->width() - 2 * m_list->frameWidth() - kThumbnailRoom,
                     kThumbnail + 3 * m_list->fontMetrics().height());
    for (const WholeKit::Run& run : runs)
        (new QListWidgetItem(Caption(run, m_kit), m_list))->setSizeHint(room);
    m_list->setVisible(runs.size() > 1);
    m_printSheet->setVisible(from == From::Console);
    m_printAll->setText(from == From::Console ? QStringLiteral("Print &Everything...") : QStringLiteral("&Print"));
    m_view->ShowPage({});
    m_view->ShowWholePage();
    m_list->setCurrentRow(0);
    basCommon::ShowEntireForm(*this);
    m_list->setFocus();
    QTimer::singleShot(0, this, &PrintPreview::DrawPages);
    exec();
    m_pages.clear();
    return m_wish;
} catch (...) {
    ErrTail("PrintPreview!", "ShowForm");
}

const Sheet* PrintPreview::InFront() const {
    const int row = m_list->currentRow();
    return row < 0 ? nullptr : m_runs[size_t(row)].sheet;
}

void PrintPreview::DrawPages() try {
    PreviewPrinter printer(*m_printer);
    const PageUnderWay pages(*this, printer, TellInPrint);
    for (size_t i = 0; i < m_runs.size() && isVisible(); ++i) {
        DrawPage(i);
        DoEvents();
    }
} catch (...) {
    ErrTop("PrintPreview!", "DrawPages");
}

void PrintPreview::DrawPage(size_t index) {
    const Sheet& sheet = *m_runs[index].sheet;
    PreviewPrinter printer(*m_printer);
    sheet.LayOn(printer, m_kit);
    SheetJob job{printer};
    job.Progress = [](int) { DoEvents(); };
    const bool whole = sheet.Prepare(job) && sheet.Print(job);
    printer.EndDoc();
    m_pages[index] = printer.Page();
    QListWidgetItem* const item = m_list->item(int(index));
    item->setIcon(PageView::IconOf(m_pages[index], kThumbnail));
    if (!whole) item->setText(item->text() + QStringLiteral("\nNot whole"));
    if (!whole) item->setToolTip(WidgetLook::WithoutMnemonics(ConsoleSheets::LackingMessage(job.lacking)));
    if (m_list->currentRow() == int(index)) ShowPage(int(index));
}

void PrintPreview::ShowPage(int row) {
    if (row < 0 || size_t(row) >= m_pages.size()) return;
    const PreviewPage& page = m_pages[size_t(row)];
    m_view->ShowPage(page);
    m_printSheet->setEnabled(!page.IsNull());
    m_paper->setText(page.IsNull() ? QStringLiteral("This page is being drawn ...")
                                   : PaperText(*m_printer, page.paper));
    ShowZoom();
}

void PrintPreview::ShowZoom() {
    const QSignalBlocker silent(m_zoom);
    const auto found = std::ranges::find_if(
        kZooms, [this](double zoom) { return std::lround(zoom * 100) == std::lround(m_view->Zoom() * 100); });
    m_zoom->setPlaceholderText(Percent(m_view->Zoom()));
    if (m_view->ShowsWholePage()) {
        m_zoom->setCurrentIndex(kWholePage);
    } else {
        m_zoom->setCurrentIndex(found == kZooms.end() ? -1 : int(found - kZooms.begin()) + 1);
    }
}

void PrintPreview::cboZoom_Activated(int index) try {
    if (index == kWholePage) return m_view->ShowWholePage();
    m_view->SetZoom(kZooms.at(size_t(index) - 1));
} catch (...) {
    ErrTop("PrintPreview!", "cboZoom_Activated", index);
}

void PrintPreview::ZoomBy(double factor) { m_view->SetZoom(m_view->Zoom() * factor); }

void PrintPreview::cmdZoomIn_Click() try { ZoomBy(kZoomStep); } catch (...) {
    ErrTop("PrintPreview!", "cmdZoomIn_Click");
}

void PrintPreview::cmdZoomOut_Click() try { ZoomBy(1 / kZoomStep); } catch (...) {
    ErrTop("PrintPreview!", "cmdZoomOut_Click");
}

void PrintPreview::Close(Wish wish) {
    m_wish = wish;
    hide();
}

void PrintPreview::reject() { Close(Wish::Nothing); }
