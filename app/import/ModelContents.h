// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportWorker.h"

#include <QWidget>

#include <memory>

class QProgressBar;
class QTextEdit;

/// Says what a foreign file holds, before anything is taken of it. It is looked into in the background.
class ModelContents : public QWidget
{
    Q_OBJECT

public:
    explicit ModelContents(QWidget *parent = nullptr);
    ~ModelContents() override;

    /// Looks into this file, and gives up the one before; an empty path is none.
    void look(const QString &path);
    bool isLooking() const { return m_worker && m_worker->isRunning(); }
    /// Says what a file holds.
    void tell(const SceneSummary &summary);
    /// Null unless the last file could be read.
    const SceneSummary *summary() const { return m_isKnown ? &m_worker->summary() : nullptr; }

signals:
    /// What is known has changed.
    void looked();

private:
    void onFinished();
    void say(const QString &html);

    std::unique_ptr<ImportWorker> m_worker;
    bool m_isKnown = false;
    QTextEdit *m_text;
    QProgressBar *m_progress;
};
