// SPDX-License-Identifier: MIT
#include "game/PieceContent.h"

#include "document/basTAVL.h"
#include "document/GameBounds.h"
#include "document/RecordFields.h"
#include "game/DroppedPictures.h"
#include "game/PieceImages.h"
#include "pictures/PicturePart.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace PieceContents {
namespace {

using Kind = PictureOwner::Kind;

constexpr int kFirstBlock = 0;
constexpr int kSecondBlock = 1;
// Of the form in which a piece travels; a program that doesn't know it leaves it alone.
constexpr int kForm = 1;

void GiveToSpace(C_Space& space, const PieceContent& content) {
    space.Font = content.font;
    space.Image.Let_FullPath(content.picture.sPath);
    space.SetText(content.sText);
}

void GiveToCorner(C_Corner& corner, const PieceContent& content) {
    corner.Font = content.font;
    corner.Image.Let_FullPath(content.picture.sPath);
    corner.SetText(kFirstBlock, content.sText);
    corner.SetText(kSecondBlock, content.sSecondText);
    // Both blocks share one size, which an empty one would make too large.
    if (content.sSecondText.isEmpty()) corner.SetText(kFirstBlock, TextLines::kUseExisting);
}

void Give(Game& game, const PieceContent& content, const PictureOwner& to) {
    const size_t slot = size_t(to.iNumber);
    if (to.kind == Kind::Space) {
        GiveToSpace(game.spaces[slot], content);
    } else {
        GiveToCorner(game.corners[slot], content);
    }
    ShowPart(PieceImages::Of(game, to), content.picture);
}

QString InOneLine(const QString& sText) { return basTAVL::CRLF2Space(sText).simplified(); }

// No longer than a game may hold it.
QString TextOf(const QJsonValue& value) { return value.toString().left(GameBounds::kMostLetters); }

// A whole number of 16 bits; nothing for anything else.
std::optional<qint16> Whole(const QJsonValue& value) {
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    const bool fits = number >= std::numeric_limits<qint16>::min() && number <= std::numeric_limits<qint16>::max();
    if (!fits || number != std::floor(number)) return std::nullopt;
    return qint16(number);
}

std::optional<C_FontInfo> ReadFont(const QJsonObject& object) {
    C_FontInfo font;
    font.Family = TextOf(object[QStringLiteral("family")]);
    font.Bold = object[QStringLiteral("bold")].toBool();
    font.Italic = object[QStringLiteral("italic")].toBool();
    font.Size = float(object[QStringLiteral("size")].toDouble());
    // Letters of no size would end the program in a space.
    const bool hasLetters = std::isfinite(font.Size) && CappedTextSize(font, 1) > 0;
    if (font.Family.isEmpty() || !hasLetters) return std::nullopt;
    return font;
}

std::optional<PictureRef> ReadPicture(const QJsonObject& object) {
    const auto zoom = Whole(object[QStringLiteral("zoom")]);
    const auto x = Whole(object[QStringLiteral("x")]);
    const auto y = Whole(object[QStringLiteral("y")]);
    if (!zoom || !x || !y) return std::nullopt;
    return PictureRef{TextOf(object[QStringLiteral("picture")]), *zoom, *x, *y};
}

} // namespace

bool Has(const PictureOwner& piece) { return piece.IsOnBoard() && DroppedPictures::Takes(piece); }

bool CanSwap(const PictureOwner& one, const PictureOwner& other) {
    return Has(one) && Has(other) && one.kind == other.kind && one != other;
}

QString NameOf(const Game& game, const PictureOwner& piece) {
    const QString words = InOneLine(Of(game, piece).sText);
    return words.isEmpty() ? piece.KindName() + u' ' + QString::number(piece.iNumber + 1) : words;
}

PieceContent Of(const Game& game, const PictureOwner& piece) {
    const size_t slot = size_t(piece.iNumber);
    const PictureRef picture = PieceImages::Of(game, piece).Ref();
    if (piece.kind == Kind::Space) {
        const C_Space& space = game.spaces.at(slot);
        return {space.TextAll(), {}, space.Font, picture};
    }
    const C_Corner& corner = game.corners.at(slot);
    return {corner.TextAll(kFirstBlock), corner.TextAll(kSecondBlock), corner.Font, picture};
}

Edit Copy(const Game& before, const PieceContent& content, const PictureOwner& to) {
    const QString from = InOneLine(content.sText);
    const QString target = NameOf(before, to);
    Edit edit{from.isEmpty() ? QStringLiteral("Copy to ") + target : QStringLiteral("Copy %1 to %2").arg(from, target),
              before};
    Give(edit.after, content, to);
    return edit;
}

Edit Swap(const Game& before, const PictureOwner& one, const PictureOwner& other) {
    Edit edit{QStringLiteral("Swap %1 and %2").arg(NameOf(before, one), NameOf(before, other)), before};
    Give(edit.after, Of(before, other), one);
    Give(edit.after, Of(before, one), other);
    return edit;
}

QByteArray Written(const PieceContent& content) {
    return QJsonDocument(QJsonObject{{QStringLiteral("tavlora-piece"), kForm},
                                     {QStringLiteral("text"), content.sText},
                                     {QStringLiteral("second"), content.sSecondText},
                                     {QStringLiteral("family"), content.font.Family},
                                     {QStringLiteral("bold"), content.font.Bold},
                                     {QStringLiteral("italic"), content.font.Italic},
                                     {QStringLiteral("size"), double(content.font.Size)},
                                     {QStringLiteral("picture"), content.picture.sPath},
                                     {QStringLiteral("zoom"), content.picture.iZoom},
                                     {QStringLiteral("x"), content.picture.iXCenter},
                                     {QStringLiteral("y"), content.picture.iYCenter}})
        .toJson(QJsonDocument::Compact);
}

std::optional<PieceContent> Read(const QByteArray& bytes) {
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    if (object[QStringLiteral("tavlora-piece")].toInt() != kForm) return std::nullopt;
    PieceContent content;
    content.sText = TextOf(object[QStringLiteral("text")]);
    content.sSecondText = TextOf(object[QStringLiteral("second")]);
    const auto font = ReadFont(object);
    const auto picture = ReadPicture(object);
    if (!font || !picture) return std::nullopt;
    content.font = *font;
    content.picture = *picture;
    return content;
}

} // namespace PieceContents
