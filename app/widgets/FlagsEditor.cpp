// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FlagsEditor.h"

#include "Italics.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
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
