// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QGuiApplication>
#include <QHash>
#include <QLoggingCategory>
#include <QString>

/// Whether the mouse pointer shows the hourglass while a window is drawn. A redraw is over before a test could
/// look, so this listens to the toolkit's own log, which names each widget that is to be painted anew at the
/// moment when it is told.
class HourGlassWatch {
public:
    HourGlassWatch() {
        Watching() = this;
        QLoggingCategory::setFilterRules(QStringLiteral("qt.widgets.painting=true"));
        m_before = qInstallMessageHandler(Note);
    }
    ~HourGlassWatch() {
        qInstallMessageHandler(m_before);
        QLoggingCategory::setFilterRules(QString());
        Watching() = nullptr;
    }
    HourGlassWatch(const HourGlassWatch&) = delete;
    HourGlassWatch& operator=(const HourGlassWatch&) = delete;

    /// How often a widget was drawn with the hourglass standing.
    int TimesWorking(const char* sWidget) const { return m_working.value(QString::fromLatin1(sWidget)); }
    /// How often it was drawn at all.
    int Times(const char* sWidget) const { return m_all.value(QString::fromLatin1(sWidget)); }

private:
    static HourGlassWatch*& Watching() {
        static HourGlassWatch* watching = nullptr;
        return watching;
    }

    static void Note(QtMsgType type, const QMessageLogContext& context, const QString& sMessage) {
        HourGlassWatch& watch = *Watching();
        if (!sMessage.startsWith(QStringLiteral("Marking "))) {
            if (watch.m_before && qstrcmp(context.category, "qt.widgets.painting") != 0)
                watch.m_before(type, context, sMessage);
            return;
        }
        ++watch.m_all[NameIn(sMessage)];
        const QCursor* const pointer = QGuiApplication::overrideCursor();
        if (pointer && pointer->shape() == Qt::WaitCursor) ++watch.m_working[NameIn(sMessage)];
    }

    // ... of PictureBox(0x1234, name="picDest") dirty ...
    static QString NameIn(const QString& sMessage) {
        return sMessage.section(QStringLiteral("name="), 1, 1).section(u'"', 1, 1);
    }

    QtMessageHandler m_before = nullptr;
    QHash<QString, int> m_working;
    QHash<QString, int> m_all;
};
