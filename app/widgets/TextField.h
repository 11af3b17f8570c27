// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Refusal.h"

#include <QLineEdit>

#include <functional>

/// An editor of one text. What is typed is stored with Enter, or when the field is left; what cannot be
/// stored then stays where it is, marked. Escape brings the stored text back.
class TextField : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextField(QWidget *parent = nullptr);

    /// `check` gives why a text cannot be stored; nothing when it can.
    void setCheck(std::function<QString(const QString &)> check) { m_check = std::move(check); }

    QString value() const { return m_value; }
    /// Shows a text; emits nothing. What stands there refused is kept while the stored text is the same.
    void setValue(const QString &value);

    bool isRefused() const { return m_refusal.isActive(); }
    void commitText();
    /// Shows the stored text again, whatever was typed.
    void discardText();

signals:
    /// The user has entered another text.
    void valueEdited(const QString &value);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateRefusal();

    std::function<QString(const QString &)> m_check;
    Refusal m_refusal{*this};
    QString m_value;
};
