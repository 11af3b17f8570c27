// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "ImportSteps.h"
#include "ImportWorker.h"
#include "ImportedFiles.h"

#include <QObject>

#include <functional>

/// One import after another: the worker reads the model, then its materials and textures are written, and it
/// is turned and scaled.
class ImportRun : public QObject
{
    Q_OBJECT

public:
    explicit ImportRun(QObject *parent = nullptr);

    /// That an import or an export may take, in seconds; an hour at most.
    static int timeLimit();
    /// Gives it to the worker, with a word about where it can be changed.
    static void limit(ImportWorker &worker);

    /// Decides about files that would be replaced, and changes the names if need be. False: nothing is to be
    /// imported. Without it they are replaced, and so is what the import before wrote for the same model.
    using Decision = std::function<bool(ImportedFiles &files)>;
    void setDecision(Decision decide) { m_decide = std::move(decide); }

    /// Begins an import, whose outputs were found to be possible.
    void start(const ImportChoices &choices);
    bool isRunning() const { return m_worker.isRunning() || m_reading.isRunning(); }
    /// Milliseconds since the start.
    qint64 elapsed() const { return m_worker.elapsed(); }
    void cancel();

signals:
    /// The import has succeeded; `name` is the source's complete base name. Whoever takes a model moves it:
    /// it may be large, and nobody needs it afterwards.
    void skinnedMeshImported(SkinnedMesh &mesh, AnimFile &anim, const QString &name);
    void staticMeshImported(StaticMesh &mesh, const QString &name);
    /// Comes once for each start, after those. There is a model unless the messages hold an error; `outcome`
    /// says what was written.
    void finished(const ImportMessages &messages, const QString &outcome);
    /// Comes in place of those where nothing was to be replaced.
    void declined();

private:
    /// What the worker has left.
    struct Result
    {
        bool isDamaged = false;
        SkinnedMesh mesh;
        AnimFile anim;
        StaticMesh rigid;
    };

    void onWorkerFinished();
    /// Reads what the worker has left and turns and scales it; in another thread.
    Result readResult() const;
    void finish(Result result);
    template <typename Mesh>
    bool writeFiles(Mesh &mesh, ImportMessages &messages, QString &outcome);

    Decision m_decide;
    ImportChoices m_choices;
    ImportWorker m_worker;
    WrittenFiles m_written;
    bool m_isCancelled = false; ///< while the result was read
    Background m_reading;
};
