// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>

#include <optional>

/// Does work in another thread while the window stays alive, but takes no input. After half a second a dialog
/// says what is going on and offers to give up, which the work has to notice. Returns what `work(cancelled)`
/// does; nothing when it was given up. `percent`, if there is one, is where the work notes how far it is.
template <typename Work>
auto workWithPatience(Work work, const QString &label, QWidget *window,
                      const std::atomic_int *percent = nullptr)
{
    constexpr int Unnoticed = 500; // milliseconds
    using Result = decltype(work(std::declval<const Background::Cancelled &>()));
    std::optional<Result> result;
    QEventLoop loop;
    Background background;
    background.start(std::move(work), [&](Result made) {
        result = std::move(made);
        loop.quit();
    });
    QTimer::singleShot(Unnoticed, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (result)
        return result;

    QProgressDialog progress(label, QCoreApplication::translate("Patience", "Cancel"), 0, percent ? 100 : 0,
                             window);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.setAutoReset(false); // it closes when the result is there
    QTimer look;
    if (percent) {
        QObject::connect(&look, &QTimer::timeout, &progress,
                         [&progress, percent] { progress.setValue(percent->load()); });
        look.start(100);
    }
    QObject::connect(&progress, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    progress.show();
    loop.exec();
    return result;
}
