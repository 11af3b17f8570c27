// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Expression.h"
#include "FieldRecords.h"
#include "NumberRange.h"
#include "TypingField.h"

#include <QAbstractSpinBox>

class QMenu;

/// What all editors of one number have in common.
///
/// Every key is taken: one that is refused would make another number of those that are not. Numbers look the
/// same in every locale: no separators of thousands, a point before decimals. A text may be an Expression,
/// whose x is the number that the field has.
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

    /// Lets edits that depend on the number that is there go to each of these records by its own. An edit
    /// that does not is told by the field's signal.
    void setRecords(FieldRecords records) { m_records = std::move(records); }
    const FieldRecords &records() const { return m_records; }
    /// What "45deg" is a multiple of 45 of: a part of a radian unless the number is in degrees.
    void setDegree(double degree) { m_degree = degree; }

    /// Shows what so many steps from its number are, as if it was typed: of the number itself, or to be added
    /// to each record's where these differ.
    void typeSteps(int steps);
    /// What can be done with the number; the caller owns the menu. Others put what they know behind the
    /// action named ActionBehind.
    QMenu *createMenu();
    static constexpr const char *ActionBehind = "actionFieldMore";

    void stepBy(int steps) final;
    QValidator::State validate(QString &text, int &position) const final;
    void fixup(QString &) const final {}
    QSize sizeHint() const override { return sizeOf(widestText()); }
    QSize minimumSizeHint() const override { return sizeOf(narrowestText()); }

protected:
    explicit NumberField(QWidget *parent);

    /// The text of the value.
    virtual QString valueText() const = 0;
    /// A number as wide as the field is to be.
    virtual QString widestText() const = 0;
    /// A number that the field has to have room for, where room is scarce.
    virtual QString narrowestText() const { return widestText(); }
    /// Why a text cannot be a value; empty when it can.
    virtual QString refusalOf(const QString &text) const = 0;
    /// Takes over a text that can be a value, and tells of it when the value is another one.
    virtual void store(const QString &text) = 0;
    /// Adds steps to the value and tells of it; false when that makes no other value.
    virtual bool step(int steps) = 0;
    virtual bool canStep(int direction) const = 0;
    /// What step() would make of the value, and what it would add.
    virtual QString steppedText(int steps) const = 0;
    virtual QString addedText(int steps) const = 0;

    /// Calculates a text whose x is a number. Gives the reason why it makes none for that range; empty when
    /// it does.
    QString calculate(const QString &text, double x, const NumberRange &range, double &number) const;

    /// Shows the value, unless `isSame` as before and something stands there that was refused.
    void showValue(bool isSame = false);

    StepEnabled stepEnabled() const final;
    void selectText() override { selectAll(); }
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const { return m_prefix + valueText() + m_suffix; }
    QString typedText() const;
    QSize sizeOf(const QString &text) const;
    bool canBecomeValue(const QString &text) const;
    void refuse(const QString &reason);
    /// Answers what asks for the tool tip of a number that has no room here.
    bool tellCut(QEvent *event);
    void onTextEdited();
    void copy() const;
    void paste();

    QString m_prefix;
    QString m_suffix;
    FieldRecords m_records;
    double m_degree = Expression::Radian;
    int m_leastWidth = 0;
    int m_wheel = 0; ///< turned, but not yet a step, in eighths of a degree
};
