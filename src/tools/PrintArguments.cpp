// SPDX-License-Identifier: MIT
#include "tools/PrintArguments.h"

#include "kit/Sheets.h"
#include "services/ArgumentReader.h"

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
        if (sOption == QStringLiteral("--check")) return Flag(m_arguments.bCheck);
        if (sOption == QStringLiteral("--json")) return Flag(m_arguments.bJson);
        if (sOption == QStringLiteral("-o") || sOption == QStringLiteral("--output")) return Text(m_arguments.sOutput);
        if (sOption == QStringLiteral("--board")) return Text(m_arguments.sBoard);
        if (sOption == QStringLiteral("--pages")) return Text(m_arguments.sPages);
        if (sOption == QStringLiteral("--pack")) return Text(m_arguments.sPack);
        if (sOption == QStringLiteral("--small-pictures")) return Flag(m_arguments.bSmallPictures);
        if (sOption == QStringLiteral("--pieces")) return Text(m_arguments.sPieces);
        if (sOption == QStringLiteral("--data")) return Text(m_arguments.sData);
        if (sOption == QStringLiteral("--size")) return Number(m_arguments.iBoardSize, kMinBoardSize, kMaxBoardSize);
        if (sOption == QStringLiteral("--dpi")) return Number(m_arguments.iDpi, kMinDpi, kMaxDpi);
        if (sOption == QStringLiteral("--paper")) return Paper();
        if (sOption == QStringLiteral("--variant")) return Variant();
        if (sOption == QStringLiteral("--sheet")) return Sheets();
        return Fail(QStringLiteral("unknown option '%1'").arg(sOption));
    }

    bool Paper() {
        QString paper;
        if (!OneOf(paper, {QStringLiteral("letter"), QStringLiteral("a4")})) return false;
        m_arguments.bA4 = paper == QStringLiteral("a4");
        return true;
    }

    bool Variant() {
        return OneOf(m_arguments.sVariant,
                     {QStringLiteral("8"), QStringLiteral("5"), QStringLiteral("2A"), QStringLiteral("2")});
    }

    // All words behind the option that are names of sheets; at least one.
    bool Sheets() {
        QString name;
        if (!Text(name)) return false;
        if (!FindSheet(name)) return Fail(QStringLiteral("there is no sheet '%1'; see --list").arg(name));
        m_arguments.sheets.append(name);
        for (std::optional<QString> next = NextWord(); next && FindSheet(*next); next = NextWord()) {
            m_arguments.sheets.append(*next);
            SkipWord();
        }
        return true;
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
        if (asked.sGame.isEmpty()) return Fail(QStringLiteral("no game file was given"));
        if (asked.sOutput.isEmpty() && asked.sPages.isEmpty() && !asked.sheets.isEmpty())
            return Fail(QStringLiteral("sheets need a file to go to: -o FILE.pdf"));
        if (asked.bJson && (asked.Makes() || !asked.bCheck))
            return Fail(QStringLiteral("--json goes with --check alone"));
        if (!asked.Makes() && !asked.bCheck)
            return Fail(QStringLiteral("nothing to make: give -o, --board, --pages, --pieces or --pack"));
        if (asked.sPack.isEmpty() && asked.bSmallPictures)
            return Fail(QStringLiteral("option '--small-pictures' goes with --pack"));
        return true;
    }

    PrintArguments m_arguments;
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
  tavlora-print GAME.gam --check [--json]           what would come out badly on paper
  tavlora-print GAME.gam --pack GAME.tavlora        the game with its pictures, to be sent to somebody
  tavlora-print --guide -o GUIDE.pdf                how a game is put together, with pictures
  tavlora-print --list                              the sheets: name, title, stock, orientation

Each of them takes a packed game (GAME.tavlora) in place of GAME.gam.

Options:
  --paper letter|a4     paper of the PDF (default letter)
  --dpi N               dots an inch of the PDF (default 600)
  --variant 8|5|2A|2    the boxed kit to print for, whatever the settings say; 5, 2A and 2 come
                        without their label sheets
  --board B.pdf         the board as a page of ten inches, which stays sharp at every size
  --small-pictures      --pack puts pictures in only as large as paper shows them
  --data DIR            take the program's own data files (rents, rules, pictures) from DIR
  --check               beside what is made: warns of what would come out badly on paper
  --help, --version

Exit status: 0 when all was made, 1 when something could not be read, loaded or written, 2 for wrong usage.
Of a check: 0 when there is nothing to mend, though there may be hints; 1 when there is; 2 for wrong usage.
)");
}
