// SPDX-License-Identifier: MIT
#include "game/DealtPhotos.h"

#include "document/TextLines.h"
#include "game/DroppedPictures.h"
#include "game/PieceImages.h"
#include "services/basPath.h"
#include "services/BoardFacts.h"

#include <QCollator>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <random>

namespace DealtPhotos {
namespace {

using Kind = PictureOwner::Kind;

const QString kNewLineOfNames = QStringLiteral("\r\n");

// What cameras, telephones and programs put ahead of their numbers.
const QStringList kCameraWords =
    QStringLiteral(
        "img image dsc dscn dscf dscx p pxl mvimg pict picture pic sam gopr wp screenshot photo foto bild whatsapp"
        " wa at am pm scan unnamed download signal copy edited hdr burst cover pano vid telegram fb imgp cimg")
        .split(u' ');

// "IMG" of "IMG2041"; empty for a number.
QString LettersOf(const QString& sWord) {
    QString letters = sWord;
    static const QRegularExpression digits(QStringLiteral("[0-9]+"));
    return letters.remove(digits);
}

// Names as programs make them up, "3f2a9c01be".
bool IsMadeUp(const QString& sWord) {
    static const QRegularExpression hex(QStringLiteral("^(?=.*[0-9])[0-9a-fA-F]{6,}$"));
    return hex.match(sWord).hasMatch();
}

bool IsOfPerson(const QString& sWord) {
    const QString letters = LettersOf(sWord).toLower();
    return letters.size() > 1 && !kCameraWords.contains(letters) && !IsMadeUp(sWord);
}

// "20230714", which says a day and no name.
bool IsDate(const QString& sWord) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]{5,}$"));
    return digits.match(sWord).hasMatch();
}

QString Capitalized(const QString& sWord) { return sWord.left(1).toUpper() + sWord.mid(1); }

// Long names stand better in several lines than in one of tiny letters.
QString InLines(const QString& sName) {
    constexpr qsizetype kGoodLine = 10;
    QStringList lines;
    for (const QString& word : sName.split(u' ')) {
        const bool joins = !lines.isEmpty() && lines.last().size() + 1 + word.size() <= kGoodLine;
        if (joins || lines.size() == TextLines::kMaxLines) {
            lines.last() += u' ' + word;
        } else {
            lines.append(word);
        }
    }
    return lines.join(kNewLineOfNames);
}

} // namespace

void Sort(std::vector<Photo>& photos, Order order, quint32 iSeed) {
    // Of some language: that of no language knows no numbers.
    QCollator names{QLocale(QLocale::English)};
    names.setCaseSensitivity(Qt::CaseInsensitive);
    names.setNumericMode(true);
    // Ahead of the others too: what they leave as it is stays so, whatever was chosen before.
    std::stable_sort(photos.begin(), photos.end(),
                     [&](const Photo& a, const Photo& b) { return names.compare(a.sFile, b.sFile) < 0; });
    if (order == Order::DateTaken) {
        std::stable_sort(photos.begin(), photos.end(),
                         [](const Photo& a, const Photo& b) { return a.iTaken < b.iTaken; });
    } else if (order == Order::Shuffled) {
        std::mt19937 dice(iSeed);
        std::shuffle(photos.begin(), photos.end(), dice);
    }
}

std::vector<PictureOwner> FreePlaces(const Game& game, bool bCorners) {
    std::vector<PictureOwner> places;
    const auto add = [&](const PictureOwner& place) {
        if (DroppedPictures::Takes(place) && PieceImages::Of(game, place).FullPath().isEmpty()) places.push_back(place);
    };
    for (int i = 0; i < PieceImages::CountOf(Kind::Space); ++i) {
        // A side begins behind its corner.
        if (bCorners && i % BoardFacts::kSpacesPerSide == 0)
            add({Kind::Corner, qint16(i / BoardFacts::kSpacesPerSide)});
        add({Kind::Space, qint16(i)});
    }
    return places;
}

std::vector<int> Dealt(const std::vector<Photo>& photos, int iPlaces) {
    std::vector<int> dealt;
    dealt.reserve(photos.size());
    int next = 0;
    for (const Photo& photo : photos)
        dealt.push_back(photo.bLeftOut || next == iPlaces ? -1 : next++);
    return dealt;
}

QString NameOf(const QString& sFile) {
    QString drive, dir, base, ext;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    static const QRegularExpression copyMark(QStringLiteral("\\s*\\([0-9]+\\)"));
    static const QRegularExpression between(QStringLiteral("[\\s_.+~-]+"));
    QStringList words = base.remove(copyMark).split(between, Qt::SkipEmptyParts);
    words.removeIf(IsDate);
    if (std::none_of(words.begin(), words.end(), IsOfPerson)) return {};
    std::transform(words.begin(), words.end(), words.begin(), Capitalized);
    return words.join(u' ').left(TextLines::kMaxLastLine);
}

Edit Deal(const Game& game, const std::vector<Photo>& photos, const std::vector<PictureOwner>& places, bool bNames) {
    const std::vector<int> dealt = Dealt(photos, int(places.size()));
    Edit edit{QString(), game};
    int count = 0;
    for (size_t i = 0; i < photos.size(); ++i) {
        if (dealt[i] < 0) continue;
        const PictureOwner& place = places[size_t(dealt[i])];
        const QString name = bNames && place.kind == Kind::Space ? NameOf(photos[i].sFile) : QString();
        DroppedPictures::GivePicture(edit.after, place, photos[i].sFile);
        if (!name.isEmpty()) edit.after.spaces[size_t(place.iNumber)].SetText(InLines(name));
        ++count;
    }
    edit.sName = count == 1 ? QStringLiteral("One Dealt Photo") : QStringLiteral("%1 Dealt Photos").arg(count);
    return edit;
}

} // namespace DealtPhotos
