// SPDX-License-Identifier: MIT
#include "simulator/GamePlay.h"

#include "simulator/Cash.h"
#include "simulator/Market.h"
#include "simulator/Places.h"

#include <algorithm>
#include <bit>

namespace Simulator {
namespace {

constexpr int kSecondsPerMinute = 60;

} // namespace

GamePlay::GamePlay(const PlaySet& set, const std::vector<int>& kinds, std::uint64_t seed)
    : m_dice(seed), m_table(set, kinds), m_decks(set.news) {
    for (auto& deck : m_decks)
        m_dice.Shuffle(deck);
}

const GameRecord& GamePlay::Run() {
    GameRecord& record = m_table.record;
    const int alarm = m_table.set.rules.alarmMinutes * kSecondsPerMinute;
    // When the alarm rings, the round is finished.
    while (!m_table.IsOver() && record.Seconds() < alarm) {
        for (int seat = 0; seat < m_table.Players() && !m_table.IsOver(); ++seat)
            TakeTurn(seat);
    }
    record.end = m_table.IsOver() ? GameRecord::End::SomebodyBroke : GameRecord::End::Alarm;
    record.winner = m_table.Richest();
    return record;
}

void GamePlay::TakeTurn(int seat) {
    Seat& player = m_table.At(seat);
    if (player.missesNextTurn) {
        player.missesNextTurn = false;
        return;
    }
    Market::Improve(m_table, seat);
    if (m_table.KindOf(seat).proposesTrades) Market::TryTrade(m_table, seat);
    int doubles = 0;
    while (!m_table.IsOver()) {
        const int first = m_dice.Die();
        const int second = m_dice.Die();
        if (Throw(seat, first, second, doubles) != After::OnceMore) return;
    }
}

GamePlay::After GamePlay::Throw(int seat, int first, int second, int& doubles) {
    ++m_table.record.turns;
    const bool isDouble = first == second;
    doubles = isDouble ? doubles + 1 : 0;
    if (doubles == m_table.set.rules.mostDoubles) return GoToLoseTurn(seat);
    const After after = MoveBy(seat, first, second);
    return isDouble && after == After::TurnIsOver ? After::OnceMore : after;
}

GamePlay::After GamePlay::MoveBy(int seat, int first, int second) {
    GoAheadTo(seat, (m_table.At(seat).place + first + second) % kPlaces);
    return Land(seat, first + second);
}

void GamePlay::GoAheadTo(int seat, int place) {
    Seat& player = m_table.At(seat);
    if (place <= player.place) m_table.FromBank(seat, m_table.set.rules.passingStart);
    player.place = place;
}

GamePlay::After GamePlay::GoToLoseTurn(int seat) {
    m_table.At(seat).place = PlaceOfCorner(kLoseTurnCorner);
    m_table.At(seat).missesNextTurn = true;
    return After::TurnEnds;
}

GamePlay::After GamePlay::Land(int seat, int rolled) {
    const int place = m_table.At(seat).place;
    if (IsCorner(place)) {
        if (CornerAt(place) == kLoseTurnCorner) return GoToLoseTurn(seat);
        return CornerAt(place) == BoardFacts::kFateCorner ? Fate(seat, m_dice.Die()) : After::TurnIsOver;
    }
    const int space = SpaceAt(place);
    ++m_table.record.landings[std::size_t(space)];
    if (BoardFacts::IsNews(space)) return DrawCard(seat, space == BoardFacts::kNewsSpaces[0] ? 0 : 1, rolled);
    if (BoardFacts::IsLotto(space)) {
        const int thrown = m_dice.Die() + m_dice.Die();
        Lotto(seat, rolled, thrown);
    } else if (m_table.owner[std::size_t(space)] == kNobody) {
        Market::OfferSpace(m_table, seat, space);
    } else {
        PayRent(seat, space);
    }
    return After::TurnIsOver;
}

void GamePlay::PayRent(int seat, int space) {
    const int owner = m_table.owner[std::size_t(space)];
    if (owner == seat) return;
    const int rent = m_table.RentOf(space);
    if (rent > 0 && Cash::Pay(m_table, seat, owner, rent)) m_table.record.earned[std::size_t(space)] += rent;
}

void GamePlay::Lotto(int seat, int rolled, int thrown) {
    const Seat& player = m_table.At(seat);
    const int bet = std::min(
        {m_table.KindOf(seat).lottoBet, m_table.set.rules.mostLottoBet, player.money - player.money % kSmallestNote});
    if (bet <= 0) return;
    m_table.record.lottoBet += bet;
    m_table.ToBank(seat, bet);
    if (thrown != rolled) return;
    const int paid = bet * (1 + LottoOdds(rolled));
    m_table.record.lottoPaid += paid;
    m_table.FromBank(seat, paid);
}

void GamePlay::PayEach(int seat, int amount) {
    for (int other = m_table.LeftOf(seat); other != seat && !m_table.IsOver(); other = m_table.LeftOf(other))
        Cash::Pay(m_table, seat, other, amount);
}

void GamePlay::CollectFromEach(int seat, int amount) {
    for (int other = m_table.LeftOf(seat); other != seat && !m_table.IsOver(); other = m_table.LeftOf(other))
        Cash::Pay(m_table, other, seat, amount);
}

GamePlay::After GamePlay::Fate(int seat, int die) {
    const HouseRules& rules = m_table.set.rules;
    switch (die) {
        case 1:
            return GoToLoseTurn(seat);
        case 2:
            PayEach(seat, rules.fateEachPlayer);
            break;
        case 3:
            return DrawCard(seat, 1, 0);
        case 4:
            return DrawCard(seat, 0, 0);
        case 5:
            CollectFromEach(seat, rules.fateEachPlayer);
            break;
        default:
            m_table.FromBank(seat, rules.fateFromBank);
    }
    return After::TurnIsOver;
}

GamePlay::After GamePlay::DrawCard(int seat, int deck, int rolled) {
    int& drawn = m_drawn[std::size_t(deck)];
    const auto& cards = m_decks[std::size_t(deck)];
    const NewsEffect card = cards[std::size_t(drawn)];
    drawn = (drawn + 1) % int(cards.size());
    return DoNews(seat, card, rolled);
}

void GamePlay::PayBank(int seat, const NewsEffect& card) {
    int count = 1;
    if (card.kind == NewsEffect::Kind::PerDeed) count = std::popcount(m_table.At(seat).deeds);
    if (card.kind == NewsEffect::Kind::PerStory) {
        count = 0;
        ForEach(m_table.At(seat).deeds, [&](int space) { count += m_table.stories[std::size_t(space)]; });
    }
    const int amount = card.amount * count;
    Cash::Pay(m_table, seat, kNobody, card.most > 0 ? std::min(amount, card.most) : amount);
}

GamePlay::After GamePlay::GoWhereSent(int seat, const NewsEffect& card, int rolled) {
    const int place = m_table.At(seat).place;
    switch (card.kind) {
        case NewsEffect::Kind::ToLoseTurn:
            return GoToLoseTurn(seat);
        case NewsEffect::Kind::ToStart:
            GoAheadTo(seat, PlaceOfCorner(kStartCorner));
            break;
        case NewsEffect::Kind::ToSpace:
            GoAheadTo(seat, PlaceOfSpace(card.space));
            break;
        default:
            if (card.amount > 0)
                GoAheadTo(seat, (place + card.amount) % kPlaces);
            else
                m_table.At(seat).place = (place + card.amount + kPlaces) % kPlaces;
    }
    return Land(seat, rolled);
}

GamePlay::After GamePlay::DoNews(int seat, const NewsEffect& card, int rolled) {
    using Kind = NewsEffect::Kind;
    Seat& player = m_table.At(seat);
    switch (card.kind) {
        case Kind::FromBank:
            m_table.FromBank(seat, card.amount);
            break;
        case Kind::FromEach:
            CollectFromEach(seat, card.amount);
            break;
        case Kind::ToEach:
            PayEach(seat, card.amount);
            break;
        case Kind::FromLeft:
            Cash::Pay(m_table, m_table.LeftOf(seat), seat, card.amount);
            break;
        case Kind::ToBank:
        case Kind::PerStory:
        case Kind::PerDeed:
            PayBank(seat, card);
            break;
        case Kind::AgainNow:
            return After::OnceMore;
        case Kind::MissesNextTurn:
            player.missesNextTurn = true;
            break;
        default:
            return GoWhereSent(seat, card, rolled);
    }
    return After::TurnIsOver;
}

} // namespace Simulator
