// SPDX-License-Identifier: MIT
#include "windowing/SystemPrinter.h"

#include "platform/files/Files.h"
#include "platform/paint/Recording.h"
#include "windowing/PrinterTrouble.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>

#include <utility>

namespace {

constexpr QPainter::RenderHints kHints =
    QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::LosslessImageRendering;

QString AsFileName(QString sName) {
    for (QChar& c : sName) {
        if (QStringLiteral("/\\:*?\"<>|").contains(c) || c.unicode() < 0x20) c = u'-';
    }
    const QString name = sName.trimmed();
    return name.isEmpty() ? QStringLiteral("Tavlora") : name;
}

} // namespace

SystemPrinter::SystemPrinter(const QString& sPdfFolder) : m_pdfFolder(sPdfFolder) {}

SystemPrinter::~SystemPrinter() { KillDoc(); }

QPrinter& SystemPrinter::Device() const {
    if (m_device) return *m_device;
    m_device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    SetPaper();
    m_device->setFullPage(false);
    // A queue that knows nothing of its printer would print in greys.
    m_device->setColorMode(QPrinter::Color);
    m_device->setCreator(QStringLiteral("Tavlora"));
    return *m_device;
}

void SystemPrinter::SetPaper() const {
    // What the toolkit starts with is the desktop's country's; a printer knows better what it holds.
    const QPageSize held = QPrinterInfo::printerInfo(m_device->printerName()).defaultPageSize();
    const bool asHeld = m_paper == PaperChoice::Usual && held.isValid() && !PrintsToPdf();
    m_device->setPageSize(asHeld ? held : QPageSize(PaperSizes::Of(m_paper)));
}

void SystemPrinter::ChoosePaper(PaperChoice choice) {
    // What was chosen in the desktop's own dialog holds until another is chosen here.
    if (std::exchange(m_paper, choice) != choice && m_device) SetPaper();
}

bool SystemPrinter::PrintsToPdf() const {
    const QPrinter& device = Device();
    return device.printerName().isEmpty() || !device.isValid() || device.outputFormat() == QPrinter::PdfFormat;
}

QString SystemPrinter::DeviceName() const { return PrintsToPdf() ? QString() : Device().printerName(); }

bool SystemPrinter::IsThere() const {
    return PrintsToPdf() || !QPrinterInfo::printerInfo(Device().printerName()).isNull();
}

QString SystemPrinter::Trouble() const {
    return PrintsToPdf() ? QString() : PrinterTrouble::Of(Device().printerName());
}

double SystemPrinter::DotsPerInch() const {
    return PrintsToPdf() ? PdfPrinter::kDefaultDpi : double(Device().resolution());
}

QString SystemPrinter::PdfPath() const {
    return m_pdfFolder + u'/' + AsFileName(m_documentName) + QStringLiteral(".pdf");
}

void SystemPrinter::OpenDocument() {
    m_lastPdf.clear();
    m_lastError.clear();
    if (!PrintsToPdf()) {
        m_page = std::make_unique<Recording>(SizeInPixels(), DotsPerInch());
        m_painter = std::make_unique<QPainter>(m_page.get());
        m_painter->setRenderHints(kHints);
        m_context = std::make_unique<DeviceContext>(*m_painter);
        return;
    }
    QString error;
    // A folder that can't be made shows when the file is put in place.
    Files::MakeDirectory(m_pdfFolder, error);
    m_pdf = std::make_unique<PdfPrinter>(PdfPath(), m_documentName, PaperOfFiles());
    m_pdf->SetOrientation(m_orientation);
    m_pdf->CentreSheet(m_sheet);
    m_pdf->SetPageName(m_pageName);
    m_pdf->Correct([this](const PaperOfPage& paper) { return m_corrections(DeviceName(), paper); });
}

DeviceContext& SystemPrinter::hDC() {
    if (!m_pdf && !m_context) OpenDocument();
    return m_pdf ? m_pdf->hDC() : *m_context;
}

PaperOfPage SystemPrinter::PagePaper() const {
    const bool landscape = m_orientation == PageOrientation::Landscape;
    QPageLayout layout = Device().pageLayout();
    layout.setOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    const double margin = PdfPrinter::MarginInches(layout.pageSize().id());
    const QMarginsF margins =
        PrintsToPdf() ? QMarginsF(margin, margin, margin, margin) : layout.margins(QPageLayout::Inch);
    return PaperOfPage::Of(layout.fullRect(QPageLayout::Inch).size(), margins, m_sheet);
}

QSize SystemPrinter::SizeInPixels() const { return (PrintableInches() * DotsPerInch()).toSize(); }

void SystemPrinter::EndDoc() {
    hDC(); // a document without a mark on it is a page all the same
    if (m_pdf) {
        QString error;
        if (m_pdf->Close(error)) {
            m_lastPdf = PdfPath();
        } else {
            m_lastError = QStringLiteral("The file '%1' could not be written: %2").arg(PdfPath(), error);
        }
        m_pdf.reset();
        return;
    }
    m_context.reset();
    m_painter.reset();
    SendJob();
    m_page.reset();
}

void SystemPrinter::SendJob() {
    const PaperOfPage paper = PagePaper();
    const PageCorrection correction = m_corrections(DeviceName(), paper);
    // A corrected page turns itself, as nobody tells which way the printer would turn it.
    const bool landscape = m_orientation == PageOrientation::Landscape && correction.IsNothing();
    QPrinter& device = Device();
    device.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    device.setDocName(m_documentName);
    QPainter painter;
    // The toolkit itself doesn't look whether anybody has taken the job.
    if (!IsThere() || !painter.begin(&device)) {
        m_lastError = QStringLiteral("The printer '%1' can't be opened").arg(device.printerName());
        return;
    }
    painter.setRenderHints(kHints);
    const QPoint firstDot = device.pageLayout().paintRectPixels(device.resolution()).topLeft();
    painter.setWorldTransform(PageToDots(paper, correction, DotsPerInch(), firstDot));
    m_page->Play(painter, m_page->Whole());
    if (!painter.end()) m_lastError = QStringLiteral("The printer reported a failure");
}

void SystemPrinter::KillDoc() {
    m_pdf.reset();
    m_context.reset();
    m_painter.reset();
    m_page.reset();
}
