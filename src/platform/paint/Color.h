// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// A colour value 0x00BBGGRR: red in the lowest byte. The one colour type of the program; it becomes the
/// toolkit's only inside the platform layer (see Painting.h), so red and blue can't be swapped by accident.
class Color {
public:
    constexpr Color() = default;

    static constexpr Color Rgb(int red, int green, int blue) {
        return Color(qint32(red & 0xFF) | qint32(green & 0xFF) << 8 | qint32(blue & 0xFF) << 16);
    }
    static constexpr Color FromValue(qint32 value) { return Color(value); }
    static constexpr Color Black() { return Color(0); }
    static constexpr Color White() { return Color(0xFFFFFF); }
    /// No colour: a brush of it fills nothing, a space of it has no colour band.
    static constexpr Color None() { return Color(-1); }

    constexpr qint32 Value() const { return m_value; }
    constexpr bool IsNone() const { return m_value == -1; }
    constexpr int Red() const { return m_value & 0xFF; }
    constexpr int Green() const { return m_value >> 8 & 0xFF; }
    constexpr int Blue() const { return m_value >> 16 & 0xFF; }

    /// Red and blue exchanged: turns 0x00RRGGBB into 0x00BBGGRR and back.
    constexpr Color Reversed() const { return Rgb(Blue(), Green(), Red()); }
    constexpr Color Complement() const { return Color(~m_value & 0xFFFFFF); }

    friend constexpr bool operator==(Color a, Color b) { return a.m_value == b.m_value; }

private:
    constexpr explicit Color(qint32 value) : m_value(value) {}
    qint32 m_value = 0;
};
