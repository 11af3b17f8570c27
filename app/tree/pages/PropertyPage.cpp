// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PropertyPage.h"

#include <QEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRegularExpressionValidator>

#include <limits>

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
    m_index = index;
    m_showsDifferences = false;
    for (const Binding &binding : qAsConst(m_bindings)) {
        binding.show();
        m_showsDifferences |= binding.mark(selected);
    }
    recordShown();
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

void PropertyPage::setUpMaterialEditor(QLineEdit *editor)
{
    // A longer path in a file must not be cut by being shown.
    editor->setMaxLength(std::numeric_limits<int>::max());
    static const QRegularExpression latin1(QStringLiteral("[\\x{01}-\\x{ff}]*"));
    editor->setValidator(new QRegularExpressionValidator(latin1, editor));
}

bool PropertyPage::eventFilter(QObject *watched, QEvent *event)
{
    // Scrolling the page past an editor must not change the file.
    if (event->type() == QEvent::Wheel && !static_cast<QWidget *>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    // A text field without typing of its own to take back leaves Ctrl+Z to the document.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *line = qobject_cast<QLineEdit *>(watched);
        if (!line && watched->inherits("QAbstractSpinBox"))
            line = watched->findChild<QLineEdit *>();
        const auto *key = static_cast<QKeyEvent *>(event);
        if (line && ((key->matches(QKeySequence::Undo) && !line->isUndoAvailable()) ||
                     (key->matches(QKeySequence::Redo) && !line->isRedoAvailable()))) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
