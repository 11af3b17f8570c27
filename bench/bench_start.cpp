// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"

#include <QDir>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTemporaryDir>

#include <csignal>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// From the start of the program to its first frame: without a model, against an empty window with OpenGL;
// with a textured model in it, against that window and against one that shows the model barely. All are
// programs of their own, started in turns, and end with their first swap of buffers.
namespace {
constexpr int Repetitions = 21;
constexpr unsigned TimeLimit = 60; // seconds

class Program
{
public:
    Program(const QStringList &command, const QString &home)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(QLatin1String(name), home);
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KORVANE_FIRST_FRAME));
        if (pipe(m_pipe) != 0)
            qFatal("no pipe to wait at");
        environment.insert(QStringLiteral("KORVANE_FIRST_FRAME_PIPE"), QString::number(m_pipe[1]));
        m_arguments = pointersTo(command, m_bytes);
        m_environment = pointersTo(environment.toStringList(), m_bytes);
    }

    /// Seconds to the first frame. How long the system takes to end the program after that is not its start.
    double showFirstFrame()
    {
        pid_t child = 0;
        int status = 0;
        char said = 0;
        alarm(TimeLimit);
        const double shown = Bench::seconds([&] {
            if (posix_spawn(&child, m_arguments[0], nullptr, nullptr, m_arguments.data(),
                            m_environment.data()) != 0)
                qFatal("'%s' could not be started", m_arguments[0]);
            if (read(m_pipe[0], &said, 1) != 1)
                qFatal("'%s' has said nothing", m_arguments[0]);
        });
        if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
            qFatal("'%s' has shown no frame", m_arguments[0]);
        alarm(0);
        return shown;
    }

private:
    static std::vector<char *> pointersTo(const QStringList &texts, std::vector<QByteArray> &bytes)
    {
        std::vector<char *> pointers;
        for (const QString &text : texts) {
            bytes.push_back(QFile::encodeName(text));
            pointers.push_back(bytes.back().data());
        }
        pointers.push_back(nullptr);
        return pointers;
    }

    int m_pipe[2] = {};
    std::vector<QByteArray> m_bytes;
    std::vector<char *> m_arguments;
    std::vector<char *> m_environment;
};

/// What a user has who has worked with the program before.
void writeSettings(const QString &home)
{
    const QString game = QStringLiteral(KORVANE_SAMPLES "/game");
    QSettings settings(home + QStringLiteral("/Korvane/Korvane.conf"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("GamePath"), game);
    settings.setValue(QStringLiteral("OutputDir"), QStringLiteral(KORVANE_SAMPLES "/mod"));
    for (const char *key : {"SkinnedMeshExplorePath", "StaticMeshExplorePath"})
        settings.setValue(QLatin1String(key), game + QStringLiteral("/models"));
    settings.setValue(QStringLiteral("AnimationExplorePath"), game + QStringLiteral("/anims"));
    settings.setValue(QStringLiteral("Updates"), false);
}
} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    writeSettings(home.path());
    const QString model = QStringLiteral(KORVANE_SAMPLES "/game/models/tinker/tinker.skinnedmesh");
    const QString texture = QStringLiteral(KORVANE_SAMPLES "/game/textures/tinker.png");
    if (!QFile::exists(model) || !QFile::exists(texture))
        qFatal("there is no sample to open");
    const QStringList editor{QStringLiteral(KORVANE_EDITOR)};
    const QStringList emptyWindow{QStringLiteral(KORVANE_EMPTY_WINDOW)};
    const auto compare = [&home](const char *name, double budget, const QStringList &command,
                                 const QStringList &floorCommand) {
        const auto program = std::make_shared<Program>(command, home.path());
        const auto floor = std::make_shared<Program>(floorCommand, home.path());
        Bench::ratio(
            name, budget, Repetitions, [program] { return program->showFirstFrame(); },
            [floor] { return floor->showFirstFrame(); });
    };
    compare("start_to_empty_window", 1.3, editor, emptyWindow);
    compare("start_to_first_frame", 1.6, editor + QStringList{model}, emptyWindow);
    compare("start_to_model", 1.3, editor + QStringList{model},
            {QStringLiteral(KORVANE_MODEL_WINDOW), model, texture});
    return Bench::run(argc, argv);
}
