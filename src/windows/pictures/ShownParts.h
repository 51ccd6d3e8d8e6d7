// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureRef.h"

#include <QHash>
#include <QString>

class C_Image;

/// The parts of pictures that a piece has shown since its window was opened: a picture that is chosen again shows the
/// part that it showed before.
class ShownParts {
public:
    /// The piece is about to show another picture, or none.
    void Note(const PictureRef& shown);
    /// The picture noted last; empty for none.
    const PictureRef& Last() const { return m_last; }
    /// Gives an image the part that was noted of its picture; without one it stays as it is.
    void Restore(C_Image& image) const;

private:
    QHash<QString, PictureRef> m_parts;
    PictureRef m_last;
};
