// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MaterialFiles.h"
#include "Validation.h"

#include <QHash>

#include <functional>

/// What is wrong with the materials that surfaces name. Looks each up once, for any number of models.
class MaterialFaults
{
public:
    explicit MaterialFaults(const MaterialFolders &folders);

    struct Fault
    {
        Rule rule{};
        QString unreadFile{}; ///< the material's file, if it is that which cannot be read
        /// The sentence, with the number of the surface that names the material; null where nothing is wrong.
        std::function<QString(const QString &surface)> text{};
    };
    const Fault &of(const QString &materialPath);

private:
    Fault look(const QString &path);

    bool m_isSearching;
    MaterialFiles m_files;
    QHash<QString, Fault> m_faults;
    QHash<QString, QString> m_errors; ///< of material files that cannot be read
};
