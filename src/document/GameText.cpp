// SPDX-License-Identifier: MIT
#include "document/GameText.h"

#include "document/GameBounds.h"
#include "drawing/basDraw.h"
#include "platform/files/TextFile.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/RecordText.h"

namespace {

const QString kMagic = QStringLiteral("TavloraGameBoard");
const QString kSeparator = QStringLiteral(", ");

QString Version() {
    return QStringLiteral("%1.%2.%3")
        .arg(TAVLORA_VERSION_MAJOR)
        .arg(TAVLORA_VERSION_MINOR)
        .arg(TAVLORA_VERSION_REVISION);
}

QString StartOfHeader() { return basTAVL::Quote(kMagic) + kSeparator + Version() + kSeparator; }

// A bare field ends at a comma, and a name may hold what ends a line. Such a name follows once more in quotes, where
// programs that know no fourth field never look; what has a meaning there is written as in a web address.
QString NameField(const QString& sGameName) {
    QString bare = sGameName;
    bare.replace(u'\r', u' ').replace(u'\n', u' ');
    QString asRead = bare;
    if (basTAVL::GetQuotedField(asRead) == sGameName) return bare;
    const QByteArray whole = sGameName.toUtf8().toPercentEncoding(" !#$&'()*+,-./:;<=>?@[\\]^_`{|}~");
    return bare + kSeparator + u'"' + QString::fromLatin1(whole) + u'"';
}

// The name in the fourth field, where the line is just what NameField makes of it.
std::optional<QString> WholeName(const QString& sNameField) {
    const qsizetype start = sNameField.lastIndexOf(kSeparator + u'"') + kSeparator.size() + 1;
    if (start <= kSeparator.size() || !sNameField.endsWith(u'"') || start == sNameField.size()) return std::nullopt;
    const QByteArray whole = sNameField.mid(start, sNameField.size() - start - 1).toUtf8();
    const QString name = QString::fromUtf8(QByteArray::fromPercentEncoding(whole));
    return NameField(name) == sNameField ? std::optional(name) : std::nullopt;
}

QString TitlesLine(const Titles& titles, int iFirst, int iLast) {
    QStringList fields;
    for (int i = iFirst; i <= iLast; ++i)
        fields.append(basTAVL::Quote(titles.Text(i).sText));
    return fields.join(kSeparator);
}

template <typename Records>
void AppendRecords(QStringList& lines, const Records& records) {
    for (const auto& record : records)
        lines.append(record.GetQuotedString());
}

GameHeader HeaderOf(QString sLine) {
    GameHeader header;
    const QString magic = basTAVL::GetQuotedField(sLine);
    basTAVL::GetQuotedField(sLine);
    const std::optional<QString> whole = WholeName(sLine);
    header.sGameName = whole ? *whole : basTAVL::GetQuotedField(sLine);
    header.bIsGame = magic.toUpper() == kMagic.toUpper();
    return header;
}

// A file without a single line is as little a game as any other without the magic word.
QString FirstOf(const QStringList& lines) { return lines.isEmpty() ? QString() : lines.first(); }

using Fault = GameReading::Fault;

// What is said when a record can't be read, or bears another's number.
struct Words {
    Words(const QString& sDoing, const char* sWrong)
        : sDuring(sDoing), sWrongNumber(sWrong), sDuringWrongNumber(sDoing) {}
    QString sDuring;
    const char* sWrongNumber;
    QString sDuringWrongNumber;
};

class GameReader {
public:
    GameReader(const QByteArray& bytes, const Game& before, const ReadingTools& tools)
        : m_tools(tools), m_reading{before, 0, std::nullopt} {
        m_lines = TextFile::SplitLines(TextFile::Decode(GameBounds::Within(bytes, GameLines::kAll, m_reading.bCut)));
        // Empty lines are the end: other programs leave one there, and the tokens may be missing ahead of it.
        while (!m_lines.isEmpty() && m_lines.last().trimmed().isEmpty())
            m_lines.removeLast();
    }

