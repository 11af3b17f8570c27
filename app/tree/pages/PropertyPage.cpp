// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PropertyPage.h"

#include "MaterialField.h"
#include "TypingUndo.h"

#include <QEvent>

PropertyPage::PropertyPage(RecordKind kind, const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_title(title)
{}

QString PropertyPage::title() const
{
    QString title = m_title;
    for (size_t i = 0; i < m_index.size(); ++i)
        title.replace(QStringLiteral("%%1").arg(i + 1), QString::number(m_index[i]));
    return title;
}

void PropertyPage::showRecord(const RecordIndex &index, const QVector<RecordIndex> &selected)
{
    if (index != m_index)
        leave();
    m_index = index;
    m_selected = selected;
    m_showsDifferences = false;
    for (Binding &binding : m_bindings) {
        binding.show();
        binding.differs = binding.mark(selected);
        m_showsDifferences |= binding.differs;
    }
    showNames();
    recordShown();
}

void PropertyPage::showNames()
{
    for (const Binding &binding : qAsConst(m_bindings)) {
        if (binding.name)
            binding.name(m_selected, binding.differs);
    }
}

QStringList PropertyPage::questions(QLatin1String fitting) const
{
    return fitting.isNull() ? QStringList() : QStringList(fitting);
}

void PropertyPage::leave()
{
    for (FieldName *name : names())
        name->leave();
    for (MaterialField *material : findChildren<MaterialField *>())
        material->leave();
    QStringList refusals;
    for (TypingField *field : TypingField::in(*this)) {
        if (field->isRefused())
            refusals.append(field->refusal());
        field->discardText();
    }
    if (!refusals.isEmpty())
        emit told(tr("Not stored. %1").arg(refusals.join(QLatin1Char(' '))));
}

void PropertyPage::addBinding(Binding binding)
{
    binding.editor->installEventFilter(this);
    for (QWidget *child : binding.editor->findChildren<QWidget *>())
        child->installEventFilter(this);
    m_bindings.append(std::move(binding));
}

void PropertyPage::commit(const QWidget *editor)
{
    for (const Binding &binding : qAsConst(m_bindings)) {
        if (binding.editor == editor)
            binding.commit();
    }
}

QString PropertyPage::recordRefusal(const QString &record, const QString &reason)
{
    return tr("Of %1: %2").arg(record, reason);
}

QString PropertyPage::tooManyNumbers(int numbers, int fields)
{
    return tr("%1 numbers do not fit into %2 fields.").arg(numbers).arg(fields);
}

bool PropertyPage::eventFilter(QObject *watched, QEvent *event)
{
    // A text field without typing of its own to take back leaves Ctrl+Z to the document.
    if (isUndoOfDocument(watched, event)) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
