// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TypingField.h"

#include <QAbstractSpinBox>

/// What all editors of one number have in common.
///
/// Every key is taken: one that is refused would make another number of those that are not. Numbers look the
/// same in every locale: no separators of thousands, a point before decimals.
class NumberField : public QAbstractSpinBox, public TypingField
{
    Q_OBJECT

public:
    bool isTyping() const override;
    bool commitText() override;
    void discardText() override;

    /// Shown before and behind the number; need not be typed.
    void setPrefix(const QString &prefix);
    void setSuffix(const QString &suffix);

    void stepBy(int steps) final;
    QValidator::State validate(QString &text, int &position) const final;
    void fixup(QString &) const final {}
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    explicit NumberField(QWidget *parent);

    /// The text of the value.
    virtual QString valueText() const = 0;
    /// A number as wide as the field is to be.
    virtual QString widestText() const = 0;
    /// Why a text cannot be a value; empty when it can.
    virtual QString refusalOf(const QString &text) const = 0;
    /// Takes over a text that can be a value, and tells of it when the value is another one.
    virtual void store(const QString &text) = 0;
    /// Adds steps to the value and tells of it; false when that makes no other value.
    virtual bool step(int steps) = 0;
    virtual bool canStep(int direction) const = 0;

    /// Shows the value, unless `isSame` as before and something stands there that was refused.
    void showValue(bool isSame = false);

    StepEnabled stepEnabled() const final;
    void selectText() override { selectAll(); }
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const { return m_prefix + valueText() + m_suffix; }
    QString typedText() const;
    bool canBecomeValue(const QString &text) const;
    void refuse(const QString &text);
    void onTextEdited();

    QString m_prefix;
    QString m_suffix;
    int m_wheel = 0; ///< turned, but not yet a step, in eighths of a degree
};
