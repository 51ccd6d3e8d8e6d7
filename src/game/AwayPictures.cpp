// SPDX-License-Identifier: MIT
#include "game/AwayPictures.h"

#include "game/PieceImages.h"
#include "pictures/PicturePlaces.h"
#include "services/basPath.h"

namespace {

// Where the picture lies now; empty where it is still away.
QString PlaceOf(const C_Image& image) {
    if (basCommon::DoesFileExist(image.FullPath())) return image.FullPath();
    const QString place = PicturePlaces::FullOf(image.RelativePath());
    return basCommon::DoesFileExist(place) ? place : QString();
}

} // namespace

bool AwayPictures::Look(Game& game) {
    bool back = false;
    QSet<QString> away;
    for (const PictureOwner& piece : PieceImages::Pieces()) {
        C_Image& image = PieceImages::Of(game, piece);
        const QString path = image.FullPath();
        if (path.isEmpty()) continue;
        const QString place = PlaceOf(image);
        if (place.isEmpty()) {
            away.insert(path);
            continue;
        }
        if (place == path && !m_away.contains(path)) continue;
        back = true;
        // Should it go away again, that is told again.
        image.Told().Note(TellOnce::Fault::Picture, QString());
        if (place != path) PieceImages::MoveTo(image, place);
    }
    m_away = away;
    return back;
}
