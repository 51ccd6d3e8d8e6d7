// SPDX-License-Identifier: MIT
#include "pictures/C_Image.h"

#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/BoardFacts.h"
#include "services/Desktop.h"
#include "services/Kit.h"
#include "services/ProgramSettings.h"
#include "services/RecordText.h"

#include <optional>

namespace {

using Fault = TellOnce::Fault;

const QString kNewLine = QStringLiteral("\r\n");

// Where relative pictures are looked for first.
QString PictureBase() {
    const QString& base = Settings().sRelativePictureBase;
    return base.isEmpty() ? basCommon::GetMyGamesDirectory() : base;
}

// What follows the folder in the path; nothing when the path doesn't lie in it.
std::optional<QString> PartBelow(const QString& sFolder, const QString& sPath) {
    const QString prefix = basCommon::JoinPath(sFolder, QString());
    if (sFolder.isEmpty() || !sPath.startsWith(prefix, Qt::CaseInsensitive)) return std::nullopt;
    return sPath.mid(prefix.size());
}

// A drive without a folder names a file in the drive's root, as there is no current folder on a drive; a
// path without any separator would count as a programming error further on.
QString WithRootOfDrive(const QString& sName) {
    const bool driveOnly = sName.size() >= 2 && sName[1] == u':' && !sName.contains(u'\\') && !sName.contains(u'/');
    return driveOnly ? sName.left(2) + u'\\' + sName.mid(2) : sName;
}

bool IsComplete(const QString& sName) {
    return sName.startsWith(u'/') || sName.startsWith(u'\\') || (sName.size() >= 2 && sName[1] == u':');
}

// The places at which a picture of a game file is looked for ahead of the program's own folder.
QStringList PlacesOf(const QString& sName) {
    if (IsComplete(sName)) return {basCommon::GetFullPath(PictureBase(), sName, QString())};
    QStringList places{basCommon::JoinPath(PictureBase(), sName)};
    if (!Settings().sGameDirectory.isEmpty()) places.append(basCommon::JoinPath(Settings().sGameDirectory, sName));
    return places;
}

// Where a name of a game file leads to, whether or not the picture is there.
QString PlaceOf(const QString& sName) {
    for (const QString& place : PlacesOf(sName)) {
        if (basCommon::DoesFileExist(place)) return place;
    }
    // A name without an extension gets the wildcard as one. No such file is ever there; kept on purpose, as
    // the message about the missing file has always named it so.
    return basCommon::GetFullPath(Folders::ProgramDirectory(), sName, QStringLiteral("*.bmp"));
}

} // namespace

QString C_Image::ReportText() const {
    return QStringLiteral("The file named '") + m_ref.sPath + QStringLiteral("' is invalid or does not exist.") +
           kNewLine + QStringLiteral("Area will be left empty.");
}

void C_Image::Let_BadPath(const QString& sNewBadPath) try {
    if (sNewBadPath == BadPath()) return;
    // Init clears what was told right after it was told: without a second test one bad path would get two boxes.
    TellBadPath(ReportText());
} catch (...) {
    ErrTail("C_Image!", "Let_BadPath", sNewBadPath);
}

void C_Image::SetBadPath(const QString& sError) try {
    QString text = ReportText();
    if (!sError.isEmpty())
        text += kNewLine + kNewLine + QStringLiteral("The following error was reported") + kNewLine + sError;
    TellBadPath(text);
} catch (...) {
    ErrTail("C_Image!", "SetBadPath", sError);
}

// No picture is nothing to tell of, and lets one that comes to stand here later be told.
void C_Image::TellBadPath(const QString& sText) const {
    if (m_ref.IsEmpty()) {
        Told().Note(Fault::Picture, QString());
    } else {
        Told().Tell(Fault::Picture, m_ref.sPath, sText, vbExclamation);
    }
}

void C_Image::TakeBadPath(const QString& sTold) {
    if (sTold == m_ref.sPath) Told().Note(Fault::Picture, sTold);
}

void C_Image::Let_FullPath(const QString& sNewPath) try {
    if (sNewPath == m_ref.sPath) return;
    m_ref.sPath = sNewPath;
    if (!basCommon::DoesFileExist(m_ref.sPath)) Let_BadPath(m_ref.sPath);
    KillThumb();
    m_ref.iZoom = 0;
    m_ref.iXCenter = 0;
    m_ref.iYCenter = 0;
} catch (...) {
    ErrTail("C_Image!", "Let_FullPath", sNewPath);
}

QString C_Image::RelativePath() const try {
    if (const std::optional<QString> part = PartBelow(PictureBase(), m_ref.sPath)) return *part;
    if (const std::optional<QString> part = PartBelow(Folders::ProgramDirectory(), m_ref.sPath)) return *part;
    return m_ref.sPath;
} catch (...) {
    ErrTail("C_Image!", "RelativePath");
}

void C_Image::Let_RelativePath(const QString& sRelativeFile) try {
    const bool fate = ReadsFateItself(KitInUse()) && m_owner.IsFate();
    const QString name = fate ? QString::fromLatin1(BoardFacts::kFatePicture) : sRelativeFile.trimmed();
    Let_FullPath(name.isEmpty() ? QString() : Files::InDiskSpelling(PlaceOf(WithRootOfDrive(name))));
} catch (...) {
    ErrTail("C_Image!", "Let_RelativePath", sRelativeFile);
}

