// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One section of an INI file: plain values (backslashes stay as they are), keys without regard to case,
/// unknown keys and comments kept when a key is written.
namespace ProfileFile {

/// Longest value that is read, in characters; what lies beyond is cut off.
constexpr int kMaxValueLength = 2048;

/// The key's value; empty when the file, the section or the key isn't there or can't be read.
QString Read(const QString& sPath, const QString& sSection, const QString& sKey);

/// False when the file can't be written, or can't be read first; the old file then stands. A value's line breaks become
/// blanks, as a value is one line.
bool Write(const QString& sPath, const QString& sSection, const QString& sKey, const QString& sValue);

/// While one lives, what is written waits, is read back all the same, and goes to the disk in one write at its end:
/// each write of its own is waited for until it has reached the disk.
class Together {
public:
    Together();
    ~Together();
    Together(const Together&) = delete;
    Together& operator=(const Together&) = delete;
};

} // namespace ProfileFile
