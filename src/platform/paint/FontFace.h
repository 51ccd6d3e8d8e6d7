// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class QPainter;

/// One typeface in one style, measured once in units of 1/2048 of the em. Layout is computed from these
/// unhinted measures, so it comes out the same at every size, scale and device; kerning and ligatures are
/// off, as a width is the sum of the advances.
class FontFace {
public:
    static constexpr double kUnitsPerEm = 2048.0;

    /// A family that this machine lacks is replaced by the nearest one; an empty family means Arial.
    static const FontFace& Get(const QString& sFamily, bool bBold, bool bItalic);

    /// Fonts have come to this machine's: from here on families are looked up anew. What was given before stays valid.
    static void ForgetAll();

    double Ascent() const { return m_ascent; }
    double CellHeight() const { return m_ascent + m_descent; }
    /// Average advance of a to z and the blank, weighted by how often each occurs in text; 0 for a symbol
    /// font. Taken from the advances and not from the font's own table, where stand-ins for Arial and Times
    /// New Roman carry another average that would draw their text a quarter too narrow.
    double AverageWidth() const { return m_averageWidth; }
    /// Sum of the advances of a text.
    double Advance(const QString& sText) const;

    /// A letter with its combining marks, as a line of text shows it: its units from iFrom up to iTo, and where a caret
    /// stands ahead of it and behind it. Behind lies to the left in words that run from the right.
    struct Letter {
        int iFrom;
        int iTo;
        double dblAhead;
        double dblBehind;
    };
    /// In the order in which they are read.
    QList<Letter> Letters(const QString& sText) const;

    /// The family that stands here, in this face's own spelling: another where this machine lacks the one asked for.
    QString FamilyInUse() const;
    /// The characters of a text that paper will not show, each once and in their order: those that no font of this
    /// machine has, and those whose letters have no outline, such as coloured pictures.
    QStringList Unprintable(const QString& sText) const;

    /// In a line; no paper has room for more that anybody could read.
    static constexpr int kMostReadable = 1000;

    /// Draws with the left end of the baseline in the origin, in these units: 2048 to the em. Where there are more
    /// letters than can be read, the first of them fill the width of all, which looks the same and takes no time.
    void Draw(QPainter& painter, const QString& sText, bool bUnderline) const;

private:
    bool Prints(const QString& sCharacter) const;
    void DrawLong(QPainter& painter, const QString& sText, bool bUnderline) const;
    FontFace(const QString& sFamily, bool bBold, bool bItalic);

    QFont m_font;
    double m_ascent = 0;
    double m_descent = 0;
    double m_averageWidth = 0;
    /// Measured before.
    mutable QHash<QString, double> m_advances;
    mutable QHash<QString, bool> m_prints;
};
