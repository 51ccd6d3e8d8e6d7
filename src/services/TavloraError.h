// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stdexcept>

/// Numbers of the failures that the program raises itself.
namespace ErrNumber {
constexpr quint32 kIllegalPath = 0x80040000;
constexpr quint32 kIllegalValue = 0x80040002;
constexpr quint32 kAssertion = 0x80040003;
constexpr quint32 kOutOfRange = 0x80040004;
// Those of the run time.
constexpr quint32 kInvalidCall = 5;
constexpr quint32 kOverflow = 6;
constexpr quint32 kOutOfMemory = 7;
constexpr quint32 kSubscript = 9;
constexpr quint32 kFileNotFound = 53;
constexpr quint32 kFileAccess = 75;
constexpr quint32 kPathNotFound = 76;
constexpr quint32 kInvalidPicture = 481;
} // namespace ErrNumber

/// A failure on its way from the routine it happened in to the event handler that reports it. The
/// description grows by a line at each routine that it passes.
class TavloraError : public std::runtime_error {
public:
    TavloraError(quint32 lNumber, const QString& sDescription)
        : std::runtime_error(sDescription.toStdString()), m_number(lNumber), m_description(sDescription) {}
    quint32 Number() const { return m_number; }
    const QString& Description() const { return m_description; }

private:
    quint32 m_number;
    QString m_description;
};

[[noreturn]] inline void ErrRaise(quint32 lNumber, const QString& sDescription) {
    throw TavloraError(lNumber, sDescription);
}
