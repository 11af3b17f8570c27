// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentTitle.h"

#include "Document.h"
#include "Files.h"

#include <QDir>
#include <QFileInfo>
#include <QTabWidget>

namespace {
constexpr int MostChars = 40;

QString placeOf(const Document &document)
{
    if (!document.isOpen())
        return {};
    return document.path().isEmpty() ? DocumentTitle::tr("%1 (never saved)").arg(document.fileName())
                                     : QDir::toNativeSeparators(document.path());
}

QString titleOf(const Document *document)
{
    if (!document || !document->isOpen())
        return QStringLiteral("Korvane");
    const QString archive = Files::archiveOf(document->path());
    const QString name = document->path().isEmpty() ? placeOf(*document)
                         : archive.isEmpty()        ? document->fileName()
                                                    : QStringLiteral("%1 (%2)").arg(document->fileName(),
                                                                                    QFileInfo(archive).fileName());
    return QStringLiteral("Korvane - ") + name + (document->isModified() ? QStringLiteral(" * ") : QString());
}

/// The tip of a tab, and below it where the documents stand that it shows.
QString tipOf(const QString &tip, std::initializer_list<const Document *> documents)
{
    QStringList lines(tip);
    for (const Document *each : documents)
        lines << placeOf(*each);
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}
} // namespace

DocumentTitle::DocumentTitle(const std::array<const Document *, 3> &documents, QTabWidget &tabs,
                             QTabWidget &trees, QWidget *window)
    : QLabel(window)
    , m_documents(documents)
    , m_tabs(tabs)
    , m_trees(trees)
    , m_window(window)
    , m_tips{tabs.tabToolTip(0), tabs.tabToolTip(1)}
{
    setObjectName(QStringLiteral("lblDocumentPath"));
    setTextFormat(Qt::PlainText);
}

void DocumentTitle::show(const Document *current)
{
    m_window->setWindowTitle(titleOf(current));
    const QString path = current ? placeOf(*current) : QString();
    const QFontMetrics metrics = fontMetrics();
    setText(metrics.elidedText(path, Qt::ElideLeft, MostChars * metrics.averageCharWidth()));
    setToolTip(path);
    m_trees.setTabToolTip(0, placeOf(*m_documents[0]));
    m_trees.setTabToolTip(1, placeOf(*m_documents[1]));
    m_tabs.setTabToolTip(0, tipOf(m_tips[0], {m_documents[0], m_documents[1]}));
    m_tabs.setTabToolTip(1, tipOf(m_tips[1], {m_documents[2]}));
}
