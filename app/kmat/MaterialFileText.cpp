// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialFileText.h"

#include <QFontDatabase>
#include <QKeyEvent>

#include <algorithm>

namespace {
/// A text as a view of plain text can show it: one character for each, in which none ends a line but the
/// line feed. A carriage return before one is not shown, so a place can be asked for.
QString shownText(const QString &text)
{
    QString shown = text;
    shown.remove(QLatin1Char('\r'));
    for (QChar &c : shown) {
        if (c != QLatin1Char('\n') && c != QLatin1Char('\t') &&
            (c.category() == QChar::Other_Control || c == QChar::ParagraphSeparator ||
             c == QChar::LineSeparator || c == QChar(0xfdd0) || c == QChar(0xfdd1)))
            c = QChar::ReplacementCharacter;
    }
    return shown;
}

/// Places in a text that starts at `begin`.
int shownPlace(const QString &text, int begin, int place)
{
    return place - begin - int(std::count(text.begin() + begin, text.begin() + place, QLatin1Char('\r')));
}
} // namespace

MaterialFileText::MaterialFileText(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setTabStopDistance(4 * QFontMetricsF(font()).horizontalAdvance(QLatin1Char(' ')));
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void MaterialFileText::showText(const QString &text)
{
    if (text == m_source)
        return;
    m_source = text;
    showAround(std::min((m_shown.begin + m_shown.end) / 2, text.size()));
}

void MaterialFileText::showAround(int place)
{
    const bool isWhole = m_source.size() <= 2 * MostAround;
    m_shown = isWhole
                  ? TextSpan{0, m_source.size()}
                  : TextSpan{std::max(place - MostAround, 0), std::min(place + MostAround, m_source.size())};
    // Whole lines, unless one is as long as all that is shown.
    if (m_shown.begin > 0) {
        const int line = m_source.indexOf(QLatin1Char('\n'), m_shown.begin) + 1;
        m_shown.begin = line > 0 && line <= place ? line : m_shown.begin;
    }
    setPlainText(shownText(m_source.mid(m_shown.begin, m_shown.end - m_shown.begin)));
}

void MaterialFileText::mark(TextSpan word)
{
    // Near its edges the lines around the word would be missing.
    const bool isNear = (m_shown.begin == 0 || word.begin >= m_shown.begin + MostAround / 4) &&
                        (m_shown.end == m_source.size() || word.begin <= m_shown.end - MostAround / 4);
    if (!isNear)
        showAround(word.begin);
    QTextEdit::ExtraSelection mark;
    mark.cursor = textCursor();
    mark.cursor.setPosition(
        std::min(shownPlace(m_source, m_shown.begin, word.begin), document()->characterCount() - 1));
    mark.format.setBackground(palette().alternateBase());
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    // From its begin on, and with the lines around it.
    mark.cursor.movePosition(QTextCursor::StartOfBlock);
    setTextCursor(mark.cursor);
    centerCursor();
    setExtraSelections({mark});
}

bool MaterialFileText::event(QEvent *event)
{
    // What is only read leaves Ctrl+Z to the file.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}
