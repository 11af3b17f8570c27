// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Log.h"
#include "NoticeBar.h"
#include "OneRun.h"
#include "RecoveryPrompt.h"
#include "SampleModels.h"

/// The bar that offers what was kept, in the window of a run.
struct Bar
{
    explicit Bar(OneRun &run)
        : window(run.window)
        , place(&run.window)
        , prompt(*run.recovery, &recover, &place, &run.window)
    {}
    void click(const char *button) const { find<QPushButton>(window, button)->click(); }

    QWidget &window;
    QAction recover;
    QVBoxLayout place;
    RecoveryPrompt prompt;
    NoticeBar *notice = find<NoticeBar>(window, "barRecovery");
};

/// A folder with a skinned mesh, and what runs of the program have kept of it.
class KeptWork
{
protected:
    /// With an empty folder and an empty log.
    void begin()
    {
        m_folder.emplace();
        m_folder->save("man.skinnedmesh", triangleMan());
        m_log.clear();
        Log::setSink([this](LogSeverity, const QString &text) { m_log += text; });
    }
    QString root() const { return m_folder->path(QStringLiteral("state/recovery")); }
    QString manPath() const { return m_folder->path(QStringLiteral("man.skinnedmesh")); }
    QStringList kept() const
    {
        QStringList files;
        QDirIterator walk(root(), {QStringLiteral("*.snapshot")}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files += walk.next();
        return files;
    }
    /// A run that left this many skinned meshes, each with its own head track factor, 1 the oldest.
    void leave(int count)
    {
        OneRun run(root());
        for (int i = 1; i <= count; ++i) {
            run.openMesh(manPath());
            run.edit(i);
            run.recovery->keepAll();
        }
    }
    /// Restores what alone was kept.
    static bool restoreOnly(OneRun &run)
    {
        const QVector<Snapshot> found = run.recovery->snapshots();
        return found.size() == 1 && run.recovery->restore(found[0]) == Recovery::Outcome::Restored;
    }

    std::optional<ProgramFolder> m_folder;
    QStringList m_log;
};