    GameReading Read() {
        basDraw::Draw_SetHdc(&m_tools.measuring);
        [[maybe_unused]] const bool whole = ReadHeader() && ReadTitles() && ReadNewsHeads() && ReadSpaces() &&
                                            ReadCorners() && ReadNews() && ReadMoney() && ReadTokens();
        return m_reading;
    }

private:
    bool Fail(const Fault& fault) {
        m_reading.fault = fault;
        return false;
    }
    bool AtEnd() const { return m_reading.iLines >= m_lines.size(); }

    /// The next line, which take reads; what that finds wrong or raises is the fault.
    template <typename Taker>
    bool NextLine(const QString& sDuring, Taker take);
    /// The next line is a record's, and must bear its number.
    template <typename Record, typename Taker>
    bool ReadRecord(Record& record, int iNumber, const Words& words, Taker take);
    template <typename Record>
    bool ReadRecord(Record& record, int iNumber, const Words& words) {
        return ReadRecord(record, iNumber, words,
                          [&](const QString& sLine) { record.Read(sLine, m_tools.findPicture); });
    }

    bool ReadHeader();
    bool ReadTitles();
    bool ReadNewsHeads();
    bool ReadSpaces();
    bool ReadCorners();
    bool ReadNews();
    bool ReadMoney();
    bool ReadTokens();
    static QString TakeTitle(QString& sLine);

    QStringList m_lines;
    const ReadingTools& m_tools;
    GameReading m_reading;
};

/// Whether the letters of a record on the board are of any size; the others need none.
template <typename Record>
bool HasLetters(const Record& record) {
    if constexpr (requires { record.TextSize(); }) {
        return record.TextSize() > 0;
    } else if constexpr (requires { record.TextSize(0); }) {
        return record.TextSize(0) > 0;
    } else {
        return true;
    }
}

template <typename Taker>
bool GameReader::NextLine(const QString& sDuring, Taker take) {
    if (AtEnd()) return Fail({QStringLiteral("Input past end of file"), sDuring});
    try {
        if (const std::optional<Fault> fault = take(m_lines.at(m_reading.iLines))) return Fail(*fault);
    } catch (const TavloraError& error) {
        return Fail({basErrLog::ErrDismiss(error.Description()), sDuring});
    }
    ++m_reading.iLines;
    return true;
}

template <typename Record, typename Taker>
bool GameReader::ReadRecord(Record& record, int iNumber, const Words& words, Taker take) {
    return NextLine(words.sDuring, [&](const QString& sLine) -> std::optional<Fault> {
        const Record before = record;
        take(sLine);
        // In hand it would end the program at the next change of its text, or of the text that its font is given to.
        if (!HasLetters(record)) {
            record = before;
            return Fault{QStringLiteral("The text has letters of no size"), words.sDuring};
        }
        if (record.Index == iNumber) return std::nullopt;
        return Fault{QString::fromLatin1(words.sWrongNumber), words.sDuringWrongNumber};
    });
}

bool GameReader::ReadHeader() {
    if (!HeaderOf(FirstOf(m_lines)).bIsGame)
        return Fail({QStringLiteral("Loading File Is Not Compatible"), QStringLiteral("checking file type")});
    ++m_reading.iLines;
    return true;
}

// Decoded a second time; that is part of the format.
QString GameReader::TakeTitle(QString& sLine) { return basCommon::InsertLineBreaks(basTAVL::GetQuotedField(sLine)); }

bool GameReader::ReadTitles() {
    return NextLine(QStringLiteral("getting titles"), [this](QString sLine) -> std::optional<Fault> {
        for (int i = 1; i <= 3; ++i) {
            SpecialText& title = m_reading.game.titles.Text(i);
            title.SetText(TakeTitle(sLine));
            m_tools.fitTitle(i, title);
        }
        return std::nullopt;
    });
}

// Stored as they are: they are fitted where a card is drawn.
bool GameReader::ReadNewsHeads() {
    return NextLine(QStringLiteral("getting good news and bad news"), [this](QString sLine) -> std::optional<Fault> {
        for (int i = 4; i <= 5; ++i)
            m_reading.game.titles.Text(i).sText = TakeTitle(sLine);
        return std::nullopt;
    });
}

bool GameReader::ReadSpaces() {
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        const Words words(QStringLiteral("loading line number ") + QString::number(i), "Line Number Incorrect");
        if (!ReadRecord(m_reading.game.spaces[size_t(i)], i, words)) return false;
    }
    return true;
}

