// SPDX-License-Identifier: MIT
#include "tools/NoKitCommand.h"

#include "nokit/NoKitPrint.h"
#include "nokit/ServicePictures.h"
#include "services/PrinterCorrections.h"
#include "tools/PrintArguments.h"

namespace NoKitCommand {

namespace {

/// The orders of one call, carried out one after the other until one fails.
class Orders {
public:
    Orders(const PrintArguments& arguments, const Voice& voice)
        : m_arguments(arguments), m_choices(arguments.noKit), m_sheets(NoKitPrint::SheetsOf(arguments.sheets)),
          m_voice(voice), m_job{voice.Progress} {
        m_choices.sheets = arguments.sheets;
        if (arguments.forPrinter) m_job.correction = PrinterCorrections::OfPrinter(*arguments.forPrinter);
    }

    bool Print(const QString& sTitle) {
        // Beside a service's pictures the file may be the boxed kit's.
        const QString pdf = m_arguments.bNoKit ? m_arguments.sOutput : QString();
        return pdf.isEmpty() ||
               Told(pdf, NoKitPrint::IntoPdf(m_sheets, m_choices, pdf, sTitle, m_arguments.iDpi, m_job, m_error));
    }
    bool CutLines() {
        const QString& folder = m_arguments.sCutLines;
        return folder.isEmpty() || Told(folder, NoKitPrint::WriteCutLines(m_sheets, m_choices, folder, m_job, m_error));
    }
    bool Service() {
        const QString& folder = m_arguments.sService;
        return folder.isEmpty() || Told(folder, ServicePictures::Write(m_choices, folder, m_job, m_error));
    }

private:
    bool Told(const QString& sPath, bool bMade) {
        for (const QString& lack : m_job.lacking)
            m_voice.Complain(lack);
        if (!m_error.isEmpty()) m_voice.Complain(QStringLiteral("'%1' could not be written: %2").arg(sPath, m_error));
        return bMade;
    }

    const PrintArguments& m_arguments;
    NoKitChoices m_choices;
    std::vector<const NoKitSheet*> m_sheets;
    const Voice& m_voice;
    NoKitPrint::Job m_job;
    QString m_error;
};

} // namespace

bool Print(const PrintArguments& arguments, const QString& sTitle, const Voice& voice) {
    Orders orders(arguments, voice);
    return orders.Print(sTitle) && orders.CutLines() && orders.Service();
}

} // namespace NoKitCommand
