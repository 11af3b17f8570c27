// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TutorialsTab.h"

#include "Icons.h"
#include "Language.h"
#include "PageBrowser.h"

#include <QDir>
#include <QListWidget>
#include <QTextDocument>

namespace {
/// The title that a guide gives itself.
QString titleOf(const QString &path)
{
    QFile file(path);
    QTextDocument document;
    if (file.open(QIODevice::ReadOnly))
        document.setHtml(QString::fromUtf8(file.readAll()));
    return document.metaInformation(QTextDocument::DocumentTitle);
}
} // namespace

TutorialsTab::TutorialsTab(QWidget *parent)
    : QSplitter(parent)
    , m_list(new QListWidget(this))
    , m_page(new PageBrowser(this))
{
    setChildrenCollapsible(false);
    m_list->setObjectName(QStringLiteral("listTutorials"));
    m_list->setAccessibleName(tr("Tutorials"));
    m_list->setIconSize({16, 16});
    m_list->setWordWrap(true);
    m_list->setSpacing(2);
    m_page->setObjectName(QStringLiteral("txtTutorial"));
    m_page->setAccessibleName(tr("Tutorial"));
    setStretchFactor(1, 1);
    setSizes({260, 1000});

    connect(m_list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item && m_page->source() != item->data(Qt::UserRole).toUrl())
            m_page->setSource(item->data(Qt::UserRole).toUrl());
    });
    // A guide may lead to another.
    connect(m_page, &QTextBrowser::sourceChanged, this, [this](const QUrl &source) {
        for (int row = 0; row < m_list->count(); ++row) {
            if (m_list->item(row)->data(Qt::UserRole).toUrl().fileName() == source.fileName())
                m_list->setCurrentRow(row);
        }
    });
}

void TutorialsTab::fill()
{
    // Their names begin with their places in the list.
    QDir guides(QStringLiteral(":/tutorials"));
    guides.cd(Language::installed()); // where it has some of its own
    for (const QString &name : guides.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name)) {
        auto *item = new QListWidgetItem(namedIcon(QStringLiteral("tutorial")),
                                         titleOf(guides.filePath(name)), m_list);
        item->setData(Qt::UserRole, QUrl(QStringLiteral("qrc") + guides.filePath(name)));
    }
    m_list->setCurrentRow(0);
}

void TutorialsTab::showEvent(QShowEvent *event)
{
    // Not earlier: a start need not load guides that nobody looks at.
    if (m_list->count() == 0)
        fill();
    QSplitter::showEvent(event);
}
