// SPDX-License-Identifier: MIT
#include "platform/pictures/DecodingRoom.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

namespace {

struct Room {
    std::mutex mutex;
    std::condition_variable given;
    qint64 taken = 0;
};

Room& TheRoom() {
    static Room room;
    return room;
}

} // namespace

DecodingRoom::DecodingRoom(QSize pixels) : m_bytes(std::min(qint64(pixels.width()) * pixels.height() * 4, kMostBytes)) {
    Room& room = TheRoom();
    std::unique_lock lock(room.mutex);
    room.given.wait(lock, [&] { return room.taken + m_bytes <= kMostBytes; });
    room.taken += m_bytes;
}

DecodingRoom::~DecodingRoom() {
    Room& room = TheRoom();
    {
        const std::scoped_lock lock(room.mutex);
        room.taken -= m_bytes;
    }
    room.given.notify_all();
}
