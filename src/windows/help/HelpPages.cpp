// SPDX-License-Identifier: MIT
// The table of the windows' pages: a window without a row fails a test. A page is a file in data/guide.
#include "windows/help/HelpPages.h"

#include <algorithm>
#include <iterator>

namespace {

struct Row {
    const char* sWindow;
    const char* sPage;
};

constexpr Row kRows[] = {
    // A line each, so that two who add one don't meet.
    // clang-format off
    {"frmTAVL", "board.html"},
    {"frmAbout", "board.html"},
    {"frmPrintManual", "index.html"},
    {"frmEditSpace", "spaces.html"},
    {"frmEditCorner", "spaces.html"},
    {"frmEditCenter", "titles.html"},
    {"frmEditMoney", "money.html"},
    {"frmShowTokens", "tokens.html"},
    {"frmEditToken", "tokens.html"},
    {"frmShowNews", "news.html"},
    {"frmEditNews", "news.html"},
    {"frmBrowse", "pictures.html"},
    {"frmFileName", "pictures.html"},
    {"frmImagePosition", "cutting.html"},
    {"frmCheck", "check.html"},
    {"frmTavlPrint", "print.html"},
    {"frmPrntPrep", "print.html"},
    {"frmPrintTest", "print.html"},
    {"frmColor", "print.html"},
    {"frmSendGame", "sending.html"},
    {"frmBeforePrint", "check.html"},
    {"frmPieces", "sending.html"},
    {"PrintEverything", "print.html"},
    {"PrintPreview", "print.html"},
    {"PrintWithoutKit", "print.html"},
    {"PdfReady", "print.html"},
    {"CheckPrinter", "print.html"},
    {"frmMissingPictures", "pictures.html"},
    {"frmDealPhotos", "pictures.html"},
    {"frmEarlierVersions", "board.html"},
    // clang-format on
};

} // namespace

QString HelpPages::PageOf(const QString& sWindow) {
    const auto* const found =
        std::ranges::find_if(kRows, [&](const Row& row) { return sWindow == QString::fromLatin1(row.sWindow); });
    return found == std::end(kRows) ? QString() : QString::fromLatin1(found->sPage);
}

QStringList HelpPages::Windows() {
    QStringList windows;
    for (const Row& row : kRows)
        windows.append(QString::fromLatin1(row.sWindow));
    return windows;
}
