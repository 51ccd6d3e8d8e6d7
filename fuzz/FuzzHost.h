// SPDX-License-Identifier: MIT
#pragma once

#include "app/services/basErrLog.h"
#include "board/basDraw.h"
#include "document/GameSession.h"
#include "platform/Console.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/ProgramSettings.h"

#include <QByteArray>
#include <QGuiApplication>

/// What a fuzz target runs in: no display, nobody who answers, a folder of its own, and no log.
class FuzzHost : public ConsoleDesktop {
public:
    int MsgBox(const QString&, int, const QString&) override { return vbOK; }
    [[noreturn]] void EndProgram(int iStatus) override { throw ProgramEnded(iStatus); }

    /// Made at the first call, which must name the arguments of the program.
    static FuzzHost& Get(int* argc = nullptr, char*** argv = nullptr) {
        static FuzzHost host(argc, argv);
        return host;
    }

    /// Writes the input to be read into the folder and gives its path.
    QString Write(const QString& sName, const uint8_t* data, size_t size) const {
        const QString path = m_folder.Path() + u'/' + sName;
        QString error;
        Files::Remove(path, error);
        if (!Files::Append(path, QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)), error)) std::abort();
        return path;
    }
    QString Folder() const { return m_folder.Path(); }

private:
    FuzzHost(int* argc, char*** argv) {
        Console::UseNoDisplay();
        m_application = std::make_unique<QGuiApplication>(*argc, *argv);
        Desktop::Install(this);
        Settings().sMyGamesDirectory = m_folder.Path();
        Settings().sProgramDirectory = m_folder.Path();
        m_session = std::make_unique<GameSession>();
        basDraw::Draw_SetHdc(&m_session->MeasuringDevice());
        Files::SetFaultHook([](Files::Operation operation, const QString& path) -> std::optional<QString> {
            const bool log = operation == Files::Operation::Append && path.endsWith(QStringLiteral(".log"));
            return log ? std::optional(QStringLiteral("no log")) : std::nullopt;
        });
        basErrLog::ErrInit(0, QStringLiteral("fuzz.log"));
    }

    TemporaryFolder m_folder;
    std::unique_ptr<QGuiApplication> m_application;
    std::unique_ptr<GameSession> m_session;
};

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    FuzzHost::Get(argc, argv);
    return 0;
}
