// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QLabel>

/// The icon ":/Images/Icons/NAME.png". It is drawn anew for every size, ratio and palette, so that it is
/// crisp everywhere, lighter on dark windows, and in the colour of the text on a selected row, where our thin
/// lines would vanish.
QIcon namedIcon(const QString &name);
/// The same for a file of the resources, with its "@2x" and "@3x" beside it.
QIcon fileIcon(const QString &path);

/// Gives the actions and buttons below `window` the icons that its form names in the property `iconName`.
void setNamedIcons(QObject &window);

/// Shows an icon, and follows it when the palette changes.
class IconLabel : public QLabel
{
public:
    IconLabel(const QIcon &icon, int side, QWidget *parent = nullptr);
    void setIcon(const QIcon &icon);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon m_icon;
};
