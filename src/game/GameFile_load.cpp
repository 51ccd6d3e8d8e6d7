// SPDX-License-Identifier: MIT
#include "board/basPosit.h"
#include "document/GameBounds.h"
#include "document/GameHost.h"
#include "document/GameText.h"
#include "document/Locale.h"
#include "game/Autosave.h"
#include "game/EarlierVersions.h"
#include "game/GameFile.h"
#include "game/PrintCaptions.h"
#include "game/Rescue.h"
#include "pictures/MovedGame.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/paint/FontFiles.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/Desktop.h"
#include "services/ProgramSettings.h"

#include <chrono>
#include <thread>

namespace GameFile {
namespace {

using Fault = GameReading::Fault;

const QString kAutosaveBase = QStringLiteral("~AUTOSAVE");

// Blank notes of the program's directory, as .bmp or else as .dat.
constexpr const char* kBlankNotes[basTAVL::kMoney] = {"BLNK100", "BLNK500", "BLNK1000", "BLNK5000"};

struct Parts {
    QString sDrive, sDir, sBase, sExt;
    explicit Parts(const QString& sPath) { basCommon::FileNameFactor(sPath, sDrive, sDir, sBase, sExt); }
};

bool IsAutosave(const QString& sFileName) { return Parts(sFileName).sBase.toUpper() == kAutosaveBase; }

bool LiesElsewhere(const QString& sFileName) { return IsAutosave(sFileName) || EarlierVersions::IsOneOf(sFileName); }

// Where relative pictures are looked for next, and the fonts that came along. An autosave lies elsewhere than its game.
void NoteGameDirectory(const QString& sGame) {
    const Parts parts(sGame);
    Settings().sGameDirectory = parts.sDrive + parts.sDir;
    // Ahead of fitting the game's texts. A name without a folder would lead to wherever the program was started.
    if (!Settings().sGameDirectory.isEmpty())
        FontFiles::UseFolder(basCommon::JoinPath(Settings().sGameDirectory, QStringLiteral("Fonts")));
}

void NotePlace(const QString& sFileName, const QString& sNameWhenWritten) {
    const Parts written(sNameWhenWritten);
    NoteGameDirectory(LiesElsewhere(sFileName) ? sNameWhenWritten : sFileName);
    MovedGame::Note(written.sDrive + written.sDir, Settings().sGameDirectory);
}

void SetBlankNotes(Game& game) {
    const QString folder = Folders::ProgramDirectory();
    for (size_t i = 0; i < game.money.size(); ++i) {
        const QString name = basCommon::JoinPath(folder, QString::fromLatin1(kBlankNotes[i]));
        const QString bitmap = name + QStringLiteral(".bmp");
        game.money[i].BackImage.Let_FullPath(basCommon::DoesFileExist(bitmap) ? bitmap : name + QStringLiteral(".dat"));
    }
}

using Clock = std::chrono::steady_clock;

// How long a load waits for photographs to be decoded.
constexpr std::chrono::milliseconds kPatience{150};

// A photograph that isn't decoded by then is made small when it is wanted: the window doesn't stand still for it.
bool IsReady(const C_Image& image, Clock::time_point until) {
    while (!ThumbnailStore::Instance().Prefetch(image.Owned())) {
        if (Clock::now() > until) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// A picture that can't be made small is told by its image, or lies in the log; the game loads all the same.
void FetchThumbnail(const C_Image& image, Clock::time_point until) {
    // A drawing is played here and now, which may take its time as well.
    if (!IsReady(image, until) || (image.IsWMF() && Clock::now() > until)) return;
    try {
        image.GetThumbnail(false);
    } catch (const TavloraError& error) {
        basErrLog::ErrDismiss(error.Description());
    }
}

/// Puts a game that was read, whole or in part, in the place of the one in hand, and does what goes with each of its
/// parts, in their order and as far as they were read.
class Arrival {
public:
    explicit Arrival(const GameReading& reading)
        : m_before(TheGame()), m_lines(reading.iLines), m_game(TheGame() = reading.game) {}

    void Run() {
        if (WasRead(GameLines::kTitles)) basPosit::SetSpecialText(0, QStringLiteral("TAVLO"));
        for (size_t i = 0; i < m_game.spaces.size(); ++i)
            m_game.spaces[i].Image.TellIfMissing(m_before.spaces[i].Image);
        for (size_t i = 0; i < m_game.corners.size(); ++i)
            m_game.corners[i].Image.TellIfMissing(m_before.corners[i].Image);
        if (WasRead(GameLines::kNews - 1)) SetSideNames();
        if (WasRead(GameLines::kMoney - 1)) SetBlankNotes(m_game);
        StartDecoding();
        const Clock::time_point until = Clock::now() + kPatience;
        for (size_t i = 0; i < m_game.money.size(); ++i) {
            m_game.money[i].FaceImage.TellIfMissing(m_before.money[i].FaceImage);
            if (WasRead(GameLines::kMoney + int(i))) FetchThumbnail(m_game.money[i].FaceImage, until);
        }
        for (size_t i = 0; i < m_game.tokens.size(); ++i) {
            m_game.tokens[i].Image.TellIfMissing(m_before.tokens[i].Image);
            if (WasRead(GameLines::kTokens + int(i))) FetchThumbnail(m_game.tokens[i].Image, until);
        }
    }

private:
    bool WasRead(int iLine) const { return iLine < m_lines; }

    void StartDecoding() const {
        for (const C_Money& note : m_game.money)
            ThumbnailStore::Instance().Prefetch(note.FaceImage.Owned());
        for (const C_Token& token : m_game.tokens)
            ThumbnailStore::Instance().Prefetch(token.Image.Owned());
    }
    static void SetSideNames() {
        for (int i = 0; i < basTAVL::kSides; ++i)
            basPosit::SetSideText(i, QString::fromLatin1(Locale::kSideNames[size_t(i)]));
    }

    const Game m_before;
    const int m_lines;
    Game& m_game;
};

ReadingTools ToolsOfProgram() {
    return {GameHost::Current().MeasuringDevice(),
            [](const QString& sName, const PictureOwner& owner) {
                return PicturePlaces::FullFor(sName, owner, KitInUse());
            },
            basPosit::FitSpecialText};
}

void TellCut() {
    basMsgQueue::MsgQueue_Post(QStringLiteral("A text in this game is longer than 10,000 letters, and the rest of it "
                                              "was left out. When you save the game, the file as it is now is kept "
                                              "beside your games."),
                               vbInformation);
}

/// What a file told beside the game.
struct Told {
    GameHeader header;
    bool bCut = false;
};

// What is wrong with the file, if anything. What could be read of it is in hand then.
std::optional<Fault> Load(const QString& sFileName, Told& told) {
    if (Files::Size(sFileName) > GameBounds::kMaxGameSize)
        return Fault{QStringLiteral("Loading File Is Not Compatible"), QStringLiteral("checking file type")};
    QString error;
    const std::optional<QByteArray> bytes = Files::ReadAll(sFileName, error);
    if (!bytes) return Fault{error, QStringLiteral("opening the file")};
    told.header = ReadGameHeader(*bytes);
    if (told.header.bIsGame) NotePlace(sFileName, told.header.sGameName);
    const GameReading reading = ReadGame(*bytes, TheGame(), ToolsOfProgram());
    told.bCut = reading.bCut && told.header.bIsGame;
    if (told.bCut) TellCut();
    Arrival(reading).Run();
    return reading.fault;
}

// A game that goes on from the autosave was read by another run of the program. What that couldn't read of its file
// must be kept as well when the game is saved.
void NoteIfUnread(const QString& sGame) {
    if (!Files::Exists(sGame)) return;
    QString error;
    const bool fits = Files::Size(sGame) <= GameBounds::kMaxGameSize;
    const std::optional<QByteArray> bytes = fits ? Files::ReadAll(sGame, error) : std::nullopt;
    if (bytes) {
        const GameReading reading = ReadGame(*bytes, Game(), ToolsOfProgram());
        if (!reading.fault && !reading.bCut) return;
    }
    Rescue::NoteUnread(sGame);
}

// Messages about pictures wait until the game is read, so that a game full of missing pictures brings one
// box.
std::optional<Fault> LoadWithQueuedMessages(const QString& sFileName, Told& told) {
    const bool ownQueue = !basMsgQueue::MsgQueue_IsOpen();
    if (ownQueue) basMsgQueue::MsgQueue_Init();
    const auto display = [ownQueue] {
        if (ownQueue) basMsgQueue::MsgQueue_Display();
    };
    try {
        const std::optional<Fault> fault = Load(sFileName, told);
        display();
        return fault;
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
    Told told;
    if (const std::optional<Fault> fault = LoadWithQueuedMessages(sFileName, told)) {
        Rescue::NoteUnread(sFileName);
        ReportIOError(fault->sError, QStringLiteral("load"), sFileName, fault->sDuring, iResult);
        return;
    }
    if (told.bCut)
        Rescue::NoteUnread(sFileName);
    else
        Rescue::NoteRead(sFileName);
    SetSpecialTextStringsForPrinting();
    if (IsAutosave(sFileName)) {
        if (Autosave::IsOneOf(sFileName)) NoteIfUnread(told.header.sGameName);
        sFileName = told.header.sGameName;
    } else {
        host.SetSomethingChanged(false);
    }
    iResult = 0;
} catch (...) {
    ErrTail("frmTAVL!", "GameLoad", sFileName);
}

} // namespace GameFile
