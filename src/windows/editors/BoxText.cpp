// SPDX-License-Identifier: MIT
#include "windows/editors/BoxText.h"

#include <QPlainTextEdit>

QString BoxText(const QPlainTextEdit& box) {
    const QString newLine = QStringLiteral("\r\n");
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, newLine);
    return text.replace(QChar::LineSeparator, newLine);
}
