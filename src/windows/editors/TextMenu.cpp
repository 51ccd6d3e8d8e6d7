// SPDX-License-Identifier: MIT
#include "windows/editors/TextMenu.h"

#include "services/basErrLog.h"
#include "windowing/Clipboard.h"

#include <QKeySequence>
#include <QMenu>

#include <utility>

using Kind = TypedText::Key::Kind;

namespace {

struct Row {
    Kind kind;
    const char* sName;
    const char* sCaption;
    QKeySequence::StandardKey key;
};

constexpr Row kRows[] = {
    {Kind::Undo, "mnuUndo", "&Undo", QKeySequence::Undo},
    {Kind::Redo, "mnuRedo", "&Redo", QKeySequence::Redo},
    {Kind::Cut, "mnuCut", "Cu&t", QKeySequence::Cut},
    {Kind::Copy, "mnuCopy", "&Copy", QKeySequence::Copy},
    {Kind::Paste, "mnuPaste", "&Paste", QKeySequence::Paste},
    {Kind::MarkAll, "mnuSelectAll", "Select &All", QKeySequence::SelectAll},
};

bool IsOffered(Kind kind, const TextMenu::Can& can) {
    switch (kind) {
        case Kind::Undo:
            return can.bUndo;
        case Kind::Redo:
            return can.bRedo;
        case Kind::Cut:
        case Kind::Copy:
            return can.bCut;
        case Kind::Paste:
            return !Clipboard::Text().isEmpty();
        default:
            return true;
    }
}

} // namespace

void TextMenu::Show(QWidget& parent, QPoint at, const Can& can, const std::function<void(Kind)>& choose) {
    auto* const menu = new QMenu(&parent);
    menu->setObjectName(QStringLiteral("mnuText"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Row& row : kRows) {
        // Behind the caption for the eye only: the keys themselves are the text's.
        const QString key = QKeySequence(row.key).toString(QKeySequence::NativeText);
        QAction* const action = menu->addAction(QString::fromLatin1(row.sCaption) + u'\t' + key);
        action->setObjectName(QString::fromLatin1(row.sName));
        action->setEnabled(IsOffered(row.kind, can));
        QObject::connect(action, &QAction::triggered, &parent, [choose, kind = row.kind] { choose(kind); });
        if (row.kind == Kind::Redo || row.kind == Kind::Paste) menu->addSeparator();
    }
    menu->popup(at);
}
