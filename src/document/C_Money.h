// SPDX-License-Identifier: MIT
#pragma once

#include "document/RecordFields.h"
#include "pictures/C_Image.h"
#include "platform/paint/Color.h"
#include "platform/paint/Picture.h"

#include <QSizeF>

#include <array>

class Surface;

/// One denomination of the play money.
class C_Money {
public:
    static constexpr int kTexts = 2;

    /// 0 to 3.
    qint16 Index = 0;
    /// The user's picture on the note.
    C_Image FaceImage;
    /// The blank note; set at every load, never saved.
    C_Image BackImage;
    /// Set at start-up, never saved.
    Color BackColor;

    /// Raise the subscript error outside 0 to 1.
    QString Text(int iIndex) const;
    void Let_Text(int iIndex, const QString& sText);

    /// Of a note, and of the oval that shows its picture; inches.
    static QSizeF NoteInches();
    static QSizeF OvalInches();

    /// Draws the note, 3.75 by 2 inches, with its top left in the given pixel of a surface in pixels. With the
    /// image flag its colour, the blank and the oval; with the text flag both texts; with the dots flag its
    /// two outlines, dashed in its own colour.
    void DrawMoney(Surface& objDest, double dblDPI, int xStart, int yStart, bool bIncludeImage, bool bIncludeText,
                   bool bIncludeDots) const;

    /// Whether a family would call both equal: compares what a game file holds. IsDifferentFrom looks at the
    /// kit's blank and colour, too.
    bool operator==(const C_Money& objOther) const;
    bool IsDifferentFrom(const C_Money& objOther) const;
    void LoadFromObject(const C_Money& objSource);

    QString GetQuotedString() const;
    /// Reads a record off the front and returns what is left. An index that is no number leaves Index as it
    /// was.
    QString SetQuotedString(const QString& sLine);
    /// As SetQuotedString, but touches nothing besides the record: the picture is found by what is given, and
    /// a missing one isn't told.
    QString Read(const QString& sLine, const PicturePlaces::Finder& find);

private:
    QString ReadFields(const QString& sLine, const ImageReader& readImage);
    PictureOwner Owner() const { return {PictureOwner::Kind::Money, Index}; }
    /// One of the kit's own pictures; null, told once, when it can't be read.
    Picture LoadOrTell(const QString& sPath, TellOnce::Fault fault) const;
    bool PaintFace(Surface& form, QSize size) const;
    Picture FaceInOval(double dblDPI) const;

    std::array<QString, kTexts> m_sText;
};
