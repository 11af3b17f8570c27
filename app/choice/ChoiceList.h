// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QStringList>
#include <QVector>

#include <functional>

/// Something that a field can be given.
struct Choice
{
    int number;    ///< what the field gets, or which of the choices it is
    QString id;    ///< what it says in the first column
    QString name;  ///< and in the second
    int depth = 0; ///< below how many others it stands
};

/// Those of many choices that fit what is typed.
class ChoiceList : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `names`: there is a second column.
    ChoiceList(QVector<Choice> choices, bool names, QObject *parent);

    /// Shows those that have every word of the text in their id or name. The one with just that id comes
    /// first, then those whose id begins so; the rest keep their order. An empty text shows all.
    void setFilter(const QString &text);
    /// The picture of each row, by the number of its choice; asked for when the row is shown.
    void setIcons(std::function<QIcon(int number)> icon) { m_icon = std::move(icon); }
    bool hasIcons() const { return m_icon != nullptr; }

    const Choice &choice(int row) const { return m_choices[m_rows[row]]; }
    /// The first row with that number, which counts without its fraction; -1 when there is none.
    int rowOf(double number) const;
    /// How many there are of all, and the longest of their ids.
    int size() const { return m_choices.size(); }
    QString longestId() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QVector<Choice> m_choices;
    QStringList m_texts; ///< of each, what is looked through
    QVector<int> m_rows;
    const bool m_hasNames;
    bool m_isFiltered = false;
    std::function<QIcon(int)> m_icon;
};
