// SPDX-License-Identifier: MIT
#include "platform/pictures/DecodingRoom.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace {

// The most bytes that so many pictures, each on a thread of its own, have had at once.
qint64 MostAtOnce(int pictures, QSize size) {
    std::atomic<qint64> now = 0;
    std::atomic<qint64> most = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < pictures; ++i) {
        threads.emplace_back([&] {
            const DecodingRoom room(size);
            const qint64 taken = now += qint64(size.width()) * size.height() * 4;
            for (qint64 before = most; before < taken && !most.compare_exchange_weak(before, taken);) {
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
            now -= qint64(size.width()) * size.height() * 4;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    return most;
}

TEST(DecodingRoomTest, PicturesDecodedAtOnceStayWithinTheBoundHoweverManyThreadsThereAre) {
    const qint64 most = MostAtOnce(16, QSize(4000, 3000));
    EXPECT_LE(most, DecodingRoom::kMostBytes);
    EXPECT_GT(most, qint64(4000) * 3000 * 4) << "several small ones go together";
}

TEST(DecodingRoomTest, OneThatNeedsMoreThanAllOfItGoesAlone) {
    const QSize huge(11500, 11500);
    EXPECT_EQ(MostAtOnce(4, huge), qint64(huge.width()) * huge.height() * 4);
}

} // namespace
