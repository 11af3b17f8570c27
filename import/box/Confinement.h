// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What a process keeps that reads a foreign file.
struct Confinement
{
    QString ownFolder; ///< for what it makes; it has to be there
    QString modelPath; ///< whose folder is read, with the folders in it; empty for none
    QStringList files; ///< that are read, too
    int memoryMiB = 0; ///< of address space; no limit below 1
    int seconds = 0;   ///< of processor time; no limit below 1
};

/// Of one file that a confined process writes.
constexpr qint64 MostBytesOfFile = qint64(1) << 30;

/// What the process that started this one left open for it, but for the standard streams. To be called first.
void closeInherited();

/// Takes care that this process, which has one thread, harms nobody, and that it does not outlive the editor:
/// what it can do by itself, beside what the editor does from outside (WorkerProcess.h). It ends by itself
/// only. Gives the names of what this system lacks for that.
QStringList confine(const Confinement &kept);
