// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TypingField.h"

#include <QComboBox>

/// A choice of named numbers that can also show a number without a name: as the bare number, until a named
/// one is chosen. A name that is looked for by typing its first letters is stored with Enter, or when the box
/// is left; Escape gives it up.
class ChoiceBox : public QComboBox, public TypingField
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget *parent = nullptr);

    /// The names of 0, 1, 2, ... The shown value is kept.
    void setNames(const QStringList &names);

    int value() const { return m_value; }
    /// Shows a value; emits nothing.
    void setValue(int value);

    bool isTyping() const override { return currentData().toInt() != m_value; }
    bool commitText() override;
    void discardText() override { setValue(m_value); }

signals:
    /// The user has chosen another value.
    void valueEdited(int value);

protected:
    /// A name that does not fit ends in an ellipsis.
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void fill();

    QStringList m_names;
    int m_value = 0;
    bool m_isSearching = false; ///< a typed letter is looked for
};
