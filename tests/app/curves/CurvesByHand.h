// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurveView.h"
#include "DocumentFiles.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "Playback.h"
#include "TurnAngles.h"

#include <cmath>

/// Two bones that turn and one that moves, in 11 frames.
inline AnimFile turningBones()
{
    AnimFile file = twoBlocks();
    AnimBlock &block = file.blocks[0];
    block.setTranslationCount(1);
    block.setRotationCount(2);
    block.nodes[0].translationIndex = 0;
    block.nodes[0].rotationIndex = 0;
    block.nodes[1].rotationIndex = 1;
    for (int frame = 0; frame < 11; ++frame) {
        block.translations.at(0, frame) = {float(frame), 5.0f, float(frame % 2)};
        block.rotations.at(0, frame) = Motion::turnOf({10.0 * frame, 20, -5.0 * frame}).toVector();
        block.rotations.at(1, frame) = Motion::turnOf({0, 0, frame == 5 ? 40.0 : 0.0}).toVector();
        block.frames[size_t(frame)].yawOffset = 0.1f * float(frame);
    }
    return file;
}

/// A window with an animation and the dock of its curves.
struct Curves
{
    explicit Curves(const TestFolder &files, const AnimFile &file = turningBones(),
                    const SkinnedMesh &mesh = triangleMan(), int bone = 0)
        : folder(files)
        , window({files.save("a.skinnedmesh", mesh), files.save("a.anim", file)})
        , view(find<CurveView>(window, "curveView"))
        , value(find<FloatSpinBox>(window, "sbCurveValue"))
    {
        window.resize(1300, 900);
        select(window, "treeAnim", {{RecordKind::AnimBone, {0, bone}}});
        toggle();
        QTRY_VERIFY(view->data().count() > 0 && view->height() > 100);
        bytes = now();
    }

    void toggle() { QTest::keyClick(&window, Qt::Key_F7); }

    QByteArray now() const
    {
        if (playback().anim->write(folder.path("now.anim")))
            qFatal("not written");
        return TestSupport::readFile(folder.path("now.anim"));
    }
    const AnimBlock &block() const { return playback().anim->blocks[size_t(playback().blockIndex)]; }
    /// What the file says now, to a hundredth.
    double stored(CurveChannel channel, int frame, int bone = 0) const
    {
        CurveData data;
        data.show(&block(), {bone}, 1U << int(channel));
        return std::round(data.value(0, frame) * 100) / 100;
    }
    QVector<double> stored(CurveChannel channel) const
    {
        QVector<double> all;
        for (int frame = 0; frame < block().frameCount(); ++frame)
            all += stored(channel, frame);
        return all;
    }
    void check(CurveChannel channel, bool on = true)
    {
        auto *list = find<QListWidget>(window, "listCurveChannels");
        QListWidgetItem *item = list->item(int(channel));
        list->setCurrentItem(item);
        if ((item->checkState() == Qt::Checked) != on)
            QTest::keyClick(list, Qt::Key_Space);
    }
    int curve(CurveChannel channel) const
    {
        for (int i = 0; i < view->data().count(); ++i) {
            if (view->data().curves()[size_t(i)].channel == channel)
                return i;
        }
        qFatal("not shown");
    }
    QPoint key(CurveChannel channel, int frame) const
    {
        return view->places().placeOf({curve(channel), frame}).toPoint();
    }
    double perPixel(CurveUnit unit) const { return view->places().values(unit).perPixel(); }
    void press(const QPoint &at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(view, Qt::LeftButton, keys, at);
    }
    void move(const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, keys);
        QApplication::sendEvent(view, &event);
    }
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        press(from);
        move((from + to) / 2, keys);
        move(to, keys);
        QTest::mouseRelease(view, Qt::LeftButton, keys, to);
    }
    void click(const QPoint &at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(view, Qt::LeftButton, keys, at);
    }
    void type(int key, Qt::KeyboardModifiers keys = {})
    {
        view->setFocus();
        QTest::keyClick(view, Qt::Key(key), keys);
    }
    void enter(const QString &text)
    {
        value->setFocus();
        value->selectAll();
        QTest::keyClicks(value, text);
        QTest::keyClick(value, Qt::Key_Return);
    }
    void button(const char *name) { find<QToolButton>(window, name)->click(); }
    QAction *undoAction() { return find<QAction>(window, "actionUndo"); }
    AnimDocument &document() const
    {
        auto *files = window.findChild<DocumentFiles *>();
        return dynamic_cast<AnimDocument &>(*files->document(DocumentType::Anim));
    }
    void setFrameCount(int count) const
    {
        Records::Block::find(document().editTarget().edit(), {0})->setFrameCount(count);
        document().changedDirectly({{RecordKind::AnimBlock, {0}}, 0, {RecordKind::AnimFrames, {0}}});
    }
    double shown(CurveChannel channel, int frame) const
    {
        return std::round(view->data().value(curve(channel), frame) * 100) / 100;
    }
    void undoAll()
    {
        for (int i = 0; i < 20 && undoAction()->isEnabled(); ++i)
            undoAction()->trigger();
    }

    const TestFolder &folder;
    ShownWindow window;
    CurveView *view;
    FloatSpinBox *value;
    QByteArray bytes;
};
