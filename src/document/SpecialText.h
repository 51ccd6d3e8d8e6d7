// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <array>

/// What one text of the board's centre or of the printed sheets says, and the letters that were fitted to it.
struct SpecialText {
    static constexpr int kMaxLines = 10;

    QString sText;
    std::array<QString, kMaxLines> sLine;
    qint16 iNLines = 0;
    /// Width of a letter, in fractions of the board's width.
    float fFontWidth = 0;

    /// The lines in use. Raises the subscript error when iNLines says more than there are slots.
    QStringList Lines() const;

    /// Stores the text and splits it at CR LF: what follows the ninth break stays in the tenth line, unsplit,
    /// and the slots behind the last line are emptied. Letters aren't fitted.
    void SetText(const QString& sNewText);

    /// Lines and letters follow from the text.
    friend bool operator==(const SpecialText& a, const SpecialText& b) { return a.sText == b.sText; }
};

/// The special texts that belong to a game, by their numbers: its name 1, two subtitles 2 and 3, and the heads
/// of Good News 4 and of Bad News 5. All others belong to the kit.
class Titles {
public:
    static constexpr int kFirst = 1;
    static constexpr int kLast = 5;

    static constexpr bool Holds(int iNumber) { return iNumber >= kFirst && iNumber <= kLast; }

    /// Raise the subscript error outside 1 to 5.
    SpecialText& Text(int iNumber);
    const SpecialText& Text(int iNumber) const;

    friend bool operator==(const Titles&, const Titles&) = default;

private:
    std::array<SpecialText, kLast - kFirst + 1> m_texts;
};
