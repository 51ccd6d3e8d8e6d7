// SPDX-License-Identifier: MIT
#include "platform/files/Console.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

void TellFatalOnly(QtMsgType type, const QMessageLogContext&, const QString& sText) {
    if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qUtf8Printable(sText));
}

} // namespace

namespace Console {

void SilenceToolkit() { qInstallMessageHandler(TellFatalOnly); }

void UseNoDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

bool ErrorIsTerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

bool IsSameFile(const QString& sPathA, const QString& sPathB) {
    const QString a = QFileInfo(sPathA).canonicalFilePath();
    return !a.isEmpty() && a == QFileInfo(sPathB).canonicalFilePath();
}

QString CompletePath(const QString& sPath) { return QFileInfo(sPath).absoluteFilePath(); }

} // namespace Console

TemporaryFolder::TemporaryFolder() : m_folder(std::make_unique<QTemporaryDir>()) {}
TemporaryFolder::~TemporaryFolder() = default;
QString TemporaryFolder::Path() const { return m_folder->isValid() ? m_folder->path() : QString(); }
