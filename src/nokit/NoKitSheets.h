// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/NoKitChoices.h"

#include <QLineF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>
#include <span>
#include <vector>

class PageCanvas;

/// A page of a sheet. It is painted when it is asked for, so that no more than one is held at a time.
struct NoKitPage {
    /// Stands in its margin: "C2" of the board; empty for the only page of a sheet.
    QString sName;
    /// The whole paper as it lies before the reader.
    QSizeF paperInches;
    /// False when something is missing; a sentence for each piece is then in lacking.
    std::function<bool(PageCanvas& page, QStringList& lacking)> paint;
    /// How often it is printed.
    int nCopies = 1;
};

/// What a page is printed on.
enum class NoKitStock { Paper, Card, ColoredCard };

/// A sheet of a game that is made without the boxed kit: a row in the table, and a file that makes its pages.
struct NoKitSheet {
    /// Its word on the command line.
    const char* sName;
    const char* sTitle;
    NoKitStock stock;
    /// What is done with it, in a sentence of the first page.
    const char* sHowTo;
    std::vector<NoKitPage> (*pages)(const NoKitChoices& choices);
};

/// The pages of a kind of sheet for the game in memory; defined by the sheet's file.
template <class Kind>
std::vector<NoKitPage> PagesOf(const NoKitChoices& choices);

/// In the order of printing: by the stock, and the first page that tells how.
std::span<const NoKitSheet> NoKitSheets();
/// The title as one line, its two parts apart as they stand on the board.
QString NameOfGame();
/// Nothing for a name that none has.
const NoKitSheet* FindNoKitSheet(const QString& sName);
/// "paper", "card".
QString NameOf(NoKitStock stock);

/// What is left of a paper inside the margin that every printer needs.
QSizeF PrintableOf(QSizeF paperInches);
/// The paper of the choices, upright or lengthwise.
QSizeF PaperOf(const NoKitChoices& choices, bool bLengthwise = false);
/// By which a cutting machine finds what is printed: a cross in each corner of what can be printed.
std::vector<QLineF> RegistrationMarks(QSizeF printable);
/// Paints a page with what stands on every page: the marks in its corners by which a cutting machine finds it.
bool PaintPage(const NoKitPage& page, PageCanvas& canvas, QStringList& lacking);
