// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// Whether a link leads to a web page: http or https, and a host.
bool isWebLink(const QString &link);

/// Opens a web page in the desktop's browser. Any other link is not opened, since the desktop would start
/// whatever program claims its scheme; that, and a desktop that refuses, is said in a box over `parent`.
void openWebLink(const QString &link, QWidget *parent);
