// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"
#include "FlightTool.h"
#include "TestSupport.h"
#include "ViewTools.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>

/// Input that is written down, for the tools of the view.
namespace RecordedHand {
inline constexpr float Tick = 0.001f;
inline const QVector3D Pivot(0.0f, 300.0f, 0.0f); // in the middle of the start view

/// A bone at 10,0, a hot point at 20,0 and a surface at 40,0.
class FixedSight : public ViewSight
{
public:
    HitMarks marksAt(const QPoint &pixel) const override
    {
        return {pixel == QPoint(10, 0) ? 3 : HitMarks::None, pixel == QPoint(20, 0) ? 5 : HitMarks::None};
    }
    int surfaceAt(const QPoint &pixel) const override { return pixel == QPoint(40, 0) ? 7 : HitMarks::None; }
    QVector3D pivot() const override { return Pivot; }
    ScreenMap screenMap() const override { return {{}, {}, {400, 300}}; }
};

/// A hand at mouse and keys of a view of 400 by 300.
class Hand
{
public:
    explicit Hand(const char *words = "", const ViewSight &sight = fixedSight())
        : tools(
              camera, sight, [this](PickTool::Kind kind, int index) { pick(kind, index); },
              [this](const QPoint &, const QString &tip) { tips += '"' + tip.toStdString() + "\" "; })
    {
        tools.flight->setSpeed(1.0f);
        m_with.size = {400, 300};
        m_with.position = m_with.centre();
        play(words);
    }

    /// L R M B press a button, l r m b release it; +w presses a key and -w releases it (^ is Shift), ! before
    /// it makes it a repeat; 5,6 moves the mouse, from the middle where it is captured; @5,6 moves it to a
    /// place; wheel5,6 turns the wheel; alt, ctrl, meta are held from then on; wide makes the view wider; .
    /// is a tick and ~ enough of them for everything to come to rest.
    void play(const char *words)
    {
        std::istringstream stream(words);
        for (std::string word; stream >> word;) {
            if (!takes(word))
                told += word + ' ';
            if (tools.cursor() == ViewCursor::Captured)
                m_with.position = m_with.centre();
        }
    }
    QVector3D way() const { return camera.position() - Camera().position(); }

    Camera camera;
    std::string told; ///< what was hit, and inputs that nobody took
    std::string tips;
    int nothing = 0; ///< clicks that hit nothing

private:
    void pick(PickTool::Kind kind, int index)
    {
        // The mouse has to be given back by then.
        nothing += kind == PickTool::Kind::Nothing ? 1 : 0;
        if (kind == PickTool::Kind::Nothing)
            return;
        told += tools.cursor() == ViewCursor::Arrow ? "sbh"[int(kind)] : '!';
        told += std::to_string(index) + ' ';
    }
    bool takes(const std::string &word)
    {
        static const std::map<std::string, Qt::KeyboardModifier> modifiers{
            {"alt", Qt::AltModifier}, {"ctrl", Qt::ControlModifier}, {"meta", Qt::MetaModifier}};
        int x = 0, y = 0;
        if (modifiers.count(word)) {
            m_with.modifiers = modifiers.at(word);
        } else if (word == ".") {
            tools.tick(Tick);
        } else if (word == "~") {
            // Two ticks in one millisecond are common: nothing may divide by their distance.
            for (int i = 0; i < 4000; ++i)
                tools.tick(i % 2 == 0 ? 0.0f : Tick);
        } else if (word == "+esc") {
            m_with.key = Qt::Key_Escape;
            return tools.keyPress(m_with);
        } else if (word == "plain") {
            m_with.modifiers = {};
        } else if (word == "wide") {
            m_with.size.rwidth() += 100;
        } else if (word == "cancel") {
            tools.cancel();
        } else if (word == "leave") {
            tools.leave();
        } else if (word == "look") {
            camera.lookFrom(Camera::Side::Left, Pivot);
        } else if (word == "frame") {
            camera.frame({Pivot}, m_with.size);
        } else if (sscanf(word.c_str(), "wheel%d,%d", &x, &y) == 2) {
            m_with.wheelTurn = {x, y};
            return tools.wheel(m_with);
        } else if (sscanf(word.c_str(), "@%d,%d", &x, &y) == 2) {
            m_with.step = QPoint(x, y) - m_with.position;
            m_with.position = {x, y};
            tools.move(m_with);
        } else if (sscanf(word.c_str(), "%d,%d", &x, &y) == 2) {
            m_with.step = {x, y};
            m_with.position += m_with.step;
            tools.move(m_with);
        } else if (word.size() > 1) {
            m_with.key = word.back() == '^' ? int(Qt::Key_Shift) : toupper(word.back());
            m_with.autoRepeat = word[0] == '!';
            return word.find('+') != word.npos ? tools.keyPress(m_with) : tools.keyRelease(m_with);
        } else {
            const bool down = std::isupper(word[0]) != 0;
            m_with.button = Qt::MouseButton(1 << std::string("LRMB").find(char(toupper(word[0]))));
            m_with.buttons.setFlag(m_with.button, down);
            down ? void(tools.press(m_with)) : tools.release(m_with);
        }
        return true;
    }

    static const FixedSight &fixedSight()
    {
        static const FixedSight sight;
        return sight;
    }

    ViewInput m_with; ///< of the next input

public:
    ViewTools tools;
};

inline bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 0.01f;
}
} // namespace RecordedHand
