// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class DocumentFiles;
class PackDialog;
class QMainWindow;
class UnsavedWork;

/// Makes the archive of the mod: looks the mod through, shows what would go in, and writes it. All of it is
/// done in another thread, with a way to give up.
class ModPacking : public QObject
{
    Q_OBJECT

public:
    /// Asks about what is unsaved of the documents and of `materials`.
    ModPacking(DocumentFiles &files, UnsavedWork &materials, QMainWindow *window);

public slots:
    void on_actionPackMod_triggered();

private:
    /// Asks about what is open of the mod and not saved. Returns false when the user goes back to that.
    bool settleUnsaved(const QString &modFolder);
    void write(const PackDialog &wanted);

    DocumentFiles &m_files;
    UnsavedWork &m_materials;
    QMainWindow *m_window;
};
