// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// Says in words what a command would do, by headings with lines below.
class MotionPreview : public QTextBrowser
{
    Q_OBJECT

public:
    explicit MotionPreview(QWidget *parent = nullptr);

    struct Entry
    {
        QString title;
        QStringList lines;
        bool isRefused = false; ///< the lines say why nothing is done
    };
    void setEntries(const QVector<Entry> &entries);
    void tell(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    QVector<Entry> m_entries;
};
