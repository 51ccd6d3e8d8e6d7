// SPDX-License-Identifier: MIT
#include "windowing/PrinterTrouble.h"

#include <QLibrary>
#include <QPrinterInfo>

namespace {

struct Reason {
    const char* sWord;
    const char* sSentence;
};

// A reason may end in how bad it is.
constexpr Reason kReasons[] = {
    {"media-empty", "It is out of paper."},
    {"media-needed", "It waits for paper."},
    {"media-jam", "Paper is stuck in it."},
    {"door-open", "A door of it stands open."},
    {"cover-open", "A cover of it stands open."},
    {"toner-empty", "It is out of toner."},
    {"marker-supply-empty", "It is out of ink."},
    {"offline", "It is switched off or not connected."},
    {"shutdown", "It is switched off."},
    {"timed-out", "It doesn't answer."},
    {"connecting-to-device", "It doesn't answer yet."},
    {"paused", "It was told to pause."},
};

// As the printing system of most desktops hands them out.
struct PrintOption {
    char* name;
    char* value;
};
struct PrintDestination {
    char* name;
    char* instance;
    int isDefault;
    int optionCount;
    PrintOption* options;
};

/// The part of the printing system's library that is needed; loaded where it is, as the program runs without it.
class PrintSystem {
public:
    static const PrintSystem& Instance() {
        static const PrintSystem system;
        return system;
    }
    bool IsThere() const { return m_get && m_free; }

    /// Nothing where the printing system doesn't know the printer.
    QStringList Reasons(const QString& sPrinter) const {
        PrintDestination* const destination = m_get(nullptr, sPrinter.toUtf8().constData(), nullptr);
        if (!destination) return {};
        QStringList reasons;
        for (int i = 0; i < destination->optionCount; ++i) {
            if (qstrcmp(destination->options[i].name, "printer-state-reasons") == 0)
                reasons = QString::fromUtf8(destination->options[i].value).split(u',');
        }
        m_free(1, destination);
        return reasons;
    }

private:
    PrintSystem() {
        // Its second version has been in use for decades.
        QLibrary library(QStringLiteral("cups"), 2);
        if (!library.load()) return;
        m_get = reinterpret_cast<Get>(library.resolve("cupsGetNamedDest"));
        m_free = reinterpret_cast<Free>(library.resolve("cupsFreeDests"));
    }

    using Get = PrintDestination* (*)(void* server, const char* name, const char* instance);
    using Free = void (*)(int count, PrintDestination* destinations);
    Get m_get = nullptr;
    Free m_free = nullptr;
};

} // namespace

QString PrinterTrouble::Sentence(bool bKnown, bool bStopped, const QStringList& reasons) {
    if (!bKnown) return QStringLiteral("It is no longer set up on this computer.");
    for (const Reason& reason : kReasons) {
        for (const QString& told : reasons) {
            if (told.contains(QString::fromLatin1(reason.sWord))) return QString::fromLatin1(reason.sSentence);
        }
    }
    return bStopped ? QStringLiteral("It has stopped. Its own display, or the printers of your desktop, may tell why.")
                    : QString();
}

QString PrinterTrouble::Of(const QString& sPrinter) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(sPrinter);
    if (info.isNull()) return Sentence(false, false, {});
    const PrintSystem& system = PrintSystem::Instance();
    const QStringList reasons = system.IsThere() ? system.Reasons(sPrinter) : QStringList();
    return Sentence(true, info.state() == QPrinter::Error, reasons);
}
