// SPDX-License-Identifier: MIT
#include "services/WorkFiles.h"
#include "windows/ConsoleFixture.h"

namespace {

constexpr int kMoney500 = 8;

TEST_F(ConsoleTest, Edge_SeveralCopiesMakeThePictureOnceAndRepeatThePage) {
    int written = 0;
    Files::SetFaultHook([&](Files::Operation operation, const QString& path) -> std::optional<QString> {
        if (operation == Files::Operation::OpenWrite && path.endsWith(QStringLiteral("MoneyImage.bmp"))) ++written;
        return std::nullopt;
    });
    auto& number = Find<QComboBox>(*console, "cboNumberOfSheets");
    for (const int copies : {1, 2, 5}) {
        written = 0;
        printer.ended.clear();
        number.setCurrentIndex(copies - 1);
        Print(kMoney500);
        EXPECT_EQ(printer.ended.size(), copies);
        EXPECT_EQ(printer.empty, 0) << "every page has its notes";
        EXPECT_EQ(written, 1) << copies << " copies";
    }
    EXPECT_TRUE(desktop.boxes.isEmpty());
}

TEST_F(ConsoleTest, TheAidsForRecolouringMoneyWork) {
    console->Command1_Click();
    EXPECT_EQ(desktop.Texts(), QStringList{QStringLiteral("failure")});
    QImage mono(40, 20, QImage::Format_Mono);
    mono.fill(1);
    mono.save(WorkFiles::PathOf(QStringLiteral("MoneyImage.bmp")));
    console->Command1_Click();
    EXPECT_EQ(desktop.boxes.size(), 1);
    EXPECT_TRUE(QFile::exists(WorkFiles::PathOf(QStringLiteral("MoneyImage2.bmp"))));
    EXPECT_TRUE(Control("Command1").isHidden());
    QWidget& test = Control("picTest");
    test.show();
    QTest::mouseClick(&test, Qt::LeftButton);
    EXPECT_TRUE(test.isHidden());
}

} // namespace
