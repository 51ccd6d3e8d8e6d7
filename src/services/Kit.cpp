// SPDX-License-Identifier: MIT
#include "services/Kit.h"

#include "services/ProgramSettings.h"

namespace {

struct Variant {
    Kit kit;
    const char* sName;
};
constexpr Variant kVariants[] = {{Kit::Two, "2"}, {Kit::TwoA, "2A"}, {Kit::Five, "5"}, {Kit::Eight, "8"}};

} // namespace

Kit KitOf(const QString& sVariant) {
    for (const Variant& variant : kVariants) {
        if (sVariant == QLatin1String(variant.sName)) return variant.kit;
    }
    return Kit::Unknown;
}

Kit KitInUse() { return KitOf(Settings().sGameVersion); }

QString VariantOf(Kit kit) {
    for (const Variant& variant : kVariants) {
        if (kit == variant.kit) return QString::fromLatin1(variant.sName);
    }
    return {};
}
