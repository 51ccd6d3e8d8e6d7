// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <array>

class C_FontInfo;

/// The lines of text of a space, a token or one block of a corner: ten slots, of which the first NLines are
/// in use.
class TextLines {
public:
    static constexpr int kMaxLines = 10;
    /// UTF-16 units of a last line; what goes beyond them is cut off.
    static constexpr int kMaxLastLine = 40;
    /// Given as a text, it means that the lines stay as they are and are fitted anew.
    static const QString kUseExisting;

    qint16 NLines = 0;

    /// Raise the subscript error outside 0 to 9.
    const QString& Line(int iLine) const;
    void SetLine(int iLine, const QString& sText);

    /// The lines in use, joined with CR LF.
    QString All() const;
    /// Splits at CR LF without any limit of length. Raises the subscript error beyond ten lines.
    void SetAll(const QString& sText);
    /// The lines in use. Raises the subscript error when NLines says more than there are slots.
    QStringList InUse() const;

    /// Splits a text as a person gave it: at most ten lines, the last one cut to 40 characters, the slots
    /// behind them emptied. kUseExisting changes nothing.
    void Split(const QString& sText);

    /// All ten slots count, whatever NLines says.
    friend bool operator==(const TextLines&, const TextLines&) = default;

private:
    std::array<QString, kMaxLines> m_sText;
};

/// A box that text is fitted into, in units of 1/500 of the board's width.
struct TextBox {
    int lWidth;
    int lHeight;
};

/// Number of those units in the board's width.
constexpr double kTextUnits = 500.0;

/// Height of a line, at least 1, at which these lines fill the box and none is wider. Measures on the
/// drawing layer's current context.
int FitTextLine(const QStringList& lines, const C_FontInfo& font, TextBox box);
