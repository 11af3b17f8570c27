// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PageBrowser.h"

/// Links to the places where the game and the parts of this program are at home.
class CommunityTab : public PageBrowser
{
    Q_OBJECT

public:
    explicit CommunityTab(QWidget *parent = nullptr);

    void reload() override;

private:
    QString m_html;
};
