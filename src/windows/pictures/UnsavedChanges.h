// SPDX-License-Identifier: MIT
#pragma once

/// What a person wants to become of unsaved changes when a window is cancelled.
enum class UnsavedChanges { Keep, Drop, Stay };

/// The question with Yes, No and Cancel; Cancel stays in the window. Raises for any other answer.
UnsavedChanges AskAboutUnsavedChanges();
