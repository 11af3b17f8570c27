// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordFinder.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/// The line that says which field of the records found gets which value, and what came of it.
class ReplaceBar : public QWidget
{
    Q_OBJECT

public:
    explicit ReplaceBar(QWidget *parent = nullptr);

    /// What it begins with, which stands below what another line begins with.
    QLabel *label() const { return m_label; }
    QString field() const;
    QString value() const;

    /// Follows what was found: its fields are proposed, and the one that the condition is about is chosen
    /// when that is another one than before.
    void update(const RecordFinder &finder);
    /// Whether there is something to replace, and a field.
    bool isReady() const { return m_isReady; }
    void say(const QString &text, bool isWarning);
    /// Says what a replacement has come to.
    void tell(const RecordFinder::Outcome &outcome, const RecordFinder &finder);

signals:
    void oneWanted();
    void allWanted();
    /// Something for the status bar.
    void told(const QString &text);

private:
    QPushButton *addButton(QHBoxLayout *row, const char *name, const QString &text, const QString &tip);
    void updateButtons();

    QLabel *m_label;
    QComboBox *m_field;
    QLineEdit *m_value;
    QLabel *m_state;
    QPushButton *m_one = nullptr;
    QPushButton *m_all = nullptr;
    QString m_word; ///< what the condition is about
    bool m_hasHits = false;
    bool m_isReady = false;
};
