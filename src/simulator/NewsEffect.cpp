// SPDX-License-Identifier: MIT
#include "simulator/NewsEffect.h"

#include <QRegularExpression>

namespace Simulator {
namespace {

using Kind = NewsEffect::Kind;

const QStringList kNumbers = {QStringLiteral("no"),    QStringLiteral("one"),  QStringLiteral("two"),
                              QStringLiteral("three"), QStringLiteral("four"), QStringLiteral("five"),
                              QStringLiteral("six"),   QStringLiteral("seven")};

class CardReader {
public:
    CardReader(const QString& text, const QStringList& spaces, const QStringList& corners)
        : m_text(text.simplified()), m_spaces(spaces), m_corners(corners) {}

    std::optional<NewsEffect> Read() {
        // Going somewhere comes first: what such a card pays is paid by the place.
        if (const std::optional<NewsEffect> going = Going()) return going;
        if (Says("take another turn")) return NewsEffect{Kind::AgainNow};
        if (Says("miss your next turn") || Says("lose your next turn")) return NewsEffect{Kind::MissesNextTurn};
        ReadAmounts();
        if (m_amounts.isEmpty()) return std::nullopt;
        return Says("pay ") || Says("give back") || Says("put $") ? Paying() : Collecting();
    }

private:
    bool Says(const char* words) const { return m_text.contains(QString::fromLatin1(words), Qt::CaseInsensitive); }

    std::optional<NewsEffect> Going() const {
        static const QRegularExpression move(QStringLiteral("(move ahead|go back) (\\w+) spaces?"),
                                             QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch found = move.match(m_text);
        const int spaces = int(kNumbers.indexOf(found.captured(2).toLower()));
        if (spaces > 0)
            return NewsEffect{Kind::Move, found.captured(1).startsWith(u'g') || found.captured(1).startsWith(u'G')
                                              ? -spaces
                                              : spaces};
        const QString place = PlaceNamed();
        if (place.isEmpty()) return std::nullopt;
        if (place == m_corners.value(0)) return NewsEffect{Kind::ToStart};
        if (place == m_corners.value(1)) return NewsEffect{Kind::ToLoseTurn};
        return NewsEffect{Kind::ToSpace, 0, 0, int(m_spaces.indexOf(place))};
    }

    // The place that the card sends to; empty where it sends nowhere.
    QString PlaceNamed() const {
        for (const QString& place : m_corners.mid(0, 2) + m_spaces) {
            if (place.trimmed().isEmpty()) continue;
            for (const char* way : {"straight to ", "ahead to ", "go to "}) {
                if (m_text.contains(QString::fromLatin1(way) + place, Qt::CaseInsensitive)) return place;
            }
        }
        return {};
    }

    void ReadAmounts() {
        static const QRegularExpression amount(QStringLiteral("\\$([0-9][0-9,]*)"));
        for (auto found = amount.globalMatch(m_text); found.hasNext();)
            m_amounts.append(found.next().captured(1).remove(u',').toInt());
    }

    NewsEffect Paying() const {
        NewsEffect effect{Kind::ToBank, m_amounts.first()};
        if (Says("to each player")) effect.kind = Kind::ToEach;
        if (Says("for each of your building stories")) effect.kind = Kind::PerStory;
        if (Says("for each deed")) effect.kind = Kind::PerDeed;
        if (Says("at most") && m_amounts.size() > 1) effect.most = m_amounts.last();
        return effect;
    }

    NewsEffect Collecting() const {
        NewsEffect effect{Kind::FromBank, m_amounts.first()};
        if (Says("from each")) effect.kind = Kind::FromEach;
        if (Says("player on your left")) effect.kind = Kind::FromLeft;
        return effect;
    }

    QString m_text;
    const QStringList& m_spaces;
    const QStringList& m_corners;
    QList<int> m_amounts;
};

} // namespace

std::optional<NewsEffect> ReadNewsCard(const QString& text, const QStringList& spaces, const QStringList& corners) {
    return CardReader(text, spaces, corners).Read();
}

} // namespace Simulator
