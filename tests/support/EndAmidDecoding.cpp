// SPDX-License-Identifier: MIT
// Ends an application while many large pictures are being decoded. The threads that decode must be done by
// then: whoever outlives the application meets a toolkit that is half gone.
#include "platform/pictures/LoadPicture.h"
#include "support/PictureFiles.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kPictures = 24;
// Small enough that all of them are kept.
constexpr int kLongerSide = 1000;

QStringList LargePictures(const QString& sFolder) {
    const QByteArray bytes = PictureFiles::Encoded(PictureFiles::Quarters(3000, 2000), "jpg");
    QStringList paths;
    for (int i = 0; i < kPictures; ++i) {
        paths.append(QStringLiteral("%1/%2.jpg").arg(sFolder).arg(i));
        QFile file(paths.constLast());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return {};
    }
    return paths;
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir folder;
    QStringList paths;
    {
        const QGuiApplication application(argc, argv);
        paths = LargePictures(folder.path());
        for (const QString& path : paths)
            PrefetchPicture(path, kLongerSide);
    }
    // One that is neither decoded nor answered would still have to be waited for.
    const auto open =
        std::count_if(paths.begin(), paths.end(), [](const QString& p) { return !PrefetchPicture(p, kLongerSide); });
    std::printf("%d pictures, %d of them not answered at the end\n", int(paths.size()), int(open));
    return paths.size() == kPictures && open == 0 ? 0 : 1;
}
