// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QVector>

class QToolButton;

/// An editor, what stands for its value, and buttons: in one row where all of them have room, else with the
/// name below the others. What is hidden takes no room.
class NameRow : public QLayout
{
    Q_OBJECT

public:
    /// Whether the name stands in the editor's line where there is room, or below it with the buttons.
    enum class Name { Beside, Below };

    /// Has an editor that stands in a form alone share its place with its name.
    static NameRow *around(QWidget *editor, QWidget *name, Name place = Name::Beside);
    ~NameRow() override;

    /// One that takes no keys: a key of the editor does the same.
    QToolButton *addButton(const QString &objectName, const char *icon, const QString &does);

    /// The editor, then its name, then buttons.
    void addItem(QLayoutItem *item) override { m_items.append(item); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    int count() const override { return m_items.size(); }

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return arrange({0, 0, width, 0}, false); }
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect &place) override;

private:
    explicit NameRow(Name place)
        : m_place(place)
    {}
    int gap() const;
    int lineHeight() const;
    int buttonsWidth() const;
    /// Gives the height that is needed, and, if that is wanted, the items their places.
    int arrange(const QRect &place, bool puts) const;

    const Name m_place;
    QVector<QLayoutItem *> m_items;
};
