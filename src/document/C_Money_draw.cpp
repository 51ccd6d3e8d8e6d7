// SPDX-License-Identifier: MIT
#include "document/C_Money.h"

#include "drawing/basBMP.h"
#include "drawing/basDraw.h"
#include "drawing/clsBMP.h"
#include "drawing/DrawDottedBox.h"
#include "pictures/AwaitedPictures.h"
#include "pictures/PaintPicture.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Folders.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureHolder.h"
#include "platform/pictures/PictureMask.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/Kit.h"
#include "services/ProgramSettings.h"

#include <algorithm>

namespace {

struct Place {
    double left;
    double top;
    double width;
    double height;
};

// Everything on a banknote, in inches from its top left.
constexpr Place kNote{0, 0, 3.75, 2.0};
constexpr double kInset = 0.05;
constexpr Place kPanel{0.125, 0.123, 3.5, 1.75};
constexpr Place kOval{1.43, 0.52, 0.82, 0.95};
constexpr double kTextMiddle[C_Money::kTexts] = {0.85, 3.65 - 0.8125};
constexpr double kTextTop = 0.75;
constexpr double kTextWidth = 0.875;
constexpr double kTextHeight = 0.5;
constexpr double kDashInches = 0.05;
// The user's picture has at least as many dots an inch, whatever the note is drawn at.
constexpr double kPhotoDpi = 300;
// Dots of the oval's mask to one of the picture, across and down, which make its edge smooth.
constexpr int kMaskDots = 4;

QString BadBitmapText(const QString& sPath, const QString& sError) {
    return QStringLiteral("Unable to process the bitmap named: ") + sPath + kNewLine +
           QStringLiteral("The following error was reported: ") + sError + kNewLine +
           QStringLiteral("The area will be left empty.");
}

/// One banknote on a surface: turns the places into its pixels.
class Note {
public:
    Note(Surface& oDest, double dblDPI, int xStart, int yStart)
        : m_oDest(oDest), m_dpi(dblDPI), m_x(xStart), m_y(yStart) {}

    void Outline(double inset, Color color) {
        basTAVL::DrawDottedBox(m_oDest, X(inset), Y(inset), X(kNote.width - inset), Y(kNote.height - inset),
                               Length(kDashInches), Color::None(), color);
    }
    void Fill(Color color) { m_oDest.Line(X(0), Y(0), X(kNote.width), Y(kNote.height), color, LineForm::FilledBox); }
    void Paint(const Picture& picture, const Place& place) {
        m_oDest.PaintPicture(picture, X(place.left), Y(place.top), Length(place.width), Length(place.height));
    }
    void Text(const QString& sText, double middle, Color plate) {
        const int left = X(middle - kTextWidth / 2);
        const int top = Y(kTextTop);
        const QStringList lines = sText.split(kNewLine);
        m_oDest.Line(left, top, left + Length(kTextWidth), top + Length(kTextHeight), plate, LineForm::FilledBox);
        m_oDest.ForeColor = Color::Black();
        basDraw::Draw_MultiLineText(m_oDest, lines, int(lines.size()), QStringLiteral("Times New Roman"), false, false,
                                    left, top, Length(kTextWidth), Length(kTextHeight));
    }

private:
    int X(double inches) const { return CLng(inches * m_dpi + m_x); }
    int Y(double inches) const { return CLng(inches * m_dpi + m_y); }
    int Length(double inches) const { return CLng(inches * m_dpi); }

    Surface& m_oDest;
    double m_dpi;
    int m_x;
    int m_y;
};

// The oval of a note without a picture; empty in kits before these, and where there is none.
QString CurrencyOval() {
    if (!HasCurrencyOval(KitInUse())) return {};
    const QString path = basCommon::JoinPath(Folders::ProgramDirectory(), QStringLiteral("$$$ellipse.dat"));
    return basCommon::DoesFileExist(path) ? path : QString();
}

} // namespace

QSizeF C_Money::NoteInches() { return {kNote.width, kNote.height}; }

QSizeF C_Money::OvalInches() { return {kOval.width, kOval.height}; }

// Tells once for each picture, not at every key that is typed on the note.
Picture C_Money::LoadOrTell(const QString& sPath, TellOnce::Fault fault) const {
    if (sPath.isEmpty()) return {};
    QString error;
    const Picture picture = LoadPicture(sPath, error);
    if (picture.IsNull()) TellOnce::About(Owner()).Tell(fault, sPath, BadBitmapText(sPath, error), vbOKOnly);
    return picture;
}

// Fills the box of the oval, as the thumbnail does.
bool C_Money::PaintFace(Surface& form, QSize size) const {
    const PictureRef& face = FaceImage.Ref();
    if (face.IsMetafile()) return DrawMetafile(face, FaceImage.Told(), form.hDC(), QRect(QPoint(), size));
    const int thumbnailSide = LongerSideWanted(face, ThumbnailStore::LongerSideOf(PictureOwner::Kind::Money));
    if (ThumbnailStore::Instance().IsStale(FaceImage.Owned()) && AwaitedPictures::LeavesOut(face.sPath, thumbnailSide))
        return false;
    if (FaceImage.GetThumbnail(false).isEmpty()) return false;
    PictureHolder original;
    return PaintZoomed(face, FaceImage.Told(), form, original, ScaleModeKind::Pixels, QRectF(QPointF(), size),
                       Color::None());
}

// The user's picture as it shows in the oval; null, after the image has told why, when it can't be had.
Picture C_Money::FaceInOval(double dblDPI) const {
    const double dpi = std::max(dblDPI, kPhotoDpi);
    const QSize size(CLng(kOval.width * dpi), CLng(kOval.height * dpi));
    ScratchForm form(size);
    // A line drawing's paper is the note's, and what is clear in a photograph shows the note's colour.
    const bool drawing = basBMP::IsMonochromeBMP(FaceImage.FullPath());
    form.SetBackColor(drawing ? Color::White() : BackColor);
    if (!PaintFace(form, size)) return {};
    Picture face(form.Image());
    if (drawing) face = WithoutWhite(face);
    clsBMP mask;
    return ThroughMask(face, mask.GetEllipticalWhite(size * kMaskDots));
}

void C_Money::DrawMoney(Surface& objDest, double dblDPI, int xStart, int yStart, bool bIncludeImage, bool bIncludeText,
                        bool bIncludeDots) const try {
    Note note(objDest, dblDPI, xStart, yStart);
    if (bIncludeImage) {
        note.Fill(BackColor);
        const Picture blank = LoadOrTell(BackImage.FullPath(), TellOnce::Fault::Blank);
        if (!blank.IsNull()) note.Paint(blank, kPanel);
        const bool withoutFace = FaceImage.FullPath().isEmpty();
        const Picture oval = withoutFace ? LoadOrTell(CurrencyOval(), TellOnce::Fault::Oval) : FaceInOval(dblDPI);
        if (!oval.IsNull()) note.Paint(oval, kOval);
    }
    if (bIncludeDots) {
        // In the note's own colour: the pass over a printed note shows no cut line on it.
        note.Outline(0, BackColor);
        note.Outline(kInset, BackColor);
    }
    if (!bIncludeText) return;
    for (int i = 0; i < kTexts; ++i)
        note.Text(Text(i), kTextMiddle[i], BackColor);
} catch (...) {
    ErrTail("C_Money!", "DrawMoney", objDest, dblDPI, xStart, yStart, bIncludeImage, bIncludeText, bIncludeDots);
}
