// SPDX-License-Identifier: MIT
#include "platform/pictures/InkProfile.h"

#include <QImage>

#include <lcms2.h>

#include <memory>
#include <type_traits>

namespace {

// Any thread may decode a picture, and without a context of its own the library would share its state among them.
using Context = std::unique_ptr<std::remove_pointer_t<cmsContext>, decltype(&cmsDeleteContext)>;
using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;
using Transform = std::unique_ptr<void, decltype(&cmsDeleteTransform)>;

} // namespace

bool ToScreenByInkProfile(QImage& image, bool inverted, const QByteArray& profile) {
    if (profile.isEmpty()) return false;
    const Context context(cmsCreateContext(nullptr, nullptr), cmsDeleteContext);
    const Profile inks(cmsOpenProfileFromMemTHR(context.get(), profile.constData(), cmsUInt32Number(profile.size())),
                       cmsCloseProfile);
    if (!inks || cmsGetColorSpace(inks.get()) != cmsSigCmykData) return false;
    const Profile screen(cmsCreate_sRGBProfileTHR(context.get()), cmsCloseProfile);
    // The darkest that inks can print becomes the black of the screen, as in every program that shows photos.
    const Transform transform(cmsCreateTransformTHR(context.get(), inks.get(), inverted ? TYPE_CMYK_8_REV : TYPE_CMYK_8,
                                                    screen.get(), TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC,
                                                    cmsFLAGS_BLACKPOINTCOMPENSATION),
                              cmsDeleteTransform);
    if (!transform) return false;
    for (int y = 0; y < image.height(); ++y) {
        uchar* const row = image.scanLine(y);
        cmsDoTransform(transform.get(), row, row, cmsUInt32Number(image.width()));
        auto* const pixels = reinterpret_cast<QRgb*>(row);
        // Where the black ink was, there is nothing to see through.
        for (int x = 0; x < image.width(); ++x)
            pixels[x] |= 0xFF000000U;
    }
    return true;
}
