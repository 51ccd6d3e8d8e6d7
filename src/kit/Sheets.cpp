// SPDX-License-Identifier: MIT
// The table of the sheets. To add one, see CONTRIBUTING.
#include "kit/Sheets.h"

#include "platform/text/Numbers.h"

#include <algorithm>

namespace {

constexpr Paper kLabelPaper{"white label paper",
                            "Position white peel && stick label paper in your printer.  Make sure the printing side "
                            "is faced properly "};
constexpr Paper kColoredCard{"colored card stock", "Please position a sheet of colored card stock in the printer "};
constexpr Paper kWhitePaper{"white paper", "Please load white paper into the printer "};
constexpr Paper kWhiteCard{"white card stock", "Please load white card stock into the printer "};

// Of the kits on coloured stock.
constexpr Paper kGreenLabels{"light green label stock",
                             "Please position a sheet of light green label stock in the printer "};
constexpr Paper kRedLabels{"red label stock", "Please position a sheet of red label stock in the printer "};
constexpr Paper kWhiteLabels{"white label stock", "Please position a sheet of white label stock in the printer "};
constexpr Paper kPinkCard{"pink card stock", "Please position a sheet of pink card stock in the printer "};
constexpr Paper kGreenCard{"green card stock", "Please position a sheet of green  card stock in the printer "};
constexpr Paper kPinkPaper{"pink paper", "Please load pink paper into the printer "};
constexpr Paper kBluePaper{"light blue paper", "Please load light blue paper into the printer "};
constexpr Paper kGreenPaper{"light green paper", "Please load light green paper into the printer "};
constexpr Paper kMustardPaper{"mustard paper", "Please load mustard paper into the printer "};

// A kit without such a sheet: asked all the same by whoever presses the hidden button.
constexpr Paper kNotUsed{"", "Not used for this version.", ""};
constexpr Paper kObsolete{"", "Obsolete", ""};
constexpr Paper kUnasked{"", "", ""};

constexpr Sheet::ByKit<PageOrientation> kUpright{PageOrientation::Portrait, PageOrientation::Portrait};
constexpr Sheet::ByKit<PageOrientation> kLengthwise{PageOrientation::Landscape, PageOrientation::Landscape};
constexpr Sheet::ByKit<PageOrientation> kLengthwiseInKit8{PageOrientation::Landscape, PageOrientation::Portrait};

constexpr Sheet::ByKit<const char*> InAllKits(const char* sCaption) { return {sCaption, sCaption}; }

// Where a page of nothing, or of what nobody prints, ends.
constexpr Sheet::Ends kNoEnds{{0, ""}, {0, ""}};
constexpr Sheet::Ends kEndsOfDeeds{{7.75, "right-hand column of deeds"}, {10.375, "lowest row of deeds"}};
constexpr Sheet::Ends kEndsOfNews{{6.275, "right-hand column of cards"}, {9.995, "lowest row of cards"}};
constexpr Sheet::Ends kEndsOfMoney{{7.8, "right-hand column of notes"}, {10.125, "lowest row of notes"}};

// What the width of a hair may lack.
constexpr double kToleranceInches = 0.02;

// What is printed for a button that prints nothing: the page that the console then ends stays empty.
bool PrintNothing(SheetJob&, int) { return true; }

} // namespace

