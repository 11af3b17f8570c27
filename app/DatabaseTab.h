// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceIds.h"

#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;
class QTableWidget;
class QTabWidget;

/// The reference tables, a sub-tab each: sortable, filtered as one types, copied by a double click.
class DatabaseTab : public QWidget
{
    Q_OBJECT

public:
    explicit DatabaseTab(QWidget *parent = nullptr);

    /// Loads all tables anew, each from its overriding file if there is one.
    void reload();

    /// The numbers that the tables have a name for.
    ReferenceIds ids() const;

    const QTableWidget *table(ReferenceKind kind) const { return m_pages[size_t(kind)].table; }

signals:
    void reloaded();
    /// A short word to the user about what was just done.
    void told(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

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

    Page createPage(ReferenceKind kind);
    void applyFilter(const Page &page);
    void copyRows(const QTableWidget *table);

    QTabWidget *m_tabs;
    std::array<Page, referenceKinds.size()> m_pages{};
};
