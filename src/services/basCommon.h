// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"
#include "services/basPath.h"

#include <QString>

/// What everybody needs: the settings file, colour strings, line breaks of record text; windowing/basCommon_forms.h
/// has the placing of windows.
namespace basCommon {

/// Fixes the settings file, in the My Games directory and named after the program; before any access to it.
void InitIniPath();

/// Raises 0x80040003 before InitIniPath.
QString GetIniPath();

/// The key's value; empty when it isn't there.
QString GetIniString(const QString& sKey);

/// The value, or the default, which is then also written; an empty value counts as absent.
QString GetIniStringWithDefault(const QString& sKey, const QString& sDefault);

/// The key's value as a colour; the default is a colour string too, and is written when the key is absent. It counts as
/// well where the value is no colour, which is told and stays in the file.
Color GetIniColor(const QString& sKey, const QString& sDefault);

/// Says in a box, once in a run for each key, that what the settings file holds for it can't be read and that the
/// usual value is used instead. For values that somebody has put there by hand.
void TellUnreadableSetting(const QString& sKey, const QString& sValue);

/// False for a file that can't be written, which most pass over: few settings are worth a message.
bool WriteIniString(const QString& sKey, const QString& sValue);

/// Hexadecimal digits, eight of them as a rule: 00RRGGBB. Raises 0x80040002 at any other character; an empty
/// text gives 0. The argument is consumed.
Color GetColorFromString(QString& sColor);
Color GetColorFromString(QString&& sColor);

/// Record text with backslash escapes undone: \n a line break, \q a double quote, \\ one backslash.
QString InsertLineBreaks(const QString& sText);

/// For tests: as before InitIniPath, with nothing told.
void ResetForTest();

} // namespace basCommon
