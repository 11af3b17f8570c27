// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QVector>

/// The fields of a vector, each with its axis before it: in one row where all of them have room, below one
/// another otherwise.
class AxisRow : public QLayout
{
    Q_OBJECT

public:
    AxisRow() = default;
    ~AxisRow() override;

    /// An axis, then its field, then the next axis.
    void addItem(QLayoutItem *item) override { m_items.append(item); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    int count() const override { return m_items.size(); }

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect &place) override;

private:
    int axisWidth() const;
    bool fitsOneRow(int width) const;
    int lineHeight() const;
    QSize stacked(int fieldWidth) const;
    int gap() const;

    QVector<QLayoutItem *> m_items;
};
