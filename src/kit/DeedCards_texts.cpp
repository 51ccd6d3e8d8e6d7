// SPDX-License-Identifier: MIT
// What is written on a deed.
#include "board/basPositRents.h"
#include "document/basTAVL.h"
#include "kit/DeedCards.h"
#include "kit/DeedCards_layout.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/paint/Surface.h"
#include "services/basErrLog.h"

#include <cstdlib>

using basPosit::RentRecord;

namespace {

constexpr double kMiddle = 1.25;

// Of the table of rents, in inches.
constexpr double kHeadingLine = 0.18;
constexpr double kRowOfHeading = 0.7;
constexpr double kLabelLeft = 0.5;
constexpr double kValueRight = 2.0;

struct RentRow {
    const char* sProperty;
    const char* sOlderKits;
    const char* sUtility;
    qint16 RentRecord::*value;
    const char* sBeforeValue;
    bool bCurrency;
    bool bItalic;
};
constexpr RentRow kRentRows[] = {
    {"Single Property", "Single Property", "One Utility", &RentRecord::RentSingle, "", true, false},
    {"Entire Color Group", "Two Properties", "Two Utilities", &RentRecord::RentTwo, "", false, false},
    {"One Story Building", "Entire Color Group", "One Story Building", &RentRecord::RentStory1, "", false, false},
    {"Two Story Building", "Entire Color Side", "Two Story Building", &RentRecord::RentStory2, "", false, false},
    {"Add a Building Story", "Add a Building Story", "Add a Building Story", &RentRecord::RentAddStory, "@ ", false,
     true},
};

// The name stands between the price and the rents; it is never larger than its line.
struct TitleBox {
    InchBox box;
    double line;
};
constexpr TitleBox kTitleOfProperty{{0.125, 0.875, 2.25, 0.4375}, 0.21};
// Within the frame and beside the ornaments.
constexpr TitleBox kTitleOfUtility{{0.3125, 0.875, 1.875, 0.4}, 0.2};

struct CenteredLine {
    double top;
    double line;
    bool bBold;
};
constexpr CenteredLine kKind{0.125, 0.125, true};
constexpr CenteredLine kValue{0.375, 0.18, false};
constexpr CenteredLine kDeed{2.25, 0.125, true};

/// Writes lines of given heights on a card.
class CardWriter {
public:
    CardWriter(clsRenderDestination& destination, const PiecePlace& place)
        : m_destination(destination), m_surface(destination.Destination()), m_place(place) {
        m_surface.ForeColor = basTAVL::g_lPrintBlack();
    }
    void UseFont(const char* sFamily, int lLine, bool bBold, bool bItalic) {
        m_surface.FontName = QString::fromLatin1(sFamily);
        m_surface.FontBold = bBold;
        m_surface.FontItalic = bItalic;
        m_surface.SetFontSize(std::max(lLine * clsRenderDestination::kSizeOfHeight * m_destination.FontFactor(), 1.0));
    }
    void Left(const QString& sText, double inches, int lTop) { PrintAt(sText, m_place.X(inches), lTop); }
    void Right(const QString& sText, double inches, int lTop) {
        PrintAt(sText, m_place.X(inches) - m_surface.TextWidth(sText), lTop);
    }
    void Centered(const QString& sText, int lTop) {
        PrintAt(sText, m_place.X(kMiddle) - m_surface.TextWidth(sText) / 2, lTop);
    }
    void Centered(const QString& sText, const CenteredLine& line) {
        UseFont("Arial", m_place.Length(line.line), line.bBold, false);
        Centered(sText, m_place.Y(line.top));
    }

private:
    void PrintAt(const QString& sText, double x, int lTop) {
        m_surface.CurrentX = x;
        m_surface.CurrentY = lTop;
        m_surface.Print(sText);
    }

