// SPDX-License-Identifier: MIT
// A slip of one letter in what a window says is seen by nobody but the family that reads it.
#include "support/Spelling.h"

#include "services/basCommon.h"
#include "support/AllWindows.h"
#include "support/EditorFixture.h"
#include "windows/help/WhatIsThis.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace {

using Spelling::Names;

class SpellingTest : public EditorTest {
protected:
    SpellingTest() { basCommon::InitIniPath(); }
    ~SpellingTest() override { basCommon::ResetForTest(); }

    // Captions and tips; what stands in a box to type in is the game's.
    static void ExpectKnownOf(const QWidget& widget) {
        Spelling::ExpectKnown(widget.toolTip(), Names::Within);
        Spelling::ExpectKnown(widget.accessibleName(), Names::Within);
        if (const auto* const label = qobject_cast<const QLabel*>(&widget))
            Spelling::ExpectKnown(label->text(), Names::Within);
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            Spelling::ExpectKnown(button->text(), Names::Within);
        if (const auto* const box = qobject_cast<const QGroupBox*>(&widget))
            Spelling::ExpectKnown(box->title(), Names::Within);
        if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
            Spelling::ExpectKnown(line->placeholderText(), Names::Within);
    }
};

TEST_F(SpellingTest, AWordWithASlipIsFoundAndANameIsNone) {
    const QString text = QStringLiteral("Uhe file 'Grandma Zzyzx' of Zzyzx isn't on /home/zzyzx zzyzx.gam or qaper.");
    EXPECT_EQ(Spelling::Unknown(text, Names::Within), (QStringList{QStringLiteral("Uhe"), QStringLiteral("qaper")}));
    EXPECT_EQ(Spelling::Unknown(QStringLiteral("Goes Pn"), Names::None), QStringList{QStringLiteral("Pn")});
    EXPECT_EQ(
        Spelling::Unknown(QStringLiteral("&Close this \u201cBoxx\u201d and say that it doesn\u2019t"), Names::None),
        QStringList());
}

TEST_F(SpellingTest, WhatControlsAreForIsSpelledRight) {
    for (const auto rows : {WhatIsThis::OfMainWindow(), WhatIsThis::OfMenus(), WhatIsThis::OfEditors(),
                            WhatIsThis::OfPicturesAndPrinting()}) {
        for (const WhatIsThis::Row& row : rows)
            Spelling::ExpectKnown(QString::fromUtf8(row.sText), Names::None);
    }
}

TEST_F(SpellingTest, WindowsAreSpelledRight) {
    for (const auto& [name, window] : AllWindows(session)) {
        Spelling::ExpectKnown(window->windowTitle(), Names::Within);
        for (const QWidget* widget : window->findChildren<QWidget*>())
            ExpectKnownOf(*widget);
    }
}

} // namespace
