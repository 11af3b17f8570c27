// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SystemCallFilter.h"

#ifdef __linux__

#include <fcntl.h>
#include <linux/sockios.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace {
/// Refused whatever they are called with.
constexpr const char *Refused[] = {
    // the network, and other processes by sockets
    "socket", "socketpair", "connect", "bind", "listen", "accept", "accept4",
    // programs and processes
    "execve", "execveat", "fork", "vfork", "ptrace", "kcmp", "process_vm_readv", "process_vm_writev",
    "process_madvise", "process_mrelease", "pidfd_open", "pidfd_getfd", "pidfd_send_signal", "tkill",
    "rt_sigqueueinfo", "rt_tgsigqueueinfo", "setpgid", "setsid", "setpriority", "ioprio_set",
    "sched_setscheduler", "sched_setparam", "sched_setattr", "sched_setaffinity", "migrate_pages",
    "move_pages", "setrlimit",
    // memory and queues that are shared
    "shmget", "shmat", "shmctl", "semget", "semop", "semtimedop", "semctl", "msgget", "msgsnd", "msgrcv",
    "msgctl", "mq_open", "mq_unlink", "memfd_create", "memfd_secret",
    // of files, what their folders' rules are silent about
    "chmod", "fchmod", "fchmodat", "fchmodat2", "chown", "fchown", "lchown", "fchownat", "setxattr",
    "lsetxattr", "fsetxattr", "setxattrat", "removexattr", "lremovexattr", "fremovexattr", "removexattrat",
    "utime", "utimes", "futimesat", "utimensat", "truncate", "mknod", "mknodat", "inotify_init",
    "inotify_init1", "fanotify_init", "name_to_handle_at", "open_by_handle_at", "file_setattr", "quotactl",
    "quotactl_fd",
    // who it is
    "setuid", "setgid", "setreuid", "setregid", "setresuid", "setresgid", "setfsuid", "setfsgid", "setgroups",
    "capset", "keyctl", "add_key", "request_key",
    // the system
    "mount", "umount", "umount2", "move_mount", "open_tree", "open_tree_attr", "fsopen", "fsconfig",
    "fsmount", "fspick", "mount_setattr", "pivot_root", "chroot", "unshare", "setns", "swapon", "swapoff",
    "acct", "reboot", "kexec_load", "kexec_file_load", "init_module", "finit_module", "delete_module",
    "settimeofday", "clock_settime", "clock_adjtime", "adjtimex", "sethostname", "setdomainname", "syslog",
    "iopl", "ioperm", "modify_ldt", "personality", "vhangup", "uselib", "lookup_dcookie", "_sysctl",
    // large parts of the kernel that are known for their faults
    "io_uring_setup", "io_uring_enter", "io_uring_register", "bpf", "perf_event_open", "userfaultfd"};

/// What the C library does without where they are not.
constexpr const char *Absent[] = {"clone3", "openat2"};

constexpr unsigned long long AllOfNumber = 0xffffffff; // the kernel looks at no more of most arguments

scmp_arg_cmp equal(unsigned argument, unsigned long long mask, unsigned long long value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

scmp_arg_cmp other(unsigned argument, unsigned long long value)
{
    return {argument, SCMP_CMP_NE, value, 0};
}

/// Refused by what they are called with.
struct Case
{
    const char *call;
    scmp_arg_cmp when;
};

std::vector<Case> cases()
{
    const auto self = static_cast<unsigned long long>(getpid());
    std::vector<Case> cases{
        {"kill", other(0, self)},
        {"tgkill", other(0, self)},
        {"clone", equal(0, CLONE_THREAD, 0)}, // threads may be
        {"prlimit64", other(2, 0)},           // limits may be asked for
        {"prctl", equal(0, AllOfNumber, PR_SET_PDEATHSIG)},
        // A file that may only be read must not be emptied either, which the first versions of Landlock let
        // pass.
        {"open", equal(1, O_TRUNC | O_ACCMODE, O_TRUNC)},
        {"openat", equal(2, O_TRUNC | O_ACCMODE, O_TRUNC)},
    };
    // To type into a terminal, and to have signals sent to others when something happens to a file.
    for (const int request : {TIOCSTI, TIOCLINUX, TIOCSETD, TIOCSCTTY, FIOSETOWN, SIOCSPGRP})
        cases.push_back({"ioctl", equal(1, AllOfNumber, unsigned(request))});
    for (const int command : {F_SETOWN, F_SETOWN_EX, F_SETSIG})
        cases.push_back({"fcntl", equal(1, AllOfNumber, unsigned(command))});
    return cases;
}

/// Adds a rule, and returns true on failure. A call that the library has not heard of is left out.
bool add(scmp_filter_ctx filter, const char *name, int error, const scmp_arg_cmp *when = nullptr)
{
    const int call = seccomp_syscall_resolve_name(name);
    return call != __NR_SCMP_ERROR &&
           seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(unsigned(error)), call, when ? 1 : 0, when) != 0;
}

bool fill(scmp_filter_ctx filter)
{
    bool failed = false;
    for (const char *name : Refused)
        failed = add(filter, name, EPERM) || failed;
    for (const char *name : Absent)
        failed = add(filter, name, ENOSYS) || failed;
    for (const Case &each : cases())
        failed = add(filter, each.call, EPERM, &each.when) || failed;
    return failed;
}
} // namespace

bool refuseSystemCalls()
{
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    const bool failed = !filter || fill(filter) || seccomp_load(filter) != 0;
    seccomp_release(filter);
    return failed;
}

#else

bool refuseSystemCalls()
{
    return true;
}

#endif
