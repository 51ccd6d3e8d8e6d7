// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"
#include "pictures/PictureRef.h"
#include "pictures/TellOnce.h"

/// A picture and the piece of the game that shows it. A plain value.
struct OwnedPicture {
    PictureRef ref;
    PictureOwner owner;

    friend bool operator==(const OwnedPicture&, const OwnedPicture&) = default;

    /// What was told of the owner's pictures.
    TellOnce& Told() const { return TellOnce::About(owner); }
};
