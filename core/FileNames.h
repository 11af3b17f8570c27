// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Names of files that every system takes. The game runs on Windows, so what is made elsewhere has to be one
/// there, too.
namespace FileNames {
/// Whether Windows means a device by it, as by "con" and "aux.kmat".
bool isDevice(const QString &name);
/// The name of a file or a folder, changed as little as possible where a system does not take it.
QString portable(const QString &name);
/// A sentence on the first name of a path that some system does not take; empty when there is none.
QString problem(const QString &path);
} // namespace FileNames
