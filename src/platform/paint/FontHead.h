// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// What a font's file says of itself: its families, and whether it may be passed on. Reads TrueType and OpenType fonts
/// and collections of them; doubts every number.
struct FontHead {
    /// The names that go with regular, bold and italic; then those of whole series of styles. As written, each once.
    QStringList families;
    QStringList series;
    /// The font's own bits forbid nothing: it may be installed wherever a document goes that uses it.
    bool bInstallable = false;
    /// Its licence is named, and is one that lets everybody pass it on.
    bool bFreeLicence = false;

    /// Gives so many bytes of a file from a place; fewer at its end.
    using Source = std::function<QByteArray(qint64 place, qint64 count)>;
    /// Of a collection all fonts together: it may do what each of them may. Nothing when it is no such font.
    static std::optional<FontHead> Read(const Source& source);
};
