// SPDX-License-Identifier: MIT
#include "simulator/PlaySetFiles.h"

#include "board/basPositRents.h"
#include "document/C_News.h"
#include "document/GameText.h"
#include "document/Locale.h"
#include "platform/files/Files.h"
#include "platform/files/TextFile.h"
#include "services/basPath.h"
#include "services/RecordText.h"

#include <bit>

namespace Simulator {
namespace {

std::optional<QByteArray> ReadFile(const QString& path, QString& error) {
    std::optional<QByteArray> bytes = Files::ReadAll(path, error);
    if (!bytes) error = QStringLiteral("'%1' can't be read: %2").arg(path, error);
    return bytes;
}

std::array<QString, kGroups> NamesOfGroups(const basPosit::RentTable& rents, const Deeds& deeds) {
    std::array<QString, kGroups> names;
    for (int group = 0; group < kGroups; ++group) {
        const SpaceSet spaces = deeds.Group(group);
        const QString& first = rents[std::size_t(std::countr_zero(spaces))].DefaultName;
        const QString& last = rents[std::size_t(std::bit_width(spaces) - 1)].DefaultName;
        names[std::size_t(group)] =
            first + (std::popcount(spaces) > 2 ? QStringLiteral(" to ") : QStringLiteral(", ")) + last;
    }
    return names;
}

std::optional<PlaySet> ReadDeeds(const PlaySetFiles& files, QString& error) {
    const std::optional<QByteArray> bytes = ReadFile(files.rents, error);
    if (!bytes) return std::nullopt;
    const basPosit::RentReading reading = basPosit::ReadRentRows(*bytes, files.kit, {});
    if (reading.IsWhole()) {
        const Deeds deeds(reading.rents, files.kit);
        return PlaySet{deeds, {}, {}, NamesOfGroups(reading.rents, deeds)};
    }
    error = QStringLiteral("Row %1 of the rents in '%2' can't be read.").arg(reading.iRows).arg(files.rents);
    return std::nullopt;
}

// The texts of records that begin at a line, each in one line of its own.
QStringList NamesAt(const QStringList& lines, int first, int count) {
    QStringList names;
    for (int i = 0; i < count; ++i) {
        QString rest = lines.value(first + i);
        basTAVL::GetQuotedField(rest);
        names.append(basTAVL::GetQuotedField(rest).simplified());
    }
    return names;
}

std::optional<NewsDecks> ReadNews(const QStringList& lines, QString& error) {
    const QStringList spaces = NamesAt(lines, GameLines::kSpaces, basTAVL::kSpaces);
    const QStringList corners = NamesAt(lines, GameLines::kCorners, basTAVL::kCorners);
    NewsDecks decks;
    int line = GameLines::kNews;
    for (auto& deck : decks) {
        for (NewsEffect& card : deck) {
            C_News record;
            record.SetQuotedString(lines.value(line++));
            const std::optional<NewsEffect> effect = ReadNewsCard(record.Text(), spaces, corners);
            if (!effect) {
                error = QStringLiteral("A news card tells nothing that can be played: '%1'.")
                            .arg(record.Text().simplified());
                return std::nullopt;
            }
            card = *effect;
        }
    }
    return decks;
}

std::optional<NewsDecks> ReadNewsOf(const QString& game, QString& error) {
    const std::optional<QByteArray> bytes = ReadFile(game, error);
    if (!bytes) return std::nullopt;
    if (!ReadGameHeader(*bytes).bIsGame) {
        error = QStringLiteral("'%1' is no game.").arg(game);
        return std::nullopt;
    }
    return ReadNews(TextFile::SplitLines(TextFile::Decode(*bytes)), error);
}

} // namespace

PlaySetFiles ShippedFiles(const QString& folder, Kit kit) {
    // As with the board, the other kits' rents have a column less and lie in a folder of their own.
    const QString rents = LiesBesideTheProgram(kit) ? folder : basCommon::JoinPath(folder, QStringLiteral("older"));
    return {basCommon::JoinPath(rents, QString::fromLatin1(Locale::kRents)),
            basCommon::JoinPath(folder, QString::fromLatin1(Locale::kDefaultGame)), kit};
}

std::optional<PlaySet> ReadPlaySet(const PlaySetFiles& files, QString& error) {
    std::optional<PlaySet> set = ReadDeeds(files, error);
    if (!set) return std::nullopt;
    const std::optional<NewsDecks> news = ReadNewsOf(files.game, error);
    if (!news) return std::nullopt;
    set->news = *news;
    return set;
}

} // namespace Simulator
