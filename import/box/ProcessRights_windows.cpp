// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProcessRights.h"

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <filesystem>
#include <memory>
#include <vector>

// What was set is read again: there are systems that take it and do nothing.

namespace {
using Handle = std::unique_ptr<void, decltype(&CloseHandle)>;

/// Lets processes of low integrity write to a path: to a folder also what comes into it. Returns true on
/// failure.
bool labelLow(const std::wstring &path, const wchar_t *label)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(label, SDDL_REVISION_1, &descriptor, nullptr))
        return true;
    const std::unique_ptr<void, decltype(&LocalFree)> owner(descriptor, &LocalFree);
    PACL rules = nullptr;
    BOOL isPresent = FALSE;
    BOOL isDefault = FALSE;
    if (!GetSecurityDescriptorSacl(descriptor, &isPresent, &rules, &isDefault) || !isPresent)
        return true;
    const HANDLE opened = CreateFileW(path.c_str(), READ_CONTROL | WRITE_OWNER,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return true;
    const Handle file(opened, &CloseHandle);
    return SetSecurityInfo(opened, SE_FILE_OBJECT, LABEL_SECURITY_INFORMATION, nullptr, nullptr, nullptr,
                           rules) != ERROR_SUCCESS;
}

bool labelAllLow(const std::wstring &folder)
{
    // What is there already inherits nothing for sure; it may have to be replaced.
    std::error_code error;
    bool failed = labelLow(folder, L"S:(ML;OICI;NW;;;LW)");
    for (std::filesystem::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error))
        failed = labelLow(file->path().wstring(), L"S:(ML;;NW;;;LW)") || failed;
    return failed || error;
}

/// Empty on failure.
std::vector<char> factsOf(const Handle &token, TOKEN_INFORMATION_CLASS kind)
{
    DWORD size = 0;
    GetTokenInformation(token.get(), kind, nullptr, 0, &size);
    std::vector<char> facts(size);
    if (!GetTokenInformation(token.get(), kind, facts.data(), size, &size))
        facts.clear();
    return facts;
}

bool removePrivileges(const Handle &token)
{
    LUID passing{};
    std::vector<char> facts = factsOf(token, TokenPrivileges);
    if (facts.empty() || !LookupPrivilegeValueW(nullptr, L"SeChangeNotifyPrivilege", &passing))
        return true;
    auto *const all = reinterpret_cast<TOKEN_PRIVILEGES *>(facts.data());
    for (DWORD i = 0; i < all->PrivilegeCount; ++i) {
        LUID_AND_ATTRIBUTES &each = all->Privileges[i];
        if (each.Luid.LowPart != passing.LowPart || each.Luid.HighPart != passing.HighPart)
            each.Attributes = SE_PRIVILEGE_REMOVED;
    }
    // It succeeds, too, when it left some out.
    return !AdjustTokenPrivileges(token.get(), FALSE, all, 0, nullptr, nullptr) ||
           GetLastError() != ERROR_SUCCESS;
}

bool isLow(const Handle &token)
{
    const std::vector<char> facts = factsOf(token, TokenIntegrityLevel);
    if (facts.empty())
        return false;
    PSID level = reinterpret_cast<const TOKEN_MANDATORY_LABEL *>(facts.data())->Label.Sid;
    return *GetSidSubAuthority(level, DWORD(*GetSidSubAuthorityCount(level) - 1)) <=
           SECURITY_MANDATORY_LOW_RID;
}

bool lowerIntegrity(const Handle &token)
{
    char low[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof low;
    if (!CreateWellKnownSid(WinLowLabelSid, nullptr, low, &size))
        return true;
    TOKEN_MANDATORY_LABEL label{{low, SE_GROUP_INTEGRITY}};
    return !SetTokenInformation(token.get(), TokenIntegrityLevel, &label, DWORD(sizeof label) + size) ||
           !isLow(token);
}
} // namespace

bool restrictToken(const std::wstring &folder)
{
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY | TOKEN_ADJUST_DEFAULT | TOKEN_ADJUST_PRIVILEGES,
                          &opened))
        return true;
    const Handle token(opened, &CloseHandle);
    // A process of low integrity could hand nothing over in a folder that is not labelled, and label none.
    const bool isLabelled = !labelAllLow(folder);
    const bool keepsPrivileges = removePrivileges(token);
    return !isLabelled || lowerIntegrity(token) || keepsPrivileges;
}

bool refuseProcesses()
{
    JOBOBJECT_BASIC_LIMIT_INFORMATION limits{};
    limits.LimitFlags = JOB_OBJECT_LIMIT_ACTIVE_PROCESS;
    limits.ActiveProcessLimit = 1;
    // The job is there as long as the process; nobody has a handle of it to change it by.
    const Handle job(CreateJobObjectW(nullptr, nullptr), &CloseHandle);
    JOBOBJECT_BASIC_LIMIT_INFORMATION kept{};
    return !job ||
           !SetInformationJobObject(job.get(), JobObjectBasicLimitInformation, &limits, sizeof limits) ||
           !AssignProcessToJobObject(job.get(), GetCurrentProcess()) ||
           !QueryInformationJobObject(job.get(), JobObjectBasicLimitInformation, &kept, sizeof kept,
                                      nullptr) ||
           kept.ActiveProcessLimit != 1;
}

bool refuseForeignLibraries()
{
    using SetPolicy = BOOL(WINAPI *)(PROCESS_MITIGATION_POLICY, PVOID, SIZE_T);
    const HMODULE system = GetModuleHandleW(L"kernel32");
    const auto set = reinterpret_cast<SetPolicy>(
        reinterpret_cast<void *>(system ? GetProcAddress(system, "SetProcessMitigationPolicy") : nullptr));
    if (!set)
        return true;
    PROCESS_MITIGATION_EXTENSION_POINT_DISABLE_POLICY extensions{};
    extensions.DisableExtensionPoints = 1;
    PROCESS_MITIGATION_IMAGE_LOAD_POLICY images{};
    // Those from other machines may be the toolkit's own, of a program that is carried around.
    images.NoLowMandatoryLabelImages = 1;
    const bool hasExtensions = !set(ProcessExtensionPointDisablePolicy, &extensions, sizeof extensions);
    return !set(ProcessImageLoadPolicy, &images, sizeof images) || hasExtensions;
}
