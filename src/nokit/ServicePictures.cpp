// SPDX-License-Identifier: MIT
#include "nokit/ServicePictures.h"

#include "board/basPositTables.h"
#include "board/basTAVL_news.h"
#include "document/basTAVL.h"
#include "game/PieceImages.h"
#include "kit/DeedCards.h"
#include "kit/MoneySheet.h"
#include "kit/NewsSheet.h"
#include "nokit/BoardPages.h"
#include "nokit/KitDrawings.h"
#include "nokit/TokenDrawings.h"
#include "pieces/frmBMP.h"
#include "platform/files/Files.h"
#include "platform/paint/PictureForm.h"
#include "platform/paint/Recording.h"
#include "platform/paint/RecordingForm.h"
#include "platform/pictures/SavePicture.h"
#include "services/basPath.h"

namespace ServicePictures {
namespace {

constexpr double kBleed = kBleedInches;
// From the outer edge of the bleed inwards; they end before the cut.
constexpr double kMark = 0.09;
constexpr Color kFaint = Color::Rgb(200, 200, 200);
// The dashed lines of a sheet for scissors lie on the edges of its cards.
constexpr double kWithoutDashes = 0.006;

/// A piece of the listing.
struct Piece {
    QString sFile;
    QString sWhat;
    QSizeF inches;
    Color ground = Color::White();
    int nCopies = 1;
};

QString Numbered(const char* sName, int iNumber) {
    return QStringLiteral("%1-%2").arg(QString::fromLatin1(sName)).arg(iNumber, 2, 10, QChar(u'0'));
}

/// Makes the pictures one by one.
class Writer {
public:
    Writer(const NoKitChoices& choices, const QString& sFolder, NoKitPrint::Job& job, QString& sError)
        : m_choices(choices), m_folder(sFolder), m_job(job), m_error(sError) {}

    bool WriteAll() {
        return Files::MakeDirectory(m_folder, m_error) && Board() && Deeds() && News() && Money() && Tokens() && List();
    }

private:
    // The piece is painted with the bleed; its cut begins at (kBleed, kBleed).
    template <typename Paint>
    bool Save(const Piece& piece, Paint paint) {
        constexpr size_t kPieces = 63;
        constexpr size_t kThousand = 1000;
        if (!m_job.GoesOn(piece.sFile, int(m_pieces.size() * kThousand / kPieces))) return false;
        PictureForm form(piece.inches + QSizeF(2 * kBleed, 2 * kBleed), kDpi);
        PageCanvas canvas(form, piece.inches + QSizeF(2 * kBleed, 2 * kBleed));
        canvas.Box(canvas.Whole(), piece.ground);
        paint(canvas);
        Marks(canvas, piece.inches);
        m_pieces.push_back(piece);
        const QString path = basCommon::JoinPath(m_folder, piece.sFile + QStringLiteral(".png"));
        if (PieceImages::Shows(TheGame(), path)) {
            m_error = QStringLiteral("'%1.png' is a picture of the game and would be overwritten").arg(piece.sFile);
            return false;
        }
        return SavePicture(form.Take(), path, m_error);
    }

    // Where the cuts run, in the bleed only.
    static void Marks(PageCanvas& canvas, QSizeF inches) {
        const QSizeF all = canvas.Inches();
        for (const double x : {kBleed, kBleed + inches.width()}) {
            canvas.Tick({x, 0, x, kMark}, kFaint);
            canvas.Tick({x, all.height() - kMark, x, all.height()}, kFaint);
        }
        for (const double y : {kBleed, kBleed + inches.height()}) {
            canvas.Tick({0, y, kMark, y}, kFaint);
            canvas.Tick({all.width() - kMark, y, all.width(), y}, kFaint);
        }
    }

    bool Board() {
        const double side = m_choices.BoardInches();
        const std::shared_ptr<const Recording> board = BoardForPages(m_choices);
        const auto part = [&](const QString& file, const QString& what, const QRectF& inches) {
            return Save({file, what, inches.size()}, [&](PageCanvas& canvas) {
                // Beyond an inner edge the board goes on.
                const QRectF shown = inches.adjusted(-kBleed, -kBleed, kBleed, kBleed) & QRectF(0, 0, side, side);
                const double units = board->Size().width() / side;
                const QPointF at = shown.topLeft() - inches.topLeft() + QPointF(kBleed, kBleed);
                canvas.Drawing(*board,
                               {QRectF(shown.topLeft() * units, shown.size() * units), QRectF(at, shown.size())});
            });
        };
        const double half = side / 2;
        const QSizeF quarter(half, half);
        return part(QStringLiteral("board"), QStringLiteral("Game board"), {0, 0, side, side}) &&
               part(QStringLiteral("board-upper-left"), QStringLiteral("Game board to fold"), {{0, 0}, quarter}) &&
               part(QStringLiteral("board-upper-right"), QStringLiteral("Game board to fold"), {{half, 0}, quarter}) &&
               part(QStringLiteral("board-lower-left"), QStringLiteral("Game board to fold"), {{0, half}, quarter}) &&
               part(QStringLiteral("board-lower-right"), QStringLiteral("Game board to fold"), {{half, half}, quarter});
    }

