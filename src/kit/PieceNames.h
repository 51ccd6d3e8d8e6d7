// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a piece is called where a sheet lacks it: by what the family has called it, or else by its number, from 1.
namespace PieceNames {

/// "The space 'Elm Street'" or "Space 6".
QString Space(int iSpace);
QString Corner(int iCorner);
QString Token(int iToken);
/// "The $100 note", the lowest of them from 0.
QString Note(int iMoney);
/// "The deed of 'Elm Street'".
QString Deed(int iSpace);

} // namespace PieceNames
