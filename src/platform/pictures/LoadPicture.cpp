// SPDX-License-Identifier: MIT
#include "platform/pictures/LoadPicture.h"

#include "platform/files/Files.h"
#include "platform/paint/Recording.h"
#include "platform/pictures/PictureCache.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureFile.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <deque>
#include <mutex>

namespace {

constexpr int kSmallestStep = 128;

int PowerOfTwoAbove(int longerSideWanted) {
    int power = kSmallestStep;
    while (power < longerSideWanted && power < INT_MAX / 2)
        power *= 2;
    return power;
}

// Sizes wanted are kept in few steps, so that dragging a zoom slider doesn't decode at every step: powers of two, and
// one between each two of them.
int StepAbove(int longerSideWanted) {
    if (longerSideWanted <= 0) return kAllPixels;
    const int power = PowerOfTwoAbove(longerSideWanted);
    const int between = power / 2 + power / 5;
    return power > kSmallestStep && between >= longerSideWanted ? between : power;
}

// A JPEG comes reduced at once, and another size that is wanted of it may come out the same.
PictureCache::Entry DecodeJpeg(PictureFile& file, int longerSideWanted) {
    PictureCache::Entry entry;
    entry.picture = PictureDecoder::Decode(file, longerSideWanted, entry.sError);
    if (entry.picture.IsNull()) return entry;
    const int longer = std::max(entry.picture.Width(), entry.picture.Height());
    const int reduction = PictureDecoder::ReductionFor(longer, longerSideWanted);
    const PictureDecoder::SizesAlike alike = PictureDecoder::SizesOfReduction(longer, reduction);
    entry.iFrom = alike.iFrom;
    entry.iTo = alike.iTo;
    return entry;
}

// Drawings are among the others, whose pixels are averaged here, and once more when they are painted. They keep some
// more of them, or they would blur.
PictureCache::Entry DecodeOther(PictureFile& file, int longerSideWanted) {
    const int wanted = longerSideWanted == kAllPixels ? kAllPixels : PowerOfTwoAbove(longerSideWanted);
    PictureCache::Entry entry;
    entry.picture = PictureDecoder::Decode(file, wanted, entry.sError);
    return entry;
}

PictureCache::Entry Decode(const PictureCache::Key& key) {
    PictureCache::Entry entry;
    try {
        PictureFile file;
        if (!file.Open(key.sPath, entry.sError)) return entry;
        entry = file.Format() == PictureFormat::Jpeg ? DecodeJpeg(file, key.longerSideWanted)
                                                     : DecodeOther(file, key.longerSideWanted);
    } catch (const std::bad_alloc&) {
        entry.sError = QStringLiteral("There is not enough memory for the picture");
    }
    if (entry.picture.IsNull() && entry.sError.isEmpty())
        entry.sError = QStringLiteral("The picture could not be decoded");
    return entry;
}

PictureCache::Key KeyFor(const QString& sPath, int longerSideWanted) {
    return {sPath, Files::StampOf(Files::InDiskSpelling(sPath)), StepAbove(longerSideWanted)};
}

struct KeptRecording {
    QString sPath;
    Files::Stamp stamp;
    std::shared_ptr<const Recording> recording;
};

/// Those of the sheet at work and of the one before. Made on the main thread, and asked for on any.
class KeptRecordings {
public:
    static KeptRecordings& Instance() {
        static KeptRecordings kept;
        return kept;
    }

    void Keep(KeptRecording recording) {
        constexpr size_t kMost = 80;
        const std::scoped_lock lock(m_mutex);
        std::erase_if(m_kept, [&](const KeptRecording& kept) { return kept.sPath == recording.sPath; });
        if (m_kept.size() >= kMost) m_kept.pop_front();
        m_kept.push_back(std::move(recording));
    }

    std::shared_ptr<const Recording> Find(const QString& sPath) const {
        const std::scoped_lock lock(m_mutex);
        for (const KeptRecording& kept : m_kept) {
            if (kept.sPath == sPath && kept.stamp == Files::StampOf(sPath)) return kept.recording;
        }
        return nullptr;
    }

    void Clear() {
        const std::scoped_lock lock(m_mutex);
        m_kept.clear();
    }

private:
    mutable std::mutex m_mutex;
    std::deque<KeptRecording> m_kept;
};

// Not the toolkit's pool: painting a picture waits for a turn in that one, and would wait for every photograph
// queued before it.
QThreadPool& Decoders() {
    // Made first, so that it outlives the threads that fill it.
    PictureCache::Instance();
    static QThreadPool pool;
    return pool;
}

// Set while the application ends: what is queued by then is answered without being decoded.
std::atomic<bool> s_bEnding = false;

// A decoder still at work while the toolkit takes itself down would meet what is gone already.
void WaitForDecoders() {
    s_bEnding = true;
    Decoders().waitForDone();
    s_bEnding = false;
}

// The threads are made with the application, so that one that lives as long as the program ends ahead of them.
void SeeToTheEnd() {
    Decoders();
    qAddPostRoutine(&WaitForDecoders);
}
Q_COREAPP_STARTUP_FUNCTION(SeeToTheEnd)

PictureCache::Entry DecodeUnlessEnding(const PictureCache::Key& key) {
    if (!s_bEnding) return Decode(key);
    return {Picture(), QStringLiteral("The program is ending")};
}

} // namespace

Picture LoadPicture(const QString& sPath, QString& sError, int longerSideWanted) {
    const PictureCache::Key key = KeyFor(sPath, longerSideWanted);
    const PictureCache::Entry entry = PictureCache::Instance().Get(key, Decode);
    sError = entry.sError;
    Picture picture = entry.picture;
    if (!picture.IsNull()) picture.SetRecording(KeptRecordings::Instance().Find(sPath));
    return picture;
}

void KeepRecording(const QString& sPath, std::shared_ptr<const Recording> recording) {
    KeptRecordings::Instance().Keep({sPath, Files::StampOf(sPath), std::move(recording)});
}

Picture LoadForPaper(const QString& sPath, QString& sError) {
    if (auto recording = KeptRecordings::Instance().Find(sPath)) {
        const QSize size = recording->Whole().size().toSize();
        return {std::move(recording), size};
    }
    return LoadPicture(sPath, sError);
}

bool PrefetchPicture(const QString& sPath, int longerSideWanted) {
    const PictureCache::Key key = KeyFor(sPath, longerSideWanted);
    // A missing file is nothing to decode; the one who asks for it will be told.
    if (key.stamp == Files::Stamp()) return true;
    if (PictureCache::Instance().Holds(key)) return true;
    if (!PictureCache::Instance().Reserve(key)) return false;
    Decoders().start([key] { PictureCache::Instance().Fulfil(key, DecodeUnlessEnding(key)); });
    return false;
}

void DropPicture(const QString& sPath) { PictureCache::Instance().Drop(sPath); }

void ForgetPicturesBut(const QSet<QString>& paths) {
    PictureCache::Instance().DropAllBut(paths);
    KeptRecordings::Instance().Clear();
}

void ForgetPictures() {
    Decoders().waitForDone();
    PictureCache::Instance().Clear();
    KeptRecordings::Instance().Clear();
}
