// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
//
// The least that a program with a window and OpenGL in it has to do before its first frame.
#include <QApplication>
#include <QMainWindow>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    QMainWindow window;
    window.setCentralWidget(new QOpenGLWidget);
    window.resize(1440, 900);
    window.show();
    return QApplication::exec();
}
