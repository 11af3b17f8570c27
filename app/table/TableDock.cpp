// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TableDock.h"

#include "CsvPreview.h"
#include "DelimitedText.h"
#include "DockFocus.h"
#include "Icons.h"
#include "KVTreeView.h"
#include "SavePath.h"
#include "Settings.h"
#include "Shortcuts.h"
#include "WholeFile.h"

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
/// What could be read at all is a small part of this.
constexpr qint64 LargestTable = 64 << 20;
} // namespace

TableDock::TableDock(QWidget *parent)
    : QDockWidget(parent)
    , m_view(new RecordTableView(this))
    , m_title(new QLabel(this))
    , m_empty(new QLabel(tr("Select a record or a group in the tree to see its table."), this))
    , m_all(new QCheckBox(tr("In the Whole File"), this))
{
    toggleViewAction()->setObjectName(QStringLiteral("actionTable"));
    toggleViewAction()->setShortcut(QKeySequence(Qt::Key_F4));
    toggleViewAction()->setToolTip(tr("The records of the current group as a table"));
    m_view->setObjectName(QStringLiteral("tableRecords"));
    m_title->setObjectName(QStringLiteral("lblTableTitle"));
    m_all->setObjectName(QStringLiteral("cbTableAll"));
    m_all->setToolTip(
        tr("Also the records of this kind that other records have: the actions of all animations"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    auto *contents = new QWidget(this);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(4, 2, 4, 2);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    buttons->addWidget(m_title);
    buttons->addSpacing(12);
    buttons->addWidget(m_all);
    buttons->addStretch(1);
    createActions(buttons);
    layout->addLayout(buttons);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_empty, 1);
    setWidget(contents);
    focusWhenAskedFor(*this, *m_view);
    connect(m_all, &QCheckBox::toggled, this, &TableDock::updateGroup);
    connect(m_view, &RecordTableView::told, this, &TableDock::told);
    connect(m_view->verticalHeader(), &QHeaderView::sectionDoubleClicked, this, &TableDock::showInTree);
    updateTable(true);
}

QAction *TableDock::addAction(const char *name, const QString &text, const char *iconName,
                              void (TableDock::*slot)())
{
    auto *action = new QAction(namedIcon(QLatin1String(iconName)), text, m_view);
    action->setObjectName(QLatin1String(name));
    nameShortcut(action, action->objectName(), tr("Table"), QString(text).remove(QLatin1Char('&')));
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_view->addAction(action);
    return action;
}

void TableDock::createActions(QHBoxLayout *buttons)
{
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    QAction *copied = addAction("actionTableCopy", tr("&Copy"), "copy", &TableDock::copy);
    copied->setShortcut(QKeySequence::Copy);
    m_paste = addAction("actionTablePaste", tr("&Paste"), "paste", &TableDock::paste);
    m_paste->setShortcut(QKeySequence::Paste);
    QAction *shown = addAction("actionTableShow", tr("&Show in the Tree"), "search", &TableDock::showInTree);
    shown->setShortcut(QKeySequence(QStringLiteral("Ctrl+Return")));
    m_export = addAction("actionTableExport", tr("&Export as CSV\u2026"), "export", &TableDock::exportTable);
    m_export->setToolTip(tr("Write what is shown as a file of comma-separated values"));
    m_import = addAction("actionTableImport", tr("&Import CSV\u2026"), "import", &TableDock::importTable);
    m_import->setToolTip(tr("Read values from a file, after a look at what changes"));
    for (QAction *action : {m_export, m_import}) {
        auto *button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setObjectName(QLatin1String("btn") + action->objectName().mid(6));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        buttons->addWidget(button);
    }
}

void TableDock::setDocuments(const std::array<Document *, 3> &documents,
                             const std::array<KVTreeView *, 3> &trees)
{
    m_documents = documents;
    m_trees = trees;
    for (int i = 0; i < int(trees.size()); ++i) {
        const auto ifCurrent = [this, i](auto then) {
            return [this, i, then] {
                if (m_current == i)
                    (this->*then)();
            };
        };
        Document &document = *m_documents[size_t(i)];
        connect(trees[size_t(i)], &KVTreeView::currentRecordChanged, this,
                ifCurrent(&TableDock::updateGroup));
        connect(&document, &Document::replaced, this, ifCurrent(&TableDock::updateGroup));
        connect(&document, &Document::aboutToBeReplaced, this, [this, i] {
            if (m_current == i)
                m_view->show(nullptr, {});
        });
        connect(&document, &Document::structuresChanged, this, ifCurrent(&TableDock::updateGroup));
        connect(&document, &Document::recordsChanged, this, [this, i] {
            if (m_current == i)
                m_view->records().refresh();
        });
    }
    // Animations have their names from the mesh.
    const auto showNames = [this] {
        if (m_current == int(DocumentType::Anim))
            m_view->records().refresh();
    };
    connect(documents[size_t(DocumentType::SkinnedMesh)], &Document::recordsChanged, this, showNames);
    connect(documents[size_t(DocumentType::SkinnedMesh)], &Document::replaced, this, showNames);
}

void TableDock::setCurrent(const Document *document)
{
    m_current = document ? int(document->kind().type) : -1;
    updateGroup();
}

void TableDock::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    updateGroup();
}

