// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
//
// Stands for a worker that a file has got the better of: confined as the worker is, it tries what
// KORVANE_HOSTILE names, and answers with an error number for each act, 0 for what it was let.
#include "Confinement.h"
#include "WorkerJob.h"

#include <QCoreApplication>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <thread>
#include <vector>

namespace {
struct Act
{
    const char *name;
    std::function<long()> run; ///< negative on failure, with errno
};

QByteArray own;     ///< the worker's folder
QByteArray outside; ///< one that is none of its business
QByteArray model;

long opened(const QByteArray &path, int flags)
{
    const int file = open(path.constData(), flags, 0600);
    if (file >= 0)
        close(file);
    return file;
}

long connectTo(int family, const sockaddr *address, socklen_t size)
{
    const int end = socket(family, SOCK_STREAM, 0);
    return end < 0 ? end : connect(end, address, size);
}

long connectToPort()
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(9);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return connectTo(AF_INET, reinterpret_cast<const sockaddr *>(&address), sizeof address);
}

long startProcess()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    return child < 0 ? child : waitpid(child, nullptr, 0);
}

/// The program is not there, which is noticed only by who may start one.
long startProgram()
{
    char name[] = "none";
    char *const arguments[] = {name, nullptr};
    return execv("/nonexistent/program", arguments);
}

long ownSignal(int command, int value)
{
    int ends[2];
    return pipe(ends) < 0 ? -1 : fcntl(ends[0], command, value);
}

long growFile(const char *name, off_t size)
{
    const int file = open((own + '/' + name).constData(), O_WRONLY | O_CREAT, 0600);
    return file < 0 ? file : ftruncate(file, size);
}

