// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QSettings>
#include <QSurfaceFormat>
#include <QTemporaryDir>
#include <QTimer>

/// A home of a measurement's own, to be there before the application: settings and data that begin empty and
/// go away with it.
struct BenchHome : QTemporaryDir
{
    BenchHome()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(path()));
        QCoreApplication::setOrganizationName(QStringLiteral("KorvaneBench"));
        QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path());
    }

    /// The context that the program asks its driver for.
    static void askForCoreProfile()
    {
        QSurfaceFormat format;
        format.setDepthBufferSize(24);
        format.setProfile(QSurfaceFormat::CoreProfile);
        QSurfaceFormat::setDefaultFormat(format);
    }
};

/// Lets the window do what it does, for so many milliseconds.
inline void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
