// SPDX-License-Identifier: MIT
#pragma once

#include "windows/editors/frmEditSpace.h"
#include "windows/EditWindowFixture.h"

/// The editor of a space, opened on the fixture's own.
class EditSpaceTest : public EditWindowTest {
protected:
    bool Edit(const std::function<void()>& doIt) { return EditWindowTest::Edit(form, kSpace, doIt); }
    C_Space& Space() { return basTAVL::g_oSpaces(kSpace); }
    void GivePicture(const QString& path) {
        basDraw::Draw_SetHdc(&context);
        Space().SetImagePath(path);
    }
    /// Puts the caret behind the last character.
    void ClickBehindText() { ClickPicture(186, Space().Image.FullPath().isEmpty() ? 270 : 290); }

    frmEditSpace form{session};
};
