// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// What an index points at.
struct IndexTarget
{
    QString text;
    bool missing = false; ///< it points nowhere
    QString explanation;  ///< the tool tip; the text where it is empty
    bool quiet = false;   ///< there is nothing to tell, which is no fault
};

/// Says beside the editor of an index what the index points at, and marks one that points nowhere. Text that
/// is too long for one line takes more of them.
class IndexHint : public QWidget
{
    Q_OBJECT

public:
    explicit IndexHint(QWidget *parent = nullptr);

    void setTarget(const IndexTarget &target);
    QString text() const { return m_target.text; }
    bool isMissing() const { return m_target.missing; }
    bool isQuiet() const { return m_target.quiet; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int iconWidth() const;

    IndexTarget m_target;
};
