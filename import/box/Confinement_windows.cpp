// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Confinement.h"

#include "ProcessRights.h"

#include <QDir>

#include <windows.h>

void closeInherited() {} // WorkerProcess lets nothing be inherited

QStringList confine(const Confinement &kept)
{
    // Whoever started this tells of a crash, by the code that it ends with; a message box would wait for
    // ever.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    ULONG room = 64 * 1024; // bytes that a full stack has left for this
    SetThreadStackGuarantee(&room);
    SetUnhandledExceptionFilter([](EXCEPTION_POINTERS *crash) -> LONG {
        TerminateProcess(GetCurrentProcess(), crash->ExceptionRecord->ExceptionCode);
        return EXCEPTION_EXECUTE_HANDLER;
    });

    QStringList lacking;
    if (refuseProcesses())
        lacking += QStringLiteral("nested job");
    if (refuseForeignLibraries())
        lacking += QStringLiteral("process mitigations");
    if (restrictToken(QDir::toNativeSeparators(kept.ownFolder).toStdWString()))
        lacking += QStringLiteral("restricted token");
    return lacking;
}
