// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

class ExportedFiles;
class GltfFiles;
class ImportedFiles;

/// The one question before an import or an export takes the place of files: all of them or none, or names at
/// which nothing stands.
class ReplacePrompt : public QMessageBox
{
    Q_OBJECT

public:
    ReplacePrompt(const QString &title, const QStringList &files, QWidget *parent);

    /// Asks if there is need to, and changes names or what is kept accordingly. Returns false when nothing is
    /// to be written; whoever gives up wants nothing replaced.
    static bool settle(ImportedFiles &files, const QString &title, QWidget *parent);
    static bool settle(ExportedFiles &files, const QString &title, QWidget *parent);
    static bool settle(GltfFiles &files, const QString &title, QWidget *parent);

private:
    enum Answer { Nothing, Replace, UseFreeNames };

    template <typename Files>
    static bool settleNames(Files &files, const QString &title, QWidget *parent);
    void offerToKeep(const QStringList &materials);
    bool keepsMaterials() const;
    Answer ask();

    QAbstractButton *m_freeNames;
};
