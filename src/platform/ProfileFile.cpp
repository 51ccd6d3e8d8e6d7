// SPDX-License-Identifier: MIT
#include "platform/ProfileFile.h"

#include "platform/Files.h"
#include "platform/TextFile.h"

// Debian keeps the bodies of the header behind this word; elsewhere it means nothing.
#define SI_IMPLEMENTATION
#define SI_CONVERT_ICU
#include <SimpleIni.h>

namespace ProfileFile {
namespace {

// A settings file is a few hundred bytes; a huge one is not ours.
constexpr qint64 kMaxFileSize = 4 << 20;

bool Load(CSimpleIniA& ini, const QString& sPath) {
    ini.SetUnicode(true);
    ini.SetMultiKey(false);
    ini.SetSpaces(false);
    if (!Files::Exists(sPath) || Files::Size(sPath) > kMaxFileSize) return false;
    QString error;
    const std::optional<QByteArray> bytes = Files::ReadAll(sPath, error);
    if (!bytes) return false;
    QByteArray text = TextFile::Decode(*bytes).toUtf8();
    text.replace('\0', "");
    return ini.LoadData(text.constData(), size_t(text.size())) >= 0;
}

QString OneLine(QString sValue) {
    sValue.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    sValue.replace(u'\n', u' ').replace(u'\r', u' ').remove(QChar(0));
    return sValue;
}

} // namespace

QString Read(const QString& sPath, const QString& sSection, const QString& sKey) {
    CSimpleIniA ini;
    if (!Load(ini, sPath)) return {};
    const char* const value = ini.GetValue(sSection.toUtf8().constData(), sKey.toUtf8().constData(), "");
    return QString::fromUtf8(value).left(kMaxValueLength);
}

bool Write(const QString& sPath, const QString& sSection, const QString& sKey, const QString& sValue) {
    CSimpleIniA ini;
    // All other settings would be gone.
    if (!Load(ini, sPath) && Files::Exists(sPath)) return false;
    ini.SetValue(sSection.toUtf8().constData(), sKey.toUtf8().constData(), OneLine(sValue).toUtf8().constData());
    std::string text;
    if (ini.Save(text) < 0) return false;
    QString error;
    QString lines = QString::fromStdString(text);
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return Files::WriteWhole(sPath, TextFile::Encode(lines), error);
}

} // namespace ProfileFile
