// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportRun.h"

#include "Settings.h"

#include <QFileInfo>

#include <utility>

ImportRun::ImportRun(QObject *parent)
    : QObject(parent)
{
    connect(&m_worker, &ImportWorker::finished, this, &ImportRun::onWorkerFinished);
}

int ImportRun::timeLimit()
{
    return qBound(1, Settings::ImportTimeLimit.value(), 3600);
}

void ImportRun::limit(ImportWorker &worker)
{
    worker.setTimeLimit(timeLimit() * 1000, tr("Edit ▸ Options… sets this time limit."));
}

void ImportRun::start(const ImportChoices &choices)
{
    if (choices.modelPath != m_choices.modelPath)
        m_written = {};
    m_choices = choices;
    limit(m_worker);
    m_worker.start(importJob(m_choices));
}

void ImportRun::cancel()
{
    m_isCancelled = m_reading.isRunning();
    m_worker.cancel();
}

void ImportRun::onWorkerFinished()
{
    m_isCancelled = false;
    if (m_worker.messages().hasError())
        return finish({});
    m_reading.start([this](const Background::Cancelled &) { return readResult(); },
                    [this](Result result) { finish(std::move(result)); });
}

ImportRun::Result ImportRun::readResult() const
{
    Result result;
    result.isDamaged =
        m_choices.isStatic ? m_worker.read(result.rigid) : m_worker.read(result.mesh, result.anim);
    transformImported(result.mesh, m_choices);
    transformImported(result.rigid, m_choices);
    return result;
}

void ImportRun::finish(Result result)
{
    ImportMessages messages = m_worker.messages();
    if (m_isCancelled)
        messages.addError(importJob(m_choices).failure(ImportWorker::tr("It was cancelled.")));
    else if (result.isDamaged)
        messages.addError(tr("%1 Could not read file. The result was damaged.").arg(m_choices.modelPath));
    QString outcome;
    bool goesOn = true;
    const QString name = QFileInfo(m_choices.modelPath).completeBaseName();
    if (messages.hasError()) {
        // There is nothing to go on with.
    } else if (m_choices.isStatic) {
        goesOn = writeFiles(result.rigid, messages, outcome);
        if (goesOn && !messages.hasError())
            emit staticMeshImported(result.rigid, name);
    } else {
        goesOn = writeFiles(result.mesh, messages, outcome);
        m_worker.names().giveTo(result.mesh);
        if (goesOn && !messages.hasError())
            emit skinnedMeshImported(result.mesh, result.anim, name);
    }
    Background::discard(std::move(result));
    m_worker.discard();
    if (goesOn)
        emit finished(messages, outcome);
    else
        emit declined();
}

/// Says in `outcome` what was written. Returns false when nothing is to be replaced and so to be imported.
template <typename Mesh>
bool ImportRun::writeFiles(Mesh &mesh, ImportMessages &messages, QString &outcome)
{
    ImportedFiles files(m_choices, mesh, m_worker.textures());
    if (files.replaceOnly(m_written)) {
        if (m_written.keptOthers)
            files.keepOtherMaterials();
    } else if (m_decide && !m_decide(files)) {
        return false;
    }
    files.nameMaterials(mesh);
    outcome = files.write(messages);
    m_written = files.written();
    return true;
}
