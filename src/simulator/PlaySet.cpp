// SPDX-License-Identifier: MIT
#include "simulator/PlaySet.h"

namespace Simulator {
namespace {

class Mixer {
public:
    void Add(int value) { m_bits = (m_bits ^ std::uint32_t(value)) * 0x100000001B3; }
    QString Text() const { return QStringLiteral("%1").arg(m_bits, 16, 16, QLatin1Char('0')); }

private:
    std::uint64_t m_bits = 0xCBF29CE484222325;
};

void AddRules(Mixer& mixer, const HouseRules& rules) {
    for (const int value :
         {rules.startMoney, rules.morePerSeat, rules.passingStart, rules.mostLottoBet, rules.toLiftMortgage,
          rules.fateEachPlayer, rules.fateFromBank, rules.mostDoubles, rules.alarmMinutes})
        mixer.Add(value);
    for (const auto& notes : {rules.printed, rules.printedForFew}) {
        for (const int count : notes)
            mixer.Add(count);
    }
}

} // namespace

QString Fingerprint(const PlaySet& set) {
    Mixer mixer;
    for (int space = 0; space < kSpaces; ++space) {
        const Deed& deed = set.deeds[space];
        for (const int value :
             {deed.price, deed.rent[0], deed.rent[1], deed.rent[2], deed.rent[3], deed.story, deed.mortgage})
            mixer.Add(value);
    }
    for (const auto& deck : set.news) {
        for (const NewsEffect& card : deck) {
            for (const int value : {int(card.kind), card.amount, card.most, card.space})
                mixer.Add(value);
        }
    }
    AddRules(mixer, set.rules);
    return mixer.Text();
}

} // namespace Simulator
