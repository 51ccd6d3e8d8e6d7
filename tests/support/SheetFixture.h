// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPosit.h"
#include "kit/GameKit.h"
#include "kit/SheetJob.h"
#include "pieces/frmBMP.h"
#include "platform/files/Files.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/printing/Printer.h"
#include "services/basCommon.h"
#include "support/BoardFixture.h"
#include "support/PdfReader.h"
#include "support/WorkingFiles.h"

/// An upright page of cards or notes, printed with the rents of the shipped kit and read back by tools that know
/// nothing of this program. Places are inches from the printable origin.
class SheetTest : public BoardTest {
protected:
    // What may be off: a piece would otherwise not fit its place, a caption would touch a piece.
    static constexpr double kPieceWithin = 0.008;
    static constexpr double kCaptionWithin = 0.04;
    /// Half of the pen that draws frames on cards.
    static constexpr double kHalfPen = 1.0 / 64;

    SheetTest() {
        ForgetPictures();
        frmBMP::InstallAsThumbnailMaker();
        basCommon::InitIniPath();
        WriteFile(QStringLiteral("program/Rents.dat"),
                  ReadFile(QStringLiteral(TAVLORA_DATA_DIR) + QStringLiteral("/Rents_US.dat")));
        UseKit(QStringLiteral("tavlora"));
    }
    ~SheetTest() override {
        Files::SetFaultHook({});
        basCommon::ResetForTest();
    }

    static void UseKit(const QString& sProgramName) {
        GameKit::SetUp(sProgramName);
        basPosit::PosInit();
    }

    template <typename Sheet>
    auto Print(Sheet sheet) {
        PdfPrinter printer(pdf, QStringLiteral("cards"));
        SheetJob job{printer, [this](int progress) { steps.append(progress); }};
        const auto made = sheet(job);
        printer.EndDoc();
        QString error;
        EXPECT_TRUE(printer.Close(error)) << qPrintable(error);
        return made;
    }

    static void RefuseToReplace(const QString& sName) {
        Files::SetFaultHook([sName](Files::Operation operation, const QString& sPath) -> std::optional<QString> {
            if (operation == Files::Operation::Remove && sPath.endsWith(sName))
                return QStringLiteral("Permission denied");
            return std::nullopt;
        });
    }
    /// Working files that a sheet has left.
    static QStringList LeftBehind() {
        return WorkingFilesLeft(QStringLiteral("*.temp")) + WorkingFilesLeft(QStringLiteral("*.bmp"));
    }
    static QRectF Grown(const QRectF& box, double by) { return box.adjusted(-by, -by, by, by); }
    static void ExpectBox(const QRectF& found, const QRectF& told, const QString& sWhat) {
        const std::string what = sWhat.toStdString();
        EXPECT_NEAR(found.left(), told.left(), kPieceWithin) << what;
        EXPECT_NEAR(found.top(), told.top(), kPieceWithin) << what;
        EXPECT_NEAR(found.right(), told.right(), kPieceWithin) << what;
        EXPECT_NEAR(found.bottom(), told.bottom(), kPieceWithin) << what;
    }
    /// The four cut lines of a card, each measured alone in a strip beside which nothing is printed.
    void ExpectCutLines(const QRectF& card, const QString& sWhat) const {
        constexpr double kStrip = 0.04;
        constexpr double kFromCorner = 0.2;
        const double width = card.width() - 2 * kFromCorner;
        const double height = card.height() - 2 * kFromCorner;
        const auto across = [&](double y) {
            return reader.InkBox(1, {card.left() + kFromCorner, y - kStrip, width, 2 * kStrip});
        };
        const auto down = [&](double x) {
            return reader.InkBox(1, {x - kStrip, card.top() + kFromCorner, 2 * kStrip, height});
        };
        const auto expect = [&](double first, double last, double told, const char* side) {
            EXPECT_NEAR(first, told, kPieceWithin) << sWhat.toStdString() << ' ' << side;
            EXPECT_NEAR(last, told, kPieceWithin) << sWhat.toStdString() << ' ' << side;
        };
        const QRectF top = across(card.top());
        const QRectF bottom = across(card.bottom());
        const QRectF left = down(card.left());
        const QRectF right = down(card.right());
        expect(top.top(), top.bottom(), card.top(), "top");
        expect(bottom.top(), bottom.bottom(), card.bottom(), "bottom");
        expect(left.left(), left.right(), card.left(), "left");
        expect(right.left(), right.right(), card.right(), "right");
    }

    const QString pdf = PathOf(QStringLiteral("cards.pdf"));
    const PdfReader reader{pdf};
    QList<int> steps;
};
