// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hands.h"

#include <QtTest>

namespace {
QWindow *windowOf(const QWidget *widget)
{
    return widget->window()->windowHandle();
}
} // namespace

QString Hands::nameOf(const QWidget *widget)
{
    QString name = QLatin1String(widget->metaObject()->className());
    const QWidget *named = widget;
    while (named && named->objectName().isEmpty())
        named = named->parentWidget();
    if (named)
        name += QLatin1String(named == widget ? "#" : " in #") + named->objectName();
    return name;
}

QString Hands::textOf(const QPoint &point)
{
    return QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
}

QPoint Hands::pointIn(const QWidget *widget, Dice &dice)
{
    const QRect seen = widget->visibleRegion().boundingRect();
    if (seen.isEmpty() || dice.chance(40))
        return seen.center();
    return {dice.between(seen.left(), seen.right()), dice.between(seen.top(), seen.bottom())};
}

void Hands::click(QWidget *widget, const QPoint &at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                  bool twice)
{
    QWindow *window = windowOf(widget);
    if (!window)
        return;
    const QPoint place = widget->mapTo(widget->window(), at);
    if (twice)
        QTest::mouseDClick(window, button, modifiers, place);
    else
        QTest::mouseClick(window, button, modifiers, place);
}

void Hands::drag(QWidget *widget, const QVector<QPoint> &points, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window = windowOf(widget);
    const QPoint origin = widget->mapTo(widget->window(), QPoint());
    QPoint at = origin + points.first();
    if (window)
        QTest::mousePress(window, button, modifiers, at);
    for (const QPoint &point : points) {
        at = origin + point;
        if (window)
            QTest::mouseMove(window, at);
    }
    if (window)
        QTest::mouseRelease(window, button, modifiers, at);
}

void Hands::turnWheel(QWidget *widget, const QPoint &at, int delta, Qt::KeyboardModifiers modifiers)
{
    QWindow *window = windowOf(widget);
    if (!window)
        return;
    const QPoint place = widget->mapTo(widget->window(), at);
    QWheelEvent event(place, window->mapToGlobal(place), {}, {0, delta}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
}

void Hands::pressKey(QWidget *arena, int key, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window = windowOf(arena);
    if (window)
        QTest::keyPress(window, Qt::Key(key), modifiers);
    // A menu may be gone by then.
    if (window)
        QTest::keyRelease(window, Qt::Key(key), modifiers);
}

void Hands::typeText(QWidget *arena, const QString &text)
{
    const QPointer<QWindow> window = windowOf(arena);
    for (const QChar letter : text) {
        if (window && letter.unicode() < 128)
            QTest::keyClick(window, letter.toLatin1());
    }
}
