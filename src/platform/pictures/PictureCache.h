// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"
#include "platform/paint/Picture.h"

#include <QSet>

#include <condition_variable>
#include <list>
#include <mutex>

/// The pictures decoded last, by path, time stamp and size wanted, up to a bound of memory. A file that
/// can't be read is remembered as well. Any thread may use it; two threads that want the same picture
/// decode it once.
class PictureCache {
public:
    struct Key {
        QString sPath;
        Files::Stamp stamp;
        int longerSideWanted = kAllPixels;
        friend bool operator==(const Key&, const Key&) = default;
    };
    struct Entry {
        Picture picture;
        QString sError;
        /// The very same pixels would come out for all sizes wanted from the one to the other; for those of the key
        /// alone where it is empty.
        int iFrom = 1;
        int iTo = 0;
    };
    using Decoder = Entry (*)(const Key& key);

    /// Room for the reduced pictures of a whole board beside a photograph of 12 megapixels whole. A picture
    /// that would take more than half of it isn't kept, but for the last that was announced: until it was taken, and
    /// another is wanted.
    static constexpr qint64 kMaxBytes = qint64(112) << 20;

    static PictureCache& Instance();

    /// What is kept; else what another thread is about to bring; else decoded here and now.
    Entry Get(const Key& key, Decoder decode);
    /// True when Get would answer at once.
    bool Holds(const Key& key);
    /// Announces that the caller will call Fulfil. False when it is kept or announced already.
    bool Reserve(const Key& key);
    void Fulfil(const Key& key, Entry entry);
    /// Drops what is kept of a file.
    void Drop(const QString& sPath);
    /// Drops what is kept of all files but these.
    void DropAllBut(const QSet<QString>& paths);
    void Clear();
    qint64 Bytes() const;

private:
    PictureCache();
    struct Slot {
        Key key;
        Entry entry = {};
        bool ready = false;
        bool announced = false;
        /// Too large to be kept, and taken.
        bool spent = false;
    };
    using Slots = std::list<Slot>;

    Slots::iterator Find(const Key& key);
    /// The slot of that key, or one that came out the same and is kept.
    Slots::iterator FindAlike(const Key& key);
    /// Takes an announcement back, so that nobody waits for what never comes.
    void Abandon(const Key& key);
    void DropOldest();
    /// Drops those too large to be kept, all or only the spent, but for one.
    void DropLarge(bool bSpentOnly, const Key& butFor);

    mutable std::mutex m_mutex;
    std::condition_variable m_arrived;
    /// Used last stands first.
    Slots m_slots;
    qint64 m_bytes = 0;
};
