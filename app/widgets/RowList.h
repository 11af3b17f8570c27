// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

/// A list of rows with columns, of which one is chosen. Says why it is empty where it is.
class RowList : public QTreeView
{
    Q_OBJECT

public:
    /// `letters` are the widths of the first columns.
    RowList(QAbstractItemModel *rows, const QVector<int> &letters, QWidget *parent);

    void setEmptyText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_emptyText;
};
