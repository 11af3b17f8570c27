// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WorkerProcess.h"

#include "Background.h"

#include <QFile>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>
#include <vector>

/// The toolkit would fork, which copies the tables of all memory: with large models that holds the window up.
struct WorkerProcess::Process
{
    pid_t id = -1;
    Background waiting;
};

namespace {
/// What a program is started with.
class SpawnSettings
{
public:
    SpawnSettings()
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawnattr_init(&attributes);
        // What this program does about signals is nothing to the other one.
        sigset_t set;
        sigemptyset(&set);
        posix_spawnattr_setsigmask(&attributes, &set);
        sigaddset(&set, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &set);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSettings()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&files);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

/// Ends with a null pointer; points into the texts.
std::vector<char *> pointersTo(std::vector<QByteArray> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}
} // namespace

WorkerProcess::WorkerProcess(QObject *parent)
    : QObject(parent)
    , m_process(std::make_unique<Process>())
{}

WorkerProcess::~WorkerProcess()
{
    kill();
    if (m_process->id > 0)
        waitpid(m_process->id, nullptr, 0);
}

QString WorkerProcess::start(const QString &program, const QString &argument,
                             const QProcessEnvironment &environment, const Limits &)
{
    std::vector<QByteArray> arguments{QFile::encodeName(program), QFile::encodeName(argument)};
    std::vector<QByteArray> variables;
    for (const QString &variable : environment.toStringList())
        variables.push_back(variable.toLocal8Bit());
    const SpawnSettings settings;
    pid_t id = -1;
    const int error = posix_spawn(&id, arguments[0].constData(), &settings.files, &settings.attributes,
                                  pointersTo(arguments).data(), pointersTo(variables).data());
    if (error != 0)
        return qt_error_string(error);
    m_process->id = id;
    // The end is only looked at: until it is asked for here, no other process gets the number.
    const auto wait = [id](const Background::Cancelled &) {
        siginfo_t end{};
        while (waitid(P_PID, id_t(id), &end, WEXITED | WNOWAIT) != 0 && errno == EINTR) {
        }
        return true;
    };
    m_process->waiting.start(wait, [this](bool) {
        int status = 0;
        waitpid(std::exchange(m_process->id, -1), &status, 0);
        const int exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
        constexpr int Abort = 3; // as it ends on other systems
        emit ended(exitCode, WIFSIGNALED(status) || exitCode == Abort);
    });
    return {};
}

void WorkerProcess::kill()
{
    if (m_process->id > 0)
        ::kill(m_process->id, SIGKILL);
}
