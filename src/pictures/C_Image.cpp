// SPDX-License-Identifier: MIT
#include "pictures/C_Image.h"

#include "pictures/PaintPicture.h"
#include "pictures/PictureMiddle.h"
#include "pictures/PicturePlaces.h"
#include "platform/text/NewLine.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"
#include "services/Kit.h"
#include "services/RecordText.h"

namespace {

using Fault = TellOnce::Fault;

} // namespace

// No picture is nothing to tell of, and lets one that comes to stand here later be told.
void C_Image::TellBadPath(const QString& sText) const {
    if (m_picture.ref.IsEmpty()) {
        Told().Note(Fault::Picture, QString());
    } else {
        Told().Tell(Fault::Picture, m_picture.ref.sPath, sText, vbExclamation);
    }
}

void C_Image::Let_BadPath(const QString& sNewBadPath) const try {
    // Init clears what was told right after it was told; that brings no second box.
    if (sNewBadPath != BadPath()) TellBadPath(InvalidPictureText(FullPath()));
} catch (...) {
    ErrTail("C_Image!", "Let_BadPath", sNewBadPath);
}

void C_Image::SetBadPath(const QString& sError) const try {
    QString text = InvalidPictureText(FullPath());
    if (!sError.isEmpty())
        text += kNewLine + kNewLine + QStringLiteral("The following error was reported") + kNewLine + sError;
    TellBadPath(text);
} catch (...) {
    ErrTail("C_Image!", "SetBadPath", sError);
}

void C_Image::TakeBadPath(const QString& sTold) const {
    if (sTold == m_picture.ref.sPath) Told().Note(Fault::Picture, sTold);
}

// False where it shows that picture already.
bool C_Image::Show(const QString& sNewPath) {
    if (sNewPath == m_picture.ref.sPath) return false;
    m_picture.ref = PictureRef{sNewPath};
    return true;
}

void C_Image::TellIfMissing(const C_Image& objBefore) const {
    if (FullPath() != objBefore.FullPath() && !basCommon::DoesFileExist(FullPath())) Let_BadPath(FullPath());
}

void C_Image::Let_FullPath(const QString& sNewPath) try {
    if (Show(sNewPath) && !basCommon::DoesFileExist(sNewPath)) Let_BadPath(sNewPath);
} catch (...) {
    ErrTail("C_Image!", "Let_FullPath", sNewPath);
}

QString C_Image::RelativePath() const try { return PicturePlaces::RelativeOf(m_picture.ref.sPath); } catch (...) {
    ErrTail("C_Image!", "RelativePath");
}

void C_Image::Let_RelativePath(const QString& sRelativeFile) try {
    Let_FullPath(PicturePlaces::FullFor(sRelativeFile, Owner(), KitInUse()));
} catch (...) {
    ErrTail("C_Image!", "Let_RelativePath", sRelativeFile);
}

PictureRef C_Image::Centered() const { return PictureMiddle::Centered(m_picture.ref); }

// The other one keeps the middle that the picture shows.
void C_Image::Let_XCenter(float fXCenter) try {
    const qint16 rounded = basTAVL::CInt(fXCenter);
    m_picture.ref = Centered();
    m_picture.ref.iXCenter = rounded;
} catch (...) {
    ErrTail("C_Image!", "Let_XCenter", fXCenter);
}

void C_Image::Let_YCenter(float fYCenter) try {
    const qint16 rounded = basTAVL::CInt(fYCenter);
    m_picture.ref = Centered();
    m_picture.ref.iYCenter = rounded;
} catch (...) {
    ErrTail("C_Image!", "Let_YCenter", fYCenter);
}

void C_Image::Init(const QString& sNewPath, const QString& sSpaceOrCorner, qint16 iIndex) try {
    // First, as what is told of a missing file is remembered for the owner. Of a new image nothing was told.
    m_picture.owner = {PictureOwner::KindOf(sSpaceOrCorner), iIndex};
    Told().Note(Fault::Picture, QString());
    Let_FullPath(sNewPath);
    Let_BadPath(QString());
} catch (...) {
    ErrTail("C_Image!", "Init", sNewPath, sSpaceOrCorner, iIndex);
}

void C_Image::LoadFromObject(const C_Image& objMaster, bool bBadPathReport) try {
    if (bBadPathReport) Let_BadPath(objMaster.BadPath());
    *this = objMaster;
} catch (...) {
    ErrTail("C_Image!", "LoadFromObject", objMaster, bBadPathReport);
}

bool C_Image::operator==(const C_Image& objOther) const {
    if (Owner() != objOther.Owner()) return false;
    return Ref() == objOther.Ref() || Centered() == objOther.Centered();
}

QString C_Image::GetQuotedString() const try {
    const PictureRef shown = Centered();
    return basTAVL::Quote(RelativePath()) + u',' + QString::number(shown.iXCenter) + u',' +
           QString::number(shown.iYCenter) + u',' + QString::number(shown.iZoom);
} catch (...) {
    ErrTail("C_Image!", "GetQuotedString");
}

QString C_Image::GetNextTest(QString& sText) { return basTAVL::GetQuotedField(sText); }

void C_Image::ReadPart(QString& sRest) {
    m_picture.ref.iXCenter = basTAVL::IntegerOrZero(GetNextTest(sRest));
    m_picture.ref.iYCenter = basTAVL::IntegerOrZero(GetNextTest(sRest));
    m_picture.ref.iZoom = basTAVL::IntegerOrZero(GetNextTest(sRest));
}

QString C_Image::Read(const QString& sIn, const PictureOwner& owner, const PicturePlaces::Finder& find) {
    QString rest = sIn;
    m_picture.owner = owner;
    Show(find(GetNextTest(rest), owner));
    ReadPart(rest);
    return rest;
}

QString C_Image::SetQuotedString(const QString& sIn, const QString& sSpaceOrCorner, qint16 iIndex) try {
    QString rest = sIn;
    m_picture.owner = {PictureOwner::KindOf(sSpaceOrCorner), iIndex};
    Let_RelativePath(GetNextTest(rest));
    ReadPart(rest);
    return rest;
} catch (...) {
    ErrTail("C_Image!", "SetQuotedString", sIn, sSpaceOrCorner, iIndex);
}
