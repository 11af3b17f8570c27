// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ExitCode.h"

#include <QStringList>

/// One of the things that the tool can be asked for.
struct Verb
{
    const char *name;
    const char *summary;
    /// Takes what stands behind the verb and gives the exit code.
    int (*run)(const QStringList &arguments);
    bool draws = false;
};

int info(const QStringList &arguments);
int check(const QStringList &arguments);
int resave(const QStringList &arguments);
int dump(const QStringList &arguments);
int build(const QStringList &arguments);
int set(const QStringList &arguments);
int animate(const QStringList &arguments);
int find(const QStringList &arguments);
int replace(const QStringList &arguments);
int runs(const QStringList &arguments);
int uses(const QStringList &arguments);
int fitBoxes(const QStringList &arguments);
int diff(const QStringList &arguments);
int pack(const QStringList &arguments);
int importModel(const QStringList &arguments);
int exportModel(const QStringList &arguments);
int render(const QStringList &arguments);
