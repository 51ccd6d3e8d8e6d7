// SPDX-License-Identifier: MIT
#include "windowing/SystemPrinter.h"

#include "platform/files/Files.h"
#include "platform/paint/Recording.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>

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
    // What the toolkit starts with follows the desktop's country; the kit's stock is US Letter unless the
    // printer holds another paper.
    const QPageSize paper = QPrinterInfo::defaultPrinter().defaultPageSize();
    m_device->setPageSize(paper.isValid() && !PrintsToPdf() ? paper : QPageSize(QPageSize::Letter));
    m_device->setFullPage(false);
    // A queue that knows nothing of its printer would print in greys.
    m_device->setColorMode(QPrinter::Color);
    m_device->setCreator(QStringLiteral("Tavlora"));
    return *m_device;
}

bool SystemPrinter::PrintsToPdf() const {
    const QPrinter& device = Device();
    return device.printerName().isEmpty() || !device.isValid() || device.outputFormat() == QPrinter::PdfFormat;
}

QString SystemPrinter::DeviceName() const { return PrintsToPdf() ? QString() : Device().printerName(); }

bool SystemPrinter::IsThere() const {
    return PrintsToPdf() || !QPrinterInfo::printerInfo(Device().printerName()).isNull();
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
    m_pdf = std::make_unique<PdfPrinter>(PdfPath(), m_documentName);
    m_pdf->SetOrientation(m_orientation);
}

DeviceContext& SystemPrinter::hDC() {
    if (!m_pdf && !m_context) OpenDocument();
    return m_pdf ? m_pdf->hDC() : *m_context;
}

QSizeF SystemPrinter::PrintableInches() const {
    const bool landscape = m_orientation == PageOrientation::Landscape;
    QPageLayout layout = Device().pageLayout();
    layout.setOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (!PrintsToPdf()) return layout.paintRect(QPageLayout::Inch).size();
    return layout.fullRect(QPageLayout::Inch).size() -
           QSizeF(2 * PdfPrinter::kMarginInches, 2 * PdfPrinter::kMarginInches);
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
    const bool landscape = m_orientation == PageOrientation::Landscape;
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
    m_page->Play(painter, QRectF(QPointF(0, 0), m_page->Size()));
    if (!painter.end()) m_lastError = QStringLiteral("The printer reported a failure");
}

void SystemPrinter::KillDoc() {
    m_pdf.reset();
    m_context.reset();
    m_painter.reset();
    m_page.reset();
}
