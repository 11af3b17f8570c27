// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DatabaseTab.h"

#include "DatabaseTables.h"
#include "Icons.h"
#include "ReferenceTables.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
/// How a table is called, as a tab and within object names.
struct Caption
{
    const char *objectName;
    const char *title;
};

const Caption captions[] = {{"Actors", QT_TRANSLATE_NOOP("DatabaseTab", "Actors")},
                            {"Sounds", QT_TRANSLATE_NOOP("DatabaseTab", "Sounds")},
                            {"Animations", QT_TRANSLATE_NOOP("DatabaseTab", "Animations")},
                            {"Voices", QT_TRANSLATE_NOOP("DatabaseTab", "Voices")},
                            {"Particles", QT_TRANSLATE_NOOP("DatabaseTab", "Particles")},
                            {"Impacts", QT_TRANSLATE_NOOP("DatabaseTab", "Impacts")}};

/// "10: Ambient Explosion 1"; a name begins with its blank.
QString rowText(const QTableWidget *table, int row)
{
    return table->item(row, 0)->text() + QLatin1Char(':') + table->item(row, 1)->text();
}
} // namespace

DatabaseTab::DatabaseTab(QWidget *parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget(this))
{
    m_tabs->setObjectName(QStringLiteral("tabWidgetDB"));
    m_tabs->setDocumentMode(true);

    const auto button = [this](const char *name, const QString &text, const char *iconName) {
        auto *made = new QPushButton(namedIcon(QLatin1String(iconName)), text, this);
        made->setObjectName(QLatin1String(name));
        return made;
    };
    QPushButton *folder = button("btnDBFolder", tr("Open Folder of O&wn Tables"), "folderopen");
    folder->setToolTip(tr("Tables in this folder (%1) take the place of the built-in ones")
                           .arg(QStringLiteral("actors.txt … impacts.txt")));
    QPushButton *again = button("btnDBReload", tr("&Load Again"), "refresh");
    again->setToolTip(tr("Read all tables anew"));
    connect(folder, &QPushButton::clicked, this, &DatabaseTab::on_btnDBFolder_clicked);
    connect(again, &QPushButton::clicked, this, &DatabaseTab::on_btnDBReload_clicked);
    auto *hint = new QLabel(tr("What the game's numbers stand for. A double click copies a row."), this);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(9, 9, 9, 0);
    row->addWidget(hint, 1);
    row->addWidget(folder);
    row->addWidget(again);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_tabs, 1);
}

void DatabaseTab::load()
{
    if (!m_loaded)
        fill();
}

const QTableWidget *DatabaseTab::table(ReferenceKind kind)
{
    load();
    return m_pages[size_t(kind)].table;
}

void DatabaseTab::showEvent(QShowEvent *event)
{
    load();
    QWidget::showEvent(event);
}

