// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include <array>

class Document;
class QTabWidget;

/// Says which document is current and where its file stands: its name in the window's title, its path in the
/// status bar, shortened from the left, and whole in the tool tips of that and of the documents' tabs.
class DocumentTitle : public QLabel
{
    Q_OBJECT

public:
    /// `documents` in the order of DocumentType; the first two have the tabs of `trees` and share the first
    /// of `tabs`, the last has the second. Everything outlives this.
    DocumentTitle(const std::array<const Document *, 3> &documents, QTabWidget &tabs, QTabWidget &trees,
                  QWidget *window);

    /// Null for none.
    void show(const Document *current);

private:
    const std::array<const Document *, 3> m_documents;
    QTabWidget &m_tabs;
    QTabWidget &m_trees;
    QWidget *m_window;
    const std::array<QString, 2> m_tips; ///< what the form says of the first two tabs
};
