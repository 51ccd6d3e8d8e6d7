// SPDX-License-Identifier: MIT
#include "support/AllWindows.h"

#include "kit/Sheets.h"
#include "windows/check/frmBeforePrint.h"
#include "windows/checkpage/CheckPrinter.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditCorner.h"
#include "windows/editors/frmEditMoney.h"
#include "windows/editors/frmEditNews.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/editors/frmEditToken.h"
#include "windows/editors/frmShowNews.h"
#include "windows/editors/frmShowTokens.h"
#include "windows/games/frmEarlierVersions.h"
#include "windows/missing/frmMissingPictures.h"
#include "windows/nokit/PrintWithoutKit.h"
#include "windows/photos/frmDealPhotos.h"
#include "windows/pictures/frmBrowse.h"
#include "windows/pictures/frmFileName.h"
#include "windows/pictures/frmImagePosition.h"
#include "windows/print/frmColor.h"
#include "windows/print/frmPrintTest.h"
#include "windows/print/frmPrntPrep.h"
#include "windows/print/frmTavlPrint.h"
#include "windows/print/PdfReady.h"
#include "windows/print/PrintEverything.h"
#include "windows/print/PrintPreview.h"
#include "windows/sending/frmPieces.h"
#include "windows/sending/frmSendGame.h"

std::map<QString, std::unique_ptr<QWidget>> AllWindows(Session& session) {
    std::map<QString, std::unique_ptr<QWidget>> all;
    const auto add = [&all](QWidget* made) { all.emplace(made->objectName(), made); };
    add(new frmBeforePrint(session.InHand(), {}, 1, nullptr));
    add(new frmEditCenter(session));
    add(new frmEditCorner(session));
    add(new frmEditMoney(session));
    add(new frmEditNews(session));
    add(new frmEditSpace(session));
    add(new frmEditToken(session));
    add(new frmShowNews(session));
    add(new frmShowTokens(session));
    add(new frmBrowse);
    add(new frmMissingPictures(session));
    add(new frmDealPhotos(session));
    add(new frmFileName);
    add(new frmImagePosition);
    add(new frmColor);
    add(new frmPrintTest);
    add(new frmPrntPrep);
    add(new frmTavlPrint);
    add(new PrintEverything);
    add(new PrintWithoutKit);
    add(new CheckPrinter);
    add(new PdfReady(QStringLiteral("Rules.pdf"), Sheets().back(), nullptr));
    add(new PrintPreview);
    add(new frmPieces(QString()));
    add(new frmSendGame({}, QString()));
    add(new frmEarlierVersions);
    return all;
}
