// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

struct Sheet;

/// Tells that a sheet has become a PDF file and how that is printed, and opens the file or its folder at a click.
class PdfReady : public QDialog {
    Q_OBJECT

public:
    PdfReady(const QString& sPdf, const Sheet& sheet, QWidget* parent);

public Q_SLOTS:
    void cmdOpen_Click();
    void cmdShowFolder_Click();

private:
    QString m_pdf;
};
