// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/frmEditToken.h"
#include "windows/EditWindowFixture.h"

#include <QPlainTextEdit>
#include <QRadioButton>

constexpr int kToken = 2;
constexpr QPoint kMiddle(150, 150);
constexpr QPoint kBehindText(250, 150);
constexpr QPoint kBesideText(8, 150);
inline const QColor kBlue(0, 147, 221);

/// The editor of a token that reads "Dad" on blue.
class EditTokenTest : public EditWindowTest {
protected:
    EditTokenTest() {
        Token().BackColor = Color::Rgb(kBlue.red(), kBlue.green(), kBlue.blue());
        Token().Init(kToken);
        Token().Font.Size = 48;
        Token().SetText(QStringLiteral("Dad"));
    }

    static C_Token& Token() { return basTAVL::g_oTokens(kToken); }

    void Edit(const std::function<void()>& doIt) {
        window = &form;
        InWindow(doIt);
        form.ShowForm(kToken);
    }
    void GivePicture(const QString& path) {
        Token().SetText(QString());
        Token().SetImagePath(path);
    }
    void GivePicture() { GivePicture(MakePicture(QStringLiteral("quarters.bmp"))); }
    PictureRef GiveCroppedPicture() {
        GivePicture();
        Token().Image.Let_Zoom(7);
        Token().Image.Let_XCenter(11);
        Token().Image.Let_YCenter(12);
        return Token().Image.Ref();
    }
    void ClickBehindText() { ClickPicture(kBehindText.x(), kBehindText.y()); }
    void ClickMiddle() { ClickPicture(kMiddle.x(), kMiddle.y()); }
    bool ShowsImage() {
        EXPECT_NE(Find<QRadioButton>("optInclude_0")->isChecked(), Find<QRadioButton>("optInclude_1")->isChecked());
        return Find<QRadioButton>("optInclude_0")->isChecked();
    }
    QString Caption(const char* button) { return Find<QAbstractButton>(button)->text(); }
    bool IsEnabled(const char* button) { return Find<QAbstractButton>(button)->isEnabled(); }
    QString EntryBox() { return Find<QPlainTextEdit>("txtToken")->toPlainText(); }
    QString WorkingText() const { return form.Token().TextAll(); }

    frmEditToken form{session};
};
