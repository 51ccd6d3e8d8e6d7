// SPDX-License-Identifier: MIT
#include "game/AwayPictures.h"

#include "document/Game.h"
#include "pictures/PicturePlaces.h"
#include "services/basPath.h"

#include <vector>

namespace {

// The corner whose face belongs to the kit has no picture of the user's.
std::vector<C_Image*> ImagesOf(Game& game) {
    std::vector<C_Image*> images;
    for (C_Space& space : game.spaces)
        images.push_back(&space.Image);
    for (C_Corner& corner : game.corners) {
        if (!corner.Image.Owner().IsFate()) images.push_back(&corner.Image);
    }
    for (C_Money& note : game.money)
        images.push_back(&note.FaceImage);
    for (C_Token& token : game.tokens)
        images.push_back(&token.Image);
    return images;
}

void MoveTo(C_Image& image, const QString& sPath) {
    const PictureRef before = image.Ref();
    image.Let_FullPath(sPath);
    image.Let_Zoom(before.iZoom);
    if (!before.IsCentered()) return;
    image.Let_XCenter(before.iXCenter);
    image.Let_YCenter(before.iYCenter);
}

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
    for (C_Image* image : ImagesOf(game)) {
        const QString path = image->FullPath();
        if (path.isEmpty()) continue;
        const QString place = PlaceOf(*image);
        if (place.isEmpty()) {
            away.insert(path);
            continue;
        }
        if (place == path && !m_away.contains(path)) continue;
        back = true;
        // Should it go away again, that is told again.
        image->Told().Note(TellOnce::Fault::Picture, QString());
        if (place != path) MoveTo(*image, place);
    }
    m_away = away;
    return back;
}
