// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentFiles.h"
#include "Find.h"
#include "Recovery.h"
#include "SkinnedMeshCommands.h"

/// A window with the three documents and what keeps them: one run of the program. It ends like one that is
/// killed: nothing is kept on the way.
struct OneRun
{
    explicit OneRun(const QString &root)
        : files({&mesh, &anim, &rigid}, &window)
        , recovery(new Recovery(files, root, &window))
    {
        recovery->setDelay(0);
    }
    ~OneRun() { delete recovery; }

    void openMesh(const QString &path)
    {
        QString reason;
        if (mesh.open(path, &reason))
            qFatal("%s", qPrintable(reason));
    }
    void edit(int factor)
    {
        mesh.undoStack()->push(new UC_SkinnedMeshHTFactor(mesh.editTarget(), {}, qint8(factor)));
    }
    /// Lets the delay pass and what is due reach the disk.
    void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QTest::qWait(2);
            recovery->store().waitForDone();
        }
    }

    QWidget window;
    SkinnedMeshDocument mesh{DocumentType::SkinnedMesh, RecordKind::SkinnedMesh};
    AnimDocument anim{DocumentType::Anim, RecordKind::AnimFile};
    StaticMeshDocument rigid{DocumentType::StaticMesh, RecordKind::StaticMesh};
    DocumentFiles files;
    Recovery *recovery;
};
