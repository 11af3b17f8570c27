// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DesktopScheme.h"

#include <QCoreApplication>
#include <QPointer>

DesktopScheme &DesktopScheme::instance()
{
    static QPointer<DesktopScheme> made;
    if (!made)
        made = new DesktopScheme(QCoreApplication::instance());
    return *made;
}

DesktopScheme::DesktopScheme(QObject *parent)
    : QObject(parent)
{
    follow();
}

void DesktopScheme::set(bool prefersDark)
{
    if (prefersDark == m_prefersDark)
        return;
    m_prefersDark = prefersDark;
    emit changed();
}
