// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordEdits.h"

#include "Icons.h"
#include "JsonReader.h"
#include "KVTreeView.h"
#include "Shortcuts.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QMimeData>

#include <algorithm>

RecordEdits::RecordEdits(Document &document, KVTreeView *tree, QWidget *window)
    : QObject(tree)
    , m_tree(tree)
    , m_window(window)
    , m_lists(editedLists(document))
{
    m_cut = addAction("", tr("Cut"), "actionTreeCut", QKeySequence::Cut, &RecordEdits::cut);
    m_actions += addAction("copy", tr("Duplicate"), "actionTreeDuplicate", QStringLiteral("Ctrl+D"),
                           &RecordEdits::duplicate);
    m_actions += addAction("", tr("Move Up"), "actionTreeMoveUp", QStringLiteral("Ctrl+Shift+Up"),
                           &RecordEdits::moveUp);
    m_actions += addAction("", tr("Move Down"), "actionTreeMoveDown", QStringLiteral("Ctrl+Shift+Down"),
                           &RecordEdits::moveDown);
}

QAction *RecordEdits::addAction(const char *icon, const QString &text, const char *id,
                                const QKeySequence &keys, void (RecordEdits::*slot)())
{
    auto *action = new QAction(*icon ? namedIcon(QLatin1String(icon)) : QIcon(), text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(action, QLatin1String(id), QCoreApplication::translate("StructureActions", "Trees"),
                 QString());
    connect(action, &QAction::triggered, this, slot);
    m_tree->addAction(action);
    return action;
}

EditedList *RecordEdits::list() const
{
    const RecordKind kind = m_tree->currentRecord().kind;
    for (const bool asGroup : {false, true}) {
        for (const auto &each : m_lists) {
            if (kind == (asGroup ? each->group() : each->kind()))
                return each.get();
        }
    }
    return nullptr;
}

template <typename Edit>
void RecordEdits::withRecords(Edit edit) const
{
    EditedList *edited = list();
    const RecordRef current = m_tree->currentRecord();
    if (!edited || current.kind != edited->kind())
        return;
    const QVector<RecordIndex> records = m_tree->selectedRecords(current.kind);
    if (records.contains(current.index))
        edit(*edited, records, current.index);
}

void RecordEdits::update()
{
    const EditedList *edited = list();
    const bool isRecord = edited && m_tree->currentRecord().kind == edited->kind();
    for (QAction *action : m_actions + QList<QAction *>{m_cut}) {
        action->setVisible(isRecord);
        action->setEnabled(isRecord);
    }
}

QString RecordEdits::copyText() const
{
    const EditedList *edited = list();
    return edited && m_tree->currentRecord().kind == edited->kind() ? tr(edited->words().copy) : QString();
}

QString RecordEdits::pasteText() const
{
    const EditedList *edited = list();
    return edited ? tr(edited->words().paste) : QString();
}

bool RecordEdits::hasText()
{
    const QMimeData *held = QApplication::clipboard()->mimeData();
    return held && held->hasText() && !held->text().isEmpty();
}

void RecordEdits::copy() const
{
    withRecords([](EditedList &edited, const QVector<RecordIndex> &records, const RecordIndex &current) {
        QApplication::clipboard()->setText(QString::fromUtf8(edited.text(records, current)));
    });
}

bool RecordEdits::paste(bool hasOther)
{
    EditedList *edited = list();
    const QByteArray text = QApplication::clipboard()->text().toUtf8();
    const QByteArray begin = text.left(1000).trimmed().left(1);
    if (!edited || (begin != "{" && begin != "["))
        return false;
    ListEdit edit;
    const JsonProblem problem = edited->paste(text, m_tree->currentRecord(), edit);
    if (!problem.text.isEmpty()) {
        if (!hasOther)
            QMessageBox::warning(m_window, tr("Paste"), misfit(text, problem, edited->words()));
        return false;
    }
    finish(edit, tr("Paste"));
    return true;
}

/// Why the text has no records for the current list.
QString RecordEdits::misfit(const QByteArray &text, const JsonProblem &problem, const ListWords &here) const
{
    JsonReader reader({text.constData(), size_t(text.size())});
    const std::string_view first = reader.accept('{') ? reader.key() : std::string_view();
    for (const ListWords &each : listWords()) {
        if (first == each.key && first != here.key)
            return tr("The clipboard holds %1, not %2.").arg(tr(each.name), tr(here.name));
    }
    return tr("The text of the clipboard cannot be pasted here. Line %1, column %2: %3")
        .arg(QString::number(problem.line), QString::number(problem.column), problem.text);
}

void RecordEdits::cut()
{
    withRecords([this](EditedList &edited, const QVector<RecordIndex> &records, const RecordIndex &current) {
        emit aboutToCut();
        finish(edited.cut(records, current), tr("Cut"));
    });
}

void RecordEdits::duplicate()
{
    withRecords([this](EditedList &edited, const QVector<RecordIndex> &records, const RecordIndex &current) {
        finish(edited.duplicate(records, current), tr("Duplicate"));
    });
}

void RecordEdits::move(int by)
{
    withRecords([&](EditedList &edited, const QVector<RecordIndex> &records, const RecordIndex &current) {
        finish(edited.move(records, current, by), by < 0 ? tr("Move Up") : tr("Move Down"));
    });
}

/// Selects what an edit left, and says what there is to say of it.
void RecordEdits::finish(const ListEdit &edit, const QString &what)
{
    if (!edit.refusal.isEmpty()) {
        QMessageBox::warning(m_window, what, edit.refusal);
        return;
    }
    if (!edit.selected.isEmpty())
        m_tree->selectRecords(edit.selected, edit.selected.last());
    if (!edit.told.isEmpty())
        emit m_tree->told(edit.told);
}
