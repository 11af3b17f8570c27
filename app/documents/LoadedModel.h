// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryFileReader.h"
#include "LoadedFile.h"
#include "NamesFile.h"
#include "StaticMesh.h"

#include <QCoreApplication>

#include <functional>
#include <memory>

/// The file of a model, with what stands beside it.
template <typename Model>
struct LoadedModel : LoadedFile
{
    /// Makes something of a model; it may end early, and give anything, when the read is cancelled.
    using Prepare = std::function<std::any(const Model &, const ReadProgress &)>;

    Model model;
    NamesFile names; ///< of a skinned mesh

    /// `prepare`, if given, makes what is prepared.
    void read(const QString &from, const Prepare &prepare, ReadProgress &progress)
    {
        HeldLog log;
        path = from;
        // Before reading: what another program writes meanwhile must not pass as known.
        stamp = FileStamp::of(path);
        BinaryFileReader reader(path);
        reader.setProgress(&progress);
        isFailed = !reader.isOpen() || model.read(reader);
        reason = reader.errorText();
        if (!isFailed)
            complete();
        if (!isFailed && prepare && !progress.isCancelled)
            prepared = prepare(model, progress);
        lines = log.lines;
    }

private:
    void complete()
    {
        if constexpr (std::is_same_v<Model, SkinnedMesh>)
            names.read(path, model);
        if constexpr (std::is_same_v<Model, StaticMesh>) {
            // Without a surface there is nothing to show, and nothing that could be saved.
            isFailed = model.surfaces.empty();
            if (isFailed)
                reason = QCoreApplication::translate("Document", "The model has no surfaces.");
        }
    }
};

/// Writes a model, with what goes beside it, to `file.path`.
template <typename Model>
void writeSaved(SavedFile &file, const Model &model)
{
    if constexpr (std::is_same_v<Model, SkinnedMesh>)
        file.reason = file.names.write(file.path, model);
    file.isFailed = !file.reason.isEmpty() || model.write(file.path, &file.reason);
    file.stamp = FileStamp::of(file.path);
}
