// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

/// Whose picture it is: a piece of the game and its number. A plain value.
struct PictureOwner {
    /// None is a picture that stands for itself; Unknown a word that names no piece.
    enum class Kind : quint8 { None, Space, Corner, Money, Token, Unknown };

    Kind kind = Kind::None;
    qint16 iNumber = 0;

    friend bool operator==(const PictureOwner&, const PictureOwner&) = default;

    /// The kinds as "Space", "Corner", "Money" and "Token"; empty for the others.
    static Kind KindOf(const QString& sName);
    QString KindName() const;

    /// Whether it is one of the four pieces.
    bool IsPiece() const { return kind != Kind::None && kind != Kind::Unknown; }
    /// Spaces and corners lie on the board, banknotes and tokens don't.
    bool IsOnBoard() const { return kind == Kind::Space || kind == Kind::Corner; }
    /// The corner whose face belongs to the kit.
    bool IsFate() const;
    /// Side of the board for a space, 4 and the corner's number for a corner, else 0.
    qint16 Orient() const;
};

inline size_t qHash(const PictureOwner& owner, size_t seed = 0) {
    return qHashMulti(seed, int(owner.kind), owner.iNumber);
}