void TableDock::updateGroup()
{
    updateTable(false);
}

void TableDock::updateTable(bool anew)
{
    RecordGroup group;
    Document *document = nullptr;
    if (m_current >= 0 && isVisible()) {
        document = m_documents[size_t(m_current)];
        const RecordRef record = m_trees[size_t(m_current)]->currentRecord();
        if (document->isOpen())
            group = groupOf(*document, record, m_all->isChecked());
    }
    const RecordGroup &shown = m_view->records().group();
    const bool isSame = document == m_view->records().document() && group.kind == shown.kind &&
                        group.records == shown.records;
    if (!isSame || anew)
        m_view->show(document, group);
    const bool isTable = !RecordFields::of(group.kind).isEmpty() && !group.records.isEmpty();
    m_view->setVisible(isTable);
    m_empty->setVisible(!isTable);
    m_all->setVisible(group.levels > 1);
    m_export->setEnabled(isTable);
    m_import->setEnabled(isTable);
    m_title->setText(isTable ? tr("%n records", nullptr, group.records.size()) : QString());
}

void TableDock::showInTree()
{
    const RecordRef record = m_view->currentRecord();
    if (m_current >= 0 && record.kind != RecordKind::None)
        emit activated(DocumentType(m_current), record);
}

void TableDock::exportTable()
{
    const QFileInfo last(Settings::TablePath.value());
    const QString name = QFileInfo(m_documents[size_t(m_current)]->fileName()).completeBaseName();
    const QString path = chooseSavePath(window(), tr("Export as CSV"), last.path(), tr("Tables (*.csv)"),
                                        QStringLiteral("csv"), name);
    if (path.isEmpty())
        return;
    Settings::TablePath.setValue(path);
    const QString reason =
        writeWholeFile(path, DelimitedText::write(m_view->contents(), QLatin1Char(',')).toUtf8());
    if (reason.isEmpty())
        emit told(tr("Written: %1").arg(path));
    else
        warnOfFailedSaves(window(), {{path, reason}});
}

void TableDock::importTable()
{
    const QString path = QFileDialog::getOpenFileName(window(), tr("Import CSV"), Settings::TablePath.value(),
                                                      tr("Tables (*.csv *.tsv *.txt);;All Files (*)"));
    if (path.isEmpty())
        return;
    Settings::TablePath.setValue(path);
    QFile file(path);
    const auto refuse = [&](const QString &reason) {
        QMessageBox::warning(window(), tr("Import CSV"), tr("%1\nNothing was changed. %2").arg(path, reason));
    };
    if (!file.open(QIODevice::ReadOnly))
        return refuse(file.errorString());
    if (file.size() > LargestTable)
        return refuse(tr("The file is too large for a table."));
    QString text = QString::fromUtf8(file.readAll());
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    const CsvChanges found =
        changesOf(DelimitedText::read(text, DelimitedText::separatorOf(text)), m_view->records());
    if (!found.reason.isEmpty())
        return refuse(found.reason);
    CsvPreview preview(found.changes, m_view->records(), window());
    if (preview.exec() == QDialog::Accepted && m_view->records().document())
        m_view->records().document()->changeFields(found.changes, tr("Import Table"));
}
