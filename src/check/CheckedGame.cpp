// SPDX-License-Identifier: MIT
#include "check/CheckedGame.h"

#include "check/GameWords.h"
#include "check/OwnPieces.h"
#include "platform/paint/FontFace.h"

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

void LookAtLetters(PaperText& text) {
    for (const WrittenText& line : text.written)
        text.lacking.append(FontFace::Get(line.sFamily, line.bBold, line.bItalic).Unprintable(line.sText));
}

} // namespace

CheckedGame::CheckedGame(const Game& checked, PictureFacts& facts, CheckOptions known)
    : game(checked), options(known), m_facts(facts), m_begun(IsBegunIn(checked)) {}

bool CheckedGame::Gather() {
    if (AddPaperTexts(game, m_part, m_texts)) {
        ++m_part;
        return true;
    }
    if (m_lookedAt < m_texts.size()) {
        LookAtLetters(m_texts[m_lookedAt++]);
        return true;
    }
    return GatherPicture();
}

bool CheckedGame::GatherPicture() {
    const std::span<const GamePiece> pieces = PiecesWithPictures();
    if (m_picture == pieces.size()) return false;
    if (std::optional<PaperPicture> picture = PaperPictureOf(game, pieces[m_picture++], m_facts, options.decoding))
        m_pictures.push_back(*std::move(picture));
    return true;
}
