// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Document.h"
#include "SnapshotStore.h"

#include <QCoreApplication>

#include <cstdio>

/// Saves the skinned mesh of the first argument over and over, and keeps snapshots below the second one,
/// until it is killed. Every round has its own head track factor, which is said before the round begins.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QString path = QString::fromLocal8Bit(argv[1]);
    SkinnedMeshDocument document(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
    QString reason;
    if (document.open(path, &reason))
        return 1;
    SnapshotStore store(QString::fromLocal8Bit(argv[2]));
    const QString file = store.newFile(document.kind().extension);
    for (int round = 1;; ++round) {
        document.editTarget().edit().headTrackFactor = qint8(round % 100);
        std::printf("%d\n", round);
        std::fflush(stdout);
        // Both at a time, as in the program.
        store.keep({file, document.kind().extension, path, document.fileName(), QDateTime::currentDateTime()},
                   document.drafter(), {});
        if (document.save(path))
            return 1;
        store.waitForDone();
    }
}