// Out here, so that the classes which the rows name are those of the sheets' files.
constexpr Sheet kSheets[] = {
    {.iButton = 0,
     .sName = "box",
     .frame = Frame::Labels,
     .caption = {"&Box Top && Token Stickers", "&Green  Box && Board Labels #1"},
     .paper = {{kLabelPaper, kGreenLabels}},
     .orientation = kLengthwiseInKit8,
     .ends = {{10.0, "right-hand column of subtitles"}, {7.96, "line of words at the foot"}},
     .otherKits = OtherKits::LeftOutOrNameless,
     .paint = PaintSheet<class BoxSheet>},
    {.iButton = 1,
     .sName = "west",
     .frame = Frame::Labels,
     .caption = {"&West, South && Corner Board Stickers", "Green Game &Board Labels #2"},
     .paper = {{kLabelPaper, kGreenLabels}},
     .orientation = kLengthwiseInKit8,
     .ends = {{9.98, "right-hand column of stickers"}, {7.975, "row of corner stickers"}},
     .otherKits = OtherKits::LeftOut,
     .photos = PhotosOfSheet<class BoardSheet>,
     .paint = PaintSheet<class BoardSheet>},
    {.iButton = 3,
     .sName = "east",
     .frame = Frame::Labels,
     .caption = {"&East, North && Title Board Stickers", "Game  Box &Red Sheet"},
     .paper = {{kLabelPaper, kRedLabels}},
     .orientation = kLengthwise,
     .ends = {{9.98, "right-hand column of stickers"}, {7.72, "caption of the subtitle"}},
     .otherKits = OtherKits::LeftOutOrNameless,
     .iWhich = 1,
     .photos = PhotosOfSheet<class BoardSheet>,
     .paint = PaintSheet<class BoardSheet>},
    {.iButton = 12,
     .sName = "deeds1",
     .frame = Frame::Deeds,
     .caption = InAllKits("Property Deed Sheet #&1"),
     .sToolTip = "Click to begin printing Deed Card Sheet #1",
     .paper = {{kWhiteCard, kNotUsed}},
     .orientation = kUpright,
     .ends = kEndsOfDeeds,
     .otherKits = OtherKits::Same,
     .iWhich = 1,
     .paint = PaintSheet<class DeedSheet>},
    {.iButton = 13,
     .sName = "deeds2",
     .frame = Frame::Deeds,
     .caption = InAllKits("Property Deed Sheet #&2"),
     .sToolTip = "Click to begin printing Deed Card Sheet #2",
     .paper = {{kWhiteCard, kNotUsed}},
     .orientation = kUpright,
     .ends = kEndsOfDeeds,
     .otherKits = OtherKits::Same,
     .iWhich = 2,
     .paint = PaintSheet<class DeedSheet>},
    {.iButton = 5,
     .sName = "good",
     .frame = Frame::News,
     .caption = InAllKits("&Good News Cards"),
     .paper = {{kColoredCard, kPinkCard}},
     .orientation = kUpright,
     .ends = kEndsOfNews,
     .otherKits = OtherKits::Same,
     .paint = PaintSheet<class NewsSheet>},
    {.iButton = 6,
     .sName = "bad",
     .frame = Frame::News,
     .caption = InAllKits("&Bad News Cards"),
     .paper = {{kColoredCard, kGreenCard}},
     .orientation = kUpright,
     .ends = kEndsOfNews,
     .otherKits = OtherKits::Same,
     .iWhich = 1,
     .paint = PaintSheet<class NewsSheet>},
    {.iButton = 7,
     .sName = "money100",
     .frame = Frame::Money,
     .caption = InAllKits("$ &100"),
     .paper = {{kWhitePaper, kPinkPaper}},
     .orientation = kUpright,
     .ends = kEndsOfMoney,
     .otherKits = OtherKits::Same,
     .bMoney = true,
     .iSheetsForSix = 5,
     .prepare = PrepareSheet<class MoneySheet>,
     .photos = PhotosOfSheet<class MoneySheet>,
     .paint = PaintSheet<class MoneySheet>},
    {.iButton = 8,
     .sName = "money500",
     .frame = Frame::Money,
     .caption = InAllKits("$ &500"),
     .paper = {{kWhitePaper, kBluePaper}},
     .orientation = kUpright,
     .ends = kEndsOfMoney,
     .otherKits = OtherKits::Same,
     .bMoney = true,
     .iSheetsForSix = 3,
     .iWhich = 1,
     .prepare = PrepareSheet<class MoneySheet>,
     .photos = PhotosOfSheet<class MoneySheet>,
     .paint = PaintSheet<class MoneySheet>},
    {.iButton = 9,
     .sName = "money1000",
     .frame = Frame::Money,
     .caption = InAllKits("$ 1,&000"),
     .paper = {{kWhitePaper, kGreenPaper}},
     .orientation = kUpright,
     .ends = kEndsOfMoney,
     .otherKits = OtherKits::Same,
     .bMoney = true,
     .iSheetsForSix = 4,
     .iWhich = 2,
     .prepare = PrepareSheet<class MoneySheet>,
     .photos = PhotosOfSheet<class MoneySheet>,
     .paint = PaintSheet<class MoneySheet>},
    {.iButton = 10,
     .sName = "money5000",
     .frame = Frame::Money,
     .caption = InAllKits("$ 5,000"),
     .paper = {{kWhitePaper, kMustardPaper}},
     .orientation = kUpright,
     .ends = kEndsOfMoney,
     .otherKits = OtherKits::Same,
     .bMoney = true,
     .iSheetsForSix = 1,
     .iWhich = 3,
     .prepare = PrepareSheet<class MoneySheet>,
     .photos = PhotosOfSheet<class MoneySheet>,
     .paint = PaintSheet<class MoneySheet>},
    {.iButton = 11,
     .sName = "rules",
     .frame = Frame::Rules,
     .caption = InAllKits("Game &Play Instruction Sheet"),
     .sToolTip = "Once you have created your game, this gives you the rules for playing it.",
     .paper = {{kWhitePaper, kWhitePaper}},
     .orientation = kUpright,
     .ends = {{7.0, "right-hand column of the rules"}, {10.3, "last line of the rules"}},
     .otherKits = OtherKits::Same,
     .paint = PaintSheet<class RulesSheet>},
};

