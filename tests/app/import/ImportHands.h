// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Hand.h"

#include <optional>

/// What the tests of the import dialog share: folders of the model and of the mod, and a hand.
class ImportHands
{
protected:
    /// New folders, the mod's being set, and settings that nobody has touched.
    void begin()
    {
        TestSupport::useSettingsHome(m_home);
        m_source.emplace();
        m_mod.emplace();
        QDir(m_mod->path()).mkpath(QStringLiteral("materials"));
        QDir(m_mod->path()).mkpath(QStringLiteral("textures"));
        Settings::OutputDir.setValue(m_mod->path());
    }
    static void click(const QWidget &dialog, const char *button)
    {
        QTest::mouseClick(find<QPushButton>(dialog, button), Qt::LeftButton);
    }
    static QString page(const QWidget &dialog)
    {
        return find<QStackedWidget>(dialog, "stackPages")->currentWidget()->objectName();
    }

    QTemporaryDir m_home;
    std::optional<TestFolder> m_source;
    std::optional<TestFolder> m_mod;
};
