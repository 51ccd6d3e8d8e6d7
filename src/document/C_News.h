// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_FontInfo.h"

/// One Good News or Bad News card.
class C_News {
public:
    /// 0 to 11.
    qint16 Index = 0;
    C_FontInfo FontBody;
    C_FontInfo FontHead;

    /// The whole text, line breaks as CR LF.
    QString Text() const { return m_sText; }
    void Let_Text(const QString& sText) { m_sText = sText; }

    friend bool operator==(const C_News&, const C_News&) = default;
    bool IsDifferentFrom(const C_News& objOther) const;
    void LoadFromObject(const C_News& objSource);

    QString GetQuotedString() const;
    /// Reads a record off the front and returns what is left. An index that is no number leaves Index as it
    /// was.
    QString SetQuotedString(const QString& sLine);

private:
    QString m_sText;
};
