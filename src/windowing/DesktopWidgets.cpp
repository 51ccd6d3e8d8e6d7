// SPDX-License-Identifier: MIT
#include "windowing/DesktopWidgets.h"

#include "platform/text/LongWords.h"
#include "platform/text/TextColumns.h"
#include "windowing/SystemPrinter.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>
#include <QGroupBox>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kButtons = 0xF;
constexpr int kIcons = 0xF0;

QMessageBox::StandardButtons ButtonsOf(int iStyle) {
    switch (iStyle & kButtons) {
        case vbOKCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case vbYesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case vbYesNo:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::StandardButton DefaultButtonOf(int iStyle) {
    const bool second = iStyle & vbDefaultButton2;
    switch (iStyle & kButtons) {
        case vbYesNoCancel:
        case vbYesNo:
            return second ? QMessageBox::No : QMessageBox::Yes;
        default:
            return second ? QMessageBox::Cancel : QMessageBox::Ok;
    }
}

QMessageBox::Icon IconOf(int iStyle) {
    switch (iStyle & kIcons) {
        case vbCritical:
            return QMessageBox::Critical;
        case vbQuestion:
            return QMessageBox::Question;
        case vbExclamation:
            return QMessageBox::Warning;
        case vbInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

int ResultOf(int button, int iStyle) {
    switch (button) {
        case QMessageBox::Yes:
            return vbYes;
        case QMessageBox::No:
            return vbNo;
        case QMessageBox::Cancel:
            return vbCancel;
        default:
            // The close button of a box with a way to say no means no.
            return (iStyle & kButtons) == vbYesNo ? vbNo : vbOK;
    }
}

// About how many rows the lines take, as a box wraps them.
qsizetype RowsOf(const QStringList& lines) {
    constexpr qsizetype kCharactersInARow = 50;
    qsizetype rows = 0;
    for (const QString& line : lines)
        rows += line.size() / kCharactersInARow + 1;
    return rows;
}

// Of a line that fills a screen by itself, as with a name of thousands of letters, its beginning and its end.
QString Shortened(const QString& sLine) {
    constexpr int kBeginning = 600;
    constexpr int kEnd = 300;
    if (sLine.size() <= kBeginning + kEnd) return sLine;
    const int end = TextColumns::AtOrBehind(sLine, int(sLine.size()) - kEnd);
    return TextColumns::LeftCharacters(sLine, kBeginning) + QStringLiteral(" ... ") + sLine.mid(end);
}

// A box never scrolls: one with a line for each of forty missing pictures would stand with its buttons below
// the screen. What is too much for it goes behind the button for details.
void SetText(QMessageBox& box, const QString& sText) {
    constexpr int kMostRows = 36;
    constexpr int kRowsShown = 24;
    const QStringList lines = sText.split(u'\n');
    if (RowsOf(lines) <= kMostRows) {
        box.setText(sText);
        return;
    }
    QStringList shown;
    for (const QString& line : lines)
        shown.append(Shortened(line));
    while (shown.size() > 1 && RowsOf(shown) > kRowsShown)
        shown.removeLast();
    const qsizetype left = lines.size() - shown.size();
    box.setText(shown.join(u'\n') + (left > 0
                                         ? QStringLiteral("\n\nThere are %1 more; the details hold them all.").arg(left)
                                         : QStringLiteral("\n\nThe details hold all of it.")));
    box.setDetailedText(sText);
}

void Fill(QMessageBox& box, const QString& sText, int iStyle, const QString& sTitle) {
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(sTitle);
    // A word without an end would make the box wider than any screen.
    constexpr qsizetype kLettersOfAWord = 40;
    SetText(box, LongWords::MayBreak(QString(sText).remove(u'\r'), kLettersOfAWord));
    box.setIcon(IconOf(iStyle));
    box.setStandardButtons(ButtonsOf(iStyle));
    box.setDefaultButton(DefaultButtonOf(iStyle));
}

ListOffer& Offered() {
    static ListOffer offer;
    return offer;
}

int Show(QMessageBox& box) {
    // The hourglass of work under way would lie over the buttons.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int button = box.exec();
    QApplication::restoreOverrideCursor();
    return button;
}

QString PathInDialog(const CommonDialog& dialog) { return QDir(dialog.sInitDir).filePath(dialog.sFileName); }

// The window a box belongs to, so that it stands before it and not beside.
QWidget* Owner() {
    QWidget* const active = QApplication::activeModalWidget();
    return active ? active : QApplication::activeWindow();
}

// What stands behind a point needn't be an extension: a game called "Dr. Who" would be listed by no dialog.
QString WithExtension(const QString& sPath, const QString& sExtension) {
    const QString ending = u'.' + sExtension;
    return sExtension.isEmpty() || sPath.endsWith(ending, Qt::CaseInsensitive) ? sPath : sPath + ending;
}

// "*.pdf" of "PDF page (*.pdf)"; empty where the filter takes any name.
QStringList EndingsOf(const QString& sNameFilter) {
    QStringList endings;
    for (const QString& pattern : QString(sNameFilter.section(u'(', -1)).remove(u')').split(u' ')) {
        if (pattern.startsWith(QStringLiteral("*.")) && pattern.size() > 2) endings.append(pattern.mid(1));
    }
    return endings;
}

QString WithEndingOfFilter(const QString& sPath, const QFileDialog& window) {
    for (const QString& filter : window.nameFilters()) {
        for (const QString& ending : EndingsOf(filter)) {
            if (sPath.endsWith(ending, Qt::CaseInsensitive)) return sPath;
        }
    }
    return sPath + EndingsOf(window.selectedNameFilter()).value(0);
}

bool MayBeReplaced(const QString& sPath) {
    const QFileInfo there(sPath);
    if (!there.exists()) return true;
    return ::MsgBox(QStringLiteral("'%1' is already there. Replace it?").arg(there.fileName()),
                    vbYesNo | vbExclamation | vbDefaultButton2) == vbYes;
}

bool ShowFileDialog(CommonDialog& dialog, QFileDialog::AcceptMode mode) {
    QFileDialog window(Owner(), dialog.sDialogTitle);
    window.setAcceptMode(mode);
    const bool folder = (dialog.iFlags & kChooseFolder) != 0;
    window.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (folder) window.setFileMode(QFileDialog::Directory);
    if (!folder) window.setNameFilters(DesktopWidgets::NameFilters(dialog.sFilter));
    if (!dialog.sDefaultExt.isEmpty()) window.setDefaultSuffix(dialog.sDefaultExt);
    // The toolkit would ask about the name as it was typed.
    window.setOption(QFileDialog::DontConfirmOverwrite);
    window.setDirectory(dialog.sInitDir);
    if (!dialog.sFileName.isEmpty()) window.selectFile(PathInDialog(dialog));
    while (window.exec() == QDialog::Accepted && !window.selectedFiles().isEmpty()) {
        const QString typed = window.selectedFiles().constFirst();
        const bool bSave = mode == QFileDialog::AcceptSave;
        const QString named =
            dialog.sDefaultExt.isEmpty() ? WithEndingOfFilter(typed, window) : WithExtension(typed, dialog.sDefaultExt);
        const QString path = bSave ? named : typed;
        if (!bSave || !dialog.bOverwritePrompt || MayBeReplaced(path)) {
            dialog.sFileName = path;
            return true;
        }
        window.selectFile(path);
    }
    return false;
}

// Strikeout and underline are no part of what a piece keeps of its font: ticking them would do nothing.
void HideEffects(QFontDialog& window) {
    for (QCheckBox* const effect : window.findChildren<QCheckBox*>()) {
        auto* const group = qobject_cast<QGroupBox*>(effect->parentWidget());
        if (group) group->hide();
    }
}

} // namespace

QStringList DesktopWidgets::NameFilters(const QString& sFilter) {
    const QStringList parts = sFilter.split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        // Here a file needn't have a dot in its name.
        patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        filters.append(parts[i] + QStringLiteral(" (") + patterns.join(u' ') + u')');
    }
    return filters.isEmpty() ? QStringList{QStringLiteral("All files (*)")} : filters;
}

int DesktopWidgets::MsgBox(const QString& sText, int iStyle, const QString& sTitle) {
    QMessageBox box(Owner());
    Fill(box, sText, iStyle, sTitle);
    return ResultOf(Show(box), iStyle);
}

void DesktopWidgets::MsgList(const QStringList& messages, int iStyle, const QString& sTitle) {
    QMessageBox box(Owner());
    Fill(box, messages.join(u'\n'), iStyle, sTitle);
    const ListOffer& offer = Offered();
    const bool helps = offer.applies && offer.applies();
    const QAbstractButton* const way = helps ? box.addButton(offer.sCaption, QMessageBox::ActionRole) : nullptr;
    // With two buttons the toolkit no longer knows which one closing and Escape stand for, and takes neither.
    box.setEscapeButton(QMessageBox::Ok);
    Show(box);
    if (way && box.clickedButton() == way) offer.take();
}

void DesktopWidgets::OfferBelowLists(ListOffer offer) { Offered() = std::move(offer); }

bool DesktopWidgets::ShowOpen(CommonDialog& dialog) { return ShowFileDialog(dialog, QFileDialog::AcceptOpen); }

bool DesktopWidgets::ShowSave(CommonDialog& dialog) { return ShowFileDialog(dialog, QFileDialog::AcceptSave); }

bool DesktopWidgets::ShowFont(CommonDialog& dialog) {
    // A family that this machine lacks shows as the one that stands in for it, and the game keeps its name
    // unless another is chosen.
    QFont font(dialog.sFontName);
    const QString shown = QFontInfo(font).family();
    font.setFamily(shown);
    font.setPointSizeF(dialog.fFontSize);
    font.setBold(dialog.bFontBold);
    font.setItalic(dialog.bFontItalic);
    QFontDialog window(font, Owner());
    window.setOption(QFontDialog::DontUseNativeDialog);
    HideEffects(window);
    if (!dialog.sDialogTitle.isEmpty()) window.setWindowTitle(dialog.sDialogTitle);
    if (window.exec() != QDialog::Accepted) return false;
    const QFont chosen = window.selectedFont();
    if (chosen.family() != shown) dialog.sFontName = chosen.family();
    dialog.fFontSize = float(chosen.pointSizeF());
    dialog.bFontBold = chosen.bold();
    dialog.bFontItalic = chosen.italic();
    return true;
}

bool DesktopWidgets::ShowPrinter(CommonDialog& dialog) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        dialog.sError = QStringLiteral("No printer is set up on this computer. Each sheet becomes a PDF file instead, "
                                       "which can be printed from any computer.");
        return false;
    }
    auto* const system = dynamic_cast<SystemPrinter*>(Printer::Current());
    const bool forProgram = dialog.bPrinterDefault && system;
    std::unique_ptr<QPrinter> other;
    if (!forProgram) other = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrinter& device = forProgram ? system->Device() : *other;
    if (!dialog.sPrinterName.isEmpty()) device.setPrinterName(dialog.sPrinterName);
    QPrintDialog window(&device, Owner());
    // A sheet is one page; and which file it goes to is decided without this dialog.
    window.setOptions(QAbstractPrintDialog::PrintDialogOptions());
    window.setWindowTitle(dialog.sDialogTitle.isEmpty() ? QStringLiteral("Change Printer") : dialog.sDialogTitle);
    // The toolkit's own caption promises that something is printed at once.
    const auto* const buttons = window.findChild<QDialogButtonBox*>();
    if (QPushButton* const use = buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr)
        use->setText(QStringLiteral("&Use This Printer"));
    if (window.exec() != QDialog::Accepted) return false;
    dialog.sPrinterName = device.printerName();
    return true;
}

void DesktopWidgets::Sleep(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(std::max(milliseconds, 0), &loop, &QEventLoop::quit);
    loop.exec();
}

void DesktopWidgets::DoEvents() { QCoreApplication::processEvents(); }

void DesktopWidgets::EndProgram(int iStatus) {
    if (m_atEnd) m_atEnd();
    std::fflush(nullptr);
    // Destructors would run with windows half open; the work that must last is on disk by now.
    std::_Exit(iStatus);
}
