// SPDX-License-Identifier: MIT
#pragma once

#include "kit/SheetJob.h"
#include "platform/printing/Printer.h"
#include "services/Kit.h"

#include <QSizeF>
#include <QString>

#include <optional>
#include <span>

/// The frames of the print window, by their told numbers.
enum class Frame { Menu, Labels, Deeds, News, Money, Rules };

/// A kind of paper, and how a person is asked to load it.
struct Paper {
    /// Empty where a kit has no such sheet.
    const char* sStock;
    const char* sPrompt;
    /// The words that the question ends in.
    const char* sTail = "and click 'Print' to begin printing.";
};

/// What kits other than "8" make of a sheet.
enum class OtherKits {
    Same,
    LeftOut,           ///< Not part of this build.
    LeftOutOrNameless, ///< The same, and a kit that nobody knows hears under which names the program prints.
};

/// A sheet of the boxed kit: all that the print window and tavlora-print know of it.
struct Sheet {
    /// Of kit "8", and of all others.
    template <class T>
    struct ByKit {
        T kit8;
        T others;
    };
    /// On white stock, which the printer gives its colours, and on stock that is coloured already.
    struct ByStock {
        Paper white;
        Paper coloured;
    };

    /// How far its ink goes from the printable origin, in inches, and which of its pieces end there.
    struct End {
        double inches;
        const char* sPieces;
    };
    struct Ends {
        End right;
        End bottom;
    };

    /// Index of its button: the 3 of "cmdPrint_3".
    int iButton;
    /// Its word on the command line; empty for a button that this build prints nothing for.
    const char* sName;
    /// Where its button stands; nothing for an index without one.
    std::optional<Frame> frame;
    /// With its mnemonic.
    ByKit<const char*> caption;
    const char* sToolTip = "";
    /// Nothing: no paper is asked for.
    std::optional<ByStock> paper;
    ByKit<PageOrientation> orientation;
    /// On its page in kit "8"'s orientation.
    Ends ends;
    OtherKits otherKits;
    /// Banknotes: in copies, with more room on the disk.
    bool bMoney = false;
    /// How often six players need it; 0 where one is enough for however many.
    int iSheetsForSix = 0;
    /// Which of its kind.
    int iWhich = 0;
    /// Nothing where copies share nothing.
    bool (*prepare)(SheetJob& job, int iWhich) = nullptr;
    /// Nothing where it shows no photographs that are worth being decoded ahead.
    std::vector<SheetPhoto> (*photos)(int iWhich) = nullptr;
    /// Nothing where it isn't part of this build in any kit.
    bool (*paint)(SheetJob& job, int iWhich);

    /// The button's caption with its mnemonic, and in plain words.
    QString Caption(Kit kit) const;
    QString Title(Kit kit) const;
    bool IsShown(Kit kit) const;
    /// The kind of paper that it goes on; empty where no paper is asked for.
    QString Stock(Kit kit) const;
    /// What to load into the printer; nothing where no paper is asked for.
    std::optional<QString> Prompt(Kit kit) const;
    PageOrientation OrientationOf(Kit kit) const;
    QSizeF NeededInches(Kit kit) const;
    /// From the next page on the printer's paper lies as the sheet wants it.
    void LayOn(Printer& printer, Kit kit) const;
    /// "The lowest row of deeds would lose 2 mm.": what a page of so many inches, in its orientation for the kit, cuts
    /// off. Empty when the page holds it.
    QString WhatIsLostOn(QSizeF printable, Kit kit) const;
    /// Why this build doesn't print it for a kit; empty when it does.
    QString WhyLeftOut(Kit kit) const;

    /// The photographs on it, in the order in which they are drawn.
    std::vector<SheetPhoto> Photos() const;
    /// Makes what all copies share. False, after it has said so, when nothing may be printed.
    bool Prepare(SheetJob& job) const;
    /// Paints one page, whatever sheet or copy was painted before it. False when it isn't whole: the job knows what
    /// it lacks, and the page has to be thrown away. Not for a sheet that is left out.
    bool Print(SheetJob& job) const;
};

/// The sheets that this build prints, a row each, in the order of the menus and of the whole kit.
std::span<const Sheet> Sheets();

/// Buttons of the print window that no sheet of this build stands behind.
std::span<const Sheet> ButtonsWithoutSheet();

/// Their names, as the command line knows them.
QStringList SheetNames();

/// Nothing for a name that no sheet has.
const Sheet* FindSheet(const QString& sName);

/// Of both tables; nothing for an index that none has.
const Sheet* FindButton(int iButton);
