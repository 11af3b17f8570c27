// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilePalette.h"

#include "FileList.h"
#include "ListKeys.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QVBoxLayout>

FilePalette::FilePalette(FileCatalog &catalog, Thumbnails &thumbnails, QWidget *parent)
    : QDialog(parent)
    , m_catalog(catalog)
    , m_line(new QLineEdit(this))
    , m_list(new FileList(thumbnails, this))
    , m_state(new QLabel(this))
{
    setObjectName(QStringLiteral("FilePalette"));
    setWindowTitle(tr("Go to File"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_line->setObjectName(QStringLiteral("lineFile"));
    m_line->setPlaceholderText(tr("Which file: parts of its name and folders"));
    m_line->setAccessibleName(tr("File"));
    m_line->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("listFilePalette"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_state->setObjectName(QStringLiteral("lblFilePalette"));
    m_state->setForegroundRole(QPalette::PlaceholderText);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_line);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_state);
    resize(fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 26);

    connect(m_line, &QLineEdit::textChanged, this, &FilePalette::fill);
    connect(new ListKeys(m_line, m_list), &ListKeys::accepted, this, &FilePalette::accept);
    connect(m_list, &QAbstractItemView::clicked, this, &FilePalette::accept);
    connect(&m_catalog, &FileCatalog::changed, this, &FilePalette::takeFiles);
    m_catalog.read();
    takeFiles();
    fill();
    m_line->setFocus();
}

void FilePalette::takeFiles()
{
    m_list->setFiles(m_catalog.files());
    fill();
}

/// The best is current, so that Return opens it.
void FilePalette::fill()
{
    FileFilter filter;
    filter.words = m_line->text();
    filter.bestFirst = true;
    const bool isTyped = filter.words != m_list->rows().filter().words;
    m_list->setFilter(filter);
    const FileRows &rows = m_list->rows();
    if (isTyped || !m_list->currentIndex().isValid()) {
        m_list->setCurrentIndex(rows.index(0));
        m_list->scrollToTop();
    }
    const QLocale locale;
    m_state->setText(!FileCatalog::hasFolders()
                         ? tr("There are no folders of game and mod. Edit ▸ Options… names them.")
                     : !m_catalog.files() ? tr("The folders of game and mod are being read.")
                     : rows.rowCount() == 0
                         ? tr("No file has these words in its path.")
                         : tr("Files: %1 of %2")
                               .arg(locale.toString(rows.rowCount()), locale.toString(rows.totalCount())));
    m_state->setAccessibleName(m_state->text());
}

void FilePalette::accept()
{
    if (!m_list->current())
        return;
    m_path = m_list->current()->path;
    QDialog::accept();
}
