// SPDX-License-Identifier: MIT
#include "pictures/AwaitedPictures.h"

#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHead.h"

namespace {

// The one made last; painting is the main thread's alone.
AwaitedPictures*& Innermost() {
    static AwaitedPictures* innermost = nullptr;
    return innermost;
}

// In pixels. What is smaller is there within the blink of an eye, whatever its kind.
constexpr qint64 kDecodedAtOnce = 4'000'000;

bool IsLarge(const QString& sPath) {
    QString error;
    const std::optional<PictureHead> head = ReadPictureHead(sPath, error);
    return head && !head->bDrawing && qint64(head->size.width()) * head->size.height() > kDecodedAtOnce;
}

} // namespace

AwaitedPictures::AwaitedPictures() : m_outer(Innermost()) { Innermost() = this; }

AwaitedPictures::~AwaitedPictures() {
    Innermost() = m_outer;
    if (m_outer) m_outer->m_bAny = m_outer->m_bAny || m_bAny;
}

bool AwaitedPictures::TakesLong(const QString& sPath, int longerSideWanted) {
    return !PrefetchPicture(sPath, longerSideWanted) && IsLarge(sPath);
}

bool AwaitedPictures::LeavesOut(const QString& sPath, int longerSideWanted) {
    if (!Innermost() || !TakesLong(sPath, longerSideWanted)) return false;
    Innermost()->m_bAny = true;
    return true;
}
