// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileWatch.h"

class DocumentFiles;
class NoticeBar;
class QBoxLayout;
class QPushButton;

/// Tells in a bar for each document that another program has changed its file, and offers to load it anew.
class ReloadPrompt : public QObject
{
    Q_OBJECT

public:
    /// The bars come at the top of `place`.
    ReloadPrompt(DocumentFiles &files, QBoxLayout *place, QWidget *window);

private:
    struct Bar
    {
        NoticeBar *bar = nullptr;
        QPushButton *reload = nullptr;
        QPushButton *keep = nullptr;
    };

    Bar &bar(DocumentType type) { return m_bars[size_t(type)]; }
    void tellChanged(DocumentType type);
    void tellRemoved(DocumentType type);
    void reload(DocumentType type);
    void keep(DocumentType type);

    DocumentFiles &m_files;
    QWidget *m_window;
    FileWatch m_watch;
    std::array<Bar, 3> m_bars;
};
