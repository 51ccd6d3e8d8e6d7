// SPDX-License-Identifier: MIT
// A box with a lid that holds cards, money and tokens: a page for the tray and one for the lid.
#include "nokit/BoxWrap.h"

#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "nokit/BoardPages.h"
#include "nokit/NoKitSheets.h"
#include "platform/paint/Recording.h"

namespace {

constexpr double kAround = 0.12;
constexpr double kEdge = 0.07;
constexpr Color kGround = Color::FromValue(0xFFB000); // the board's own middle

QString Subtitle() { return basTAVL::CRLF2Space(basPosit::m_CenterText(2).sText); }

/// A part of the box while it is painted.
class PartPainter {
public:
    PartPainter(PageCanvas& page, FoldNet net, bool bSavesInk)
        : m_page(page), m_net(std::move(net)), m_savesInk(bSavesInk) {
        const QSizeF room = page.Inches() - m_net.Size();
        m_net.MoveBy({room.width() / 2, room.height() / 2});
    }

    // The floor of a tray is seen by nobody, and would take most of the ink.
    void Ground(bool bFloorToo) {
        for (size_t face = bFloorToo ? 0 : 1; face < m_net.faces.size(); ++face)
            Colored(m_net.faces[face].box);
    }

    void NameOnWalls() {
        for (size_t wall = 1; wall < m_net.faces.size(); ++wall) {
            const FoldNet::Face& face = m_net.faces[wall];
            m_page.Text(face.box.adjusted(kAround, kAround, -kAround, -kAround), NameOfGame(),
                        {.dblHeight = 0.42, .bBold = true, .iQuarterTurns = face.iQuarterTurns});
        }
    }

    // The board's picture lies at the left, as high as the lid; beside it stands what the game is called.
    void Top(const Recording& board) {
        const QRectF top = m_net.faces[0].box.adjusted(kAround, kAround, -kAround, -kAround);
        const QRectF picture(top.topLeft(), QSizeF(top.height(), top.height()));
        m_page.Drawing(board, {board.Whole(), picture});
        const double left = picture.right() + kAround;
        const QRectF beside(left, top.top(), top.right() - left, top.height());
        m_page.Text(beside.adjusted(0, top.height() * 0.2, 0, -top.height() * 0.4), InLines(NameOfGame()),
                    {.dblHeight = 0.7, .bBold = true});
        m_page.Text(beside.adjusted(0, top.height() * 0.65, 0, -top.height() * 0.1), InLines(Subtitle()),
                    {.dblHeight = 0.24});
    }

    void Lines() {
        for (const FoldNet::Flap& flap : m_net.flaps)
            m_page.Text(flap.outline.boundingRect(), QStringLiteral("glue"),
                        {.dblHeight = 0.12, .color = Color::Rgb(128, 128, 128)});
        for (const PageLine& line : m_net.Lines())
            m_page.Line(line.kind, line.line);
    }

private:
    void Colored(const QRectF& box) {
        if (!m_savesInk) {
            m_page.Box(box, kGround);
            return;
        }
        const double inset = kEdge / 2;
        m_page.Box(box.adjusted(inset, inset, -inset, -inset), Color::None(), kGround, kEdge);
    }

    // A word to a line, so that a name of several is large.
    static QString InLines(const QString& sText) {
        constexpr int kMost = 4;
        QStringList words = sText.split(u' ', Qt::SkipEmptyParts);
        while (words.size() > kMost) {
            // The two neighbours that are the shortest together share a line.
            qsizetype best = 0;
            for (qsizetype i = 1; i + 1 < words.size(); ++i) {
                if (words[i].size() + words[i + 1].size() < words[best].size() + words[best + 1].size()) best = i;
            }
            words[best] += u' ' + words.takeAt(best + 1);
        }
        return words.join(u'\n');
    }

    PageCanvas& m_page;
    FoldNet m_net;
    bool m_savesInk;
};

bool PaintTray(PageCanvas& page, const NoKitChoices& choices) {
    PartPainter part(page, BoxWrap::Tray(), choices.bSavesInk);
    part.Ground(false);
    part.NameOnWalls();
    part.Lines();
    return true;
}

bool PaintLid(PageCanvas& page, const NoKitChoices& choices) {
    PartPainter part(page, BoxWrap::Lid(), choices.bSavesInk);
    part.Ground(true);
    part.NameOnWalls();
    part.Top(*BoardForPages(choices));
    part.Lines();
    return true;
}

} // namespace

namespace BoxWrap {

FoldNet Tray() { return TrayNet(kInside, kHeight, false); }

FoldNet Lid() { return TrayNet(kInside + QSizeF(kLoose, kLoose), kLidHeight, true); }

} // namespace BoxWrap

template <>
std::vector<NoKitPage> PagesOf<class BoxWrapSheet>(const NoKitChoices& choices) {
    // Lengthwise on the net, upright on paper: a box is longer than it is wide.
    const auto page = [&](const char* name, bool (*paint)(PageCanvas&, const NoKitChoices&)) {
        return NoKitPage{QString::fromLatin1(name), PaperOf(choices, true),
                         [choices, paint](PageCanvas& canvas, QStringList&) { return paint(canvas, choices); }};
    };
    return {page("Tray", PaintTray), page("Lid", PaintLid)};
}
