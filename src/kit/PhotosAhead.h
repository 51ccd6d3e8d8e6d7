// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <deque>
#include <vector>

struct PictureRef;

/// A picture file on a sheet, and how large its longer side is wanted: see LoadPicture.
struct SheetPhoto {
    QString sPath;
    int longerSideWanted;

    /// A part of a picture that fills a square of so many inches, as paper shows it; nothing in the list for a piece
    /// without one.
    static void Add(std::vector<SheetPhoto>& photos, const PictureRef& ref, double inches);
};

/// The photographs of the sheets to come: a few are decoded ahead on other processors while others are drawn, and each
/// is let go as soon as no piece to come shows it, so that a kit of photographs needs little more room than a sheet.
class PhotosAhead {
public:
    /// Those of each sheet, in the order in which they are printed.
    explicit PhotosAhead(const std::vector<std::vector<SheetPhoto>>& sheets);
    ~PhotosAhead();
    PhotosAhead(const PhotosAhead&) = delete;
    PhotosAhead& operator=(const PhotosAhead&) = delete;

    /// A piece of the sheet at work has been drawn with it.
    void Drawn(const QString& sPath);
    /// The sheet at work is done; with it goes what was drawn for its pieces.
    void SheetDone();
    /// Photographs that are still wanted.
    size_t Wanted() const { return m_photos.size(); }

private:
    struct Photo {
        SheetPhoto photo;
        size_t sheet;
    };
    void Foresee();
    void LetGo(const QString& sPath);

    std::deque<Photo> m_photos;
    /// How many of the first have been begun.
    size_t m_begun = 0;
    size_t m_sheet = 0;
};
