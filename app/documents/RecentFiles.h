// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"

#include <QObject>

class DocumentFiles;
class QMenu;

/// Remembers the files of each kind that were opened or saved, and fills a menu with them.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /// Of each kind the newest are kept.
    static constexpr int Limit = 8;

    RecentFiles(DocumentFiles &files, QMenu &menu, QObject *parent);

signals:
    /// One was chosen and opened.
    void opened(DocumentType type);

private:
    void remember(DocumentType type);
    void fillMenu();
    void addFile(const DocumentKind &kind, const QString &path);
    void open(DocumentType type, const QString &path);

    DocumentFiles &m_files;
    QMenu &m_menu;
};
