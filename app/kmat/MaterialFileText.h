// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KMatWords.h"

#include <QPlainTextEdit>

/// The text of a material file, to be read. Of a long one it shows a part, that around the marked word: the
/// toolkit takes seconds for one of some MiB.
class MaterialFileText : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Characters on each side of the word that are shown.
    static constexpr int MostAround = 64 * 1024;

    explicit MaterialFileText(QWidget *parent = nullptr);

    void showText(const QString &text);
    /// Marks the line of a word of that text, and brings it into view.
    void mark(TextSpan word);
    void unmark() { setExtraSelections({}); }

protected:
    bool event(QEvent *event) override;

private:
    void showAround(int place);

    QString m_source;
    TextSpan m_shown; ///< the part of it
};