void C_Image::StoreCenter(qint16& iCenter, float fCenter) {
    if (fCenter == float(iCenter)) return;
    const qint16 rounded = basTAVL::CInt(fCenter);
    KillThumb();
    iCenter = rounded;
}

void C_Image::Let_XCenter(float fXCenter) try { StoreCenter(m_ref.iXCenter, fXCenter); } catch (...) {
    ErrTail("C_Image!", "Let_XCenter", fXCenter);
}

void C_Image::Let_YCenter(float fYCenter) try { StoreCenter(m_ref.iYCenter, fYCenter); } catch (...) {
    ErrTail("C_Image!", "Let_YCenter", fYCenter);
}

void C_Image::TakeCenterFrom(const C_Image& objCopy) {
    if (IsCentered() || m_ref.sPath != objCopy.m_ref.sPath) return;
    m_ref.iXCenter = objCopy.m_ref.iXCenter;
    m_ref.iYCenter = objCopy.m_ref.iYCenter;
}

void C_Image::Let_Zoom(qint16 iZoom) try {
    if (iZoom == m_ref.iZoom) return;
    KillThumb();
    m_ref.iZoom = iZoom;
} catch (...) {
    ErrTail("C_Image!", "Let_Zoom", iZoom);
}

void C_Image::Init(const QString& sNewPath, const QString& sSpaceOrCorner, qint16 iIndex) try {
    m_owner = {PictureOwner::KindOf(sSpaceOrCorner), iIndex};
    Let_FullPath(sNewPath);
    Let_BadPath(QString());
} catch (...) {
    ErrTail("C_Image!", "Init", sNewPath, sSpaceOrCorner, iIndex);
}

void C_Image::LoadFromObject(const C_Image& objMaster, bool bBadPathReport) try {
    if (bBadPathReport) Let_BadPath(objMaster.BadPath());
    // The writers delete the thumbnail of the old owner: kind and number come last.
    Let_FullPath(objMaster.m_ref.sPath);
    Let_Zoom(objMaster.m_ref.iZoom);
    Let_XCenter(objMaster.m_ref.iXCenter);
    Let_YCenter(objMaster.m_ref.iYCenter);
    m_owner = objMaster.m_owner;
} catch (...) {
    ErrTail("C_Image!", "LoadFromObject", objMaster, bBadPathReport);
}

bool C_Image::IsDifferentFrom(const C_Image& objMaster) const { return !(*this == objMaster); }

QString C_Image::GetQuotedString() const try {
    return basTAVL::Quote(RelativePath()) + u',' + QString::number(m_ref.iXCenter) + u',' +
           QString::number(m_ref.iYCenter) + u',' + QString::number(m_ref.iZoom);
} catch (...) {
    ErrTail("C_Image!", "GetQuotedString");
}

QString C_Image::GetNextTest(QString& sText) { return basTAVL::GetQuotedField(sText); }

QString C_Image::SetQuotedString(const QString& sIn, const QString& sSpaceOrCorner, qint16 iIndex) try {
    QString rest = sIn;
    m_owner = {PictureOwner::KindOf(sSpaceOrCorner), iIndex};
    Let_RelativePath(GetNextTest(rest));
    Let_XCenter(basTAVL::IntegerOrZero(GetNextTest(rest)));
    Let_YCenter(basTAVL::IntegerOrZero(GetNextTest(rest)));
    Let_Zoom(basTAVL::IntegerOrZero(GetNextTest(rest)));
    return rest;
} catch (...) {
    ErrTail("C_Image!", "SetQuotedString", sIn, sSpaceOrCorner, iIndex);
}

bool C_Image::IsWMF() const { return m_ref.sPath.endsWith(QStringLiteral(".wmf"), Qt::CaseInsensitive); }

QString C_Image::Thumbname() const try {
    if (m_owner.kind == PictureOwner::Kind::None) return {};
    if (!m_owner.IsPiece()) basErrLog::ErrUnexVal(QStringLiteral("SpaceOrCorner"), SpaceOrCorner());
    return basCommon::JoinPath(basCommon::GetMyGamesDirectory(),
                               m_owner.KindName() + QString::number(m_owner.iNumber) + QStringLiteral(".bmp"));
} catch (...) {
    ErrTail("C_Image!", "Thumbname");
}

void C_Image::KillThumb() {
    if (!m_owner.IsPiece()) return;
    const QString name = Thumbname();
    QString error;
    if (Files::Remove(name, error)) {
        Told().Note(Fault::Deletion, QString());
        return;
    }
    DistrustThumbnail(name);
    const QString blank = kNewLine + kNewLine;
    // Path, zoom and centre of a picture are set one by one, and each would tell of the same file.
    Told().Tell(Fault::Deletion, name,
                QStringLiteral("Unable to delete the file named: ") + name + blank +
                    QStringLiteral("This could cause the space or corner to be displayed incorrectly.") + blank +
                    QStringLiteral("The following error was reported:") + kNewLine + error,
                vbExclamation);
}
