// SPDX-License-Identifier: MIT
#include "tools/PrintArguments.h"

#include "kit/Sheets.h"
#include "nokit/NoKitSheets.h"
#include "services/ArgumentReader.h"
#include "services/Players.h"

namespace {

// Bounds that keep a typing error from asking for a picture of terabytes.
constexpr int kMinDpi = 72;
constexpr int kMaxDpi = 2400;
constexpr int kMinBoardSize = 64;
constexpr int kMaxBoardSize = 16384;

class PrintArgumentReader : ArgumentReader {
public:
    PrintArgumentReader(const QStringList& words, QString& sError) : ArgumentReader(words, sError) {}

    std::optional<PrintArguments> Read() {
        if (!ReadWords() || !IsComplete()) return std::nullopt;
        return m_arguments;
    }

private:
    bool TakeWord(const QString& sWord) override {
        if (!m_arguments.sGame.isEmpty()) return ArgumentReader::TakeWord(sWord);
        m_arguments.sGame = sWord;
        return true;
    }

    bool ReadOption(const QString& sOption) override {
        if (sOption == QStringLiteral("--help") || sOption == QStringLiteral("-h")) return Flag(m_arguments.bHelp);
        if (sOption == QStringLiteral("--version")) return Flag(m_arguments.bVersion);
        if (sOption == QStringLiteral("--list")) return Flag(m_arguments.bList);
        if (sOption == QStringLiteral("--guide")) return Flag(m_arguments.bGuide);
        if (sOption == QStringLiteral("--check-page")) return Flag(m_arguments.bCheckPage);
        if (sOption == QStringLiteral("--for-printer")) return ForPrinter();
        if (sOption == QStringLiteral("--check")) return Flag(m_arguments.bCheck);
        if (sOption == QStringLiteral("--json")) return Flag(m_arguments.bJson);
        if (sOption == QStringLiteral("-o") || sOption == QStringLiteral("--output")) return Text(m_arguments.sOutput);
        if (sOption == QStringLiteral("--board")) return Text(m_arguments.sBoard);
        if (sOption == QStringLiteral("--pages")) return Text(m_arguments.sPages);
        if (sOption == QStringLiteral("--pack")) return Text(m_arguments.sPack);
        if (sOption == QStringLiteral("--small-pictures")) return Flag(m_arguments.bSmallPictures);
        if (sOption == QStringLiteral("--pieces")) return Text(m_arguments.sPieces);
        if (sOption == QStringLiteral("--piece")) return Piece();
        if (sOption == QStringLiteral("--data")) return Text(m_arguments.sData);
        if (sOption == QStringLiteral("--size")) return Number(m_arguments.iBoardSize, kMinBoardSize, kMaxBoardSize);
        if (sOption == QStringLiteral("--dpi")) return Number(m_arguments.iDpi, kMinDpi, kMaxDpi);
        if (sOption == QStringLiteral("--paper")) return Paper();
        if (sOption == QStringLiteral("--variant")) return Variant();
        if (sOption == QStringLiteral("--sheet")) return Sheets();
        if (sOption == QStringLiteral("--no-kit")) return Flag(m_arguments.bNoKit);
        // A service prints without a kit whether one says so or not.
        if (sOption == QStringLiteral("--service")) return Text(m_arguments.sService);
        return ReadNoKitOption(sOption);
    }

    // Of a game for plain paper and card.
    bool ReadNoKitOption(const QString& sOption) {
        NoKitChoices& choices = m_arguments.noKit;
        if (m_noKitOption.isEmpty()) m_noKitOption = sOption;
        if (sOption == QStringLiteral("--players")) return Number(choices.nPlayers, Players::kFewest, Players::kMost);
        if (sOption == QStringLiteral("--board-size")) return BoardSize();
        if (sOption == QStringLiteral("--board-way")) return BoardWays();
        if (sOption == QStringLiteral("--colours") || sOption == QStringLiteral("--colors")) return Colours();
        if (sOption == QStringLiteral("--cut-lines")) return Text(m_arguments.sCutLines);
        if (sOption == QStringLiteral("--dice-picture")) return Flag(choices.bPictureOnDice);
        return Fail(QStringLiteral("unknown option '%1'").arg(sOption));
    }

    bool BoardSize() {
        QString size;
        if (!Text(size)) return false;
        const std::optional<double> inches = NoKitChoices::WantedInchesOf(size);
        if (!inches)
            return Fail(QStringLiteral("option '--board-size' takes kit, or a length from 8in to 40in such as "
                                       "16in or 40cm, not '%1'")
                            .arg(size));
        m_arguments.noKit.dblWantedInches = *inches;
        return true;
    }

