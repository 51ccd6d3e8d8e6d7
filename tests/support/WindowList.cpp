// SPDX-License-Identifier: MIT
#include "support/WindowList.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontComboBox>
#include <QLabel>
#include <QMap>
#include <QMetaProperty>
#include <QWidget>

#include <gtest/gtest.h>

namespace WindowList {
namespace {

constexpr const char* kFile = TAVLORA_SOURCE_DIR "/tests/data/windows.txt";

constexpr const char* kProperties[] = {
    "windowTitle", "text",        "title",           "toolTip",   "accessibleName", "accessibleDescription",
    "shortcut",    "description", "placeholderText", "checked",   "checkable",      "enabled",
    "wordWrap",    "readOnly",    "maxLength",       "minimum",   "maximum",        "value",
    "singleStep",  "pageStep",    "orientation",     "alignment", "autoDefault",    "flat"};

QString Plain(QString sText) {
    return sText.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\n', QStringLiteral("\\n"));
}

// What the machine or the test's own folder has to say is left out.
bool IsOurs(const QString& sText) { return !sText.contains(QDir::tempPath()) && !sText.contains(QDir::homePath()); }

QStringList PropertiesOf(const QObject& object) {
    QStringList found;
    for (const char* property : kProperties) {
        const int index = object.metaObject()->indexOfProperty(property);
        if (index < 0) continue;
        const QMetaProperty asked = object.metaObject()->property(index);
        const QVariant value = asked.read(&object);
        const QString text = asked.isEnumType() ? QString::number(value.toInt()) : value.toString();
        const bool usual = text.isEmpty() || text == QStringLiteral("false") ||
                           (qstrcmp(property, "enabled") == 0 && text == QStringLiteral("true"));
        if (!usual && IsOurs(text)) found.append(QString::fromLatin1(property) + u'=' + Plain(text));
    }
    return found;
}

QString LineOf(const QWidget& widget) {
    QStringList words{QString::fromLatin1(widget.metaObject()->className()), widget.objectName()};
    words += PropertiesOf(widget);
    if (widget.isHidden() && !widget.isWindow()) words.append(QStringLiteral("hidden"));
    const QSize least = widget.minimumSize();
    if (!least.isEmpty() && least == widget.maximumSize())
        words.append(QStringLiteral("fixed=%1x%2").arg(least.width()).arg(least.height()));
    const auto* const combo = qobject_cast<const QComboBox*>(&widget);
    if (combo && !qobject_cast<const QFontComboBox*>(&widget)) {
        for (int i = 0; i < combo->count(); ++i)
            words.append(QStringLiteral("item=") + Plain(combo->itemText(i)));
    }
    return words.join(QStringLiteral(" | "));
}

// By the names of the windows.
QMap<QString, QStringList> Listed() {
    QMap<QString, QStringList> listed;
    QFile file(QString::fromLatin1(kFile));
    if (!file.open(QIODevice::ReadOnly)) return listed;
    QString window;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#')) continue;
        if (line.startsWith(u'[')) {
            window = line.mid(1, line.size() - 2);
        } else {
            listed[window].append(line);
        }
    }
    return listed;
}

void Write(const QString& sWindow, const QStringList& lines) {
    QMap<QString, QStringList> listed = Listed();
    listed[sWindow] = lines;
    QFile file(QString::fromLatin1(kFile));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# What each window says and offers; see tests/support/WindowList.h.\n");
    for (auto window = listed.begin(); window != listed.end(); ++window)
        file.write(QStringLiteral("\n[%1]\n%2\n").arg(window.key(), window->join(u'\n')).toUtf8());
}

} // namespace

QStringList Of(const QWidget& window) {
    QStringList lines{LineOf(window)};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(QStringLiteral("qt_")))
            lines.append(LineOf(*widget));
    }
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (action->objectName().isEmpty() || action->objectName().startsWith(u'_')) continue;
        lines.append((QStringList{QStringLiteral("QAction"), action->objectName()} + PropertiesOf(*action))
                         .join(QStringLiteral(" | ")));
    }
    return lines;
}

void ExpectListed(const QWidget& window) {
    const QStringList lines = Of(window);
    if (qEnvironmentVariableIsSet("TAVLORA_WRITE_WINDOWS")) return Write(window.objectName(), lines);
    const QStringList listed = Listed().value(window.objectName());
    for (const QString& line : lines)
        EXPECT_TRUE(listed.contains(line))
            << window.objectName().toStdString() << " isn't listed: " << line.toStdString();
    for (const QString& line : listed)
        EXPECT_TRUE(lines.contains(line)) << window.objectName().toStdString() << " hasn't got: " << line.toStdString();
    EXPECT_EQ(lines.size(), listed.size()) << window.objectName().toStdString();
}

} // namespace WindowList
