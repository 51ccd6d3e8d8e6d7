// SPDX-License-Identifier: MIT
// Feeds every file of a folder to a fuzz target's entry, so that the fuzz corpora are tried on every build.
#include <QDir>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    LLVMFuzzerInitialize(&argc, &argv);
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::ReadOnly)) return 1;
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
    }
    return names.isEmpty() ? 1 : 0;
}
