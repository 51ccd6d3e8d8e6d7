// SPDX-License-Identifier: MIT
#include "windows/editors/BoxText.h"

#include "document/GameBounds.h"
#include "services/Desktop.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

// Some letters take two in a file.
constexpr int kMostLetters = GameBounds::kMostLetters / 2;

void TellLimit() { MsgBox(QStringLiteral("A text holds 5,000 letters at most.")); }

} // namespace

QString BoxText(const QPlainTextEdit& box) {
    const QString newLine = QStringLiteral("\r\n");
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, newLine);
    return text.replace(QChar::LineSeparator, newLine);
}

bool MayKeep(QPlainTextEdit& box) {
    if (BoxText(box).size() <= kMostLetters || !box.document()->isUndoAvailable()) return true;
    box.undo();
    TellLimit();
    return false;
}

void LimitText(QLineEdit& box) {
    box.setMaxLength(kMostLetters);
    QObject::connect(&box, &QLineEdit::inputRejected, &box, TellLimit);
}
