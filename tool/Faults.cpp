// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Faults.h"

#include "ModelFile.h"

std::vector<Fault> faultsOf(const QString &file)
{
    FileContent content;
    const QString error = readFile(file, content);
    if (error.isEmpty())
        return {};
    return {{QStringLiteral("error"), QStringLiteral("unreadable"), error}};
}
