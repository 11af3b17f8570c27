// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileComparison.h"

#include <QTreeWidget>

/// A record or a field that differs, or what stands for all further ones of a list.
class CompareItem : public QTreeWidgetItem
{
public:
    enum Column { RecordColumn, MineColumn, TheirsColumn, ColumnCount };

    CompareItem(const QStringList &texts, QVector<FileComparison::Pick> picks, const RecordRef &place)
        : QTreeWidgetItem(texts)
        , m_picks(std::move(picks))
        , m_place(place)
    {}

    /// What there is to say of the record stands below it when it is opened.
    void setUnfilled(const RecordDifference *difference)
    {
        m_unfilled = difference;
        setChildIndicatorPolicy(ShowIndicator);
    }
    const RecordDifference *takeUnfilled()
    {
        setChildIndicatorPolicy(DontShowIndicatorWhenChildless);
        return std::exchange(m_unfilled, nullptr);
    }

    /// What to take of the file for it; nothing where it goes with its record only.
    const QVector<FileComparison::Pick> &picks() const { return m_picks; }
    /// The record in the document; of no kind where it is not there.
    const RecordRef &place() const { return m_place; }

private:
    QVector<FileComparison::Pick> m_picks;
    RecordRef m_place;
    const RecordDifference *m_unfilled = nullptr;
};

/// What differs between a document and a file, records with their fields.
class CompareTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CompareTree(QWidget *parent = nullptr);

    /// So many records of one kind have a row each below one owner.
    static constexpr int MostRows = FileComparison::MostTold;
    /// With so many rows, those below further records are made when these are opened.
    static constexpr int MostAtOnce = 2000;

    /// Lists what the comparison has found; what was open and current stays so.
    void show(const FileComparison &comparison);
    /// What stands in the tree while it is empty.
    void setEmptyText(const QString &text);

    /// What is to be taken for the selected rows, none of it twice.
    QVector<FileComparison::Pick> selectedPicks() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<QTreeWidgetItem *> itemsOf(const std::vector<RecordDifference> &differences);
    CompareItem *recordItem(const RecordDifference &difference);
    void fill(CompareItem &item, const RecordDifference &difference);

    const Document *m_document = nullptr; ///< that is compared
    QString m_emptyText;
    int m_rows = 0;
};
