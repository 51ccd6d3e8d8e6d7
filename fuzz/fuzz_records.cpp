// SPDX-License-Identifier: MIT
// Reads each line of any bytes as a record, its first letter telling which; what is read must be written as
// one line that reads again. Much faster than whole games.
#include "FuzzHost.h"

#include "document/basTAVL.h"
#include "platform/files/TextFile.h"

namespace {

template <typename Record>
void ReadWriteRead(const QString& line) {
    Record record;
    record.SetQuotedString(line);
    const QString written = record.GetQuotedString();
    if (written.contains(u'\n') || written.contains(u'\r')) std::abort();
    Record again;
    again.SetQuotedString(written);
    if (again.Index != record.Index) std::abort();
}

void ReadLine(const QString& line) {
    const QString fields = line.mid(1);
    switch (line.isEmpty() ? 0 : line.front().unicode()) {
        case u'S':
            return ReadWriteRead<C_Space>(fields);
        case u'C':
            return ReadWriteRead<C_Corner>(fields);
        case u'N':
            return ReadWriteRead<C_News>(fields);
        case u'M':
            return ReadWriteRead<C_Money>(fields);
        default:
            return ReadWriteRead<C_Token>(fields);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzHost::Get().Reset();
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const QString& line : TextFile::SplitLines(TextFile::Decode(bytes))) {
        try {
            ReadLine(line);
        } catch (const TavloraError& error) {
            basErrLog::ErrDismiss(error.Description());
        } catch (const ProgramEnded&) {
            // A font of size 0 ends the program, by its own message.
        }
    }
    return 0;
}
