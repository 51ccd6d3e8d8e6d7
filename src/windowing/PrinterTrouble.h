// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What keeps a printer of the desktop from printing.
namespace PrinterTrouble {

/// As a sentence for a person; empty when nothing does, or when the desktop doesn't tell.
QString Of(const QString& sPrinter);

/// The same of what the desktop says: whether it knows the printer, whether that has stopped, and the standard words
/// for why ("media-empty-error").
QString Sentence(bool bKnown, bool bStopped, const QStringList& reasons);

} // namespace PrinterTrouble
