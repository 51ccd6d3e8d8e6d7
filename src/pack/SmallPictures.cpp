// SPDX-License-Identifier: MIT
#include "pack/SmallPictures.h"

#include "drawing/basBMP.h"
#include "pack/PackNames.h"
#include "pictures/PaintPicture.h"
#include "platform/pictures/ShrinkPicture.h"
#include "services/RecordText.h"

#include <algorithm>

namespace SmallPictures {
namespace {

// Sides of the largest squares that the kits print pictures in, in inches, a little more than they measure.
double InchesOf(PictureOwner::Kind kind) {
    constexpr double kSpace = 1.5;
    constexpr double kCorner = 2.125;
    constexpr double kNote = 2.0;
    constexpr double kToken = 1.0;
    switch (kind) {
        case PictureOwner::Kind::Space:
            return kSpace;
        case PictureOwner::Kind::Money:
            return kNote;
        case PictureOwner::Kind::Token:
            return kToken;
        default:
            return kCorner;
    }
}

// The name with the ending of what the file is from here on, if no other has it.
QString Renamed(const QString& sEntry, const QString& sEnding, const Packing::Contents& contents) {
    const qsizetype point = sEntry.lastIndexOf(u'.');
    const QString wanted = (point > 0 ? sEntry.left(point) : sEntry) + sEnding;
    const auto bears = [&wanted](const Packing::Picture& picture) {
        return PackNames::Key(picture.sEntry) == PackNames::Key(wanted);
    };
    return std::any_of(contents.pictures.begin(), contents.pictures.end(), bears) ? sEntry : wanted;
}

// A place of the picture in the smaller one; 0 would mean that nobody has centred it.
qint16 Moved(qint16 place, double factor) {
    const qint16 moved = basTAVL::CInt(place * factor);
    return place != 0 && moved == 0 ? qint16(1) : moved;
}

} // namespace

void MakeOne(Packing::Contents& contents, int iPicture) {
    Packing::Picture& picture = contents.pictures[iPicture];
    // White of a drawing of one bit lets what is beneath show through; no photo does.
    if (basBMP::IsMonochromeBMP(picture.sPath)) return;
    const std::optional<SmallerPicture> smaller = ShrinkPicture(picture.sPath, SideNeeded(picture.users));
    if (!smaller) return;
    picture.smaller = smaller->bytes;
    picture.sEntry = Renamed(picture.sEntry, smaller->sEnding, contents);
    for (GamePictures::Named& user : picture.users) {
        user.ref.sPath = picture.sEntry;
        user.ref.iXCenter = Moved(user.ref.iXCenter, smaller->factor);
        user.ref.iYCenter = Moved(user.ref.iYCenter, smaller->factor);
        GamePictures::Put(contents.lines, user);
    }
}

int SideNeeded(const QList<GamePictures::Named>& users) {
    int side = 0;
    for (const GamePictures::Named& user : users)
        side = std::max(side, LongerSideWanted(user.ref, InchesOf(user.owner.kind) * kDpi));
    return side;
}

bool Make(Packing::Contents& contents, const Packing::Progress& progress) {
    constexpr int kWhole = 1000;
    const int count = int(contents.pictures.size());
    for (int i = 0; i < count; ++i) {
        if (progress && !progress(i * kWhole / count)) return false;
        MakeOne(contents, i);
    }
    return true;
}

} // namespace SmallPictures
