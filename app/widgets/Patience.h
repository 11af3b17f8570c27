// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>

#include <optional>

/// Waits for the end of work that was cancelled and may be slow to notice, while the window stays alive, but
/// takes no input.
inline void endWithPatience(const std::atomic_bool &isOver, QProgressDialog &progress)
{
    constexpr int Unnoticed = 500, Between = 20; // milliseconds
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&isOver, &loop] {
        if (isOver)
            loop.quit();
    });
    look.start(Between);
    QTimer::singleShot(Unnoticed, &loop, [&progress] {
        progress.setLabelText(QCoreApplication::translate("Patience", "Ending…"));
        progress.setCancelButton(nullptr);
        progress.show();
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

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
    std::atomic_bool isOver{false};
    Background background;
    background.start(
        [&isOver, work = std::move(work)](const Background::Cancelled &cancelled) {
            Result made = work(cancelled);
            isOver = true;
            return made;
        },
        [&](Result made) {
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
    if (!result) {
        background.cancel();
        look.stop();
        endWithPatience(isOver, progress);
    }
    return result;
}
