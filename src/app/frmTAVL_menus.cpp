// SPDX-License-Identifier: MIT
#include "app/frmTAVL.h"

#include "app/EditorRoutes.h"
#include "app/frmAbout.h"
#include "app/frmPrintManual.h"
#include "check/GamePiece.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "windows/help/WindowHelp.h"
#include "windows/print/ChangePrinter.h"

void frmTAVL::Choose(Menu menu, int Index) {
    switch (menu) {
        case Menu::File:
            return mnuFile_Click(Index);
        case Menu::Edit:
            return mnuEdit_Click(Index);
        case Menu::View:
            return mnuView_Click(Index);
        case Menu::Zoom:
            return mnuZoom_Click(Index);
        case Menu::Help:
            return mnuHelp_Click(Index);
    }
}

void frmTAVL::mnuFile_Click(int Index) try {
    switch (Index) {
        case 0:
            return m_commands.New();
        case 2:
            return m_commands.Open();
        case 3:
            return m_commands.Save();
        case 4:
            return m_commands.SaveAs();
        case 6:
            return PrinterSetup();
        case 7:
            return Print();
        case 9:
            return ExitWithQuestion();
        case 20:
            return m_commands.Duplicate();
        case 22:
            return m_commands.OpenEarlier();
        case 21:
            return PrintEverything();
        case 23:
            return m_doors.CheckPrinter(*this);
        case 30:
            return m_sharing.Send();
        case 31:
            return m_sharing.SaveBoardPicture();
        case 32:
            return m_sharing.SavePiecePicture();
        case 52:
            return m_pictures.Deal();
        case 51:
            return m_pictures.FindMissing(GamePiece::Whole());
        case 1:
        case 5:
        case 8:
        case 33:
        case 50:
            return;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected mnu_File"), QStringLiteral("frmTAVL!mnuFile_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "mnuFile_Click", Index);
}

void frmTAVL::mnuEdit_Click(int Index) {
    switch (Index) {
        case 0:
            return m_commands.Undo();
        case 1:
            return m_commands.Redo();
        case 3:
            return m_check.ShowList();
        case 41:
            return m_moves.Copy();
        case 42:
            return Paste();
        case 43:
            return m_moves.SwapWith();
        default:
            return m_sharing.CopyBoardPicture();
    }
}

// Onto what has the frame. Whoever finds something of its own on the clipboard takes it, and pictures come last.
void frmTAVL::Paste() {
    if (!m_moves.Paste()) m_pictures.Paste(m_moves.PlaceInHand());
}

void frmTAVL::mnuZoom_Click(int Index) try { m_view.SetZoom(Index + 1); } catch (...) {
    ErrTail("frmTAVL!", "mnuZoom_Click", Index);
}

void frmTAVL::mnuView_Click(int Index) try {
    switch (Index) {
        case 0:
            m_view.SetZoom(1);
            return m_view.Redraw();
        case 1:
            return EditMoney();
        case 2:
            return EditNews(0);
        case 3:
            return EditNews(1);
        case 4:
            return EditToken();
        case 5:
        case 7:
            return;
        case 6:
            return m_tips.Toggle();
        case 8:
            return m_doors.Setup(*this);
        case 9:
            return m_about->ShowForm();
        case 21:
            return m_side.SetWished(!m_side.IsWished());
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmTAVL!mnuView_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "mnuView_Click", Index);
}

void frmTAVL::mnuHelp_Click(int Index) try {
    switch (Index) {
        case 0:
            return m_about->ShowForm();
        case 1:
            return frmPrintManual(this).ShowForm(false);
        case 2:
            return;
        case 21:
            return ShowGuide(true);
        case 30:
            return WindowHelp::ShowPageOf(*this);
        case 31:
            return WindowHelp::AskForControl();
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmTAVL!mnuHelp_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "mnuHelp_Click", Index);
}

void frmTAVL::cmd_Click(int Index) try {
    switch (Index) {
        case 0:
            return EditMoney();
        case 1:
        case 2:
            // Both open Good News, on purpose: so it has always been.
            return EditNews(0);
        case 3:
            return Print();
        case 4:
            // No question but the one about unsaved changes.
            close();
            return;
        default:
            basCommon::Assert(false, QStringLiteral("Unexpected Case"), QStringLiteral("frmTAVL!cmd_Click"));
    }
} catch (...) {
    ErrTail("frmTAVL!", "cmd_Click", Index);
}

bool frmTAVL::IsSavedForPrinting() {
    if (!m_commands.InHand().IsUnsaved()) return true;
    const int answer =
        MsgBox(QStringLiteral("Please save your changes before printing.\r\n\r\nSave them now?"), vbYesNo | vbQuestion);
    if (answer != vbYes) return false;
    m_commands.Save();
    // Whatever went wrong has been told.
    return !m_commands.InHand().IsUnsaved();
}

void frmTAVL::Print() {
    if (IsSavedForPrinting()) PrintBy(&EditorRoutes::Print);
}

void frmTAVL::PrintEverything() {
    if (IsSavedForPrinting()) PrintBy(&EditorRoutes::PrintEverything);
}

void frmTAVL::PrintBy(bool (EditorRoutes::*door)(frmTAVL&)) {
    m_check.BeginPrinting();
    m_bPrintedSomething = (m_doors.*door)(*this);
    m_check.EndPrinting();
}

CheckList::Doors frmTAVL::DoorsOfCheck() {
    return {
        .show = [this](const GamePiece& piece) { m_view.ShowPlace(BoardPlace::Of(piece)); },
        .open = [this](const GamePiece& piece) { OpenPlace(BoardPlace::Of(piece)); },
        .mended = [this] { m_view.Redraw(); },
        .showTab = [this] { return m_side.Panel().isVisible() && m_side.Panel().ShowTab(CheckList::kName); },
        .findMissing = [this](const GamePiece& piece) { m_pictures.FindMissing(piece); },
    };
}

void frmTAVL::PrinterSetup() { ChangePrinter(dlgCommon, m_bPrintedSomething); }

void frmTAVL::ExitWithQuestion() {
    const int answer =
        MsgBox(QStringLiteral("Are you certain you want to exit Tavlora at this time?"), vbYesNo | vbQuestion);
    if (answer == vbYes) close();
}
