// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SettingsHold.h"

#include <utility>

namespace {
thread_local const QSettings *s_open = nullptr;
}

SettingsHold::SettingsHold()
    : m_outer(std::exchange(s_open, &m_store))
{}

SettingsHold::~SettingsHold()
{
    s_open = m_outer;
}

QVariant SettingsHold::value(const QString &name)
{
    return s_open ? s_open->value(name) : QSettings().value(name);
}
