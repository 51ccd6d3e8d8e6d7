// SPDX-License-Identifier: MIT
#include "kit/PhotosAhead.h"

#include "pictures/PaintPicture.h"
#include "platform/paint/PaintImage.h"
#include "platform/pictures/LoadPicture.h"

#include <algorithm>

namespace {

// Enough to keep the other processors at work; each takes some megabytes.
constexpr size_t kAhead = 3;

} // namespace

void SheetPhoto::Add(std::vector<SheetPhoto>& photos, const PictureRef& ref, double inches) {
    if (ref.IsEmpty() || ref.IsMetafile()) return;
    photos.push_back({ref.sPath, LongerSideWanted(ref, inches * kPaperDotsPerInch)});
}

PhotosAhead::PhotosAhead(const std::vector<std::vector<SheetPhoto>>& sheets) {
    for (size_t sheet = 0; sheet < sheets.size(); ++sheet) {
        for (const SheetPhoto& photo : sheets[sheet])
            m_photos.push_back({photo, sheet});
    }
    Foresee();
}

PhotosAhead::~PhotosAhead() {
    for (size_t i = 0; i < m_begun; ++i)
        DropPicture(m_photos[i].photo.sPath);
}

void PhotosAhead::Foresee() {
    for (; m_begun < std::min(kAhead, m_photos.size()); ++m_begun)
        PrefetchPicture(m_photos[m_begun].photo.sPath, m_photos[m_begun].photo.longerSideWanted);
}

void PhotosAhead::LetGo(const QString& sPath) {
    if (std::ranges::none_of(m_photos, [&](const Photo& wanted) { return wanted.photo.sPath == sPath; }))
        DropPicture(sPath);
}

void PhotosAhead::Drawn(const QString& sPath) {
    const auto drawn = std::ranges::find_if(
        m_photos, [&](const Photo& wanted) { return wanted.sheet == m_sheet && wanted.photo.sPath == sPath; });
    if (drawn == m_photos.end()) return;
    if (size_t(drawn - m_photos.begin()) < m_begun) --m_begun;
    m_photos.erase(drawn);
    LetGo(sPath);
    Foresee();
}

void PhotosAhead::SheetDone() {
    while (!m_photos.empty() && m_photos.front().sheet <= m_sheet) {
        const QString path = m_photos.front().photo.sPath;
        m_photos.pop_front();
        if (m_begun > 0) --m_begun;
        LetGo(path);
    }
    ++m_sheet;
    QSet<QString> wanted;
    for (const Photo& photo : m_photos)
        wanted.insert(photo.photo.sPath);
    ForgetPicturesBut(wanted);
    Foresee();
}
