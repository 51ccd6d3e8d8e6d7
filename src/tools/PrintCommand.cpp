// SPDX-License-Identifier: MIT
#include "tools/PrintCommand.h"

#include "board/basPosit.h"
#include "board/BoardPicture.h"
#include "check/Checks.h"
#include "check/FindingWords.h"
#include "game/GameFile.h"
#include "game/PieceImages.h"
#include "game/Session.h"
#include "kit/GameKit.h"
#include "kit/PieceDrawing.h"
#include "kit/Sheets.h"
#include "nokit/NoKitSheets.h"
#include "pack/Packing.h"
#include "pack/SmallPictures.h"
#include "pack/Unpacking.h"
#include "pieces/frmBMP.h"
#include "platform/files/Console.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/files/TextFile.h"
#include "platform/pictures/SavePicture.h"
#include "platform/printing/SaveDrawing.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/ProgramSettings.h"
#include "tools/PrintArguments.h"
#include "tools/PrintDesktop.h"
#include "tools/PrintPieces.h"

#include <ostream>

namespace {

// The program whose settings are read.
const QString kProgramName = QStringLiteral("tavlora");
// The sheets are listed and named as this kit has them.
constexpr Kit kKitOfList = Kit::Eight;
constexpr int kNameWidth = 11;
constexpr int kTitleWidth = 38;

std::vector<Finding> FindingsInHand(const PrintArguments& arguments) {
    PictureFacts facts;
    PdfPrinter page({}, {}, arguments.Paper());
    // As wide as that of any sheet: a page that one stands on has the least margins.
    Sheets().front().LayOn(page, Kit::Eight);
    page.SetOrientation(PageOrientation::Portrait);
    return CheckGame(TheGame(), facts, {page.PrintableInches()});
}

QString FindPicture(const QString& sName, const PictureOwner& owner) {
    return PicturePlaces::FullFor(sName, owner, KitInUse());
}

// All files that are to be made, but for those of a printing service, which looks itself.
QStringList OutputsOf(const PrintArguments& arguments, const QStringList& sheets) {
    QStringList outputs{arguments.sOutput, arguments.sBoard, arguments.sPieceFile, arguments.sPack};
    const auto add = [&outputs](const QString& sFolder, const QString& sName) {
        if (!sFolder.isEmpty())
            outputs.append(basCommon::JoinPath(Console::CompletePath(sFolder), sName + QStringLiteral(".png")));
    };
    for (const QString& sheet : sheets)
        add(arguments.sPages, sheet);
    for (const PrintPiece& piece : PrintPieces())
        add(arguments.sPieces, piece.sName);
    outputs.removeAll(QString());
    return outputs;
}

// Reads the user's settings and pictures where the window program has them, and keeps everything that is
// written in a folder of its own.
void PrepareSettings(const PrintArguments& arguments, const QString& sPrivateFolder) {
    const QString userFolder = basCommon::JoinPath(Folders::Documents(), QStringLiteral("My Games"));
    ProgramSettings& settings = Settings();
    settings.sProgramName = kProgramName;
    settings.sMyGamesDirectory = sPrivateFolder;
    settings.sWorkDirectory = sPrivateFolder;
    if (settings.sRelativePictureBase.isEmpty()) settings.sRelativePictureBase = userFolder;
    if (settings.sIniDirectory.isEmpty()) settings.sIniDirectory = userFolder;
    settings.bIniReadOnly = true;
    settings.bKeepUserFiles = true;
    if (!arguments.sData.isEmpty()) Folders::SetProgramDirectory(Console::CompletePath(arguments.sData));
    basErrLog::ErrInit(0);
    basCommon::InitIniPath();
    if (arguments.sVariant.isEmpty()) {
        GameKit::SetUp(kProgramName);
        GameKit::ReadGameVersion();
    } else {
        GameKit::SetUp(GameKit::ProgramNameOf(arguments.sVariant));
    }
}

} // namespace

QString PrintCommand::TitleOf(const QString& sGame) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(Console::CompletePath(sGame), drive, dir, base, ext);
    return base;
}

void PrintCommand::Complain(const QString& sText) {
    EndProgress();
    m_err << "tavlora-print: " << sText.toUtf8().constData() << std::endl;
}

void PrintCommand::Progress(const QString& sWhat, int iThousandths) {
    if (!m_showProgress || iThousandths < 0) return;
    m_err << '\r' << "\x1b[K" << qUtf8Printable(QStringLiteral("%1 %2%").arg(sWhat).arg(iThousandths / 10))
          << std::flush;
}

void PrintCommand::EndProgress() {
    if (m_showProgress) m_err << "\r\x1b[K" << std::flush;
}

