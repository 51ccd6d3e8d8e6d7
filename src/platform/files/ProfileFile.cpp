// SPDX-License-Identifier: MIT
#include "platform/files/ProfileFile.h"

#include "platform/files/Files.h"
#include "platform/files/TextFile.h"

// Debian keeps the bodies of the header behind this word; elsewhere it means nothing.
#define SI_IMPLEMENTATION
#define SI_CONVERT_ICU
#include <SimpleIni.h>

#include <memory>
#include <utility>

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

// A file whose writes wait for each other.
struct Waiting {
    QString sPath;
    CSimpleIniA ini;
};

struct State {
    int together = 0;
    std::unique_ptr<Waiting> waiting;
};

State& TheState() {
    static State state;
    return state;
}

bool Save(const CSimpleIniA& ini, const QString& sPath) {
    std::string text;
    if (ini.Save(text) < 0) return false;
    QString error;
    QString lines = QString::fromStdString(text);
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return Files::WriteWhole(sPath, TextFile::Encode(lines), error);
}

bool WriteWhatWaits() {
    const std::unique_ptr<Waiting> waiting = std::move(TheState().waiting);
    return !waiting || Save(waiting->ini, waiting->sPath);
}

QString OneLine(QString sValue) {
    sValue.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    sValue.replace(u'\n', u' ').replace(u'\r', u' ').remove(QChar(0));
    return sValue;
}

} // namespace

QString Read(const QString& sPath, const QString& sSection, const QString& sKey) {
    const Waiting* const waiting = TheState().waiting.get();
    CSimpleIniA onDisk;
    const bool bWaits = waiting && waiting->sPath == sPath;
    if (!bWaits && !Load(onDisk, sPath)) return {};
    const CSimpleIniA& ini = bWaits ? waiting->ini : onDisk;
    const char* const value = ini.GetValue(sSection.toUtf8().constData(), sKey.toUtf8().constData(), "");
    return QString::fromUtf8(value).left(kMaxValueLength);
}

bool Write(const QString& sPath, const QString& sSection, const QString& sKey, const QString& sValue) {
    std::unique_ptr<Waiting>& waiting = TheState().waiting;
    const bool bOther = waiting && waiting->sPath != sPath;
    if (bOther && !WriteWhatWaits()) return false;
    if (!waiting) {
        auto file = std::make_unique<Waiting>();
        file->sPath = sPath;
        // All other settings would be gone.
        if (!Load(file->ini, sPath) && Files::Exists(sPath)) return false;
        waiting = std::move(file);
    }
    waiting->ini.SetValue(sSection.toUtf8().constData(), sKey.toUtf8().constData(),
                          OneLine(sValue).toUtf8().constData());
    return TheState().together > 0 || WriteWhatWaits();
}

Together::Together() { ++TheState().together; }

Together::~Together() {
    if (--TheState().together == 0) WriteWhatWaits();
}

} // namespace ProfileFile
