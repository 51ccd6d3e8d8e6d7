// SPDX-License-Identifier: MIT
#include "PictureComparison.h"
#include "support/TestFixture.h"
#include "support/Work.h"

#include "platform/files/Files.h"
#include "platform/pictures/Metafile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <cstdio>

namespace {

constexpr int kSide = 256;
constexpr double kMostDifferingPercent = 3.0;
constexpr double kMostMissedShare = 0.05;

struct Case {
    QString name;
    QString use;
    QString png;
};

QList<Case> Cases(const QString& golden) {
    QString error;
    const auto bytes = Files::ReadAll(golden + QStringLiteral("/results.json"), error);
    QList<Case> cases;
    const QJsonObject all = QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
    for (auto entry = all.begin(); entry != all.end(); ++entry) {
        const QJsonObject values = entry.value().toObject();
        cases.append({entry.key(), values[QLatin1String("use")].toString(), values[QLatin1String("png")].toString()});
    }
    return cases;
}

QImage Played(const QString& path) {
    QImage picture(kSide, kSide, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QString error;
    const auto bytes = Files::ReadAll(path, error);
    const auto metafile = Metafile::FromBytes(bytes.value_or(QByteArray()), error);
    if (!metafile) return picture;
    QPainter painter(&picture);
    metafile->Play(painter, picture.rect());
    return picture;
}

} // namespace

class MetafileCorpusTest : public TavloraTest {};

// Prints the table of docs/metafiles.md on the way: run it with --gtest_filter=MetafileCorpusTest.*
TEST_F(MetafileCorpusTest, RealMetafilesLookAsExpected) {
    const QString corpus = SharedPath(QStringLiteral("corpus/wmf"));
    const QString golden = SharedPath(QStringLiteral("corpus/wmf_golden"));
    if (corpus.isEmpty() || golden.isEmpty()) GTEST_SKIP() << "the real metafiles are not on this machine";
    // A folder to put our pictures into, to look at them beside the expected ones.
    const QString keep = qEnvironmentVariable("TAVLORA_KEEP_PICTURES");
    int strict = 0;
    int missed = 0;
    for (const Case& each : Cases(golden)) {
        const QImage played = Played(corpus + u'/' + each.name);
        if (!keep.isEmpty()) played.save(keep + u'/' + each.name + QStringLiteral(".png"));
        if (each.png.isEmpty()) continue;
        const double percent = PictureComparison::DifferingPercent(played, QImage(golden + u'/' + each.png));
        std::printf("| %s | %s | %.2f |\n", qPrintable(each.name), qPrintable(each.use), percent);
        if (each.use != QStringLiteral("strict")) continue;
        ++strict;
        if (percent >= kMostDifferingPercent) ++missed;
    }
    EXPECT_GT(strict, 0);
    EXPECT_LE(missed, strict * kMostMissedShare) << missed << " of " << strict << " look different";
}

TEST_F(MetafileCorpusTest, NoRealMetafileTakesMoreWorkThanASecondHas) {
    const QString corpus = SharedPath(QStringLiteral("corpus/wmf"));
    if (corpus.isEmpty()) GTEST_SKIP() << "the real metafiles are not on this machine";
    const QStringList names = QDir(corpus).entryList({QStringLiteral("*.wmf")});
    for (const QString& name : names) {
        EXPECT_LT(Work::Of([&] { Played(corpus + u'/' + name); }), Work::kASecond) << qPrintable(name);
    }
}
