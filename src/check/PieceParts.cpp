// SPDX-License-Identifier: MIT
#include "check/PieceParts.h"

#include "board/basTAVL_news.h"

namespace PieceParts {
namespace {

using Kind = GamePiece::Kind;

// The words of a corner that are printed.
constexpr int kBlock = 0;

void Take(C_Image& image, const PictureRef& ref) {
    image.Let_FullPath(ref.sPath);
    image.Let_Zoom(ref.iZoom);
    if (!ref.IsCentered()) return;
    image.Let_XCenter(ref.iXCenter);
    image.Let_YCenter(ref.iYCenter);
}

} // namespace

PictureRef PictureOf(const Game& game, const GamePiece& piece) {
    const size_t slot = size_t(piece.iNumber);
    switch (piece.kind) {
        case Kind::Space:
            return game.spaces.at(slot).Image.Ref();
        case Kind::Corner:
            return game.corners.at(slot).Image.Ref();
        case Kind::Money:
            return game.money.at(slot).FaceImage.Ref();
        case Kind::Token:
            return game.tokens.at(slot).Image.Ref();
        default:
            return {};
    }
}

std::optional<Edit> WithPicture(const Game& game, const GamePiece& piece, const PictureRef& picture) {
    const size_t slot = size_t(piece.iNumber);
    switch (piece.kind) {
        case Kind::Space: {
            C_Space space = game.spaces.at(slot);
            space.SetImagePath(picture.sPath);
            Take(space.Image, picture);
            return Edits::OfSpace(game, piece.iNumber, space);
        }
        case Kind::Corner: {
            C_Corner corner = game.corners.at(slot);
            Take(corner.Image, picture);
            corner.SetText(kBlock, TextLines::kUseExisting);
            return Edits::OfCorner(game, piece.iNumber, corner);
        }
        case Kind::Money: {
            auto money = game.money;
            Take(money.at(slot).FaceImage, picture);
            return Edits::OfMoney(game, money);
        }
        case Kind::Token: {
            C_Token token = game.tokens.at(slot);
            token.SetImagePath(picture.sPath);
            Take(token.Image, picture);
            return Edits::OfToken(game, piece.iNumber, token);
        }
        default:
            return std::nullopt;
    }
}

QString WordsOf(const Game& game, const GamePiece& piece) {
    const size_t slot = size_t(piece.iNumber);
    switch (piece.kind) {
        case Kind::Space:
            return game.spaces.at(slot).TextAll();
        case Kind::Corner:
            return game.corners.at(slot).TextAll(kBlock);
        case Kind::Card:
            return game.news.at(size_t(piece.iDeck)).at(slot).Text();
        case Kind::Token:
            return game.tokens.at(slot).TextAll();
        default:
            return {};
    }
}

std::optional<Edit> WithWords(const Game& game, const GamePiece& piece, const QString& sWords) {
    const size_t slot = size_t(piece.iNumber);
    switch (piece.kind) {
        case Kind::Space: {
            C_Space space = game.spaces.at(slot);
            space.SetText(sWords);
            return Edits::OfSpace(game, piece.iNumber, space);
        }
        case Kind::Corner: {
            C_Corner corner = game.corners.at(slot);
            corner.SetText(kBlock, sWords);
            return Edits::OfCorner(game, piece.iNumber, corner);
        }
        case Kind::Card: {
            C_News card = game.news.at(size_t(piece.iDeck)).at(slot);
            card.Let_Text(sWords);
            return Edits::OfCard(game, piece.iDeck, piece.iNumber, card,
                                 game.titles.Text(basTAVL::NewsTitleRecord(piece.iDeck)));
        }
        case Kind::Token: {
            C_Token token = game.tokens.at(slot);
            token.SetText(sWords);
            return Edits::OfToken(game, piece.iNumber, token);
        }
        default:
            return std::nullopt;
    }
}

} // namespace PieceParts
