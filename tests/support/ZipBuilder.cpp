// SPDX-License-Identifier: MIT
#include "support/ZipBuilder.h"

#include <array>

namespace {

void Put16(QByteArray& bytes, quint16 value) {
    bytes.append(char(value & 0xFFU));
    bytes.append(char(value >> 8U));
}

void Put32(QByteArray& bytes, quint32 value) {
    Put16(bytes, quint16(value & 0xFFFFU));
    Put16(bytes, quint16(value >> 16U));
}

quint32 Checksum(const QByteArray& bytes) {
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> made{};
        for (quint32 i = 0; i < made.size(); ++i) {
            quint32 value = i;
            for (int bit = 0; bit < 8; ++bit)
                value = value & 1U ? (value >> 1U) ^ 0xEDB88320U : value >> 1U;
            made[i] = value;
        }
        return made;
    }();
    quint32 sum = 0xFFFFFFFFU;
    for (const char c : bytes)
        sum = (sum >> 8U) ^ table[(sum ^ quint8(c)) & 0xFFU];
    return ~sum;
}

// What the local head and the one in the directory have in common.
void PutHead(QByteArray& zip, const ZipBuilder::Entry& entry) {
    constexpr quint16 kVersion = 20;
    constexpr quint16 kFirstDay = 33;
    Put16(zip, kVersion);
    Put16(zip, entry.flags);
    Put16(zip, entry.method);
    Put16(zip, 0);
    Put16(zip, kFirstDay);
    Put32(zip, entry.saidChecksum < 0 ? Checksum(entry.bytes) : quint32(entry.saidChecksum));
    Put32(zip, quint32(entry.bytes.size()));
    Put32(zip, entry.saidSize < 0 ? quint32(entry.bytes.size()) : quint32(entry.saidSize));
    Put16(zip, quint16(entry.name.size()));
    Put16(zip, 0);
}

void PutDirectoryEntry(QByteArray& zip, const ZipBuilder::Entry& entry, quint32 place) {
    constexpr quint16 kMadeOnUnix = 0x0314;
    zip.append("PK\x01\x02");
    Put16(zip, kMadeOnUnix);
    PutHead(zip, entry);
    Put16(zip, 0);
    Put16(zip, 0);
    Put16(zip, 0);
    Put32(zip, entry.attributes);
    Put32(zip, place);
    zip.append(entry.name);
}

} // namespace

QByteArray ZipBuilder::Bytes() const {
    QByteArray zip;
    QByteArray directory;
    for (const Entry& entry : entries) {
        PutDirectoryEntry(directory, entry, quint32(zip.size()));
        zip.append("PK\x03\x04");
        PutHead(zip, entry);
        zip.append(entry.name);
        zip.append(entry.bytes);
    }
    const auto place = quint32(zip.size());
    zip.append(directory);
    zip.append("PK\x05\x06");
    Put32(zip, 0);
    Put16(zip, quint16(entries.size()));
    Put16(zip, quint16(entries.size()));
    Put32(zip, quint32(directory.size()));
    Put32(zip, place);
    Put16(zip, 0);
    return zip;
}
