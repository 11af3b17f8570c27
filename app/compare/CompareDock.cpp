// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CompareDock.h"

#include "CompareTree.h"
#include "DocumentFiles.h"
#include "FileComparison.h"
#include "FileSearch.h"
#include "Files.h"
#include "Icons.h"
#include "SaveGuard.h"
#include "Settings.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
/// The file of the game that a document takes the place of, or of the mod that takes its place, where it is
/// the game's. A document of neither belongs where the game keeps its kind. Empty when there is none.
QString otherOf(const Document &document)
{
    const QString path = document.path();
    if (!path.isEmpty() && SaveGuard::isInGame(path)) {
        const QString inMod = SaveGuard::modPath(path);
        return QFileInfo(inMod).isFile() ? inMod : QString();
    }
    const QString inMod = SaveGuard::placeInMod(path);
    const QString usual = document.kind().gameFolder + QLatin1Char('/') + document.fileName();
    return FileSearch(Settings::GamePath.value(), {}).find(inMod.isEmpty() ? usual : inMod);
}
} // namespace

CompareDock::CompareDock(QWidget *parent)
    : QDockWidget(parent)
{
    auto *contents = new QWidget(this);
    m_tree = new CompareTree(contents);
    m_title = new QLabel(contents);
    m_title->setObjectName(QStringLiteral("lblCompare"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(4, 2, 4, 2);
    bar->addWidget(m_title, 1);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(m_tree, 1);
    setWidget(contents);

    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_show = addAction("actionCompareShow", tr("&Show"), "search", &CompareDock::showCurrent);
    m_take = addAction("actionCompareTake", tr("&Take Theirs"), "markback", &CompareDock::takeSelected);
    m_take->setToolTip(tr("Let the document have what the file has in the selected records and fields"));
    m_reload = addAction("actionCompareAgain", tr("Compare &Again"), "refresh", &CompareDock::reload);
    m_reload->setToolTip(tr("Read the file anew, which another program may have written"));
    for (QAction *action : {m_take, m_reload}) {
        auto *button = new QToolButton(contents);
        button->setDefaultAction(action);
        button->setObjectName(action->objectName().replace(QLatin1String("action"), QLatin1String("btn")));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        bar->addWidget(button);
    }
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &CompareDock::updateActions);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CompareDock::updateActions);
    connect(m_tree, &QTreeWidget::itemActivated, this, &CompareDock::showCurrent);
}

QAction *CompareDock::addAction(const char *name, const QString &text, const char *iconName,
                                void (CompareDock::*slot)())
{
    auto *action = new QAction(namedIcon(QLatin1String(iconName)), text, m_tree);
    action->setObjectName(QLatin1String(name));
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_tree->addAction(action);
    return action;
}

void CompareDock::setComparison(FileComparison *comparison, const DocumentFiles &files, QAction *choose,
                                QAction *other)
{
    m_comparison = comparison;
    m_files = &files;
    connect(comparison, &FileComparison::changed, this, &CompareDock::fill);
    connect(choose, &QAction::triggered, this, &CompareDock::chooseFile);
    connect(other, &QAction::triggered, this,
            [this] { m_ahead.read({Settings::GamePath.value()}, [this] { findOther(); }); });
    // Each of them takes a document that is open.
    connect(choose, &QAction::changed, other, [choose, other] { other->setEnabled(choose->isEnabled()); });
    fill();
}

void CompareDock::chooseFile()
{
    const Document *document = m_files->current();
    if (!document || !document->isOpen())
        return;
    const DocumentKind &kind = document->kind();
    const QString folder = document->path().isEmpty() ? kind.loadPath.value()
                                                      : QFileInfo(Files::heldBy(document->path())).path();
    const QString path = QFileDialog::getOpenFileName(window(), tr("Compare with File"), folder, kind.filter);
    if (!path.isEmpty())
        start(kind.type, path);
}

void CompareDock::findOther()
{
    const Document *document = m_files->current();
    if (!document || !document->isOpen())
        return;
    const QString path = otherOf(*document);
    if (path.isEmpty())
        QMessageBox::information(
            window(), tr("Compare Game and Mod"),
            tr("Game and mod have no other file in the place of '%1'.").arg(document->fileName()));
    else
        start(document->kind().type, path);
}

void CompareDock::start(DocumentType type, const QString &path)
{
    m_comparison->start(type, path);
    QDockWidget::show();
    raise();
    m_tree->setFocus();
}

void CompareDock::fill()
{
    const Document *document = m_comparison->document();
    const auto count = m_comparison->differences().size();
    m_tree->show(*m_comparison);
    if (!document) {
        m_title->clear();
        m_title->setToolTip(QString());
        m_tree->setEmptyText(tr("Nothing is compared. View \u25B8 Compare with File\u2026 chooses a file."));
    } else {
        const QString name = QFileInfo(m_comparison->path()).fileName();
        m_title->setText(
            count > 0
                ? tr("%1 with %2, different in: %3").arg(document->fileName(), name, QString::number(count))
                : tr("%1 with %2").arg(document->fileName(), name));
        m_title->setToolTip(QDir::toNativeSeparators(m_comparison->path()));
        m_tree->setEmptyText(m_comparison->isRunning()            ? tr("The file is being compared.")
                             : !m_comparison->failure().isEmpty() ? m_comparison->failure()
                                                                  : tr("No record differs."));
    }
    updateActions();
}

void CompareDock::updateActions()
{
    const auto *current = static_cast<const CompareItem *>(m_tree->currentItem());
    m_show->setEnabled(current && current->place().kind != RecordKind::None);
    m_take->setEnabled(!m_tree->selectedPicks().isEmpty());
    m_reload->setEnabled(m_comparison && m_comparison->document());
}

void CompareDock::showCurrent()
{
    const auto *current = static_cast<const CompareItem *>(m_tree->currentItem());
    if (m_comparison->document() && current && current->place().kind != RecordKind::None)
        emit activated(m_comparison->document()->kind().type, current->place());
}

void CompareDock::takeSelected()
{
    m_comparison->take(m_tree->selectedPicks(), window());
}

void CompareDock::reload()
{
    m_comparison->reload();
}
