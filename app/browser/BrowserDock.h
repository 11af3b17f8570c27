// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileRows.h"
#include "ReferenceIndex.h"

#include <QDockWidget>

class FileList;
class FileMenu;
class FilterEdit;
class KindsBar;
class QAction;
class QLabel;
class QProgressBar;
class QStackedWidget;
class QToolButton;
class Thumbnails;

/// All models, animations, materials and textures of game and mod in one list, to look through and to open.
class BrowserDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit BrowserDock(QWidget *parent = nullptr);
    ~BrowserDock() override;

    FileCatalog &catalog() { return m_catalog; }
    FileMenu *menu() const { return m_menu; }
    Thumbnails &thumbnails() { return *m_thumbnails; }
    /// By which the list says what is unused; null as long as there is none.
    void setIndex(const ReferenceIndexPtr &index, bool isReading);

signals:
    /// A model, an animation or a material file is to be opened.
    void fileWanted(const QString &path);
    /// The index of who names what is needed.
    void indexWanted();
    /// Nobody waits for it any more.
    void indexGivenUp();
    void optionsWanted();
    /// The keys are to go back to where they were.
    void left();
    /// Something for the status bar.
    void told(const QString &text);

public slots:
    /// Opens a file, or shows it where it is a texture.
    void open(const QString &path);
    /// Files may be others.
    void refresh() { m_catalog.refresh(); }

private:
    QLayout *createTop();
    QLayout *createBottom();
    void createSorting();
    FileFilter wantedFilter() const;
    void applyFilter();
    void showAll();
    void OnCatalogChanged();
    void wantIndex();
    void findUnused();
    void updateState();
    void updateCount();
    bool isWaitingForIndex() const;
    QString emptyText() const;

    FileCatalog m_catalog;
    FilterEdit *m_filter;
    KindsBar *m_bar;
    QToolButton *m_sorting;
    std::array<QAction *, CatalogOrders> m_orders{};
    QStackedWidget *m_pages;
    Thumbnails *m_thumbnails;
    FileList *m_list;
    QLabel *m_empty;
    QLabel *m_count;
    QProgressBar *m_progress;
    QToolButton *m_giveUp;
    FileMenu *m_menu;
    QTimer m_patience; ///< what is read sooner is not told of
    Background m_finder;
    ReferenceIndexPtr m_index;
    bool m_isIndexing = false;
};
