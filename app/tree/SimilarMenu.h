// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

class Document;
class KVTreeView;
class RecordField;

/// Selects all records of the current one's kind that have what it has in a field: one entry for each field.
class SimilarMenu : public QMenu
{
    Q_OBJECT

public:
    /// Of the records that the tree shows of the document; both outlive the menu.
    SimilarMenu(Document &document, KVTreeView *tree);

private:
    void update();
    void fill();
    void select(const RecordField &field);

    Document &m_document;
    KVTreeView *m_tree;
};
