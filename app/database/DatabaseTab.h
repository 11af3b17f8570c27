// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceTable.h"

#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;
class QTableWidget;
class QTabWidget;

/// The reference tables, a sub-tab each: sortable, filtered as one types, copied by a double click.
///
/// The tables are empty until they are loaded, shown or asked: their thousands of rows would keep the
/// window's first frame waiting.
class DatabaseTab : public QWidget
{
    Q_OBJECT

public:
    explicit DatabaseTab(QWidget *parent = nullptr);

    /// Loads all tables, unless they are loaded.
    void load();
    /// Loads all tables anew, each from its overriding file if there is one.
    void reload();

    const QTableWidget *table(ReferenceKind kind);

signals:
    /// Numbers may have other names: the tables were loaded, or one was sorted.
    void namesChanged();
    /// A short word to the user about what was just done.
    void told(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void on_btnDBFolder_clicked();
    void on_btnDBReload_clicked();

private:
    struct Page
    {
        QTableWidget *table;
        QLineEdit *filter;
        QLabel *count;
    };

    void fill();
    void OnSorted(ReferenceKind kind);
    Page createPage(ReferenceKind kind);
    void applyFilter(const Page &page);
    void copyRows(const QTableWidget *table);

    QTabWidget *m_tabs;
    bool m_loaded = false;
    bool m_isFilling = false;
    std::array<Page, referenceKinds.size()> m_pages{};
};
