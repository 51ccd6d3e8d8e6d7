// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paint/Color.h"

#include <QString>

class QLabel;
class QPushButton;
class QWidget;

/// Looks of widgets that have a trap in them, one helper each.
namespace WidgetLook {

/// Fills a widget with a colour, whatever the desktop's theme says.
void SetFill(QWidget& widget, Color color);

/// The colour that the theme fills windows with.
Color FillOf(const QWidget& widget);

/// The widget's own typeface, so many times as large.
void ScaleFont(QWidget& widget, double factor);

/// Writes the caption as small as it takes to stand in the button whole; and as it was.
void FitCaption(QPushButton& button);
void UnfitCaption(QPushButton& button);

/// Shows a picture in a square of this side, sharp on every screen; nothing when it can't be read.
void SetPicture(QLabel& label, const QString& sPath, int side);

/// Gives all windows this icon, read as every picture of the program is: decoded once, ahead of time.
void SetWindowIcon(const QString& sPath);

/// A tool tip in plain text: the toolkit would take a text with "<" in it for markup. A tip that is showing
/// goes away when the text changes, and comes again when the mouse rests.
void SetToolTip(QWidget& widget, const QString& sText);

/// A caption or label text in which nothing is taken for a mnemonic or markup.
QString WithoutMnemonics(const QString& sText);

/// A title in which the marker of unsaved changes stands behind the text, as the platform shows it.
QString WindowTitle(const QString& sText);

} // namespace WidgetLook