    bool BoardWays() {
        QString way;
        if (!OneOf(way, {QStringLiteral("pages"), QStringLiteral("quarters"), QStringLiteral("page")})) return false;
        m_arguments.noKit.way = NoKitChoices::WayOf(way).value_or(BoardWay::Pages);
        return true;
    }

    bool Colours() {
        QString colours;
        if (!OneOf(colours, {QStringLiteral("screen"), QStringLiteral("ink-saving")})) return false;
        m_arguments.noKit.bSavesInk = colours == QStringLiteral("ink-saving");
        return true;
    }

    bool Paper() {
        QString paper;
        if (!OneOf(paper,
                   {QStringLiteral("letter"), QStringLiteral("a4"), QStringLiteral("tabloid"), QStringLiteral("a3")}))
            return false;
        m_arguments.bA4 = paper == QStringLiteral("a4");
        m_arguments.noKit.paper = NoKitChoices::PaperOf(paper).value_or(PaperSize::Letter);
        if (m_arguments.noKit.paper > PaperSize::A4) m_noKitOption = QStringLiteral("--paper ") + paper;
        return true;
    }

    bool Variant() {
        return OneOf(m_arguments.sVariant,
                     {QStringLiteral("8"), QStringLiteral("5"), QStringLiteral("2A"), QStringLiteral("2")});
    }

    bool ForPrinter() {
        QString printer;
        if (!Text(printer)) return false;
        m_arguments.forPrinter = printer == QStringLiteral("-") ? QString() : printer;
        return true;
    }

    // A word and, behind it, a file.
    bool Piece() {
        if (!Text(m_arguments.sPiece)) return false;
        const std::optional<QString> file = NextWord();
        if (!file || file->isEmpty()) return Fail(QStringLiteral("option '--piece' needs a piece and a file"));
        m_arguments.sPieceFile = *file;
        SkipWord();
        return true;
    }

    // All words behind the option that are names of sheets; at least one.
    bool Sheets() {
        QString name;
        if (!Text(name)) return false;
        if (!IsSheet(name)) return Fail(QStringLiteral("there is no sheet '%1'; see --list").arg(name));
        m_arguments.sheets.append(name);
        for (std::optional<QString> next = NextWord(); next && IsSheet(*next); next = NextWord()) {
            m_arguments.sheets.append(*next);
            SkipWord();
        }
        return true;
    }

    static bool IsSheet(const QString& sName) { return FindSheet(sName) || FindNoKitSheet(sName); }

    // The words may stand in any order, so what belongs together is known at the end only.
    bool IsOneKindOfSheets() {
        const PrintArguments& asked = m_arguments;
        for (const QString& name : asked.sheets) {
            if (asked.bNoKit && !FindNoKitSheet(name))
                return Fail(QStringLiteral("the sheet '%1' is for the boxed kit only; see --list --no-kit").arg(name));
            if (!asked.bNoKit && !FindSheet(name))
                return Fail(QStringLiteral("the sheet '%1' goes with --no-kit").arg(name));
        }
        if (asked.bNoKit && !asked.sPages.isEmpty())
            return Fail(QStringLiteral("--pages shows the sheets of the boxed kit and goes without --no-kit"));
        if (!asked.sCutLines.isEmpty() && !asked.bNoKit)
            return Fail(QStringLiteral("option '--cut-lines' goes with --no-kit"));
        return asked.bNoKit || !asked.sService.isEmpty() || m_noKitOption.isEmpty() ||
               Fail(QStringLiteral("option '%1' goes with --no-kit").arg(m_noKitOption));
    }

    bool IsCheckPageComplete() {
        if (m_arguments.sOutput.isEmpty())
            return Fail(QStringLiteral("the check page needs a file to go to: -o FILE.pdf"));
        if (m_arguments.sGame.isEmpty()) return true;
        return Fail(QStringLiteral("the check page is the same for every game: --check-page goes without one"));
    }

    bool IsGuideComplete() {
        if (m_arguments.sOutput.isEmpty()) return Fail(QStringLiteral("the guide needs a file to go to: -o FILE.pdf"));
        if (m_arguments.sGame.isEmpty()) return true;
        return Fail(QStringLiteral("the guide is the same for every game: --guide goes without one"));
    }

