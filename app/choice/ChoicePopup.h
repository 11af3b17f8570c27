// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ChoiceList.h"

#include <QFrame>

class QLabel;
class QLineEdit;
class QTreeView;

/// What a field can be given, below it: a line in which is typed what it is called, and a list. Return and a
/// click choose, Escape and a click elsewhere do not. It deletes itself.
class ChoicePopup : public QFrame
{
    Q_OBJECT

public:
    /// `title` names what is chosen from. The choice with that number is current, if there is one.
    ChoicePopup(const QString &title, ChoiceList *list, double current, QWidget *field);

    /// Shows itself below the field, as wide as that and what stands beside it.
    void popUp(int width);
    /// Paints its pictures anew.
    void updateIcons();

signals:
    void chosen(int number);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void filter(const QString &text);
    void makeCurrent(int row);
    void choose();

    QWidget *m_field;
    ChoiceList *m_choices;
    const double m_current;
    QLineEdit *m_line;
    QTreeView *m_list;
    QLabel *m_count;
};
