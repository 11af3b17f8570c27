// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QTimer>
#include <QVector>

class DocumentFiles;
class DocumentLoader;
class QLabel;
class QProgressBar;
class QPushButton;
class QStatusBar;

/// Tells that a file is being read for one of some documents, when that takes longer than one would notice,
/// how much of it is, and lets the user give it up.
class LoadingSign : public QFrame
{
    Q_OBJECT

public:
    /// From the moment that a load goes on beside the window.
    static constexpr int DelayMs = 75;

    LoadingSign(const QVector<DocumentLoader *> &loaders, QWidget *parent);
    /// Stands in the middle of its parent from now on.
    void keepInMiddle();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
    void cancel();
    void moveToMiddle();

    QVector<DocumentLoader *> m_loaders;
    QLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QTimer m_delay;
    QTimer m_tick;
};

/// Signs in the status bar for all documents and in the middle of each view for what it shows: the skinned
/// mesh with its animation, the static mesh.
void addLoadingSigns(DocumentFiles &files, QWidget &skinnedView, QWidget &staticView, QStatusBar &statusBar);
