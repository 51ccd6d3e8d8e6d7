// SPDX-License-Identifier: MIT
#include "platform/pictures/PictureCache.h"

#include "platform/files/BinaryFile.h"

#include <algorithm>

namespace {

qint64 BytesOf(const PictureCache::Entry& entry) {
    // A remembered failure takes a little as well, so that there can't be any number of them.
    constexpr qint64 kOverhead = 1024;
    return entry.picture.Image().sizeInBytes() + kOverhead;
}

bool IsLarge(const PictureCache::Entry& entry) { return BytesOf(entry) > PictureCache::kMaxBytes / 2; }

} // namespace

// Two versions of a file of one size within a tick of the clock can't be told apart by their stamps.
PictureCache::PictureCache() {
    BinaryFile::TellBeforeWriting([](const QString& sPath) { Instance().Drop(sPath); });
}

PictureCache& PictureCache::Instance() {
    static PictureCache cache;
    return cache;
}

PictureCache::Slots::iterator PictureCache::Find(const Key& key) {
    return std::find_if(m_slots.begin(), m_slots.end(), [&key](const Slot& slot) { return slot.key == key; });
}

PictureCache::Slots::iterator PictureCache::FindAlike(const Key& key) {
    const Slots::iterator exact = Find(key);
    if (exact != m_slots.end()) return exact;
    return std::find_if(m_slots.begin(), m_slots.end(), [&key](const Slot& slot) {
        return slot.ready && slot.key.sPath == key.sPath && slot.key.stamp == key.stamp && !IsLarge(slot.entry) &&
               slot.entry.iFrom <= key.longerSideWanted && key.longerSideWanted <= slot.entry.iTo;
    });
}

PictureCache::Entry PictureCache::Get(const Key& key, Decoder decode) {
    {
        std::unique_lock lock(m_mutex);
        DropLarge(true, key);
        auto slot = FindAlike(key);
        while (slot != m_slots.end() && !slot->ready) {
            m_arrived.wait(lock);
            slot = FindAlike(key);
        }
        if (slot != m_slots.end()) {
            m_slots.splice(m_slots.begin(), m_slots, slot);
            slot->spent = IsLarge(slot->entry);
            return slot->entry;
        }
        m_slots.push_front({.key = key});
    }
    try {
        Entry entry = decode(key);
        Fulfil(key, entry);
        return entry;
    } catch (...) {
        Abandon(key);
        throw;
    }
}

bool PictureCache::Holds(const Key& key) {
    const std::scoped_lock lock(m_mutex);
    const Slots::iterator slot = FindAlike(key);
    return slot != m_slots.end() && slot->ready;
}

bool PictureCache::Reserve(const Key& key) {
    const std::scoped_lock lock(m_mutex);
    if (FindAlike(key) != m_slots.end()) return false;
    m_slots.push_front({.key = key, .announced = true});
    return true;
}

void PictureCache::Fulfil(const Key& key, Entry entry) {
    {
        const std::scoped_lock lock(m_mutex);
        const auto slot = Find(key);
        if (slot != m_slots.end()) {
            // Not for one picture's sake shall all others be forgotten. But who had it announced comes for it, and
            // would have it decoded over and over.
            const bool large = IsLarge(entry);
            if (large && !slot->announced) {
                m_slots.erase(slot);
            } else {
                if (large) DropLarge(false, key);
                if (!large) m_bytes += BytesOf(entry);
                slot->entry = std::move(entry);
                slot->ready = true;
                DropOldest();
            }
        }
    }
    m_arrived.notify_all();
}

void PictureCache::Abandon(const Key& key) {
    {
        const std::scoped_lock lock(m_mutex);
        const auto slot = Find(key);
        if (slot != m_slots.end() && !slot->ready) m_slots.erase(slot);
    }
    m_arrived.notify_all();
}

void PictureCache::DropOldest() {
    for (auto slot = m_slots.end(); m_bytes > kMaxBytes && slot != m_slots.begin();) {
        --slot;
        if (!slot->ready || IsLarge(slot->entry)) continue;
        m_bytes -= BytesOf(slot->entry);
        slot = m_slots.erase(slot);
    }
}

void PictureCache::DropLarge(bool bSpentOnly, const Key& butFor) {
    m_slots.remove_if([&](const Slot& slot) {
        return slot.ready && IsLarge(slot.entry) && (slot.spent || !bSpentOnly) && slot.key != butFor;
    });
}

void PictureCache::Drop(const QString& sPath) {
    const std::scoped_lock lock(m_mutex);
    m_slots.remove_if([this, &sPath](const Slot& slot) {
        const bool drops = slot.ready && slot.key.sPath == sPath;
        if (drops && !IsLarge(slot.entry)) m_bytes -= BytesOf(slot.entry);
        return drops;
    });
}

void PictureCache::DropAllBut(const QSet<QString>& paths) {
    const std::scoped_lock lock(m_mutex);
    m_slots.remove_if([&](const Slot& slot) {
        const bool drops = slot.ready && !paths.contains(slot.key.sPath);
        if (drops) m_bytes -= BytesOf(slot.entry);
        return drops;
    });
}

void PictureCache::Clear() {
    const std::scoped_lock lock(m_mutex);
    m_slots.remove_if([](const Slot& slot) { return slot.ready; });
    m_bytes = 0;
}

qint64 PictureCache::Bytes() const {
    const std::scoped_lock lock(m_mutex);
    return m_bytes;
}
