// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FlagsEditor.h"

#include "Italics.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace {
constexpr int BitCount = 32;
constexpr int Columns = 4;
} // namespace

FlagsEditor::FlagsEditor(QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(2);
    for (int bit = 0; bit < BitCount; ++bit) {
        auto *box = new QCheckBox(QString::number(bit), this);
        box->setObjectName(QStringLiteral("cbBit%1").arg(bit));
        box->setToolTip(tr("Bit %1 (0x%2)").arg(QString::number(bit), QString::number(1u << bit, 16)));
        connect(box, &QCheckBox::clicked, this, [this, bit] {
            m_editedBits = qint32(1u << bit);
            emit valueEdited(value());
        });
        box->setFocusPolicy(bit == m_stop ? Qt::StrongFocus : Qt::ClickFocus);
        box->installEventFilter(this);
        grid->addWidget(box, bit / Columns, bit % Columns);
        m_bits.append(box);
    }
    auto *buttons = new QHBoxLayout;
    auto *all = new QPushButton(tr("All"), this);
    all->setObjectName(QStringLiteral("btnFlagsAll"));
    auto *none = new QPushButton(tr("None"), this);
    none->setObjectName(QStringLiteral("btnFlagsNone"));
    for (QPushButton *button : {all, none}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    grid->addLayout(buttons, BitCount / Columns, 0, 1, Columns);
    connect(all, &QPushButton::clicked, this, [this] { editAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { editAll(false); });
    setFocusProxy(m_bits.first());
}

void FlagsEditor::moveStop(int bit)
{
    m_bits.at(m_stop)->setFocusPolicy(Qt::ClickFocus);
    m_stop = bit;
    m_bits.at(m_stop)->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_bits.at(m_stop));
}

bool FlagsEditor::eventFilter(QObject *watched, QEvent *event)
{
    const int bit = m_bits.indexOf(static_cast<QCheckBox *>(watched));
    if (event->type() == QEvent::FocusIn)
        moveStop(bit);
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    int next = bit;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
        next -= 1;
        break;
    case Qt::Key_Right:
        next += 1;
        break;
    case Qt::Key_Up:
        next -= Columns;
        break;
    case Qt::Key_Down:
        next += Columns;
        break;
    case Qt::Key_Home:
        next = 0;
        break;
    case Qt::Key_End:
        next = BitCount - 1;
        break;
    default:
        return QWidget::eventFilter(watched, event);
    }
    // At an edge the keys stay.
    if (next >= 0 && next < BitCount)
        m_bits.at(next)->setFocus(Qt::TabFocusReason);
    return true;
}

qint32 FlagsEditor::value() const
{
    quint32 bits = 0;
    for (int bit = 0; bit < BitCount; ++bit)
        bits |= quint32(m_bits.at(bit)->isChecked()) << bit;
    return qint32(bits);
}

void FlagsEditor::setValue(qint32 value)
{
    // Nothing listens to toggled(): clicked() is the user's alone.
    for (int bit = 0; bit < BitCount; ++bit)
        m_bits.at(bit)->setChecked((quint32(value) >> bit & 1u) != 0);
}

void FlagsEditor::markBits(qint32 bits)
{
    for (int bit = 0; bit < BitCount; ++bit)
        setItalic(m_bits.at(bit), (quint32(bits) >> bit & 1u) != 0);
}

void FlagsEditor::editAll(bool on)
{
    const qint32 wanted = on ? -1 : 0;
    if (value() == wanted)
        return;
    setValue(wanted);
    m_editedBits = -1;
    emit valueEdited(wanted);
}
