// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

#include "platform/files/Console.h"

/// Photographs of a benchmark's own making, in a folder of their own.
class BenchPhotos {
public:
    /// So many JPEG files of that size, all alike but for their names.
    BenchPhotos(int count, QSize size);
    QString Path(int index) const;

private:
    TemporaryFolder m_folder;
};
