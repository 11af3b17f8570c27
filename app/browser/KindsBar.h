// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileRows.h"

#include <QWidget>

class QComboBox;
class QToolButton;

/// Says which kinds of files are listed, and those of which folder. What is chosen is remembered.
class KindsBar : public QWidget
{
    Q_OBJECT

public:
    explicit KindsBar(QWidget *parent = nullptr);

    /// See FileFilter.
    unsigned kinds() const;
    FileState state() const;
    /// Chooses all files; says nothing.
    void reset();

signals:
    void changed();

private:
    void store();

    std::array<QToolButton *, 5> m_kinds{}; ///< in the order of IndexedType
    QComboBox *m_state;
};
