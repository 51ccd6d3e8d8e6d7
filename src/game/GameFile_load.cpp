// SPDX-License-Identifier: MIT
#include "board/basPosit.h"
#include "document/basTAVL.h"
#include "document/GameHost.h"
#include "document/Locale.h"
#include "game/GameFile.h"
#include "game/PrintCaptions.h"
#include "game/Rescue.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/files/TextFile.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/ProgramSettings.h"

#include <functional>

namespace GameFile {
namespace {

const QString kMagic = QStringLiteral("TAVLORAGAMEBOARD");
const QString kAutosaveBase = QStringLiteral("~AUTOSAVE");
// A game is some ten thousand bytes; what is larger than this isn't read into memory at all.
constexpr qint64 kMaxGameSize = qint64(64) << 20;

// Blank notes of the program's directory, as .bmp or else as .dat.
constexpr const char* kBlankNotes[basTAVL::kMoney] = {"BLNK100", "BLNK500", "BLNK1000", "BLNK5000"};

// Reads one game file into the records. Stops at the first failure, which it keeps for the message.
class GameReader {
public:
    explicit GameReader(const QString& sFileName) : m_fileName(sFileName) {}

    bool Read() {
        return Open() && ReadHeader() && ReadTitles() && ReadNewsHeads() && ReadSpaces() && ReadCorners() &&
               ReadNews() && ReadMoney() && ReadTokens();
    }
    const QString& Error() const { return m_error; }
    const QString& During() const { return m_during; }
    /// Field 3 of the header.
    const QString& NameInHeader() const { return m_nameInHeader; }
    bool IsAutosave() const;

private:
    bool Fail(const QString& sError, const QString& sDuring);
    bool AtEnd() const { return m_at >= m_lines.size(); }
    bool NextLine(const QString& sDuring, QString& sLine);
    /// The next line, read by a record; whatever it raises is the failure.
    template <typename Record>
    bool ReadRecord(Record& record, const QString& sDuring);

    bool Open();
    bool ReadHeader();
    bool ReadTitles();
    bool ReadNewsHeads();
    bool ReadSpaces();
    bool ReadCorners();
    bool ReadNews();
    bool ReadMoney();
    bool ReadTokens();

