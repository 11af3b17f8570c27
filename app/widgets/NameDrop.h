// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DraggedFile.h"

#include <QObject>

class QLineEdit;

/// Lets a field that names a material or a texture take one that is dropped on it. Where a file has several
/// materials, a menu asks which.
class NameDrop : public QObject
{
    Q_OBJECT

public:
    NameDrop(QLineEdit *field, DraggedFile::Kind kind);

signals:
    /// Comes after the drop is over.
    void dropped(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ask(const QStringList &names);

    QLineEdit *m_field;
    const DraggedFile::Kind m_kind;
};
