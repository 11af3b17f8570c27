// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KMatWords.h"

#include <QPlainTextEdit>

/// The text of a material file, to be read.
class MaterialFileText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MaterialFileText(QWidget *parent = nullptr);

    void showText(const QString &text);
    /// Marks the line of a word of that text, and brings it into view.
    void mark(TextSpan word);
    void unmark() { setExtraSelections({}); }

protected:
    bool event(QEvent *event) override;

private:
    QString m_source;
};
