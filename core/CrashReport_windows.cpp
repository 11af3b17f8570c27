// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashReport.h"

#include "CrashText.h"
#include "NativePath_windows.h"

#include <windows.h>

#include <csignal>
#include <cstdlib>
#include <cwchar>

namespace {
struct FatalException
{
    DWORD code;
    const char *name;
};
constexpr FatalException FatalExceptions[] = {{EXCEPTION_ACCESS_VIOLATION, "a wrong memory access"},
                                              {EXCEPTION_IN_PAGE_ERROR, "a wrong memory address"},
                                              {EXCEPTION_STACK_OVERFLOW, "a stack that is full"},
                                              {EXCEPTION_INT_DIVIDE_BY_ZERO, "a wrong calculation"},
                                              {EXCEPTION_FLT_DIVIDE_BY_ZERO, "a wrong calculation"},
                                              {EXCEPTION_ILLEGAL_INSTRUCTION, "a wrong instruction"}};
constexpr DWORD Abort = 0;
constexpr DWORD LongestReport = 10000; // milliseconds
constexpr ULONG HandlerBytes = 16 * 1024;
bool isInstalled = false;
wchar_t reportPath[4096];
LPTOP_LEVEL_EXCEPTION_FILTER previousFilter = nullptr;
void (*previousAbort)(int) = SIG_DFL;
HANDLE crashed = nullptr;
HANDLE reported = nullptr;
EXCEPTION_POINTERS *crash = nullptr;

bool isReadable(DWORD64 address)
{
    MEMORY_BASIC_INFORMATION memory{};
    return VirtualQuery(reinterpret_cast<const void *>(address), &memory, sizeof memory) != 0 &&
           memory.State == MEM_COMMIT && (memory.Protect & (PAGE_READWRITE | PAGE_READONLY)) != 0 &&
           (memory.Protect & PAGE_GUARD) == 0;
}

class ReportFile final : public CrashText
{
public:
    ReportFile()
        : m_file(CreateFileW(reportPath, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr))
    {}
    ~ReportFile() override { CloseHandle(m_file); }
    ReportFile(const ReportFile &) = delete;
    ReportFile &operator=(const ReportFile &) = delete;

    /// The file that holds the address, and where in it: what a debugger names the function by.
    void putFrame(std::uintptr_t address)
    {
        HMODULE module = nullptr;
        wchar_t path[MAX_PATH] = L"?";
        char name[3 * MAX_PATH] = "?";
        if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                   GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                               reinterpret_cast<const wchar_t *>(address), &module))
            GetModuleFileNameW(module, path, MAX_PATH);
        const wchar_t *file = std::wcsrchr(path, L'\\');
        WideCharToMultiByte(CP_UTF8, 0, file ? file + 1 : path, -1, name, sizeof name, nullptr, nullptr);
        put(name);
        put("+");
        putHexadecimal(address - std::uintptr_t(module));
        putLineEnd();
    }

    void putStack(CONTEXT context)
    {
        // A call to nowhere has no function, but a caller.
        for (int i = 0; i < 64 && (i == 0 || context.Rip != 0); ++i) {
            putFrame(context.Rip);
            DWORD64 base = 0;
            const PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
            if (function) {
                void *data = nullptr;
                DWORD64 frame = 0;
                RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &data, &frame,
                                 nullptr);
            } else if (!isReadable(context.Rsp)) {
                return;
            } else {
                // A function that calls no other, or no function at all.
                context.Rip = *reinterpret_cast<const DWORD64 *>(context.Rsp);
                context.Rsp += sizeof(DWORD64);
            }
        }
    }

private:
    void write(const char *bytes, size_t size) override
    {
        DWORD written = 0;
        WriteFile(m_file, bytes, DWORD(size), &written, nullptr);
    }

    HANDLE m_file;
};

void writeReport(DWORD code, const void *address, const CONTEXT &context)
{
    ReportFile report;
    report.putBegin();
    if (code == Abort) {
        report.put("abort, given up");
    } else {
        report.put("exception ");
        report.putHexadecimal(code);
        for (const FatalException &each : FatalExceptions) {
            if (each.code == code) {
                report.put(", ");
                report.put(each.name);
            }
        }
        report.put(" at ");
        report.putHexadecimal(std::uintptr_t(address));
    }
    // Of a damaged stack nothing can be read: it comes last.
    report.putLineEnd();
    report.putLastLines();
    report.putStackTitle();
    report.putStack(context);
}

/// Waits beforehand in a thread of its own: where a stack has overflowed there is no room to write a report.
DWORD WINAPI reportException(void *)
{
    WaitForSingleObject(crashed, INFINITE);
    const EXCEPTION_RECORD &record = *crash->ExceptionRecord;
    const bool isAccess =
        record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION || record.ExceptionCode == EXCEPTION_IN_PAGE_ERROR;
    const void *address = isAccess && record.NumberParameters > 1
                              ? reinterpret_cast<const void *>(record.ExceptionInformation[1])
                              : record.ExceptionAddress;
    writeReport(record.ExceptionCode, address, *crash->ContextRecord);
    // What the system does about it next may take more than is left of that stack, and end as if all were
    // well.
    if (record.ExceptionCode == EXCEPTION_STACK_OVERFLOW)
        TerminateProcess(GetCurrentProcess(), record.ExceptionCode);
    SetEvent(reported);
    return 0;
}

LONG WINAPI onException(EXCEPTION_POINTERS *exception)
{
    // First, so that a crash in here is no loop.
    SetUnhandledExceptionFilter(previousFilter);
    crash = exception;
    SignalObjectAndWait(crashed, reported, LongestReport, FALSE);
    return previousFilter ? previousFilter(exception) : EXCEPTION_CONTINUE_SEARCH;
}

/// An exception that nobody catches ends here, too.
void onAbort(int number)
{
    std::signal(SIGABRT, previousAbort);
    CONTEXT context{};
    RtlCaptureContext(&context);
    writeReport(Abort, nullptr, context);
    std::raise(number);
}
} // namespace

void CrashReport::install(const QString &path)
{
    uninstall();
    const std::wstring native = nativePath(path);
    if (KORVANE_CRASH_REPORTS == 0 || path.isEmpty() || native.size() >= std::size(reportPath))
        return;
    std::wcscpy(reportPath, native.c_str());
    CrashText::prepare("\r\n");
    // A stack that overflowed has room for the handler.
    ULONG handlerBytes = HandlerBytes;
    SetThreadStackGuarantee(&handlerBytes);
    if (!crashed) {
        crashed = CreateEventW(nullptr, FALSE, FALSE, nullptr);
        reported = CreateEventW(nullptr, FALSE, FALSE, nullptr);
        CloseHandle(CreateThread(nullptr, 0, reportException, nullptr, 0, nullptr));
    }
    previousFilter = SetUnhandledExceptionFilter(onException);
    previousAbort = std::signal(SIGABRT, onAbort);
    isInstalled = true;
}

void CrashReport::uninstall()
{
    if (isInstalled) {
        SetUnhandledExceptionFilter(previousFilter);
        std::signal(SIGABRT, previousAbort);
    }
    isInstalled = false;
}
