// SPDX-License-Identifier: MIT
#include "pictures/PictureOwner.h"

#include "services/BoardFacts.h"

#include <algorithm>
#include <array>

namespace {

struct NamedKind {
    PictureOwner::Kind kind;
    const char* sName;
};
constexpr std::array<NamedKind, 4> kNames{{{PictureOwner::Kind::Space, "Space"},
                                           {PictureOwner::Kind::Corner, "Corner"},
                                           {PictureOwner::Kind::Money, "Money"},
                                           {PictureOwner::Kind::Token, "Token"}}};

constexpr int kFirstCornerOrient = BoardFacts::kSides;

} // namespace

PictureOwner::Kind PictureOwner::KindOf(const QString& sName) {
    if (sName.isEmpty()) return Kind::None;
    const auto found = std::find_if(kNames.begin(), kNames.end(),
                                    [&sName](const NamedKind& named) { return sName == QLatin1String(named.sName); });
    return found == kNames.end() ? Kind::Unknown : found->kind;
}

QString PictureOwner::KindName() const {
    const auto found =
        std::find_if(kNames.begin(), kNames.end(), [this](const NamedKind& named) { return kind == named.kind; });
    return found == kNames.end() ? QString() : QString::fromLatin1(found->sName);
}

bool PictureOwner::IsFate() const { return kind == Kind::Corner && iNumber == BoardFacts::kFateCorner; }

qint16 PictureOwner::Orient() const {
    if (kind == Kind::Space) return qint16(iNumber / BoardFacts::kSpacesPerSide);
    if (kind == Kind::Corner) return qint16(iNumber + kFirstCornerOrient);
    return 0;
}
