// SPDX-License-Identifier: MIT
#include "check/CheckedGame.h"

#include "check/GameWords.h"
#include "check/OwnPieces.h"
#include "pieces/frmBMP.h"
#include "render/clsRenderDestination.h"

namespace {

bool IsBegunIn(const Game& game) {
    int own = 0;
    int filled = 0;
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (!OwnPieces::IsSpace(i)) continue;
        ++own;
        const bool named = !GameWords::IsBlank(GameWords::OfSpace(game, i));
        filled += named || !game.spaces[size_t(i)].Image.FullPath().isEmpty();
    }
    return 2 * filled > own;
}

/// Collects the pictures that there are.
class PictureList {
public:
    explicit PictureList(PictureFacts& facts) : m_facts(facts) {}

    void Add(GamePiece piece, const C_Image& image, QSizeF inches) {
        if (image.Ref().IsEmpty()) return;
        m_pictures.push_back({piece, image.Ref(), inches, m_facts.Of(image.FullPath())});
    }
    std::vector<PaperPicture> Take() { return std::move(m_pictures); }

private:
    PictureFacts& m_facts;
    std::vector<PaperPicture> m_pictures;
};

QSizeF Square(double side) { return {side, side}; }

std::vector<PaperPicture> PicturesOf(const Game& game, PictureFacts& facts) {
    PictureList list(facts);
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (OwnPieces::IsSpace(i))
            list.Add(GamePiece::Space(i), game.spaces[size_t(i)].Image,
                     Square(clsRenderDestination::SpaceStickerImageInches()));
    }
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (OwnPieces::IsCorner(i))
            list.Add(GamePiece::Corner(i), game.corners[size_t(i)].Image,
                     Square(clsRenderDestination::CornerStickerImageInches()));
    }
    for (int i = 0; i < basTAVL::kMoney; ++i)
        list.Add(GamePiece::Money(i), game.money[size_t(i)].FaceImage, C_Money::OvalInches());
    for (int i = 0; i < basTAVL::kTokens; ++i)
        list.Add(GamePiece::Token(i), game.tokens[size_t(i)].Image, Square(frmBMP::kTokenInches));
    return list.Take();
}

} // namespace

CheckedGame::CheckedGame(const Game& checked, PictureFacts& facts, CheckOptions known)
    : game(checked), options(known), m_facts(facts), m_begun(IsBegunIn(checked)) {}

const std::vector<PaperText>& CheckedGame::Texts() const {
    if (!m_texts) m_texts = PaperTextsOf(game);
    return *m_texts;
}

const std::vector<PaperPicture>& CheckedGame::Pictures() const {
    if (!m_pictures) m_pictures = PicturesOf(game, m_facts);
    return *m_pictures;
}
