// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryFileReader.h"
#include "LoadedFile.h"
#include "NamesFile.h"
#include "StaticMesh.h"

#include <QCoreApplication>

/// The file of a model, with what stands beside it.
template <typename Model>
struct LoadedModel : LoadedFile
{
    Model model;
    NamesFile names; ///< of a skinned mesh

    void read(const QString &from, ReadProgress &progress)
    {
        path = from;
        // Before reading: what another program writes meanwhile must not pass as known.
        stamp = FileStamp::of(path);
        BinaryFileReader reader(path);
        reader.setProgress(&progress);
        isFailed = !reader.isOpen() || model.read(reader);
        reason = reader.errorText();
        if (!isFailed)
            complete();
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
