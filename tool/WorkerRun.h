// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportWorker.h"

#include <QEventLoop>

/// Has the worker do one job and waits for its end, at most `seconds`; `advice` tells who can change that.
template <typename... Model>
void runJob(ImportWorker &worker, int seconds, const QString &advice, const WorkerJob &job,
            const Model &...model)
{
    worker.setTimeLimit(seconds * 1000, advice);
    QEventLoop loop;
    QObject::connect(&worker, &ImportWorker::finished, &loop, &QEventLoop::quit);
    worker.start(job, model...);
    if (worker.isRunning())
        loop.exec();
}
