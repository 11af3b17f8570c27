// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModCheck.h"

#include <QJsonArray>

/// Findings as a log in the Static Analysis Results Interchange Format, version 2.1.0 of OASIS, which build
/// servers show. Paths of files below the current folder are relative to that, others are file URLs.
class SarifLog
{
public:
    /// `record` is what the place is called, empty for the whole file.
    void add(const QString &path, const ModFinding &finding, const QString &record);
    QByteArray text() const;

private:
    QJsonArray m_results;
};
