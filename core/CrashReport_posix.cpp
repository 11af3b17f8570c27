// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashReport.h"

#include "CrashText.h"

#include <QFile>

#include <csignal>
#include <cstring>

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

namespace {
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
char reportPath[4096];

// A stack that overflowed holds no handler.
constexpr size_t StackBytes = 64 * 1024;
alignas(16) char handlerStack[StackBytes];

class ReportFile final : public CrashText
{
public:
    ReportFile()
        : m_file(::open(reportPath, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600))
    {}
    ~ReportFile() override
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    ReportFile(const ReportFile &) = delete;
    ReportFile &operator=(const ReportFile &) = delete;

    int file() const { return m_file; }

private:
    void write(const char *bytes, size_t size) override
    {
        while (size > 0) {
            const ssize_t written = ::write(m_file, bytes, size);
            if (written <= 0)
                return;
            bytes += written;
            size -= size_t(written);
        }
    }

    int m_file;
};

void restoreActions()
{
    for (size_t i = 0; i < SignalCount; ++i)
        sigaction(FatalSignals[i].number, &previousActions[i], nullptr);
}

void writeReport(int number, const siginfo_t *info)
{
    ReportFile report;
    if (report.file() < 0)
        return;
    report.putBegin();
    for (const FatalSignal &each : FatalSignals) {
        if (each.number == number)
            report.put(each.name);
    }
    if (number != SIGABRT) {
        report.put(" at ");
        report.putHexadecimal(std::uintptr_t(info->si_addr));
    }
    report.putStackTitle();
    void *frames[64];
    backtrace_symbols_fd(frames, backtrace(frames, 64), report.file());
    report.putLastLines();
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
    const QByteArray name = QFile::encodeName(path).left(int(sizeof reportPath) - 1);
    std::memcpy(reportPath, name.constData(), size_t(name.size()) + 1);
    CrashText::prepare("\n");
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
