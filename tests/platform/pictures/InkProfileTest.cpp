// SPDX-License-Identifier: MIT
// Photos in four inks, with a profile of their own that says which colours those are.
#include "platform/pictures/InkProfile.h"

#include "platform/pictures/JpegMarkers.h"
#include "platform/pictures/LoadPicture.h"
#include "support/TestFixture.h"

#include <lcms2.h>
#include <turbojpeg.h>

#include <QColor>
#include <QImage>

#include <array>
#include <memory>

namespace {

// A press whose first ink prints pure red, the second green, the third blue, and the last one black; D50, as profiles
// want it.
constexpr std::array<cmsCIELab, 3> kPrinted = {{{54.3, 80.8, 69.9}, {87.8, -79.3, 81.0}, {29.6, 68.3, -112.0}}};
constexpr cmsCIELab kPaper = {100, 0, 0};

cmsInt32Number StrangeInks(const cmsUInt16Number in[], cmsUInt16Number out[], void*) {
    constexpr double kMost = 65535;
    cmsCIELab color = kPaper;
    for (size_t ink = 0; ink < kPrinted.size(); ++ink) {
        const double share = in[ink] / kMost;
        color.L += share * (kPrinted[ink].L - kPaper.L);
        color.a += share * kPrinted[ink].a;
        color.b += share * kPrinted[ink].b;
    }
    const double light = 1 - in[3] / kMost;
    color = {std::max(0.0, color.L) * light, color.a * light, color.b * light};
    cmsFloat2LabEncodedV2(out, &color);
    return 1;
}

QByteArray StrangePress() {
    const std::unique_ptr<void, decltype(&cmsCloseProfile)> profile(cmsCreateProfilePlaceholder(nullptr),
                                                                    cmsCloseProfile);
    cmsSetProfileVersion(profile.get(), 2.1);
    cmsSetDeviceClass(profile.get(), cmsSigOutputClass);
    cmsSetColorSpace(profile.get(), cmsSigCmykData);
    cmsSetPCS(profile.get(), cmsSigLabData);
    const std::unique_ptr<cmsPipeline, decltype(&cmsPipelineFree)> table(cmsPipelineAlloc(nullptr, 4, 3),
                                                                         cmsPipelineFree);
    cmsStage* const stage = cmsStageAllocCLut16bit(nullptr, 7, 4, 3, nullptr);
    cmsStageSampleCLut16bit(stage, StrangeInks, nullptr, 0);
    cmsPipelineInsertStage(table.get(), cmsAT_END, stage);
    cmsWriteTag(profile.get(), cmsSigAToB0Tag, table.get());
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    QByteArray bytes(qsizetype(size), '\0');
    EXPECT_TRUE(cmsSaveProfileToMem(profile.get(), bytes.data(), &size));
    return bytes;
}

// As every program writes four inks: 255 is none. One colour all over.
QByteArray FourInkJpeg(const std::array<int, 4>& inks) {
    constexpr int kSide = 32;
    QByteArray pixels;
    for (int i = 0; i < kSide * kSide; ++i) {
        for (const int ink : inks)
            pixels.append(char(255 - ink));
    }
    const std::unique_ptr<void, int (*)(void*)> handle(tjInitCompress(), &tjDestroy);
    unsigned char* out = nullptr;
    unsigned long size = 0;
    tjCompress2(handle.get(), reinterpret_cast<const unsigned char*>(pixels.constData()), kSide, 0, kSide, TJPF_CMYK,
                &out, &size, TJSAMP_444, 100, 0);
    const QByteArray jpeg(reinterpret_cast<const char*>(out), qsizetype(size));
    tjFree(out);
    return jpeg;
}

// In one segment behind the start mark.
QByteArray WithProfile(const QByteArray& jpeg, const QByteArray& profile) {
    const QByteArray body = QByteArray("ICC_PROFILE\0\1\1", 14) + profile;
    const qsizetype length = body.size() + 2;
    EXPECT_LT(length, 65536);
    return jpeg.first(2) + "\xFF\xE2" + char(length >> 8) + char(length & 255) + body + jpeg.sliced(2);
}

class InkProfileTest : public TavloraTest {
protected:
    InkProfileTest() { ForgetPictures(); }
    QColor Shown(const QByteArray& jpeg, int wanted = kAllPixels) {
        QString error;
        const Picture picture =
            LoadPicture(WriteFile(QStringLiteral("ink %1.jpg").arg(m_files++), jpeg), error, wanted);
        EXPECT_FALSE(picture.IsNull()) << error.toStdString();
        return picture.IsNull() ? QColor() : picture.Image().pixelColor(picture.Image().rect().center());
    }
    static bool IsNear(const QColor& a, const QColor& b) {
        return std::abs(a.red() - b.red()) < 25 && std::abs(a.green() - b.green()) < 25 &&
               std::abs(a.blue() - b.blue()) < 25 && a.alpha() == b.alpha();
    }
    int m_files = 0;
};

TEST_F(InkProfileTest, InksMeanWhatTheProfileOfThePhotoSays) {
    const QByteArray profile = StrangePress();
    const struct {
        std::array<int, 4> inks;
        QColor withProfile;
        QColor without;
    } rows[] = {{{255, 0, 0, 0}, Qt::red, Qt::cyan},
                {{0, 255, 0, 0}, Qt::green, Qt::magenta},
                {{0, 0, 0, 0}, Qt::white, Qt::white},
                {{0, 0, 0, 255}, Qt::black, Qt::black}};
    for (const auto& row : rows) {
        const QByteArray jpeg = FourInkJpeg(row.inks);
        const QColor with = Shown(WithProfile(jpeg, profile));
        EXPECT_TRUE(IsNear(with, row.withProfile)) << with.name().toStdString();
        const QColor reduced = Shown(WithProfile(jpeg, profile), 8);
        EXPECT_TRUE(IsNear(reduced, row.withProfile)) << "shrunk while it is decoded: " << reduced.name().toStdString();
        const QColor without = Shown(jpeg);
        EXPECT_TRUE(IsNear(without, row.without)) << without.name().toStdString();
    }
}

TEST_F(InkProfileTest, WhatIsNoProfileOfFourInksChangesNothing) {
    const QByteArray press = StrangePress();
    const std::unique_ptr<void, decltype(&cmsCloseProfile)> light(cmsCreate_sRGBProfile(), cmsCloseProfile);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(light.get(), nullptr, &size);
    QByteArray ofLight(qsizetype(size), '\0');
    cmsSaveProfileToMem(light.get(), ofLight.data(), &size);
    for (const QByteArray& profile : {QByteArray("no profile"), press.first(200), ofLight, QByteArray()}) {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(0x11223344);
        const QImage before = image.copy();
        EXPECT_FALSE(ToScreenByInkProfile(image, true, profile)) << profile.size();
        EXPECT_EQ(image, before);
    }
    const QColor shown = Shown(WithProfile(FourInkJpeg({255, 0, 0, 0}), press.first(200)));
    EXPECT_TRUE(IsNear(shown, Qt::cyan)) << "the photo shows all the same: " << shown.name().toStdString();
}

} // namespace
