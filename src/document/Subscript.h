// SPDX-License-Identifier: MIT
#pragma once

#include "services/TavloraError.h"

#include <cstddef>

/// The subscript of a fixed table. Raises the subscript error outside 0 to count - 1.
inline size_t CheckedSubscript(int index, int count) {
    if (index < 0 || index >= count) ErrRaise(ErrNumber::kSubscript, QStringLiteral("Subscript out of range"));
    return size_t(index);
}