    bool Card(const Piece& piece, const Recording& sheet, const QRectF& box) {
        return Save(piece, [&](PageCanvas& canvas) {
            constexpr double kUnits = RecordingPage::kDotsPerInch;
            constexpr double kIn = kWithoutDashes;
            const QRectF inside = box.adjusted(kIn, kIn, -kIn, -kIn);
            const QRectF target(QPointF(kBleed + kIn, kBleed + kIn), inside.size());
            canvas.Drawing(sheet, {QRectF(inside.topLeft() * kUnits, inside.size() * kUnits), target});
        });
    }

    bool Deeds() {
        for (const int sheet : {1, 2}) {
            const KitDrawing drawing = DrawingOfKitSheet(sheet == 1 ? "deeds1" : "deeds2", m_job.lacking);
            if (!drawing) return false;
            const CardGrid grid = DeedGrid();
            for (int card = 0; card < grid.iColumns * grid.iRows; ++card) {
                const int space = SpaceOfDeed(sheet, card);
                const QString name = basTAVL::CRLF2Space(basTAVL::g_oSpaces(space).TextAll());
                if (!Card({Numbered("deed", space + 1), name, grid.card}, *drawing, grid.CardBox(card))) return false;
            }
        }
        return true;
    }

    bool News() {
        for (int deck = 0; deck < basTAVL::kNewsSets; ++deck) {
            const char* name = deck == 0 ? "good" : "bad";
            const KitDrawing drawing = DrawingOfKitSheet(name, m_job.lacking);
            if (!drawing) return false;
            const CardGrid grid = NewsGrid();
            for (int card = 0; card < basTAVL::kCards; ++card) {
                const QString what = basPosit::m_CenterText(basTAVL::NewsTitleRecord(deck)).sText;
                const Piece piece{Numbered(name, card + 1), what, grid.card, basTAVL::g_lNewsColor(deck)};
                if (!Card(piece, *drawing, grid.CardBox(card))) return false;
            }
        }
        return true;
    }

    bool Money() {
        for (int i = 0; i < int(MoneySheets().size()); ++i) {
            const MoneyKind& kind = MoneySheets()[size_t(i)];
            const KitDrawing drawing = DrawingOfKitSheet(kind.sSheet, m_job.lacking);
            if (!drawing) return false;
            const CardGrid grid = MoneyGrid();
            const Piece piece{QStringLiteral("note-%1").arg(kind.iValue), QStringLiteral("Banknote"), grid.card,
                              basTAVL::g_oMoney(i).BackColor, kind.SheetsFor(m_choices.nPlayers) * kNotesOnSheet};
            if (!Card(piece, *drawing, grid.CardBox(0))) return false;
        }
        return true;
    }

    bool Tokens() {
        constexpr double kSide = frmBMP::kTokenInches;
        for (int token = 0; token < basTAVL::kTokens; ++token) {
            const Color ground = basTAVL::g_oTokens(token).BackColor;
            const auto round = TokenDrawings::Round(token, kSide);
            const bool saved =
                Save({Numbered("token", token + 1), QStringLiteral("Token, round"), {kSide, kSide}, ground},
                     [&](PageCanvas& canvas) {
                         const QRectF box(kBleed, kBleed, kSide, kSide);
                         canvas.DrawingInCircle(*round, {round->Whole(), box});
                     });
            if (!saved) return false;
        }
        return true;
    }

    bool List() {
        QByteArray list = "file,piece,width in,height in,bleed in,pixels wide,pixels high,copies\r\n";
        for (const Piece& piece : m_pieces) {
            QString what = piece.sWhat;
            const QSize pixels = ((piece.inches + QSizeF(2 * kBleed, 2 * kBleed)) * kDpi).toSize();
            const QString line = QStringLiteral("%1.png,\"%2\",%3,%4,%5,%6,%7,%8\r\n")
                                     .arg(piece.sFile, what.replace(u'"', QStringLiteral("\"\"")))
                                     .arg(piece.inches.width(), 0, 'f', 3)
                                     .arg(piece.inches.height(), 0, 'f', 3)
                                     .arg(kBleed, 0, 'f', 3)
                                     .arg(pixels.width())
                                     .arg(pixels.height())
                                     .arg(piece.nCopies);
            list += line.toUtf8();
        }
        return Files::WriteWhole(basCommon::JoinPath(m_folder, QStringLiteral("sizes.csv")), list, m_error);
    }

    const NoKitChoices& m_choices;
    QString m_folder;
    NoKitPrint::Job& m_job;
    QString& m_error;
    std::vector<Piece> m_pieces;
};

} // namespace

bool Write(const NoKitChoices& choices, const QString& sFolder, NoKitPrint::Job& job, QString& sError) {
    return Writer(choices, sFolder, job, sError).WriteAll();
}

} // namespace ServicePictures
