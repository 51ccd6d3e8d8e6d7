// SPDX-License-Identifier: MIT
#include "support/TestFixture.h"

#include "pictures/PictureMiddle.h"
#include "pictures/TellOnce.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/files/TemporaryPlaces.h"
#include "services/ProgramSettings.h"

#include <QFile>
#include <QFileInfo>

TavloraTest::TavloraTest() {
    Settings() = ProgramSettings{};
    Settings().sMyGamesDirectory = folder.path();
    Folders::SetProgramDirectory(QStringLiteral(TAVLORA_DATA_DIR));
    TemporaryPlaces::Pretend(PathOf(QStringLiteral("gone tomorrow")));
}

TavloraTest::~TavloraTest() {
    TellOnce::ForgetAll();
    PictureMiddle::ForgetAll();
    ThumbnailStore::Instance().ForgetAll();
    ThumbnailMaker::Install(nullptr);
    Files::SetFaultHook({});
    Folders::SetProgramDirectory({});
    TemporaryPlaces::Pretend({});
    Settings() = ProgramSettings{};
}

QString TavloraTest::PathOf(const QString& sName) const { return folder.filePath(sName); }

QString TavloraTest::WriteFile(const QString& sName, const QByteArray& bytes) const {
    const QString path = PathOf(sName);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    file.write(bytes);
    return path;
}

QByteArray TavloraTest::ReadFile(const QString& sPath) {
    QFile file(sPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString SharedPath(const QString& sName) {
    const QString root = qEnvironmentVariable("TAVLORA_SHARED", QStringLiteral(TAVLORA_SHARED_DIR));
    const QFileInfo info(root + u'/' + sName);
    return info.exists() ? info.absoluteFilePath() : QString();
}
