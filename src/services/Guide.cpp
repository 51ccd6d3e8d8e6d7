// SPDX-License-Identifier: MIT
#include "services/Guide.h"

#include "platform/files/Folders.h"
#include "services/basPath.h"

namespace {

constexpr const char* kPages[] = {Guide::kStepsPage, "board.html",  "spaces.html",  "titles.html",
                                  "money.html",      "tokens.html", "news.html",    "pictures.html",
                                  "cutting.html",    "check.html",  "sending.html", "print.html"};

} // namespace

QString Guide::Folder() { return basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("guide")); }

QStringList Guide::Pages() {
    QStringList pages;
    for (const char* page : kPages)
        pages.append(QString::fromLatin1(page));
    return pages;
}

QString Guide::PathOf(const QString& sPage) { return basCommon::JoinPath(Folder(), sPage); }
