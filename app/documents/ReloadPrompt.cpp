// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReloadPrompt.h"

#include "DocumentFiles.h"
#include "Icons.h"
#include "NoticeBar.h"

#include <QBoxLayout>
#include <QDir>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>

ReloadPrompt::ReloadPrompt(DocumentFiles &files, QBoxLayout *place, QWidget *window)
    : QObject(window)
    , m_files(files)
    , m_window(window)
    , m_watch({files.document(DocumentType::SkinnedMesh), files.document(DocumentType::Anim),
               files.document(DocumentType::StaticMesh)})
{
    int row = 0;
    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        auto *made = new NoticeBar(namedIcon(QStringLiteral("info")),
                                   QStringLiteral("barReload_%1").arg(kind.extension));
        bar(type) = {made,
                     made->addButton(tr("Reload"), QStringLiteral("btnReload"), tr("Open the file anew")),
                     made->addButton(tr("Keep"), QStringLiteral("btnKeep"),
                                     tr("Go on with what is open; saving replaces the file"))};
        place->insertWidget(row++, made);
        connect(bar(type).reload, &QPushButton::clicked, this, [this, type] { reload(type); });
        connect(bar(type).keep, &QPushButton::clicked, this, [this, type] { keep(type); });
    }
    connect(&m_watch, &FileWatch::changed, this, &ReloadPrompt::tellChanged);
    connect(&m_watch, &FileWatch::removed, this, &ReloadPrompt::tellRemoved);
    connect(&m_watch, &FileWatch::settled, this, [this](DocumentType type) {
        m_files.document(type)->fileReturned();
        bar(type).bar->hide();
    });
}

void ReloadPrompt::tellChanged(DocumentType type)
{
    bar(type).reload->show();
    bar(type).bar->tell(tr("'%1' was changed by another program.")
                            .arg(QDir::toNativeSeparators(m_files.document(type)->path())));
}

void ReloadPrompt::tellRemoved(DocumentType type)
{
    // What is open is all that is left of it.
    m_files.document(type)->fileWent();
    bar(type).reload->hide();
    bar(type).bar->tell(tr("'%1' was removed by another program. Saving writes it anew.")
                            .arg(QDir::toNativeSeparators(m_files.document(type)->path())));
}

void ReloadPrompt::reload(DocumentType type)
{
    if (!m_files.settleTyping(type))
        return;
    Document *document = m_files.document(type);
    if (document->differsFromFile()) {
        const QString question = tr("Load '%1' anew, without your unsaved changes?\n\nFile > Recover… keeps "
                                    "a copy of them.")
                                     .arg(document->fileName());
        if (QMessageBox::question(m_window, tr("Unsaved changes"), question,
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
            return;
    }
    // A file that cannot be read leaves the document as it is.
    m_files.reload(type, [this, type](DocumentFiles::Outcome outcome) {
        if (outcome == DocumentFiles::Outcome::Failed)
            keep(type);
    });
}

void ReloadPrompt::keep(DocumentType type)
{
    m_files.document(type)->keepModel();
    bar(type).bar->hide();
}
