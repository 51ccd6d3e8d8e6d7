// SPDX-License-Identifier: MIT
#pragma once

#include "support/FileFixture.h"
#include "support/PdfReader.h"
#include "tools/PrintCommand.h"

#include <sstream>

/// Sheets for plain paper and card, printed as a user of the command line does.
class NoKitFixture : public GameFileTest {
protected:
    NoKitFixture() { QDir(folder.path()).mkdir(QStringLiteral("out")); }

    int Run(const QStringList& words) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        const int status = PrintCommand(outStream, errStream, false).Run(words);
        out = QString::fromStdString(outStream.str());
        errors = QString::fromStdString(errStream.str());
        return status;
    }
    /// With the sample game and all the data that the program is installed with.
    int RunWithFamily(const QStringList& options) {
        return Run(QStringList{kFamily, QStringLiteral("--data"), kData} + options);
    }
    /// Sheets of the sample game; the path of the file.
    QString Print(const QString& name, const QString& options) {
        const QString pdf = PathOf(QStringLiteral("out/") + name);
        const QStringList words = options.split(u' ', Qt::SkipEmptyParts);
        EXPECT_EQ(RunWithFamily(QStringList{QStringLiteral("--no-kit"), QStringLiteral("-o"), pdf} + words), 0)
            << errors.toStdString();
        return pdf;
    }

    const QString kData = QStringLiteral(TAVLORA_DATA_DIR);
    const QString kFamily = kData + QStringLiteral("/Family_US.gam");
    QString out;
    QString errors;
};
