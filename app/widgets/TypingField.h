// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

class QKeyEvent;
class QWheelEvent;

/// What all fields have in common in which something is typed before it is stored: with Enter, or when the
/// field is left. Escape gives the typing up, before it does anything else. What cannot be stored stays where
/// it is, marked: a frame around the field, a tool tip, and words for screen readers. The wheel changes
/// nothing unless Ctrl is held: who scrolls past a field changes no file.
class TypingField
{
public:
    virtual ~TypingField() = default;

    /// Whether what stands there is not what is stored.
    virtual bool isTyping() const = 0;
    /// Stores what is typed. Returns true when it cannot be a value; the mark tells why.
    virtual bool commitText() = 0;
    /// Shows the value again, whatever was typed.
    virtual void discardText() = 0;

    /// Whether what was typed cannot be a value.
    bool isRefused() const { return !m_reason.isEmpty(); }
    /// Which field refuses what, and why; empty while it does not.
    QString refusal() const;
    /// Brings the field into sight, gives it the keys, and tells why it refuses what stands there.
    void returnTo();

    /// Those in there.
    static QVector<TypingField *> in(const QWidget &fields);
    /// Stores what is typed in there. Gives the first field of those that refuse it; null when none does.
    static TypingField *refusedIn(const QWidget &fields);
    /// The same, and goes back to that field.
    static bool returnToRefused(const QWidget &fields);

protected:
    explicit TypingField(QWidget &field)
        : m_field(field)
    {}

    virtual void selectText() {}

    /// An empty reason: it can be stored. `wayOut` says what else there is to know.
    void setRefusal(const QString &reason, const QString &wayOut = {});
    /// Shows the reason below the field.
    void tellRefusal() const;
    /// Over what the field has painted.
    void paintRefusal() const;
    /// Answers what is no business of the field's own: for its event().
    bool answer(QEvent *event) const;
    /// Gives up the typing, if there is any and the key is Escape: for its keyPressEvent().
    bool giveUp(const QKeyEvent *event);
    /// Whether the wheel is meant for the field, which has the keys then: for its wheelEvent().
    bool isMeant(QWheelEvent *event);

private:
    QString tip() const { return m_reason + QLatin1Char(' ') + m_wayOut; }

    QWidget &m_field;
    QString m_reason;
    QString m_wayOut;
};

/// Lets the field that has the keys store what is typed in it: a shortcut or a tool button leaves both there.
void finishTyping();
