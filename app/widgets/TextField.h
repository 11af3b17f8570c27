// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TypingField.h"

#include <QLineEdit>

#include <functional>

/// An editor of one text.
class TextField : public QLineEdit, public TypingField
{
    Q_OBJECT

public:
    explicit TextField(QWidget *parent = nullptr);

    /// `check` gives why a text cannot be stored; nothing when it can.
    void setCheck(std::function<QString(const QString &)> check) { m_check = std::move(check); }

    /// Puts a button into the line for what asks who names the text of the field with the keys.
    void addUses(QAction *uses);

    QString value() const { return m_value; }
    /// Shows a text; emits nothing. What stands there refused is kept while the stored text is the same.
    void setValue(const QString &value);

    bool isTyping() const override { return text() != m_value; }
    bool commitText() override;
    void discardText() override;

signals:
    /// The user has entered another text.
    void valueEdited(const QString &value);

protected:
    bool event(QEvent *event) override;
    /// Its actions stand below what every line offers.
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void selectText() override { selectAll(); }

private:
    void updateRefusal();

    std::function<QString(const QString &)> m_check;
    QString m_value;
};