constexpr Sheet kButtonsWithoutSheet[] = {
    {.iButton = 2,
     .sName = "",
     .frame = Frame::Labels,
     .caption = InAllKits("Game Box &Light Green Sheet"),
     .paper = {{kObsolete, kObsolete}},
     .orientation = kLengthwiseInKit8,
     .ends = kNoEnds,
     .otherKits = OtherKits::Same,
     .paint = PrintNothing},
    {.iButton = 4,
     .sName = "",
     .frame = Frame::Deeds,
     .caption = InAllKits("Deed Card &Label Sheet"),
     .sToolTip = "Click to print Deel Card Lable Sheet",
     .paper = {{kUnasked, kWhiteLabels}},
     .orientation = kUpright,
     .ends = kNoEnds,
     .otherKits = OtherKits::LeftOut,
     .paint = nullptr},
    // The one index that no paper is asked for. It never had a button.
    {.iButton = 14,
     .sName = "",
     .frame = std::nullopt,
     .caption = InAllKits(""),
     .paper = std::nullopt,
     .orientation = kUpright,
     .ends = kNoEnds,
     .otherKits = OtherKits::Same,
     .paint = PrintNothing},
};

namespace {

const Paper& PaperOf(const Sheet::ByStock& papers, Kit kit) {
    return OnColouredStock(kit) ? papers.coloured : papers.white;
}

// A sheet that is printed alone looks ahead by itself.
class PhotosOfOne {
public:
    PhotosOfOne(SheetJob& job, const Sheet& sheet) : m_job(job) {
        if (!job.ahead) job.ahead = &m_own.emplace(std::vector<std::vector<SheetPhoto>>{sheet.Photos()});
    }
    ~PhotosOfOne() {
        if (m_own) m_job.ahead = nullptr;
    }
    PhotosOfOne(const PhotosOfOne&) = delete;
    PhotosOfOne& operator=(const PhotosOfOne&) = delete;

private:
    SheetJob& m_job;
    std::optional<PhotosAhead> m_own;
};

} // namespace

std::span<const Sheet> Sheets() { return kSheets; }

std::span<const Sheet> ButtonsWithoutSheet() { return kButtonsWithoutSheet; }

