// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"

#include <QObject>

#include <functional>

class DocumentFiles;
class QMenu;

/// Remembers the files of each kind that were opened or saved, and fills a menu with them. Material files are
/// among them, which others open and tell of.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /// Of each kind the newest are kept.
    static constexpr int Limit = 8;

    RecentFiles(DocumentFiles &files, QMenu &menu, QObject *parent);

    /// Puts a file first in the list of its kind.
    static void remember(const SettingKey<QStringList> &key, const QString &path);

signals:
    /// One was chosen and opened.
    void opened(DocumentType type);

private:
    void rememberDocument(DocumentType type);
    void fillMenu();
    void addFiles(const QString &label, const SettingKey<QStringList> &key,
                  const std::function<void(const QString &path)> &choose);
    void open(DocumentType type, const QString &path);

    DocumentFiles &m_files;
    QMenu &m_menu;
};
