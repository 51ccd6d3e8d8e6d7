// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <stdexcept>

/// Buttons and icon of a message box, by the style values of the platform: a button set plus an icon.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
};

/// The button that closed a message box.
enum MsgBoxResult : int { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

/// The common dialogs: open and save a file, choose a font, choose a printer. Fill the fields, call one
/// of the Show functions, read the fields.
struct CommonDialog {
    QString sDialogTitle;
    /// "Description|*.gam|All files|*.*", case of file names ignored.
    QString sFilter;
    QString sDefaultExt;
    QString sInitDir;
    QString sFileName;
    bool bOverwritePrompt = true;

    QString sFontName;
    bool bFontBold = false;
    bool bFontItalic = false;
    float fFontSize = 12;
    /// 1: screen fonts.
    int iFlags = 0;

    /// Name of the printer chosen; empty means the system's default.
    QString sPrinterName;
    /// The printer chosen, with its settings, is the program's from now on.
    bool bPrinterDefault = false;

    /// Why a dialog couldn't be shown; empty after a cancellation.
    QString sError;

    /// False when the user cancelled; the fields are then as they were.
    bool ShowOpen();
    bool ShowSave();
    bool ShowFont();
    bool ShowPrinter();
};

/// Thrown instead of ending the process where a test (or tavlora-print) has replaced the end of the
/// program. Error tails let it through untouched.
class ProgramEnded : public std::exception {
public:
    explicit ProgramEnded(int status) : iStatus(status) {}
    const char* what() const noexcept override { return "the program has ended"; }
    int iStatus;
};

/// The desktop's side of everything modal or final. One object serves the whole program; the window
/// program installs the toolkit's (see DesktopWidgets.h), tavlora-print one that writes lines, tests one
/// that answers and remembers.
class Desktop {
public:
    virtual ~Desktop() = default;
    virtual int MsgBox(const QString& sText, int iStyle, const QString& sTitle) = 0;
    /// Several messages of one moment: one box, a line each.
    virtual void MsgList(const QStringList& messages, int iStyle, const QString& sTitle);
    virtual bool ShowOpen(CommonDialog& dialog) = 0;
    virtual bool ShowSave(CommonDialog& dialog) = 0;
    virtual bool ShowFont(CommonDialog& dialog) = 0;
    virtual bool ShowPrinter(CommonDialog& dialog) = 0;
    virtual void Sleep(int milliseconds) = 0;
    virtual void DoEvents() = 0;
    /// Never returns: ends the process at once or throws ProgramEnded.
    [[noreturn]] virtual void EndProgram(int iStatus) = 0;

    /// Puts another desktop in force and returns the one it replaces; the caller keeps ownership of both.
    static Desktop* Install(Desktop* desktop);
    static Desktop& Current();
};

/// Shows a message box in plain text and returns the button that closed it. The title is the program's
/// unless given.
int MsgBox(const QString& sText, int iStyle = vbOKOnly, const QString& sTitle = QStringLiteral("Tavlora"));
/// Shows several messages at once, each without a line break in it.
void MsgList(const QStringList& messages, int iStyle = vbOKOnly, const QString& sTitle = QStringLiteral("Tavlora"));
void Sleep(int milliseconds);
void DoEvents();
[[noreturn]] void EndProgram(int iStatus = 0);

/// A desktop without anybody in front of it: boxes become lines on standard error, questions are answered
/// with their first button, file dialogs are cancelled.
class ConsoleDesktop : public Desktop {
public:
    int MsgBox(const QString& sText, int iStyle, const QString& sTitle) override;
    /// A line of its own for each.
    void MsgList(const QStringList& messages, int iStyle, const QString& sTitle) override;
    bool ShowOpen(CommonDialog& dialog) override;
    bool ShowSave(CommonDialog& dialog) override;
    bool ShowFont(CommonDialog& dialog) override;
    bool ShowPrinter(CommonDialog& dialog) override;
    void Sleep(int milliseconds) override;
    void DoEvents() override;
    [[noreturn]] void EndProgram(int iStatus) override;
};