    QString m_fileName;
    QStringList m_lines;
    qsizetype m_at = 0;
    QString m_nameInHeader;
    QString m_error;
    QString m_during;
};

bool GameReader::IsAutosave() const {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(m_fileName, drive, dir, base, ext);
    return base.toUpper() == kAutosaveBase;
}

bool GameReader::Fail(const QString& sError, const QString& sDuring) {
    m_error = sError;
    m_during = sDuring;
    return false;
}

bool GameReader::NextLine(const QString& sDuring, QString& sLine) {
    if (AtEnd()) return Fail(QStringLiteral("Input past end of file"), sDuring);
    sLine = m_lines.at(m_at++);
    return true;
}

template <typename Record>
bool GameReader::ReadRecord(Record& record, const QString& sDuring) {
    QString line;
    if (!NextLine(sDuring, line)) return false;
    try {
        record.SetQuotedString(line);
        return true;
    } catch (const TavloraError& error) {
        return Fail(basErrLog::ErrDismiss(error.Description()), sDuring);
    }
}

// A picture that can't be made small is told by its image, or lies in the log; the game loads all the same.
void FetchThumbnail(const C_Image& image) {
    try {
        image.GetThumbnail(false);
    } catch (const TavloraError& error) {
        basErrLog::ErrDismiss(error.Description());
    }
}

bool GameReader::Open() {
    QString error;
    if (Files::Size(m_fileName) > kMaxGameSize)
        return Fail(QStringLiteral("Loading File Is Not Compatible"), QStringLiteral("checking file type"));
    const std::optional<QStringList> lines = TextFile::ReadLines(m_fileName, error);
    if (!lines) return Fail(error, QStringLiteral("opening the file"));
    m_lines = *lines;
    return true;
}

bool GameReader::ReadHeader() {
    const QString during = QStringLiteral("checking file type");
    // A file without a single line is as little a game as any other without the magic word.
    QString line = AtEnd() ? QString() : m_lines.at(m_at++);
    const QString magic = basTAVL::GetQuotedField(line);
    basTAVL::GetQuotedField(line);
    m_nameInHeader = basTAVL::GetQuotedField(line);
    if (magic.toUpper() != kMagic) return Fail(QStringLiteral("Loading File Is Not Compatible"), during);
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(IsAutosave() ? m_nameInHeader : m_fileName, drive, dir, base, ext);
    Settings().sGameDirectory = drive + dir;
    return true;
}

bool GameReader::ReadTitles() {
    const QString during = QStringLiteral("getting titles");
    QString line;
    if (!NextLine(during, line)) return false;
    try {
        basPosit::SetSpecialText(0, QStringLiteral("TAVLO"));
        for (int i = 1; i <= 3; ++i) {
            // Decoded a second time; that is part of the format.
            basPosit::SetSpecialText(i, basCommon::InsertLineBreaks(basTAVL::GetQuotedField(line)));
        }
        return true;
    } catch (const TavloraError& error) {
        return Fail(basErrLog::ErrDismiss(error.Description()), during);
    }
}

bool GameReader::ReadNewsHeads() {
    QString line;
    if (!NextLine(QStringLiteral("getting good news and bad news"), line)) return false;
    for (int i = 4; i <= 5; ++i)
        basPosit::m_CenterText(i).sText = basCommon::InsertLineBreaks(basTAVL::GetQuotedField(line));
    return true;
}

bool GameReader::ReadSpaces() {
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        const QString during = QStringLiteral("loading line number ") + QString::number(i);
        if (!ReadRecord(basTAVL::g_oSpaces(i), during)) return false;
        if (basTAVL::g_oSpaces(i).Index != i) return Fail(QStringLiteral("Line Number Incorrect"), during);
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
        const QString during = QStringLiteral("loading corner number ") + QString::number(i);
        C_Corner& corner = basTAVL::g_oCorners(i);
        if (!ReadRecord(corner, during)) return false;
        if (corner.Index != i) return Fail(QStringLiteral("Corner number incorrect"), during);
        FitCornerName(corner);
    }
    return true;
}

bool GameReader::ReadNews() {
    for (int i = 0; i < basTAVL::kSides; ++i)
        basPosit::SetSideText(i, QString::fromLatin1(Locale::kSideNames[size_t(i)]));
    for (int set = 0; set < basTAVL::kNewsSets; ++set) {
        for (int i = 0; i < basTAVL::kCards; ++i) {
            C_News& card = basTAVL::g_oNews(set, i);
            if (!ReadRecord(card, QStringLiteral("loading card number ") + QString::number(i) +
                                      QStringLiteral(" in set Number ") + QString::number(set)))
                return false;
            // Whichever card it is, the message has always named the number that the corners stopped at.
            if (card.Index != i)
                return Fail(QStringLiteral("Line number incorrect"),
                            QStringLiteral("loading good news card number ") + QString::number(basTAVL::kCorners));
        }
    }
    return true;
}

bool GameReader::ReadMoney() {
    const QString folder = Folders::ProgramDirectory();
    for (int i = 0; i < basTAVL::kMoney; ++i) {
        const QString name = basCommon::JoinPath(folder, QString::fromLatin1(kBlankNotes[i]));
        const QString bitmap = name + QStringLiteral(".bmp");
        basTAVL::g_oMoney(i).BackImage.Let_FullPath(basCommon::DoesFileExist(bitmap) ? bitmap
                                                                                     : name + QStringLiteral(".dat"));
    }
    for (int i = 0; i < basTAVL::kMoney; ++i) {
        const QString during = QStringLiteral("loading money number ") + QString::number(i);
        if (!ReadRecord(basTAVL::g_oMoney(i), during)) return false;
        if (basTAVL::g_oMoney(i).Index != i) return Fail(QStringLiteral("Line number incorrect"), during);
        FetchThumbnail(basTAVL::g_oMoney(i).FaceImage);
    }
    return true;
}

bool GameReader::ReadTokens() {
    for (int i = 0; i < basTAVL::kTokens; ++i) {
        C_Token& token = basTAVL::g_oTokens(i);
        if (AtEnd()) {
            // Old games end ahead of the tokens. The former game's texts don't belong to this one.
            token.Init(qint16(i));
            token.SetText(QString());
            continue;
        }
        const QString during = QStringLiteral("loading token number ") + QString::number(i);
        if (!ReadRecord(token, during)) return false;
        if (token.Index != i) return Fail(QStringLiteral("Line number incorrect"), during);
        FetchThumbnail(token.Image);
    }
    return true;
}

// Messages about pictures wait until the game is read, so that a game full of missing pictures brings one
// box.
bool ReadWithQueuedMessages(GameReader& reader) {
    const bool ownQueue = !basMsgQueue::MsgQueue_IsOpen();
    if (ownQueue) basMsgQueue::MsgQueue_Init();
    const auto display = [ownQueue] {
        if (ownQueue) basMsgQueue::MsgQueue_Display();
    };
    try {
        const bool good = reader.Read();
        display();
        return good;
    } catch (...) {
        // The queue must not stay open, or every later message would wait in it.
        display();
        throw;
    }
}

} // namespace

void GameLoad(QString& sFileName, int& iResult) try {
    iResult = -1;
    basErrLog::ErrLogToFile(QStringLiteral("Load Game Named: ") + sFileName, true);
    GameHost& host = GameHost::Current();
    basPosit::PosSethDC(&host.MeasuringDevice());
    GameReader reader(sFileName);
    if (!ReadWithQueuedMessages(reader)) {
        Rescue::NoteUnread(sFileName);
        ReportIOError(reader.Error(), QStringLiteral("load"), sFileName, reader.During(), iResult);
        return;
    }
    Rescue::NoteRead(sFileName);
    SetSpecialTextStringsForPrinting();
    if (reader.IsAutosave()) {
        sFileName = reader.NameInHeader();
    } else {
        host.SetSomethingChanged(false);
    }
    iResult = 0;
} catch (...) {
    ErrTail("frmTAVL!", "GameLoad", sFileName);
}

} // namespace GameFile
