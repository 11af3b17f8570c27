// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

class QCheckBox;

/// The 32 bits of a flags field as check boxes, with buttons for all and none. The boxes are one stop on the
/// way with Tab: the arrow keys, Home and End move inside.
class FlagsEditor : public QWidget
{
    Q_OBJECT

public:
    explicit FlagsEditor(QWidget *parent = nullptr);

    qint32 value() const;
    /// Shows a value; emits nothing.
    void setValue(qint32 value);
    /// Shows the names of these bits in italics, those of the others upright.
    void markBits(qint32 bits);
    /// The bits that the last edit was about: one, or all.
    qint32 editedBits() const { return m_editedBits; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The user has switched bits.
    void valueEdited(qint32 value);

private:
    void editAll(bool on);
    void moveStop(int bit);

    QVector<QCheckBox *> m_bits;
    qint32 m_editedBits = 0;
    int m_stop = 0; ///< the bit whose box Tab leads to
};
