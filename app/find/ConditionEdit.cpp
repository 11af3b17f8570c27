// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ConditionEdit.h"

#include "Settings.h"
#include "ValueNames.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStringListModel>

namespace {
constexpr int MostShown = 12; ///< proposals at once

/// Where the comparison begins that ends at `end`.
int comparisonBefore(const QString &text, int end)
{
    static const QRegularExpression junction(QStringLiteral("[,()]|\\b(?:and|or|not|%1|%2|%3)\\b")
                                                 .arg(QCoreApplication::translate("Condition", "and"),
                                                      QCoreApplication::translate("Condition", "or"),
                                                      QCoreApplication::translate("Condition", "not")),
                                             QRegularExpression::CaseInsensitiveOption |
                                                 QRegularExpression::UseUnicodePropertiesOption);
    int begin = 0;
    for (auto it = junction.globalMatch(text.left(end)); it.hasNext();)
        begin = it.next().capturedEnd();
    while (begin < end && text[begin].isSpace())
        ++begin;
    return begin;
}

/// Behind the words for kinds that a comparison begins with.
int fieldBegin(const QString &text, int begin, int end)
{
    static const QRegularExpression word(QStringLiteral("\\S+\\s+"));
    int at = begin;
    for (int next = begin; next < end;) {
        const auto match =
            word.match(text, next, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
        if (!match.hasMatch() || match.capturedEnd() > end)
            break;
        next = match.capturedEnd();
        const RecordWord *found = RecordWords::find(text.mid(at, next - at));
        if (found && !found->kinds.isEmpty())
            at = next;
    }
    return at;
}

QStringList namesBehind(const QString &word, KindSet roots, const SkinnedMesh *mesh)
{
    QStringList names;
    if (const RecordWord *found = RecordWords::find(word)) {
        for (const WordMeaning &meaning : found->meanings) {
            if (roots.contains(RecordWords::kindOf(meaning.kind)->root))
                names += ValueNames::namesOf(meaning, mesh);
        }
    }
    names.removeDuplicates();
    return names;
}

/// A name as a condition can have it.
QString quotedWhereNeeded(const QString &name)
{
    static const QRegularExpression plain(QStringLiteral("^[\\p{L}\\p{N}_./ -]+$"));
    const bool isPlain = plain.match(name).hasMatch() && comparisonBefore(name, name.size()) == 0;
    return isPlain ? name : QLatin1Char('"') + name + QLatin1Char('"');
}
} // namespace

ConditionEdit::ConditionEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_completer(new QCompleter(this))
    , m_proposals(new QStringListModel(this))
{
    m_completer->setModel(m_proposals);
    m_completer->setWidget(this);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setMaxVisibleItems(MostShown);
    m_completer->popup()->setObjectName(QStringLiteral("listConditionWords"));
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &ConditionEdit::complete);
    connect(this, &QLineEdit::textEdited, this, [this] { propose(false); });
}

void ConditionEdit::setModels(KindSet roots, const SkinnedMesh *mesh)
{
    m_roots = roots;
    m_mesh = mesh;
}

void ConditionEdit::propose(bool isAsked)
{
    static const QRegularExpression sign(
        QStringLiteral("^(.*?)\\s*(?:[=<>~!\u2260\u2264\u2265]+|\\s(?:in|%1)\\s)\\s*\"?")
            .arg(QCoreApplication::translate("Condition", "in")),
        QRegularExpression::CaseInsensitiveOption);
    const int end = cursorPosition();
    const int begin = comparisonBefore(text(), end);
    const auto compared = sign.match(text().mid(begin, end - begin));
    const int field = fieldBegin(text(), begin, compared.hasMatch() ? begin + compared.capturedEnd(1) : end);
    if (compared.hasMatch()) {
        m_from = begin + compared.capturedEnd();
        QStringList names =
            namesBehind(text().mid(field, begin + compared.capturedEnd(1) - field), m_roots, m_mesh);
        names.sort(Qt::CaseInsensitive);
        m_proposals->setStringList(names);
    } else {
        m_from = field;
        m_proposals->setStringList(RecordWords::proposals(m_roots));
    }
    const QString prefix = text().mid(m_from, end - m_from);
    m_completer->setCompletionPrefix(prefix);
    const bool isDone = m_completer->completionCount() == 1 &&
                        m_completer->currentCompletion().compare(prefix, Qt::CaseInsensitive) == 0;
    if (m_completer->completionCount() == 0 || isDone || (prefix.isEmpty() && !isAsked))
        return m_completer->popup()->hide();
    m_completer->complete();
}

void ConditionEdit::complete(const QString &text)
{
    const bool isQuoted = m_from > 0 && this->text()[m_from - 1] == QLatin1Char('"');
    const bool isValue = !RecordWords::find(text) || isQuoted;
    const QString inserted = isQuoted ? text + QLatin1Char('"') : isValue ? quotedWhereNeeded(text) : text;
    const QString rest = this->text().mid(cursorPosition());
    setText(this->text().left(m_from) + inserted + rest);
    setCursorPosition(m_from + inserted.size());
    emit textEdited(this->text());
    m_completer->popup()->hide();
}

void ConditionEdit::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (m_completer->popup()->isVisible()) {
        // What is chosen there is taken; what is not stands in nobody's way.
        const bool isChosen = m_completer->popup()->currentIndex().isValid();
        if (key == Qt::Key_Escape || ((isReturn || key == Qt::Key_Tab) && isChosen))
            return event->ignore();
        m_completer->popup()->hide();
    }
    if (key == Qt::Key_Space && event->modifiers() == Qt::ControlModifier)
        return propose(true);
    if (key == Qt::Key_Down && event->modifiers() == Qt::NoModifier)
        emit wentDown();
    else if (key == Qt::Key_Escape)
        emit left();
    else if (isReturn)
        emit entered();
    else
        QLineEdit::keyPressEvent(event);
}

ConditionBox::ConditionBox(QWidget *parent)
    : QComboBox(parent)
    , m_line(new ConditionEdit(this))
{
    setEditable(true);
    setLineEdit(m_line);
    setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxCount(MostKept);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addItems(Settings::FindHistory.value());
    setCurrentIndex(-1);
}

void ConditionBox::keep()
{
    const QString text = m_line->text().trimmed();
    if (text.isEmpty())
        return;
    QStringList kept = Settings::FindHistory.value();
    kept.removeAll(text);
    kept.prepend(text);
    kept = kept.mid(0, MostKept);
    Settings::FindHistory.setValue(kept);
    const QString typed = m_line->text();
    const int cursor = m_line->cursorPosition();
    const QSignalBlocker blocker(this); // nothing else is typed
    clear();
    addItems(kept);
    m_line->setText(typed);
    m_line->setCursorPosition(cursor);
}
