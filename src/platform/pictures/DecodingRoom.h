// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

/// Memory for one picture while it is being decoded. A small file may unfold to half a gigabyte, and each processor
/// decodes one: together they get no more than this much at once, and the others wait. One that needs more than all of
/// it goes alone.
class DecodingRoom {
public:
    static constexpr qint64 kMostBytes = qint64(192) << 20;

    /// Waits for room for so many pixels of 32 bits.
    explicit DecodingRoom(QSize pixels);
    ~DecodingRoom();
    DecodingRoom(const DecodingRoom&) = delete;
    DecodingRoom& operator=(const DecodingRoom&) = delete;

private:
    qint64 m_bytes;
};
