// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

struct MetafileFont;

/// What the bytes of a text stand for, and which typeface of this machine stands in for the file's.
namespace MetafileCharset {

/// One character with the number of bytes it takes in the file, as distances are counted by bytes.
struct Character {
    QString text;
    int bytes = 1;
};

QList<Character> Decode(QByteArrayView bytes, const MetafileFont& font);

/// A family to ask the platform for: the file's own where it is installed or has a known stand-in, else the
/// plain face of the same kind (with serifs, of even width, or neither).
QString FamilyFor(const MetafileFont& font);

} // namespace MetafileCharset
