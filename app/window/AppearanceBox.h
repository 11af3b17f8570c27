// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

class QComboBox;
class QLabel;

/// The part of the options that says how the program looks and which language it speaks. Only store() changes
/// anything.
class AppearanceBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit AppearanceBox(QWidget *parent = nullptr);

    void store() const;

private:
    void updateHint();

    QComboBox *m_look;
    QComboBox *m_language;
    QLabel *m_hint;
};
