// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The guide that comes with the program: pages for a browser in a folder of their own, with their pictures.
namespace Guide {

/// The page with the ten steps.
constexpr const char* kStepsPage = "index.html";

QString Folder();
/// File names of all pages in the order in which they are read and printed, the steps first.
QStringList Pages();
/// Where a page lies.
QString PathOf(const QString& sPage);

} // namespace Guide