// The record's own reader fits block 1 last, and both blocks share one size: without a second block that is the
// size of no text at all, and a long name would stand larger than its corner until somebody edits it.
void FitCornerName(C_Corner& corner) {
    if (corner.TextAll(1).isEmpty()) corner.SetText(0, TextLines::kUseExisting);
}

bool GameReader::ReadCorners() {
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        C_Corner& corner = m_reading.game.corners[size_t(i)];
        const Words words(QStringLiteral("loading corner number ") + QString::number(i), "Corner number incorrect");
        if (!ReadRecord(corner, i, words)) return false;
        FitCornerName(corner);
    }
    return true;
}

bool GameReader::ReadNews() {
    for (int set = 0; set < basTAVL::kNewsSets; ++set) {
        for (int i = 0; i < basTAVL::kCards; ++i) {
            C_News& card = m_reading.game.news[size_t(set)][size_t(i)];
            Words words(QStringLiteral("loading card number ") + QString::number(i) +
                            QStringLiteral(" in set Number ") + QString::number(set),
                        "Line number incorrect");
            // Whichever card it is, the message has always named the number that the corners stopped at.
            words.sDuringWrongNumber =
                QStringLiteral("loading good news card number ") + QString::number(basTAVL::kCorners);
            if (!ReadRecord(card, i, words, [&card](const QString& sLine) { card.SetQuotedString(sLine); }))
                return false;
        }
    }
    return true;
}

bool GameReader::ReadMoney() {
    for (int i = 0; i < basTAVL::kMoney; ++i) {
        const Words words(QStringLiteral("loading money number ") + QString::number(i), "Line number incorrect");
        if (!ReadRecord(m_reading.game.money[size_t(i)], i, words)) return false;
    }
    return true;
}

// As of a new game: the former game's texts don't belong to this one.
void MakeDefault(C_Token& token, int iNumber) {
    C_Token fresh;
    fresh.Index = qint16(iNumber);
    fresh.BackColor = token.BackColor;
    fresh.Image.Let_SpaceOrCorner(QStringLiteral("Token"));
    fresh.Image.Let_Index(qint16(iNumber));
    fresh.SetText(QString());
    token = fresh;
}

bool GameReader::ReadTokens() {
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        C_Token& token = m_reading.game.tokens[size_t(i)];
        const Words words(QStringLiteral("loading token number ") + QString::number(i), "Line number incorrect");
        // Old games end ahead of the tokens.
        if (AtEnd()) {
            MakeDefault(token, i);
        } else if (!ReadRecord(token, i, words)) {
            return false;
        }
    }
    return true;
}

} // namespace

QStringList ComposeLines(const Game& game, const QString& sGameName) {
    QStringList lines{StartOfHeader() + NameField(sGameName), TitlesLine(game.titles, 1, 3),
                      TitlesLine(game.titles, 4, 5)};
    AppendRecords(lines, game.spaces);
    AppendRecords(lines, game.corners);
    for (const auto& set : game.news)
        AppendRecords(lines, set);
    AppendRecords(lines, game.money);
    AppendRecords(lines, game.tokens);
    return lines;
}

GameHeader ReadGameHeader(const QByteArray& bytes) {
    bool cut = false;
    return HeaderOf(FirstOf(TextFile::SplitLines(TextFile::Decode(GameBounds::Within(bytes, 1, cut)))));
}

QByteArray UnderName(const QByteArray& bytes, const QString& sGameName) {
    QStringList lines = TextFile::SplitLines(TextFile::Decode(bytes));
    if (lines.isEmpty()) return bytes;
    lines.first() = StartOfHeader() + NameField(sGameName);
    return TextFile::Encode(TextFile::JoinLines(lines));
}

GameReading ReadGame(const QByteArray& bytes, const Game& before, const ReadingTools& tools) {
    return GameReader(bytes, before, tools).Read();
}
