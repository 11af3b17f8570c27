// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportRun.h"

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

void ImportRun::onWorkerFinished()
{
    ImportMessages messages = m_worker.messages();
    QString outcome;
    bool goesOn = true;
    const QString name = QFileInfo(m_choices.modelPath).completeBaseName();
    if (messages.hasError()) {
        // There is nothing to go on with.
    } else if (m_choices.isStatic) {
        StaticMesh mesh;
        goesOn = finish(mesh, messages, outcome);
        if (goesOn && !messages.hasError())
            emit staticMeshImported(mesh, name);
    } else {
        SkinnedMesh mesh;
        AnimFile anim;
        goesOn = finish(mesh, messages, outcome, anim);
        m_worker.names().giveTo(mesh);
        if (goesOn && !messages.hasError())
            emit skinnedMeshImported(mesh, anim, name);
    }
    m_worker.discard();
    if (goesOn)
        emit finished(messages, outcome);
    else
        emit declined();
}

/// Says in `outcome` what was written. Returns false when nothing is to be replaced and so to be imported.
template <typename Mesh, typename... More>
bool ImportRun::finish(Mesh &mesh, ImportMessages &messages, QString &outcome, More &...more)
{
    if (m_worker.read(mesh, more...)) {
        messages.addError(tr("%1 Could not read file. The result was damaged.").arg(m_choices.modelPath));
        return true;
    }
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
    transformImported(mesh, m_choices);
    return true;
}