void PrintCommand::List() {
    constexpr int kStockWidth = 20;
    for (const Sheet& sheet : Sheets()) {
        const bool portrait = sheet.OrientationOf(kKitOfList) == PageOrientation::Portrait;
        m_out << QByteArray(sheet.sName).leftJustified(kNameWidth).constData()
              << sheet.Title(kKitOfList).toUtf8().leftJustified(kTitleWidth).constData()
              << QByteArray(sheet.paper->white.sStock).leftJustified(kStockWidth).constData()
              << (portrait ? "portrait" : "landscape") << '\n';
    }
}

void PrintCommand::ListWithoutKit() {
    for (const NoKitSheet& sheet : NoKitSheets())
        m_out << QByteArray(sheet.sName).leftJustified(kNameWidth).constData()
              << QByteArray(sheet.sTitle).leftJustified(kTitleWidth).constData()
              << NameOf(sheet.stock).toUtf8().constData() << '\n';
}

int PrintCommand::Run(const QStringList& words) {
    QString error;
    const std::optional<PrintArguments> arguments = PrintArguments::Parse(words, error);
    if (!arguments) {
        Complain(error + QStringLiteral(" (tavlora-print --help tells how)"));
        return kWrongUsage;
    }
    if (arguments->bHelp) {
        m_out << PrintArguments::Usage().toUtf8().constData();
    } else if (arguments->bVersion) {
        m_out << "tavlora-print " << TAVLORA_VERSION_MAJOR << '.' << TAVLORA_VERSION_MINOR << '.'
              << TAVLORA_VERSION_REVISION << '\n';
    } else if (arguments->bList) {
        arguments->bNoKit ? ListWithoutKit() : List();
    } else {
        return arguments->bGuide ? PrintGuide(*arguments) : Carry(*arguments);
    }
    m_out.flush();
    return kDone;
}

int PrintCommand::Carry(const PrintArguments& arguments) {
    for (const QString& output : {arguments.sOutput, arguments.sBoard, arguments.sPieceFile, arguments.sPack}) {
        if (output.isEmpty() || !Console::IsSameFile(output, arguments.sGame)) continue;
        Complain(QStringLiteral("'%1' is the game itself and would be overwritten").arg(output));
        return kWrongUsage;
    }
    const TemporaryFolder privateFolder;
    if (privateFolder.Path().isEmpty()) {
        Complain(QStringLiteral("no temporary folder could be made"));
        return kFailed;
    }
    PrintDesktop desktop([this](const QString& sText) { Complain(sText); });
    try {
        PrepareSettings(arguments, privateFolder.Path());
        if (arguments.bCheckPage) return PrintCheckPage(arguments);
        if (!KnowsPrinter(arguments)) return kFailed;
        // Of no name that a made picture could have.
        const TemporaryFolder unpacked(privateFolder.Path());
        PrintArguments carried = arguments;
        carried.sGame = GameOf(arguments.sGame, unpacked.Path());
        return carried.sGame.isEmpty() ? kFailed : PrintGame(carried);
    } catch (const ProgramEnded&) {
        // What ended it has been told.
    } catch (const TavloraError& error) {
        Complain(basErrLog::ErrDismiss(error.Description()).simplified());
    }
    return kFailed;
}

QString PrintCommand::GameOf(const QString& sGame, const QString& sUnpackedFolder) {
    if (!Unpacking::IsPacked(Console::CompletePath(sGame))) return sGame;
    QString error;
    const std::optional<QString> game = Unpacking::Unpack(Console::CompletePath(sGame), sUnpackedFolder, error);
    if (!game) Complain(error);
    return game.value_or(QString());
}

bool PrintCommand::WouldReplaceAPicture(const PrintArguments& arguments, const QStringList& sheets) {
    for (const QString& output : OutputsOf(arguments, sheets)) {
        if (!PieceImages::Shows(TheGame(), Console::CompletePath(output))) continue;
        Complain(QStringLiteral("'%1' is a picture of the game and would be overwritten").arg(output));
        return true;
    }
    return false;
}

bool PrintCommand::LoadGame(const QString& sGame) {
    QString name = Console::CompletePath(sGame);
    int result = 0;
    GameFile::GameLoad(name, result);
    return result == 0;
}

int PrintCommand::PrintGame(const PrintArguments& arguments) {
    const QStringList sheets = arguments.sheets.isEmpty() ? SheetNames() : arguments.sheets;
    Session session;
    frmBMP::InstallAsThumbnailMaker();
    session.SetGameName(Console::CompletePath(arguments.sGame));
    basPosit::PosSethDC(&session.MeasuringDevice());
    basPosit::PosInit();
    if (!LoadGame(arguments.sGame)) return kFailed;
    if (arguments.bCheck && !arguments.Makes()) return CheckInHand(arguments);
    if (WouldReplaceAPicture(arguments, sheets)) return kWrongUsage;
    WarnOfInHand(arguments, arguments.PrintsKit() ? sheets : QStringList());
    if (!arguments.sBoard.isEmpty() && !PaintBoard(arguments.sBoard, arguments.iBoardSize)) return kFailed;
    basPosit::PosSethDC(&session.MeasuringDevice());
    if (!arguments.sPieces.isEmpty() && !WritePieces(Console::CompletePath(arguments.sPieces))) return kFailed;
    if (!arguments.sPiece.isEmpty() && !WritePieceAlone(arguments)) return kFailed;
    if (!arguments.sPack.isEmpty() && !PackGame(arguments)) return kFailed;
    if (!arguments.sPages.isEmpty() && !PaintPages(arguments, sheets)) return kFailed;
    if (arguments.MakesWithoutKit() && !PrintWithoutKit(arguments)) return kFailed;
    return arguments.PrintsKit() ? PrintSheetsOf(arguments, sheets) : kDone;
}