long takeMemory()
{
    void *memory =
        mmap(nullptr, size_t(8) << 30, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return memory == MAP_FAILED ? -1 : munmap(memory, size_t(8) << 30);
}

long readParent()
{
    char byte = 0;
    const iovec here{&byte, 1};
    const iovec there{reinterpret_cast<void *>(0x1000), 1};
    return process_vm_readv(getppid(), &here, 1, &there, 1, 0);
}

long raiseLimit()
{
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    return setrlimit(RLIMIT_NOFILE, &limit);
}

long startThread()
{
    std::thread([] {}).join();
    return 0;
}

std::vector<Act> acts()
{
    const QByteArray secret = outside + "/secret";
    const std::string parent = std::to_string(getppid());
    return {
        {"read the model", [] { return opened(model, O_RDONLY); }},
        {"read a library", [] { return opened("/usr/lib/os-release", O_RDONLY); }},
        {"write into its folder", [] { return opened(own + "/made", O_WRONLY | O_CREAT); }},
        {"rename in its folder",
         [] { return rename((own + "/made").constData(), (own + "/renamed").constData()); }},
        {"start a thread", startThread},
        {"raise a signal", [] { return raise(SIGURG); }}, // which is ignored

        {"read a file outside", [=] { return opened(secret, O_RDONLY); }},
        {"write a file outside", [=] { return opened(secret, O_WRONLY); }},
        {"empty a file outside", [=] { return opened(secret, O_RDONLY | O_TRUNC); }},
        {"make a file outside", [] { return opened(outside + "/made", O_WRONLY | O_CREAT); }},
        {"list a folder outside", [] { return opened(outside, O_RDONLY | O_DIRECTORY); }},
        {"remove a file outside", [] { return unlink((outside + "/spare").constData()); }},
        {"move a file outside",
         [] { return rename((own + "/renamed").constData(), (outside + "/moved").constData()); }},
        {"link a file outside", [=] { return link(secret.constData(), (own + "/linked").constData()); }},
        {"leave a link", [=] { return symlink(secret.constData(), (own + "/link").constData()); }},
        {"leave a pipe", [] { return mkfifo((own + "/pipe").constData(), 0600); }},
        {"change the model", [] { return opened(model, O_WRONLY); }},
        {"empty the model", [] { return opened(model, O_RDONLY | O_TRUNC); }},
        {"cut a file outside", [=] { return truncate(secret.constData(), 0); }},
        {"open a file outside to all", [=] { return chmod(secret.constData(), 0666); }},
        {"change the time of a file outside",
         [=] { return utimensat(AT_FDCWD, secret.constData(), nullptr, 0); }},
        {"use a file of the editor's",
         [] { return lseek(qEnvironmentVariableIntValue("KORVANE_OPEN"), 0, SEEK_SET); }},
        {"read another process", [=] { return opened(("/proc/" + parent + "/environ").c_str(), O_RDONLY); }},
        {"read another's memory", readParent},
        {"connect to a port", connectToPort},
        {"make a pair of sockets",
         [] {
             int ends[2];
             return socketpair(AF_UNIX, SOCK_STREAM, 0, ends);
         }},
        {"start a process", startProcess},
        {"start a program", startProgram},
        {"signal another process", [] { return kill(getppid(), 0); }},
        {"signal all of a group", [] { return kill(0, 0); }},
        {"have another signalled", [] { return ownSignal(F_SETOWN, getppid()); }},
        {"outlive the editor", [] { return prctl(PR_SET_PDEATHSIG, 0); }},
        {"type into the terminal", [] { return ioctl(STDIN_FILENO, TIOCSTI, "x"); }},
        {"set a limit", raiseLimit},
        {"hide a file in memory", [] { return syscall(SYS_memfd_create, "x", 0); }},
        {"trace another process", [] { return ptrace(PTRACE_PEEKDATA, getppid(), nullptr, nullptr); }},
        {"use io_uring", [] { return syscall(SYS_io_uring_setup, 1, own.data()); }},
        {"mount", [] { return mount("none", own.constData(), "none", 0, nullptr); }},
        {"make a namespace", [] { return unshare(CLONE_NEWUSER); }},
        {"load a filter program", [] { return syscall(SYS_bpf, 0, nullptr, 0); }},
        {"write a file of 2 GiB", [] { return growFile("large", off_t(2) << 30); }},
        {"take 8 GiB of memory", takeMemory},
    };
}

void fillDisk()
{
    // Holes take no place, but count.
    for (const char *name : {"a", "b", "c"})
        growFile(name, off_t(1) << 30);
    sleep(100);
}
} // namespace

int main(int argc, char *argv[])
{
    if (qgetenv("KORVANE_HOSTILE") != "unconfined")
        closeInherited();
    QCoreApplication application(argc, argv);
    WorkerJob job;
    const WorkerFolder folder(QCoreApplication::arguments().value(1));
    if (folder.read(job))
        return EXIT_FAILURE;
    own = folder.path({}).toUtf8();
    model = job.modelPath.toUtf8();
    outside = qgetenv("KORVANE_OUTSIDE");
    const QByteArray wish = qgetenv("KORVANE_HOSTILE");
    WorkerAnswer answer;
    ImportMessages messages;
    if (wish != "unconfined") {
        const QStringList lacking = confine({folder.path({}), job.modelPath, {}, job.memoryLimitMiB, 100});
        messages.addInfo(lacking.join(QLatin1Char(' ')));
    }
    if (wish == "fill the disk")
        fillDisk();
    if (wish == "lack something")
        answer.lacking = QStringList{QStringLiteral("Landlock"), QStringLiteral("seccomp")};
    else if (wish == "have a file copied")
        answer.textures = QStringList{QString::fromUtf8(outside) + QStringLiteral("/secret")};
    else {
        for (const Act &act : acts()) {
            errno = 0;
            const long result = act.run();
            messages.addInfo(
                QStringLiteral("%1: %2").arg(QLatin1String(act.name)).arg(result < 0 ? errno : 0));
        }
    }
    answer.messages = messages.lines;
    return folder.write(answer) ? EXIT_FAILURE : EXIT_SUCCESS;
}
