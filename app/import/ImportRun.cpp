// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportRun.h"

#include "ImportOutput.h"
#include "Settings.h"

#include <QFileInfo>

ImportRun::ImportRun(QObject *parent)
    : QObject(parent)
{
    connect(&m_worker, &ImportWorker::finished, this, &ImportRun::onWorkerFinished);
}

int ImportRun::timeLimit()
{
    return qBound(1, Settings::ImportTimeLimit.value(), 3600);
}

void ImportRun::start(const ImportChoices &choices)
{
    m_choices = choices;
    m_worker.setTimeLimit(timeLimit() * 1000);
    m_worker.start(importJob(m_choices));
}

void ImportRun::onWorkerFinished()
{
    ImportMessages messages = m_worker.messages();
    QString outcome;
    const QString name = QFileInfo(m_choices.modelPath).completeBaseName();
    if (messages.hasError()) {
        // There is nothing to go on with.
    } else if (m_choices.isStatic) {
        StaticMesh mesh;
        outcome = finish(mesh, messages);
        if (!messages.hasError())
            emit staticMeshImported(mesh, name);
    } else {
        SkinnedMesh mesh;
        AnimFile anim;
        outcome = finish(mesh, messages, anim);
        if (!messages.hasError())
            emit skinnedMeshImported(mesh, anim, name);
    }
    m_worker.discard();
    emit finished(messages, outcome);
}

/// Gives what was written.
template <typename Mesh, typename... More>
QString ImportRun::finish(Mesh &mesh, ImportMessages &messages, More &...more)
{
    if (m_worker.read(mesh, more...)) {
        messages.addError(tr("%1 Could not read file. The result was damaged.").arg(m_choices.modelPath));
        return {};
    }
    const QString outcome = writeOutputs(m_choices, mesh, m_worker.textures(), messages);
    transformImported(mesh, m_choices);
    return outcome;
}
