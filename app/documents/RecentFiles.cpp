// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecentFiles.h"

#include "Document.h"
#include "DocumentFiles.h"
#include "FileSystem.h"
#include "Files.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>

RecentFiles::RecentFiles(DocumentFiles &files, QMenu &menu, QObject *parent)
    : QObject(parent)
    , m_files(files)
    , m_menu(menu)
{
    m_menu.setToolTipsVisible(true);
    connect(&m_menu, &QMenu::aboutToShow, this, &RecentFiles::fillMenu);
    connect(&m_files, &DocumentFiles::saved, this, &RecentFiles::rememberDocument);
    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        connect(m_files.document(type), &Document::replaced, this, [this, type] { rememberDocument(type); });
    }
}

void RecentFiles::rememberDocument(DocumentType type)
{
    remember(documentKind(type).recentFiles, m_files.document(type)->path());
}

void RecentFiles::remember(const SettingKey<QStringList> &key, const QString &path)
{
    if (path.isEmpty())
        return;
    QStringList paths = key.value();
    if (!paths.isEmpty() && paths.first() == path)
        return;
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                               [&path](const QString &each) { return FileSystem::isSamePath(each, path); }),
                paths.end());
    paths.prepend(path);
    key.setValue(paths.mid(0, Limit));
}

void RecentFiles::fillMenu()
{
    m_menu.clear();
    for (const DocumentKind &kind : documentKinds()) {
        addFiles(kind.label, kind.recentFiles,
                 [this, type = kind.type](const QString &path) { open(type, path); });
    }
    addFiles(tr("Materials"), Settings::MaterialRecentFiles,
             [this](const QString &path) { emit m_files.materialsWanted(path); });
    if (m_menu.isEmpty()) {
        m_menu.addAction(tr("No file was opened yet"))->setEnabled(false);
        return;
    }
    m_menu.addSeparator();
    connect(m_menu.addAction(tr("&Clear This List")), &QAction::triggered, this, [] {
        for (const DocumentKind &kind : documentKinds())
            kind.recentFiles.setValue({});
        Settings::MaterialRecentFiles.setValue({});
    });
}

void RecentFiles::addFiles(const QString &label, const SettingKey<QStringList> &key,
                           const std::function<void(const QString &path)> &choose)
{
    const QStringList paths = key.value().mid(0, Limit);
    if (!paths.isEmpty())
        m_menu.addSection(label);
    for (const QString &path : paths) {
        const QFileInfo info(path);
        // Files of one name are told apart by their folder.
        QString text = info.dir().dirName() + QLatin1Char('/') + info.fileName();
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *action = m_menu.addAction(QDir::toNativeSeparators(text));
        action->setToolTip(QDir::toNativeSeparators(path));
        action->setStatusTip(action->toolTip());
        // A file on a share that is away is not forgotten. Archives are not read for that.
        action->setEnabled(QFileInfo(Files::heldBy(path)).isFile());
        connect(action, &QAction::triggered, this, [choose, path] { choose(path); });
    }
}

void RecentFiles::open(DocumentType type, const QString &path)
{
    if (!m_files.promptUnsaved(type))
        return;
    m_files.open(type, path, [this, type](DocumentFiles::Outcome outcome) {
        if (outcome == DocumentFiles::Outcome::Opened)
            emit opened(type);
    });
}
