// SPDX-License-Identifier: MIT
#pragma once

#include <QDesktopServices>
#include <QStringList>
#include <QTextBrowser>
#include <QUrl>

/// Stands in for all programs of the desktop that files are opened with, as long as it lives.
class OpenedFiles : public QTextBrowser {
public:
    OpenedFiles() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource"); }
    ~OpenedFiles() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    /// Files and folders, in the order in which they were opened.
    QStringList paths;

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType) override { paths.append(url.toLocalFile()); }
};