    clsRenderDestination& m_destination;
    Surface& m_surface;
    const PiecePlace& m_place;
};

QString LabelOf(const RentRow& row, int iDeed) {
    if (BoardFacts::IsUtility(iDeed)) return QString::fromLatin1(row.sUtility);
    return QString::fromLatin1(HasAddedStoreys(TheGame().kit) ? row.sProperty : row.sOlderKits);
}

// The lines of the table that have a value; gives the top of what follows.
int WriteRents(CardWriter& writer, int iDeed, int lTop, int lLine) {
    const RentRecord& rent = basPosit::m_Rent(iDeed);
    for (const RentRow& row : kRentRows) {
        const int value = rent.*row.value;
        if (value <= 0) continue;
        writer.UseFont("Arial", lLine, false, row.bItalic);
        writer.Left(LabelOf(row, iDeed), kLabelLeft, lTop);
        const QString amount = row.bCurrency ? basPosit::FormatCost(value) : WithThousands(value);
        writer.Right(QString::fromLatin1(row.sBeforeValue) + amount, kValueRight, lTop);
        lTop += lLine;
    }
    return lTop;
}

// A name without line breaks is split at two blanks, or else at the blank nearest to its middle.
QString TitleLines(const QString& sText) {
    if (sText.contains(QStringLiteral("\r\n"))) return sText;
    const QString text = sText.trimmed();
    qsizetype at = text.indexOf(QStringLiteral("  "));
    if (at < 0) {
        const qsizetype middle = text.size() / 2;
        for (qsizetype blank = text.indexOf(u' '); blank >= 0; blank = text.indexOf(u' ', blank + 1)) {
            if (at < 0 || std::abs(blank - middle) < std::abs(at - middle)) at = blank;
        }
    }
    return at < 0 ? text : text.left(at).trimmed() + QStringLiteral("\r\n") + text.mid(at).trimmed();
}

const TitleBox& TitleBoxOf(int iDeed) { return BoardFacts::IsUtility(iDeed) ? kTitleOfUtility : kTitleOfProperty; }

} // namespace

void DeedTextRent(clsRenderDestination& destination, int iDeed, int lX, int lY, float sngTop) try {
    const PiecePlace place(destination, lX, lY);
    CardWriter writer(destination, place);
    const int lHeading = place.Length(kHeadingLine);
    int lTop = place.Y(double(sngTop));
    writer.UseFont("Times New Roman", lHeading, false, false);
    writer.Centered(QStringLiteral("----  RENT  ----"), lTop);
    lTop += lHeading;

    const int lLine = CLng(kRowOfHeading * lHeading);
    lTop = WriteRents(writer, iDeed, lTop, lLine);
    if (basPosit::m_Rent(iDeed).RentAddStory > 0) {
        writer.UseFont("Arial", lLine, true, true);
        writer.Centered(QStringLiteral("Entire color side doubles all rents."), lTop);
        lTop += lLine;
    }
    writer.UseFont("Arial", lLine, true, false);
    writer.Centered(QStringLiteral("Mortgage Value = ") + basTAVL::g_vCurrencySign() + u' ' +
                        WithThousands(basPosit::m_Rent(iDeed).Extra),
                    lTop);
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedTextRent", iDeed, lX, lY, sngTop);
}

bool DeedTextTitle(clsRenderDestination& destination, int iDeed, int lX, int lY) try {
    const C_Space& space = basTAVL::g_oSpaces(iDeed);
    const TitleBox& title = TitleBoxOf(iDeed);
    const QString file = MadePicture::PathOf(QStringLiteral("TempDeedBMP%1.temp").arg(iDeed));
    if (!frmBMP::Instance().GenerateTextImage(file, title.box.width, title.box.height, TitleLines(space.TextAll()),
                                              space.Font.Family, space.Font.Bold, space.Font.Italic, title.line,
                                              basTAVL::g_lPrintBlack(), Color::White())) {
        DeedLayout::TellNoDeeds();
        return false;
    }
    const PiecePlace place(destination, lX, lY);
    MadePicture::Paint(destination.Destination(), file, place.Box(title.box));
    MadePicture::Delete(file);
    return true;
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedTextTitle", iDeed, lX, lY);
}

PrintedText DeedTitleOnPaper(int iDeed, const C_Space& space) {
    const TitleBox& title = TitleBoxOf(iDeed);
    return frmBMP::RecordTextImage(title.box.width, title.box.height, TitleLines(space.TextAll()), space.Font.Family,
                                   space.Font.Bold, space.Font.Italic, title.line);
}

void DeedTextValue(clsRenderDestination& destination, int iDeed, int lX, int lY) try {
    const PiecePlace place(destination, lX, lY);
    CardWriter writer(destination, place);
    writer.Centered(QStringLiteral("Value = ") + basPosit::FormatCost(basPosit::m_Rent(iDeed).Cost), kValue);
    writer.Centered(QStringLiteral("UTILITY"), kKind);
    writer.Centered(QStringLiteral("DEED"), kDeed);
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedTextValue", iDeed, lX, lY);
}
