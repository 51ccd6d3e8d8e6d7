// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/OwnedPicture.h"
#include "platform/files/Files.h"
#include "platform/paint/Picture.h"

#include <QHash>
#include <QSize>

/// Makes the thumbnail files of images. frmBMP does it, which stands above the image and is installed at
/// start-up. Success is that the file exists afterwards; failures of the picture are told by the image.
class ThumbnailMaker {
public:
    virtual ~ThumbnailMaker() = default;
    virtual void CreateThumbRotatedTo90(const OwnedPicture& objImage) = 0;
    virtual void CreateThumbRotatedTo45(const OwnedPicture& objImage) = 0;
    virtual void CreateThumbElliptical(const OwnedPicture& objImage, bool bGray) = 0;
    /// What the rotated thumbnail shows, lSide pixels square, without a file. Null where there is nothing.
    virtual Picture RenderRotated(const OwnedPicture& objImage, int lSide) = 0;

    /// Called when the first thumbnail is wanted.
    using Creator = ThumbnailMaker& (*)();
    /// Returns the creator that it replaces.
    static Creator Install(Creator creator);
    static ThumbnailMaker& Current();
};

/// The small bitmap files that the board pastes, one for each piece of the game with a picture. The records know
/// nothing of them: what a file was made of is kept here, and a file whose piece shows something else by now is made
/// anew when it is wanted next.
class ThumbnailStore {
public:
    static ThumbnailStore& Instance();

    /// In pixels.
    static QSize SizeOf(PictureOwner::Kind kind);
    static int LongerSideOf(PictureOwner::Kind kind);
    /// Complete path of the file of a piece. Raises for what is none.
    static QString PathOf(const PictureOwner& owner);
    /// True where that very file was chosen for the piece's picture. It can't be made anew then, and stays.
    static bool ShowsItsOwn(const OwnedPicture& image);

    /// True when the file has to be made before it shows the image: its picture has another path, zoom, centre or
    /// time stamp than the one that it was made of, or is younger; or nobody knows what it was made of; or it was
    /// replaced since. That another run left it there proves nothing, as it may be of another game.
    bool IsStale(const OwnedPicture& image) const;
    /// True when the disk took no file: what lies there, if anything, shows another picture. It isn't tried again
    /// for the same picture.
    bool IsRefused(const PictureOwner& owner) const;
    /// Starts decoding on another processor where the file has to be made first. True when it needn't.
    bool Prefetch(const OwnedPicture& image) const;
    /// Path of an up-to-date file, made if need be; empty without a picture. A missing picture is told, and its own
    /// path is the answer.
    QString Fetch(const OwnedPicture& image);
    /// Deletes the file, unless it is one of the user's; a failure is told, once for each file, and passed over.
    void Delete(const PictureOwner& owner);
    /// Deletes what was made for a piece that has no picture any more.
    void DropUnused(const PictureOwner& owner);

    /// For tests: nothing was made yet.
    void ForgetAll() { m_made.clear(); }

private:
    void BringUpToDate(const OwnedPicture& image);

    struct Origin {
        PictureRef picture;
        Files::Stamp stamp;
        /// Of the file that was made. Another one of its name isn't ours.
        Files::Stamp thumbnail;
        bool bOnDisk = false;
    };

    QHash<PictureOwner, Origin> m_made;
};
