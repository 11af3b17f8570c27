// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Why what stands in an editor cannot be stored: a frame around the editor, a tool tip, and words for screen
/// readers. The editor asks for it while there is a reason.
class Refusal
{
public:
    explicit Refusal(QWidget &editor)
        : m_editor(editor)
    {}

    bool isActive() const { return !m_reason.isEmpty(); }
    /// An empty reason: it can be stored.
    void set(const QString &reason);
    /// Shows the reason below the editor.
    void tell() const;
    /// Answers a request for a tool tip; false while there is nothing to refuse.
    bool answer(QEvent *event) const;
    /// Over what the editor has painted.
    void paint() const;

private:
    QWidget &m_editor;
    QString m_reason;
};
