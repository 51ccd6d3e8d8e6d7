// SPDX-License-Identifier: MIT
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

} // namespace
