// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The settings of one font of a record.
class C_FontInfo {
public:
    QString Family = QStringLiteral("Arial");
    bool Italic = false;
    bool Bold = false;
    /// Points.
    float Size = 12;

    void Load(const QString& sFamily, bool bItalic, bool bBold, float fSize);
    void LoadFromObject(const C_FontInfo& objSource);
    bool IsDifferentFrom(const C_FontInfo& objOther) const;

    friend bool operator==(const C_FontInfo&, const C_FontInfo&) = default;

    /// Family, style and size as the three fields of a record.
    QString GetQuotedString() const;
    /// Reads the three fields off the front and returns what is left. What is missing or can't be read is
    /// "Arial", regular, 12. Raises the overflow error for a size beyond a 32-bit float.
    QString SetQuotedString(const QString& sLine);
};
