// SPDX-License-Identifier: MIT
#include "check/PaperPictures.h"

#include "check/OwnPieces.h"
#include "check/PieceParts.h"
#include "check/PieceSheets.h"
#include "pieces/frmBMP.h"
#include "render/clsRenderDestination.h"

#include <vector>

namespace {

QSizeF Square(double side) { return {side, side}; }

QSizeF InchesOf(const GamePiece& piece) {
    switch (piece.kind) {
        case GamePiece::Kind::Space:
            return Square(clsRenderDestination::SpaceStickerImageInches());
        case GamePiece::Kind::Corner:
            return Square(clsRenderDestination::CornerStickerImageInches());
        case GamePiece::Kind::Money:
            return C_Money::OvalInches();
        default:
            return Square(frmBMP::kTokenInches);
    }
}

std::vector<GamePiece> MakePieces() {
    std::vector<GamePiece> pieces;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (OwnPieces::IsSpace(i)) pieces.push_back(GamePiece::Space(i));
    }
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (OwnPieces::IsCorner(i)) pieces.push_back(GamePiece::Corner(i));
    }
    for (int i = 0; i < basTAVL::kMoney; ++i)
        pieces.push_back(GamePiece::Money(i));
    for (int i = 0; i < basTAVL::kTokens; ++i)
        pieces.push_back(GamePiece::Token(i));
    return pieces;
}

} // namespace

std::span<const GamePiece> PiecesWithPictures() {
    static const std::vector<GamePiece> pieces = MakePieces();
    return pieces;
}

std::optional<PaperPicture> PaperPictureOf(const Game& game, const GamePiece& piece, PictureFacts& facts,
                                           PictureFacts::Decoding decoding) {
    const PictureRef ref = PieceParts::PictureOf(game, piece);
    if (ref.IsEmpty()) return std::nullopt;
    const bool sticker = piece.kind == GamePiece::Kind::Space;
    return PaperPicture{piece, ref, InchesOf(piece), facts.Of(ref.sPath, decoding),
                        sticker ? PieceSheets::OfSticker(piece) : PieceSheets::Of(piece)};
}
