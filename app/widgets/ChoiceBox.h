// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

/// A choice of named numbers that can also show a number without a name: as the bare number, until a named
/// one is chosen.
class ChoiceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget *parent = nullptr);

    /// The names of 0, 1, 2, ... The shown value is kept.
    void setNames(const QStringList &names);

    int value() const { return m_value; }
    /// Shows a value; emits nothing.
    void setValue(int value);

signals:
    /// The user has chosen another value.
    void valueEdited(int value);

protected:
    /// A name that does not fit ends in an ellipsis.
    void paintEvent(QPaintEvent *event) override;

private:
    void fill();

    QStringList m_names;
    int m_value = 0;
};
