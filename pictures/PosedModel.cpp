// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PosedModel.h"

#include "Companions.h"
#include "Log.h"
#include "Playback.h"

namespace {
QString load(const QString &path, FileContent &content)
{
    const QString error = readFile(path, content);
    return error.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(path, error);
}
} // namespace

QString PosedModel::read(const QString &file, const QString &chosenAnim, Companions &companions)
{
    meshPath = file;
    animPath = chosenAnim;
    QString error = load(file, mesh);
    if (!error.isEmpty())
        return error;
    if (std::holds_alternative<AnimFile>(mesh) && animPath.isEmpty()) {
        anim = std::move(mesh);
        animPath = file;
        meshPath = companions.find(file).path;
        if (meshPath.isEmpty())
            return tr("%1: There is no skinned mesh of this name for the animation.").arg(file);
        error = load(meshPath, mesh);
        if (!error.isEmpty())
            return error;
    }
    if (!skinned() && !rigid())
        return tr("%1: This is no mesh.").arg(file);
    if (rigid() && !animPath.isEmpty())
        return tr("%1: A static mesh has no animation.").arg(file);
    if (!skinned() || animFile())
        return {};
    const bool asked = !animPath.isEmpty();
    if (!asked)
        animPath = companions.find(file).path;
    if (animPath.isEmpty())
        return {};
    error = load(animPath, anim);
    if (error.isEmpty() && !animFile())
        error = tr("%1: This is no animation.").arg(animPath);
    if (error.isEmpty() && !animationMatchesMesh(*animFile(), *skinned()))
        error = tr("%1: The animation does not have as many bones as '%2'.").arg(animPath, meshPath);
    if (error.isEmpty() || asked)
        return error;
    Log::warning(error);
    anim = std::monostate();
    return {};
}

QString PosedModel::problem(int block, int frame) const
{
    if (!animFile())
        return tr("%1: There is no animation to take a block or a frame of.").arg(meshPath);
    const std::vector<AnimBlock> &blocks = animFile()->blocks;
    if (size_t(block) >= blocks.size())
        return tr("%1: There is no block %2, only %3 of them.")
            .arg(animPath, QString::number(block), QString::number(blocks.size()));
    const int frames = blocks[size_t(block)].frameCount();
    if (frame > 0 && frame >= frames)
        return tr("%1: Block %2 has no frame %3, only %4 of them.")
            .arg(animPath, QString::number(block), QString::number(frame), QString::number(frames));
    return {};
}
