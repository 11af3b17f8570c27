// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashReport.h"

#include <QCoreApplication>
#include <QFile>
#include <QSysInfo>

#include <algorithm>
#include <csignal>
#include <cstring>

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

// All that the handler touches is plain memory of a fixed place, filled beforehand: while a signal is handled
// nothing may be allocated, locked or formatted by a library.
namespace {
constexpr size_t LineBytes = 256;
constexpr size_t Lines = 40;

struct Facts
{
    char path[4096];
    char program[256];
    char graphics[512];
    char lines[Lines][LineBytes];
    volatile size_t lineCount;
};
Facts facts;

struct FatalSignal
{
    int number;
    const char *name;
};
constexpr FatalSignal FatalSignals[] = {{SIGSEGV, "SIGSEGV, a wrong memory access"},
                                        {SIGABRT, "SIGABRT, given up"},
                                        {SIGBUS, "SIGBUS, a wrong memory address"},
                                        {SIGFPE, "SIGFPE, a wrong calculation"},
                                        {SIGILL, "SIGILL, a wrong instruction"}};
constexpr size_t SignalCount = sizeof FatalSignals / sizeof *FatalSignals;
struct sigaction previousActions[SignalCount];
bool isInstalled = false;

// A stack that overflowed holds no handler.
constexpr size_t StackBytes = 64 * 1024;
alignas(16) char handlerStack[StackBytes];

template <size_t Size>
void setText(char (&place)[Size], const QByteArray &text)
{
    const size_t length = std::min(Size - 1, size_t(text.size()));
    std::memcpy(place, text.constData(), length);
    place[length] = 0;
}

void put(int file, const char *text)
{
    size_t left = std::strlen(text);
    while (left > 0) {
        const ssize_t written = ::write(file, text, left);
        if (written <= 0)
            return;
        text += written;
        left -= size_t(written);
    }
}

void putAddress(int file, const void *address)
{
    char text[2 * sizeof(void *) + 3];
    char *end = text + sizeof text - 1;
    *end = 0;
    auto value = quintptr(address);
    do {
        *--end = "0123456789abcdef"[value % 16];
        value /= 16;
    } while (value != 0);
    *--end = 'x';
    *--end = '0';
    put(file, end);
}

void restoreActions()
{
    for (size_t i = 0; i < SignalCount; ++i)
        sigaction(FatalSignals[i].number, &previousActions[i], nullptr);
}

void writeReport(int number, const siginfo_t *info)
{
    const int file = ::open(facts.path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    put(file, facts.program);
    put(file, "Graphics: ");
    put(file, facts.graphics[0] ? facts.graphics : "not started");
    put(file, "\nEnded by ");
    for (const FatalSignal &each : FatalSignals) {
        if (each.number == number)
            put(file, each.name);
    }
    if (number != SIGABRT) {
        put(file, " at ");
        putAddress(file, info->si_addr);
    }
    put(file, "\n\nStack:\n");
    void *frames[64];
    backtrace_symbols_fd(frames, backtrace(frames, 64), file);

    put(file, "\nLast lines of the console:\n");
    const size_t count = facts.lineCount;
    for (size_t i = count > Lines ? count - Lines : 0; i < count; ++i) {
        put(file, facts.lines[i % Lines]);
        put(file, "\n");
    }
    ::close(file);
}

void onFatalSignal(int number, siginfo_t *info, void *)
{
    // First, so that a crash in here is no loop.
    restoreActions();
    writeReport(number, info);
    raise(number);
}
} // namespace

void CrashReport::install(const QString &path)
{
    uninstall();
    if (KORVANE_CRASH_REPORTS == 0 || path.isEmpty())
        return;
    setText(facts.path, QFile::encodeName(path));
    setText(facts.program, QStringLiteral("%1 %2, Qt %3, %4, %5\n")
                               .arg(QCoreApplication::applicationName(),
                                    QCoreApplication::applicationVersion(), QLatin1String(qVersion()),
                                    QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())
                               .toUtf8());
    // The first call loads a library, which a handler must not.
    void *frame = nullptr;
    backtrace(&frame, 1);

    stack_t stack{};
    stack.ss_sp = handlerStack;
    stack.ss_size = StackBytes;
    sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_sigaction = onFatalSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (size_t i = 0; i < SignalCount; ++i)
        sigaction(FatalSignals[i].number, &action, &previousActions[i]);
    isInstalled = true;
}

void CrashReport::uninstall()
{
    if (isInstalled)
        restoreActions();
    isInstalled = false;
}

void CrashReport::setGraphics(const QString &text)
{
    setText(facts.graphics, text.toUtf8());
}

void CrashReport::addLine(const QString &text)
{
    setText(facts.lines[facts.lineCount % Lines], text.toUtf8());
    facts.lineCount = facts.lineCount + 1;
}
