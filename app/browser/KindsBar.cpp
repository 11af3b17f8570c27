// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KindsBar.h"

#include "Settings.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>

KindsBar::KindsBar(QWidget *parent)
    : QWidget(parent)
    , m_state(new QComboBox)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    const int wanted = Settings::BrowserKinds.value();
    const QString tips[] = {tr("Show skinned meshes"), tr("Show animations"), tr("Show static meshes"),
                            tr("Show material files"), tr("Show textures")};
    const char *const names[] = {"btnFilesSkinned", "btnFilesAnim", "btnFilesStatic", "btnFilesMaterials",
                                 "btnFilesTextures"};
    for (size_t i = 0; i < m_kinds.size(); ++i) {
        auto *button = new QToolButton;
        button->setObjectName(QLatin1String(names[i]));
        button->setIcon(FileRows::kindIcon(IndexedType(i)));
        button->setAccessibleName(tips[i]);
        button->setToolTip(tr("%1; without any of these buttons, all kinds are shown").arg(tips[i]));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setChecked(wanted & (1 << i));
        connect(button, &QToolButton::toggled, this, &KindsBar::store);
        m_kinds[i] = button;
        row->addWidget(button);
    }
    m_state->setObjectName(QStringLiteral("cbFilesState"));
    m_state->setAccessibleName(tr("Which files"));
    m_state->addItems(
        {tr("All Files"), tr("In the Mod"), tr("In the Game"), tr("Replace the Game's"), tr("Unused")});
    m_state->setItemData(int(FileState::ReplacesGame),
                         tr("Files of the mod that have the name of one of the game"), Qt::ToolTipRole);
    m_state->setItemData(int(FileState::Unused),
                         tr("Textures that no material names, and materials that no model names"),
                         Qt::ToolTipRole);
    m_state->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_state->setMinimumContentsLength(8);
    m_state->setCurrentIndex(std::clamp(Settings::BrowserState.value(), 0, m_state->count() - 1));
    connect(m_state, qOverload<int>(&QComboBox::currentIndexChanged), this, &KindsBar::store);
    row->addSpacing(4);
    row->addWidget(m_state, 1);
}

unsigned KindsBar::kinds() const
{
    unsigned wanted = 0;
    for (size_t i = 0; i < m_kinds.size(); ++i)
        wanted |= m_kinds[i]->isChecked() ? 1U << i : 0U;
    return wanted;
}

FileState KindsBar::state() const
{
    return FileState(m_state->currentIndex());
}

void KindsBar::reset()
{
    const QSignalBlocker blocker(this);
    m_state->setCurrentIndex(int(FileState::Any));
    for (QToolButton *kind : m_kinds)
        kind->setChecked(false);
}

void KindsBar::store()
{
    Settings::BrowserKinds.setValue(int(kinds()));
    Settings::BrowserState.setValue(int(state()));
    emit changed();
}