    bool IsComplete() {
        const PrintArguments& asked = m_arguments;
        if (asked.bHelp || asked.bVersion || asked.bList) return true;
        if (asked.bGuide) return IsGuideComplete();
        if (asked.bCheckPage) return IsCheckPageComplete();
        if (asked.forPrinter && asked.sOutput.isEmpty())
            return Fail(QStringLiteral("option '--for-printer' needs sheets that go to a file: -o FILE.pdf"));
        if (asked.sGame.isEmpty()) return Fail(QStringLiteral("no game file was given"));
        const bool toGo = !asked.sOutput.isEmpty() || !asked.sPages.isEmpty() || !asked.sCutLines.isEmpty();
        if (!toGo && !asked.sheets.isEmpty()) return Fail(QStringLiteral("sheets need a file to go to: -o FILE.pdf"));
        if (asked.bJson && (asked.Makes() || !asked.bCheck))
            return Fail(QStringLiteral("--json goes with --check alone"));
        if (!asked.Makes() && !asked.bCheck)
            return Fail(QStringLiteral("nothing to make: give -o, --board, --pages, --pieces, --pack or --service"));
        if (asked.sPack.isEmpty() && asked.bSmallPictures)
            return Fail(QStringLiteral("option '--small-pictures' goes with --pack"));
        return IsOneKindOfSheets();
    }

    PrintArguments m_arguments;
    /// The first of those that mean nothing for the boxed kit.
    QString m_noKitOption;
};

} // namespace

std::optional<PrintArguments> PrintArguments::Parse(const QStringList& words, QString& sError) {
    return PrintArgumentReader(words, sError).Read();
}

QString PrintArguments::Usage() {
    return QStringLiteral(R"(Prints a Tavlora game without a window.

  tavlora-print GAME.gam -o KIT.pdf                 the whole kit, one page a sheet
  tavlora-print GAME.gam --sheet NAME... -o F.pdf   only these sheets
  tavlora-print GAME.gam --board B.png [--size N]   the board as a picture, N pixels square (default 960)
  tavlora-print GAME.gam --pages DIR [--size N]     each sheet as a picture, N pixels on its longer side
  tavlora-print GAME.gam --pieces DIR               every made picture (stickers, notes, tokens, titles) as PNG
  tavlora-print GAME.gam --piece WORD FILE          one piece: space-4, corner-0, card-1-11, deed-4, note-0, token-5
                                                    (numbers from 0; cards of Good News 0, of Bad News 1)
  tavlora-print GAME.gam --check [--json]           what would come out badly on paper
  tavlora-print GAME.gam --pack GAME.tavlora        the game with its pictures, to be sent to somebody
  tavlora-print GAME.gam --no-kit -o ALL.pdf        everything of a game on plain paper and card
  tavlora-print GAME.gam --service DIR              pictures for a printing service, and a list of their sizes
  tavlora-print --guide -o GUIDE.pdf                how a game is put together, with pictures
  tavlora-print --check-page -o CHECK.pdf           the page that shows how far a printer prints beside the place
  tavlora-print --list                              the sheets: name, title, stock, orientation

Each of them takes a packed game (GAME.tavlora) in place of GAME.gam.

Options:
  --paper letter|a4     paper of the PDF (default letter); with --no-kit tabloid or a3, too
  --dpi N               dots an inch of the PDF (default 600)
  --variant 8|5|2A|2    the boxed kit to print for, whatever the settings say; 5, 2A and 2 come
                        without their label sheets
  --board B.pdf         the board as a page of ten inches, which stays sharp at every size; B.svg as a drawing.
                        The ending of the file of a piece says the same: .png, .svg or .pdf
  --no-kit              prints without the boxed kit; --sheet takes the names that --list --no-kit shows
  --board-size SIZE     side of that board: kit, or from 8in to 40in, such as 16in or 40cm (default 16in)
  --board-way pages|quarters|page
                        on pages that are glued (default), in quarters that fold, or on one page for a copy shop
  --players N           2 to 6, by whom the money is counted (default 4)
  --colors screen|ink-saving
                        the screen's colors (default), or white grounds with colored edges
  --dice-picture        the dice bear the board of the game in place of the one
  --cut-lines DIR       beside --no-kit: where each page is cut and folded, as SVG for a cutting machine
  --small-pictures      --pack puts pictures in only as large as paper shows them
  --data DIR            take the program's own data files (rents, rules, pictures) from DIR
  --for-printer NAME    corrects the pages for this printer, as Check the Printer in Tavlora has found for its
                        paper; - for PDF files that are printed elsewhere
  --check               beside what is made: warns of all that would come out badly on paper; without it
                        printing warns of what its sheets show
  --help, --version

Exit status: 0 when all was made, 1 when something could not be read, loaded or written, 2 for wrong usage.
Of a check: 0 when there is nothing to mend, though there may be hints; 1 when there is; 2 for wrong usage.
)");
}
