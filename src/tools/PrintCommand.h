// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <iosfwd>

class PhotosAhead;
class Printer;
struct PrintArguments;
struct Sheet;
namespace Packing {
struct Contents;
}

/// The work of tavlora-print: reads a game and prints it into files. It leaves nothing of the user's changed
/// but the files it was asked for: settings are read only, and log and temporary files go to a folder that
/// vanishes at the end.
class PrintCommand {
public:
    enum Status { kDone = 0, kFailed = 1, kWrongUsage = 2 };

    /// Lists and help go to out; each thing that is wrong is a line on err.
    PrintCommand(std::ostream& out, std::ostream& err, bool bShowProgress)
        : m_out(out), m_err(err), m_showProgress(bShowProgress) {}

    /// The words behind the program's name. Gives the exit status.
    int Run(const QStringList& words);

private:
    int Carry(const PrintArguments& arguments);
    /// The game's path, which for a packed game is what was unpacked into that folder; empty when it can't be unpacked.
    QString GameOf(const QString& sGame, const QString& sUnpackedFolder);
    int PrintGame(const PrintArguments& arguments);
    /// Tells of a file that is to be made and that the game shows: the family may have no other of it.
    bool WouldReplaceAPicture(const PrintArguments& arguments, const QStringList& sheets);
    /// Tells what there is to mend. kFailed when there is something.
    int CheckInHand(const PrintArguments& arguments);
    /// Warns of what would come out badly on these sheets, or was to be checked, and isn't told in another way.
    void WarnOfInHand(const PrintArguments& arguments, const QStringList& sheets);
    /// A page of the printer's; sTold is shown with its progress. False when it isn't whole, which has then been told.
    bool PrintOneSheet(Printer& printer, const Sheet& sheet, const QString& sTold, PhotosAhead& ahead);
    /// Each sheet as a picture into a folder, which is made if need be. False when one isn't there.
    bool PaintPages(const PrintArguments& arguments, const QStringList& asked);
    int PrintGuide(const PrintArguments& arguments);
    int PrintCheckPage(const PrintArguments& arguments);
    /// False, and tells so, when sheets are wanted for a printer that hasn't been checked with their paper.
    bool KnowsPrinter(const PrintArguments& arguments);
    /// What is for plain paper and card, a cutting machine or a printing service.
    bool PrintWithoutKit(const PrintArguments& arguments);
    int PrintSheetsOf(const PrintArguments& arguments, const QStringList& asked);
    /// Those of the sheets that this build prints for the kit; names the others in one line.
    QStringList WithoutLeftOut(const QStringList& sheets);
    /// The board as the file's ending says, a PNG file being so many pixels square.
    bool PaintBoard(const QString& sPath, int lSize);
    /// Every made picture into a folder, which is made if need be.
    bool WritePieces(const QString& sFolder);
    /// A single piece as its file's ending says.
    bool WritePieceAlone(const PrintArguments& arguments);
    /// The game with its pictures as one file.
    bool PackGame(const PrintArguments& arguments);
    /// A line for each font that doesn't go along.
    void TellOfFonts(const Packing::Contents& contents);
    bool LoadGame(const QString& sGame);
    /// A game's file without its folder and its ending.
    static QString TitleOf(const QString& sGame);
    void List();
    void ListWithoutKit();
    void Complain(const QString& sText);
    /// Shows what is made and how far that is, in thousandths.
    void Progress(const QString& sWhat, int iThousandths);
    void EndProgress();

    std::ostream& m_out;
    std::ostream& m_err;
    bool m_showProgress;
};
