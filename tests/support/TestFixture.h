// SPDX-License-Identifier: MIT
#pragma once

#include "support/ModalWatch.h"
#include "support/TestDesktop.h"

#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

/// A fresh My Games directory, fresh settings and a desktop that answers, for each test. No window that a test
/// doesn't expect hangs it.
class TavloraTest : public testing::Test {
protected:
    TavloraTest();
    ~TavloraTest() override;

    /// Full path of a file in the test's own folder.
    QString PathOf(const QString& sName) const;
    /// Writes a file into the test's own folder and gives its full path.
    QString WriteFile(const QString& sName, const QByteArray& bytes) const;
    static QByteArray ReadFile(const QString& sPath);

    TestDesktop desktop;
    QTemporaryDir folder;

private:
    ModalWatch m_watch;
};

/// Full path of a file or folder of the measured behaviour handed to the project; empty where it is absent,
/// so that a test can skip itself with a word.
QString SharedPath(const QString& sName);

inline void PrintTo(const QString& text, std::ostream* stream) { *stream << '"' << text.toStdString() << '"'; }
