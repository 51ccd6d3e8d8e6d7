// SPDX-License-Identifier: MIT
// Any bytes as a packed game. What is taken comes out under plain names in its own folders only, and the game that
// comes out names no picture but those.
#include "FuzzHost.h"

#include "pack/GamePictures.h"
#include "pack/PackNames.h"
#include "pack/PackReader.h"

namespace {

const QString kFolder = QStringLiteral("Sent/");

void Demand(bool bHolds) {
    if (!bHolds) std::abort();
}

void ReadFiles(const PackReader& reader) {
    for (const QString& entry : reader.Files()) {
        Demand(PackNames::IsSafe(entry) && entry.count(u'/') == 1);
        Demand(entry.startsWith(PackNames::kPictures) || entry.startsWith(PackNames::kFonts));
        reader.Read(entry);
    }
}

void ReadLines(const PackReader& reader) {
    const QStringList lines =
        reader.Lines([](const QString& sEntry) { return kFolder + sEntry; }, QStringLiteral("Sent.gam"));
    for (const GamePictures::Named& named : GamePictures::Of(lines))
        Demand(named.owner.IsFate() || named.ref.sPath.startsWith(kFolder + PackNames::kPictures));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzHost::Get().Reset();
    QString error;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const std::optional<PackReader> reader = PackReader::Open(bytes, error);
    Demand(reader.has_value() == error.isEmpty());
    if (!reader) return 0;
    Demand(PackNames::IsSafe(reader->GameName()));
    ReadFiles(*reader);
    ReadLines(*reader);
    return 0;
}