QStringList SheetNames() {
    QStringList names;
    for (const Sheet& sheet : Sheets())
        names.append(QString::fromLatin1(sheet.sName));
    return names;
}

const Sheet* FindSheet(const QString& sName) {
    const auto named = [&](const Sheet& sheet) { return sName == QString::fromLatin1(sheet.sName); };
    const auto found = std::ranges::find_if(kSheets, named);
    return found == std::end(kSheets) ? nullptr : &*found;
}

const Sheet* FindButton(int iButton) {
    for (const std::span<const Sheet> table : {Sheets(), ButtonsWithoutSheet()}) {
        const auto found = std::ranges::find(table, iButton, &Sheet::iButton);
        if (found != table.end()) return &*found;
    }
    return nullptr;
}

QString Sheet::Caption(Kit kit) const { return QString::fromLatin1(kit == Kit::Eight ? caption.kit8 : caption.others); }

QString Sheet::Title(Kit kit) const {
    const QChar kept(0x1);
    QString title = Caption(kit);
    title.replace(QStringLiteral("&&"), kept).remove(u'&');
    return title.replace(kept, u'&');
}

bool Sheet::IsShown(Kit kit) const { return frame && paper && *PaperOf(*paper, kit).sStock; }

QString Sheet::Stock(Kit kit) const { return paper ? QString::fromLatin1(PaperOf(*paper, kit).sStock) : QString(); }

std::optional<QString> Sheet::Prompt(Kit kit) const {
    if (!paper) return std::nullopt;
    const Paper& asked = PaperOf(*paper, kit);
    return QString::fromLatin1(asked.sPrompt) + QString::fromLatin1(asked.sTail);
}

PageOrientation Sheet::OrientationOf(Kit kit) const {
    return kit == Kit::Eight ? orientation.kit8 : orientation.others;
}

QSizeF Sheet::NeededInches(Kit kit) const {
    const QSizeF needed(ends.right.inches, ends.bottom.inches);
    return OrientationOf(kit) == orientation.kit8 ? needed : needed.transposed();
}

void Sheet::LayOn(Printer& printer, Kit kit) const {
    printer.SetOrientation(OrientationOf(kit));
    printer.CentreSheet(NeededInches(kit));
    printer.SetPageName(Title(kit));
}

QString Sheet::WhatIsLostOn(QSizeF printable, Kit kit) const {
    constexpr double kMillimetresPerInch = 25.4;
    if (OrientationOf(kit) != orientation.kit8) printable.transpose();
    QStringList lost;
    const auto look = [&lost](const End& end, double inches) {
        if (end.inches - inches <= kToleranceInches) return;
        const int millimetres = std::max(CLng((end.inches - inches) * kMillimetresPerInch), 1);
        lost.append(QStringLiteral("the %1 would lose %2 mm").arg(QString::fromLatin1(end.sPieces)).arg(millimetres));
    };
    look(ends.right, printable.width());
    look(ends.bottom, printable.height());
    QString told = lost.join(QStringLiteral(", and "));
    if (!told.isEmpty()) told[0] = told[0].toUpper();
    return told.isEmpty() ? told : told + QStringLiteral(".");
}

QString Sheet::WhyLeftOut(Kit kit) const {
    if (paint && (otherKits == OtherKits::Same || HasLabelSheets(kit))) return {};
    return QStringLiteral("The label sheets of this kit are not part of this build. Kit \"8\" has all of its sheets; "
                          "its labels are printed on white label paper.");
}

std::vector<SheetPhoto> Sheet::Photos() const { return photos ? photos(iWhich) : std::vector<SheetPhoto>(); }

bool Sheet::Prepare(SheetJob& job) const {
    const PhotosOfOne ahead(job, *this);
    return !prepare || prepare(job, iWhich);
}

bool Sheet::Print(SheetJob& job) const {
    // A font, colour or pen that another sheet has left must never show on this one.
    job.printer.ForgetSettings();
    job.lacking.clear();
    const PhotosOfOne ahead(job, *this);
    return paint(job, iWhich);
}
