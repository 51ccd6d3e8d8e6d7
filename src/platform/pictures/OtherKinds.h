// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

/// What a file is that holds no picture but is easily taken for one, and what to do with it: "a PDF document. Please
/// save ...", without a full stop at the end. By its first bytes and, where those are like a picture's, by what its
/// name ends in, in small letters; empty for anything else.
QString OtherKindOf(QByteArrayView start, const QString& sEnding);