DatabaseTab::Page DatabaseTab::createPage(ReferenceKind kind)
{
    const Caption &caption = captions[size_t(kind)];
    const auto named = [&caption](const char *pattern) {
        return QString::fromLatin1(pattern).arg(QLatin1String(caption.objectName));
    };
    auto *tab = new QWidget(m_tabs);
    tab->setObjectName(named("tabDB%1"));
    Page page{new QTableWidget(0, 2, tab), new QLineEdit(tab), new QLabel(tab)};

    page.filter->setObjectName(named("txtDB%1Filter"));
    page.filter->setPlaceholderText(tr("Filter by id or name"));
    page.filter->setAccessibleName(tr("Filter"));
    page.filter->setClearButtonEnabled(true);
    page.filter->addAction(namedIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    page.count->setObjectName(named("lblDB%1Count"));

    page.table->setObjectName(named("tableDB%1"));
    page.table->setAccessibleName(QCoreApplication::translate("DatabaseTab", caption.title));
    page.table->setHorizontalHeaderLabels({tr("ID"), tr("Name")});
    page.table->horizontalHeader()->setStretchLastSection(true);
    page.table->horizontalHeaderItem(1)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // File order until the user chooses another.
    page.table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    page.table->setSortingEnabled(true);
    page.table->verticalHeader()->hide();
    page.table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    page.table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    page.table->setSelectionBehavior(QAbstractItemView::SelectRows);
    page.table->setAlternatingRowColors(true);
    page.table->setShowGrid(false);
    page.table->setTabKeyNavigation(false);
    page.table->installEventFilter(this);

    connect(page.filter, &QLineEdit::textChanged, this, [this, page] { applyFilter(page); });
    // Rows are hidden by their place, which sorting gives to others.
    connect(page.table->model(), &QAbstractItemModel::layoutChanged, this, [this, kind] { OnSorted(kind); });
    connect(page.table, &QTableWidget::cellDoubleClicked, this, [this, page] { copyRows(page.table); });

    auto *row = new QHBoxLayout;
    row->addWidget(page.filter, 1);
    row->addWidget(page.count);
    auto *layout = new QVBoxLayout(tab);
    layout->addLayout(row);
    layout->addWidget(page.table, 1);
    m_tabs->addTab(tab, QCoreApplication::translate("DatabaseTab", caption.title));
    return page;
}

void DatabaseTab::reload()
{
    ReferenceTables::shared().reload();
    fill();
}

void DatabaseTab::fill()
{
    if (!std::exchange(m_loaded, true)) {
        for (const ReferenceKind kind : referenceKinds)
            m_pages[size_t(kind)] = createPage(kind);
    }
    m_isFilling = true;
    for (const ReferenceKind kind : referenceKinds) {
        const Page &page = m_pages[size_t(kind)];
        loadDatabase(ReferenceTables::shared().table(kind), page.table);
        ReferenceTables::shared().setOrder(kind, shownOrder(page.table));
        page.table->resizeColumnToContents(0);
        page.table->setColumnWidth(
            0, std::max(page.table->columnWidth(0), 8 * fontMetrics().averageCharWidth()));
        applyFilter(page);
    }
    m_isFilling = false;
    emit namesChanged();
}

void DatabaseTab::OnSorted(ReferenceKind kind)
{
    const Page &page = m_pages[size_t(kind)];
    applyFilter(page);
    if (m_isFilling)
        return;
    ReferenceTables::shared().setOrder(kind, shownOrder(page.table));
    emit namesChanged();
}

void DatabaseTab::applyFilter(const Page &page)
{
    const QString wanted = page.filter->text().trimmed();
    const int rows = page.table->rowCount();
    int shown = 0;
    page.table->setUpdatesEnabled(false);
    for (int row = 0; row < rows; ++row) {
        const bool fits = rowText(page.table, row).contains(wanted, Qt::CaseInsensitive);
        page.table->setRowHidden(row, !fits);
        shown += fits;
    }
    page.table->setUpdatesEnabled(true);
    page.count->setText(wanted.isEmpty() ? tr("%1 rows").arg(rows)
                                         : tr("%1 of %2 rows").arg(shown).arg(rows));
}

void DatabaseTab::copyRows(const QTableWidget *table)
{
    QStringList lines;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (!table->isRowHidden(row) && table->item(row, 0)->isSelected())
            lines << rowText(table, row);
    }
    if (lines.isEmpty())
        return;
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    emit told(lines.size() == 1 ? tr("Copied \"%1\"").arg(lines.first())
                                : tr("Copied %1 rows").arg(lines.size()));
}

bool DatabaseTab::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        copyRows(static_cast<QTableWidget *>(watched));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void DatabaseTab::on_btnDBFolder_clicked()
{
    const QString folder = referenceOverrideFolder();
    const bool opened = QDir().mkpath(folder) && QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    if (!opened)
        QMessageBox::warning(this, tr("File error"),
                             tr("Failed to open\n%1").arg(QDir::toNativeSeparators(folder)));
}

void DatabaseTab::on_btnDBReload_clicked()
{
    reload();
    emit told(tr("Loaded the tables again"));
}
