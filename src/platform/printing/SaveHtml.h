// SPDX-License-Identifier: MIT
#pragma once

#include <QPageSize>
#include <QString>
#include <QStringList>

/// Pages for a browser that are printed one behind the other. Of each goes to paper what stands in its <main>; the
/// folder's "paper.css" says how it looks there.
struct HtmlBook {
    QString sFolder;
    QStringList pages;
    QString sTitle;
};

/// A book as a PDF file, its pages numbered. False, and a sentence in sError, when a page or a picture of it can't be
/// read, or when the file can't be written whole; the one that stood there before then stands.
bool SaveHtmlAsPdf(const HtmlBook& book, QPageSize::PageSizeId paper, const QString& sPath, QString& sError);
