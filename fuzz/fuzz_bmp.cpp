// SPDX-License-Identifier: MIT
// Takes any bytes for the heads, table and rows of a bitmap file: asks what it is, copies it in another
// colour, and reads the copy again.
#include "drawing/basBMP.h"
#include "platform/files/BinaryFile.h"
#include "platform/files/Files.h"
#include "platform/pictures/PictureFormat.h"
#include "services/Desktop.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

/// Nobody is there to read boxes.
class SilentDesktop : public ConsoleDesktop {
public:
    int MsgBox(const QString&, int, const QString&) override { return vbOK; }
};

// In memory where the system has such a place: a million files are written.
QString FolderForFiles() {
    const QString memory = QStringLiteral("/dev/shm");
    static const QTemporaryDir folder(Files::IsDirectory(memory) ? memory + QStringLiteral("/bmp-XXXXXX")
                                                                 : QStringLiteral("bmp-XXXXXX"));
    return folder.path();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    static QCoreApplication application(*argc, *argv);
    static SilentDesktop desktop;
    Desktop::Install(&desktop);
    // The user's trash is no place for these files.
    qputenv("XDG_DATA_HOME", QByteArray());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    IsBmpWhole(bytes, bytes.size());
    static const QString path = FolderForFiles() + QStringLiteral("/in.bmp");
    static const QString copy = FolderForFiles() + QStringLiteral("/out.bmp");
    // What isn't a bitmap would be taken off the disk, which another test shows.
    if (!bytes.startsWith("BM")) return 0;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
    file.close();
    if (!basBMP::ChangeMonoBmpBackColor(path, copy, Color::Rgb(1, 2, 3))) return 0;

    BinaryFile written;
    QString error;
    basBMP::FileHead head;
    basBMP::BitmapInfo info;
    if (!written.OpenForReading(copy, error)) std::abort();
    if (basBMP::ReadFileHead(written, copy, head) != 0 || basBMP::ReadInfoHead(written, copy, info) != 0) std::abort();
    basBMP::ReadColorTable(written, copy, info, Color::Black(), false);
    // A table told to have one entry has no second.
    const bool hasSecond = info.bmiHeader.biClrUsed != 1;
    if (hasSecond && info.bmiColors[1] != basBMP::RgbQuad{1, 2, 3, 0}) std::abort();
    written.Close();
    QFile::remove(copy);
    return 0;
}
