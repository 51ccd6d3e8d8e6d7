// SPDX-License-Identifier: MIT
// Who pastes a book where a name belongs, isn't kept waiting.
#include "support/EditorFixture.h"
#include "support/ThreadTime.h"
#include "windowing/Clipboard.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditWindowFixture.h"

namespace {

// A million letters, in words and lines as in a book and in one piece.
const QString kBook = QStringLiteral("It was a rainy day on Elm Street, and nobody moved.\r\n").repeated(20'000);
const QString kOnePiece(1'000'000, u'x');
// Of the window's thread; a person takes up to a second for a pause.
constexpr double kMostMilliseconds = 1000;

/// Pastes into what has the focus, and gives the milliseconds that it took.
double Paste(QWidget& window, const QString& text) {
    Clipboard::SetText(text);
    const double before = ThreadMilliseconds();
    QTest::keyClick(window.focusWidget(), Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();
    return ThreadMilliseconds() - before;
}

using LargePasteIntoASpaceTest = EditWindowTest;

TEST_F(LargePasteIntoASpaceTest, AMillionLettersAreDoneWithInTime) {
    frmEditSpace space(session);
    for (const QString& text : {kBook, kOnePiece}) {
        basTAVL::g_oSpaces(kSpace).SetText(QStringLiteral("Elm"));
        Edit(space, kSpace, [&] {
            ClickPicture(185, 210);
            EXPECT_LT(Paste(*window, text), kMostMilliseconds);
            EXPECT_GT(space.GetTextArray().join(QString()).size(), 10) << "as much of it as finds room";
            Click("cmdCancel");
        });
    }
}

using LargePasteIntoATitleTest = EditorTest;

TEST_F(LargePasteIntoATitleTest, AMillionLettersAreDoneWithInTime) {
    constexpr QPoint kInName(150, 75);
    frmEditCenter editor(session);
    for (const QString& text : {kBook, kOnePiece}) {
        basPosit::SetSpecialText(1, QStringLiteral("Our Town"));
        WhenModal([&](QDialog& form) {
            QTest::mouseClick(&Find<QWidget>(form, "picForm"), Qt::LeftButton, {}, kInName);
            EXPECT_LT(Paste(form, text), kMostMilliseconds);
            EXPECT_GT(editor.Typed().Text(1).sText.size(), 8) << "as much of it as finds room";
            Click(form, "cmdCancel");
        });
        bool changed = false;
        editor.ShowForm(changed);
    }
}

} // namespace