void PrintCommand::TellOfFonts(const Packing::Contents& contents) {
    for (const PackFonts::Use& use : contents.fonts) {
        if (use.standing == PackFonts::Use::Standing::StaysBehind)
            Complain(QStringLiteral("the font '%1' doesn't go along, as it may not be passed on").arg(use.sFamily));
        if (use.standing == PackFonts::Use::Standing::NotHere)
            Complain(QStringLiteral("the font '%1' isn't on this computer and doesn't go along").arg(use.sFamily));
    }
}

bool PrintCommand::PackGame(const PrintArguments& arguments) {
    QString error;
    const QString game = Console::CompletePath(arguments.sGame);
    const std::optional<QStringList> lines = TextFile::ReadLines(game, error);
    const std::optional<QByteArray> board = EncodePicture(basPosit::BoardPicture(Packing::kBoardSize), error);
    basPosit::PosSethDC(&GameHost::Current().MeasuringDevice());
    bool well = lines && board;
    if (well) {
        Packing::Contents contents = Packing::Gather(*lines, game, FindPicture);
        contents.board = *board;
        TellOfFonts(contents);
        const auto tell = [this](int iThousandths) {
            Progress(QStringLiteral("packing"), iThousandths);
            return true;
        };
        if (arguments.bSmallPictures) SmallPictures::Make(contents, tell);
        well = Packing::Write(contents, Console::CompletePath(arguments.sPack), tell, error);
    }
    EndProgress();
    if (!well) Complain(QStringLiteral("'%1' could not be written: %2").arg(arguments.sPack, error));
    return well;
}

int PrintCommand::CheckInHand(const PrintArguments& arguments) {
    const std::vector<Finding> findings = FindingsInHand(arguments);
    if (arguments.bJson) {
        m_out << FindingWords::Json(TheGame(), findings).constData();
    } else {
        for (const Finding& finding : findings)
            m_out << FindingWords::LineOf(TheGame(), finding).toUtf8().constData() << '\n';
    }
    m_out.flush();
    return FindingWords::SeriousOnes(findings) == 0 ? kDone : kFailed;
}

void PrintCommand::WarnOfInHand(const PrintArguments& arguments, const QStringList& sheets) {
    if (!arguments.bCheck && sheets.isEmpty()) return;
    for (const Finding& finding : FindingsInHand(arguments)) {
        const bool meant = arguments.bCheck || finding.ShowsOn(sheets);
        if (meant && finding.IsSerious() && !IsToldElsewhere(finding))
            Complain(FindingWords::LineOf(TheGame(), finding));
    }
}

bool PrintCommand::PaintBoard(const QString& sPath, int lSize) {
    QString error;
    if (basPosit::SaveBoard(sPath, lSize, TitleOf(GameHost::Current().GameName()), error)) return true;
    Complain(QStringLiteral("'%1' could not be written: %2").arg(sPath, error));
    return false;
}

bool PrintCommand::WritePieceAlone(const PrintArguments& arguments) {
    constexpr int kDotsPerInch = 300;
    const std::optional<PrintedText> drawing = PieceDrawing::Draw(arguments.sPiece);
    if (!drawing) {
        Complain(QStringLiteral("there is no piece '%1', or it could not be made").arg(arguments.sPiece));
        return false;
    }
    QString error;
    const QString title = TitleOf(arguments.sGame) + QStringLiteral(": ") + arguments.sPiece;
    if (SaveDrawing(*drawing->recording, drawing->inches, kDotsPerInch, title,
                    Console::CompletePath(arguments.sPieceFile), error))
        return true;
    Complain(QStringLiteral("'%1' could not be written: %2").arg(arguments.sPieceFile, error));
    return false;
}

bool PrintCommand::WritePieces(const QString& sFolder) {
    QString error;
    if (!Files::MakeDirectory(sFolder, error)) {
        Complain(QStringLiteral("'%1' could not be made: %2").arg(sFolder, error));
        return false;
    }
    const QList<PrintPiece> pieces = PrintPieces();
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        Progress(pieces[i].sName, int(i * 1000 / pieces.size()));
        if (WritePiece(pieces[i], sFolder, error)) continue;
        Complain(error);
        return false;
    }
    EndProgress();
    return true;
}
