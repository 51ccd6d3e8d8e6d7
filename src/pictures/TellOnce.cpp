// SPDX-License-Identifier: MIT
#include "pictures/TellOnce.h"

#include "services/basMsgQueue.h"

#include <unordered_map>

namespace {

struct HashOfOwner {
    size_t operator()(const PictureOwner& owner) const { return qHash(owner); }
};

std::unordered_map<PictureOwner, TellOnce, HashOfOwner>& All() {
    static std::unordered_map<PictureOwner, TellOnce, HashOfOwner> all;
    return all;
}

} // namespace

TellOnce& TellOnce::About(const PictureOwner& owner) { return All()[owner]; }

void TellOnce::ForgetAll() { All().clear(); }

void TellOnce::Tell(Fault fault, const QString& sPath, const QString& sText, int iStyle) {
    if (WasTold(fault, sPath)) return;
    // First, as what is painted behind the box comes here again.
    Note(fault, sPath);
    basMsgQueue::MsgQueue_Post(sText, iStyle);
}
