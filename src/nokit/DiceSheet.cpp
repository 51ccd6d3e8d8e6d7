// SPDX-License-Identifier: MIT
// Two dice to be cut out, folded and glued; on the side of the one they may bear the game's own picture.
#include "board/BoardPicture.h"
#include "nokit/BoardPages.h"
#include "nokit/FoldNet.h"
#include "nokit/NoKitSheets.h"
#include "platform/paint/Recording.h"

#include <array>

namespace {

constexpr int kDice = 2;
constexpr double kSide = 0.9;
// Of a dot, and how far the outer ones stand from the middle; in sides of the die.
constexpr double kDot = 0.19;
constexpr double kOff = 0.27;
constexpr double kPictureShare = 0.9;
constexpr double kTop = 0.9;
constexpr double kGap = 0.5;

// Where dots stand, a bit each from the upper left of three by three.
constexpr std::array<unsigned, 6> kDots = {0b000010000, 0b100000001, 0b100010001,
                                           0b101000101, 0b101010101, 0b101101101};

void PaintDots(PageCanvas& page, const QRectF& face, int iDots) {
    const double side = face.width();
    for (int place = 0; place < 9; ++place) {
        if (!(kDots[size_t(iDots - 1)] >> place & 1U)) continue;
        const int row = place / 3;
        const QPointF off(place % 3 - 1, row - 1);
        const QPointF middle = face.center() + off * kOff * side;
        const double dot = kDot * side;
        page.Circle({middle.x() - dot / 2, middle.y() - dot / 2, dot, dot}, Color::Black());
    }
}

void PaintDie(PageCanvas& page, FoldNet net, const QPointF& at, const Recording* picture) {
    net.MoveBy(at);
    for (int face = 0; face < int(net.faces.size()); ++face) {
        const QRectF& box = net.faces[size_t(face)].box;
        if (picture && face == 0) {
            const double inset = (1 - kPictureShare) / 2 * box.width();
            page.Drawing(*picture, {picture->Whole(), box.adjusted(inset, inset, -inset, -inset)});
        } else {
            PaintDots(page, box, face + 1);
        }
    }
    for (const FoldNet::Flap& flap : net.flaps)
        page.Text(flap.outline.boundingRect(), QStringLiteral("glue"),
                  {.dblHeight = 0.09, .color = Color::Rgb(128, 128, 128)});
    for (const PageLine& line : net.Lines())
        page.Line(line.kind, line.line);
}

bool Paint(PageCanvas& page, const NoKitChoices& choices) {
    std::shared_ptr<const Recording> picture;
    if (choices.bPictureOnDice) picture = BoardForPages(choices);
    const FoldNet net = DieNet(kSide);
    const double left = (page.Inches().width() - net.Size().width()) / 2;
    page.Text({left, 0.25, 6, 0.2}, QStringLiteral("Two dice"),
              {.dblHeight = 0.2, .bBold = true, .align = TextLook::Align::Left});
    page.Text({left, 0.5, 6, 0.15},
              QStringLiteral("Cut out, fold at the dashed lines, glue the flaps inside. Press until it is dry."),
              {.dblHeight = 0.13, .align = TextLook::Align::Left});
    for (int die = 0; die < kDice; ++die)
        PaintDie(page, net, {left, kTop + die * (net.Size().height() + kGap)}, picture.get());
    return true;
}

} // namespace

template <>
std::vector<NoKitPage> PagesOf<class DiceSheet>(const NoKitChoices& choices) {
    return {{{}, PaperOf(choices), [choices](PageCanvas& page, QStringList&) { return Paint(page, choices); }}};
}
