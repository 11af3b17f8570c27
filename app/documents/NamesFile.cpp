// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NamesFile.h"

#include "Log.h"
#include "Records.h"
#include "WholeFile.h"

#include <QFileInfo>

void NamesFile::read(const QString &modelPath, SkinnedMesh &mesh)
{
    note(modelPath);
    m_known.giveTo(mesh);
}

void NamesFile::note(const QString &modelPath)
{
    m_modelPath = modelPath;
    m_known = {};
    QString reason;
    if (!modelPath.isEmpty() && m_known.read(ModelNames::pathFor(modelPath), &reason))
        Log::warning(QStringLiteral("[Open] ") + reason);
}

/// Whether the names go into a file there: not while they are those that were read from it.
bool NamesFile::isWritten(const QString &modelPath, const SkinnedMesh &mesh) const
{
    const ModelNames names = ModelNames::of(mesh);
    if (modelPath != m_modelPath) {
        ModelNames there; // of the model that was at this place
        return !names.isEmpty() || (!there.read(ModelNames::pathFor(modelPath)) && !there.isEmpty());
    }
    ModelNames known = m_known;
    for (const int bone : m_known.bones.keys()) {
        if (!Records::element(mesh.nodes, bone))
            known.bones.remove(bone);
    }
    return !(names == known);
}

QString NamesFile::replaced(const QString &modelPath, const SkinnedMesh &mesh) const
{
    const ModelNames names = ModelNames::of(mesh);
    const QString path = ModelNames::pathFor(modelPath);
    if (!isWritten(modelPath, mesh) || !QFileInfo::exists(path))
        return {};
    ModelNames there;
    const bool isDamaged = there.read(path);
    const bool isKnown = modelPath == m_modelPath && there == m_known;
    return !isDamaged && (isKnown || there == names) ? QString() : path;
}

QString NamesFile::write(const QString &modelPath, const SkinnedMesh &mesh)
{
    const ModelNames names = ModelNames::of(mesh);
    if (isWritten(modelPath, mesh)) {
        const QString reason = writeWholeFile(ModelNames::pathFor(modelPath), names.toJson());
        if (!reason.isEmpty())
            return reason;
        m_known = names;
    } else if (modelPath != m_modelPath) {
        m_known = {};
    }
    m_modelPath = modelPath;
    return {};
}
