// SPDX-License-Identifier: MIT
#include "tools/PrintArguments.h"

#include "kit/Sheets.h"

namespace {

// Bounds that keep a typing error from asking for a picture of terabytes.
constexpr int kMinDpi = 72;
constexpr int kMaxDpi = 2400;
constexpr int kMinBoardSize = 64;
constexpr int kMaxBoardSize = 16384;

class ArgumentReader {
public:
    ArgumentReader(const QStringList& words, QString& sError) : m_words(words), m_error(sError) {}

    std::optional<PrintArguments> Read() {
        while (m_at < m_words.size()) {
            if (!ReadWord(m_words.at(m_at++))) return std::nullopt;
        }
        if (!IsComplete()) return std::nullopt;
        return m_arguments;
    }

private:
    bool Fail(const QString& sError) {
        m_error = sError;
        return false;
    }

    bool ReadWord(const QString& sWord) {
        const bool option = !m_onlyNames && sWord.size() > 1 && sWord.startsWith(u'-');
        if (!option) return TakeGame(sWord);
        if (sWord == QStringLiteral("--")) {
            m_onlyNames = true;
            return true;
        }
        const qsizetype equals = sWord.startsWith(QStringLiteral("--")) ? sWord.indexOf(u'=') : -1;
        m_option = equals < 0 ? sWord : sWord.left(equals);
        m_inline = equals < 0 ? std::optional<QString>() : sWord.mid(equals + 1);
        return ReadOption();
    }

    bool TakeGame(const QString& sWord) {
        if (!m_arguments.sGame.isEmpty()) return Fail(QStringLiteral("unexpected argument '%1'").arg(sWord));
        m_arguments.sGame = sWord;
        return true;
    }

    bool ReadOption() {
        if (m_option == QStringLiteral("--help") || m_option == QStringLiteral("-h")) return Flag(m_arguments.bHelp);
        if (m_option == QStringLiteral("--version")) return Flag(m_arguments.bVersion);
        if (m_option == QStringLiteral("--list")) return Flag(m_arguments.bList);
        if (m_option == QStringLiteral("--check")) return Flag(m_arguments.bCheck);
        if (m_option == QStringLiteral("--json")) return Flag(m_arguments.bJson);
        if (m_option == QStringLiteral("-o") || m_option == QStringLiteral("--output"))
            return Text(m_arguments.sOutput);
        if (m_option == QStringLiteral("--board")) return Text(m_arguments.sBoard);
        if (m_option == QStringLiteral("--pack")) return Text(m_arguments.sPack);
        if (m_option == QStringLiteral("--small-pictures")) return Flag(m_arguments.bSmallPictures);
        if (m_option == QStringLiteral("--pieces")) return Text(m_arguments.sPieces);
        if (m_option == QStringLiteral("--data")) return Text(m_arguments.sData);
        if (m_option == QStringLiteral("--size")) return Number(m_arguments.iBoardSize, kMinBoardSize, kMaxBoardSize);
        if (m_option == QStringLiteral("--dpi")) return Number(m_arguments.iDpi, kMinDpi, kMaxDpi);
        if (m_option == QStringLiteral("--paper")) return Paper();
        if (m_option == QStringLiteral("--variant")) return Variant();
        if (m_option == QStringLiteral("--sheet")) return Sheets();
        return Fail(QStringLiteral("unknown option '%1'").arg(m_option));
    }

    bool Flag(bool& bFlag) {
        if (m_inline) return Fail(QStringLiteral("option '%1' takes no value").arg(m_option));
        bFlag = true;
        return true;
    }

    bool Text(QString& sValue) {
        if (!m_inline && m_at < m_words.size()) m_inline = m_words.at(m_at++);
        if (!m_inline || m_inline->isEmpty()) return Fail(QStringLiteral("option '%1' needs a value").arg(m_option));
        sValue = *m_inline;
        return true;
    }

    bool Number(int& iValue, int iLeast, int iMost) {
        QString text;
        if (!Text(text)) return false;
        bool ok = false;
        iValue = text.toInt(&ok);
        if (ok && iValue >= iLeast && iValue <= iMost) return true;
        return Fail(QStringLiteral("option '%1' takes a whole number from %2 to %3, not '%4'")
                        .arg(m_option, QString::number(iLeast), QString::number(iMost), text));
    }

    bool OneOf(QString& sValue, const QStringList& allowed) {
        if (!Text(sValue)) return false;
        if (allowed.contains(sValue)) return true;
        return Fail(QStringLiteral("option '%1' takes one of %2, not '%3'")
                        .arg(m_option, allowed.join(QStringLiteral(", ")), sValue));
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
        while (m_at < m_words.size() && FindSheet(m_words.at(m_at)))
            m_arguments.sheets.append(m_words.at(m_at++));
        return true;
    }

    bool IsComplete() {
        const PrintArguments& asked = m_arguments;
        if (asked.bHelp || asked.bVersion || asked.bList) return true;
        if (asked.sGame.isEmpty()) return Fail(QStringLiteral("no game file was given"));
        if (asked.sOutput.isEmpty() && !asked.sheets.isEmpty())
            return Fail(QStringLiteral("sheets need a file to go to: -o FILE.pdf"));
        if (asked.bJson && (asked.Makes() || !asked.bCheck))
            return Fail(QStringLiteral("--json goes with --check alone"));
        if (!asked.Makes() && !asked.bCheck)
            return Fail(QStringLiteral("nothing to make: give -o, --board, --pieces or --pack"));
        if (asked.sPack.isEmpty() && asked.bSmallPictures)
            return Fail(QStringLiteral("option '--small-pictures' goes with --pack"));
        return true;
    }

    const QStringList& m_words;
    QString& m_error;
    qsizetype m_at = 0;
    bool m_onlyNames = false;
    QString m_option;
    std::optional<QString> m_inline;
    PrintArguments m_arguments;
};

} // namespace

std::optional<PrintArguments> PrintArguments::Parse(const QStringList& words, QString& sError) {
    return ArgumentReader(words, sError).Read();
}

QString PrintArguments::Usage() {
    return QStringLiteral(R"(Prints a Tavlora game without a window.

  tavlora-print GAME.gam -o KIT.pdf                 the whole kit, one page a sheet
  tavlora-print GAME.gam --sheet NAME... -o F.pdf   only these sheets
  tavlora-print GAME.gam --board B.png [--size N]   the board as a picture, N pixels square (default 960)
  tavlora-print GAME.gam --pieces DIR               every made picture (stickers, notes, tokens, titles) as PNG
  tavlora-print GAME.gam --check [--json]           what would come out badly on paper
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
  --check               beside -o, --board, --pieces or --pack: warns of what would come out badly on paper
  --help, --version

Exit status: 0 when all was made, 1 when something could not be read, loaded or written, 2 for wrong usage.
Of a check: 0 when there is nothing to mend, though there may be hints; 1 when there is; 2 for wrong usage.
)");
}
