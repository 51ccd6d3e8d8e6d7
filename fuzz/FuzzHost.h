// SPDX-License-Identifier: MIT
#pragma once

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "game/Session.h"
#include "pictures/PictureMiddle.h"
#include "pictures/TellOnce.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/Console.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/Desktop.h"
#include "services/ProgramSettings.h"

#include <QByteArray>
#include <QGuiApplication>

/// Makes thumbnails of no content: decoding and painting have targets of their own.
class EmptyThumbnails : public ThumbnailMaker {
public:
    static ThumbnailMaker& Get() {
        static EmptyThumbnails maker;
        return maker;
    }
    void CreateThumbRotatedTo90(const OwnedPicture& objImage) override { Make(objImage); }
    void CreateThumbRotatedTo45(const OwnedPicture& objImage) override { Make(objImage); }
    void CreateThumbElliptical(const OwnedPicture& objImage, bool) override { Make(objImage); }
    Picture RenderRotated(const OwnedPicture&, int) override { return {}; }

private:
    static void Make(const OwnedPicture& objImage) {
        QString error;
        Files::WriteWhole(ThumbnailStore::PathOf(objImage.owner), QByteArray(), error);
    }
};

/// What a fuzz target runs in: no display, nobody who answers, and files in memory. It finds the files that
/// were put there and no others, so that one input always takes the same way.
class FuzzHost : public ConsoleDesktop {
public:
    static constexpr const char* kFolder = "/games";
    static constexpr const char* kProgramFolder = "/program";
    /// There in both folders, so that games may name pictures that exist.
    static constexpr const char* kPicture = "a.bmp";

    int MsgBox(const QString&, int, const QString&) override { return vbOK; }
    [[noreturn]] void EndProgram(int iStatus) override { throw ProgramEnded(iStatus); }

    /// Made at the first call, which must name the arguments of the program.
    static FuzzHost& Get(int* argc = nullptr, char*** argv = nullptr) {
        static FuzzHost host(argc, argv);
        return host;
    }

    /// Puts things back as they were before the first input.
    void Reset() {
        basTAVL::ResetForTest();
        TellOnce::ForgetAll();
        PictureMiddle::ForgetAll();
        ThumbnailStore::Instance().ForgetAll();
        // What ended the program may have left both open.
        basErrLog::ErrDismiss(QString());
        if (basMsgQueue::MsgQueue_IsOpen()) basMsgQueue::MsgQueue_Display();
        m_files.clear();
        for (const char* folder : {kFolder, kProgramFolder})
            m_files.insert(QString::fromLatin1(folder) + u'/' + QLatin1String(kPicture), QByteArray("BM"));
    }

    /// Writes the input to be read into the folder and gives its path.
    QString Write(const QString& sName, const uint8_t* data, size_t size) {
        const QString path = QString::fromLatin1(kFolder) + u'/' + sName;
        m_files.insert(path, QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
        return path;
    }

private:
    FuzzHost(int* argc, char*** argv) {
        Console::UseNoDisplay();
        // Else the C library asks the disk for the time zone at each line of the log.
        qputenv("TZ", "UTC0");
        m_application = std::make_unique<QGuiApplication>(*argc, *argv);
        Desktop::Install(this);
        Files::UseMemory(&m_files);
        Settings().sMyGamesDirectory = QString::fromLatin1(kFolder);
        Folders::SetProgramDirectory(QString::fromLatin1(kProgramFolder));
        ThumbnailMaker::Install(EmptyThumbnails::Get);
        m_session = std::make_unique<Session>();
        basDraw::Draw_SetHdc(&m_session->MeasuringDevice());
        basErrLog::ErrInit(0, QStringLiteral("fuzz.log"));
        Reset();
    }

    Files::MemoryFiles m_files;
    std::unique_ptr<QGuiApplication> m_application;
    std::unique_ptr<Session> m_session;
};

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    FuzzHost::Get(argc, argv);
    return 0;
}

// Most of a run's time went into remembering who had allocated what, and filling it; where a block was used
// is told all the same.
extern "C" const char* __asan_default_options() {
    return "malloc_context_size=2:quarantine_size_mb=32:max_malloc_fill_size=0";
}
