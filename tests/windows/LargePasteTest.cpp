// SPDX-License-Identifier: MIT
// Who pastes a book where a name belongs, isn't kept waiting.
#include "support/EditorFixture.h"
#include "support/Work.h"
#include "windowing/Clipboard.h"
#include "windows/editors/frmEditCenter.h"
#include "windows/editors/frmEditSpace.h"
#include "windows/EditWindowFixture.h"

namespace {

// A million letters, in words and lines as in a book and in one piece.
const QString kBook = QStringLiteral("It was a rainy day on Elm Street, and nobody moved.\r\n").repeated(20'000);
const QString kOnePiece(1'000'000, u'x');
/// Pastes into what has the focus, and gives the work that it was for the window's thread.
double Paste(QWidget& window, const QString& text) {
    Clipboard::SetText(text);
    return Work::Of([&window] {
        QTest::keyClick(window.focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QCoreApplication::processEvents();
    });
}

using LargePasteIntoASpaceTest = EditWindowTest;

TEST_F(LargePasteIntoASpaceTest, AMillionLettersAreLittleWork) {
    frmEditSpace space(session);
    for (const QString& text : {kBook, kOnePiece}) {
        basTAVL::g_oSpaces(kSpace).SetText(QStringLiteral("Elm"));
        Edit(space, kSpace, [&] {
            ClickPicture(185, 210);
            EXPECT_LT(Paste(*window, text), Work::kASecond) << "what a person takes for a pause";
            EXPECT_GT(space.GetTextArray().join(QString()).size(), 10) << "as much of it as finds room";
            Click("cmdCancel");
        });
    }
}

using LargePasteIntoATitleTest = EditorTest;

TEST_F(LargePasteIntoATitleTest, AMillionLettersAreLittleWork) {
    constexpr QPoint kInName(150, 75);
    frmEditCenter editor(session);
    for (const QString& text : {kBook, kOnePiece}) {
        basPosit::SetSpecialText(1, QStringLiteral("Our Town"));
        WhenModal([&](QDialog& form) {
            QTest::mouseClick(&Find<QWidget>(form, "picForm"), Qt::LeftButton, {}, kInName);
            EXPECT_LT(Paste(form, text), Work::kASecond);
            EXPECT_GT(editor.Typed().Text(1).sText.size(), 8) << "as much of it as finds room";
            Click(form, "cmdCancel");
        });
        bool changed = false;
        editor.ShowForm(changed);
    }
}

} // namespace
