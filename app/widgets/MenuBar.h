// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>

/// A menu bar that Alt leads to when it is pressed and let go alone. The toolkit's takes a turn of the wheel
/// meanwhile for nothing.
class MenuBar : public QMenuBar
{
    Q_OBJECT

public:
    using QMenuBar::QMenuBar;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
