// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EventArguments.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {
struct EventRow
{
    std::vector<int> types;
    std::vector<EventArgument> arguments;
};

#define LABEL(text) QT_TRANSLATE_NOOP("EventArguments", text)
const EventRow rows[] = {
    {{0, 31, 32}, {{LABEL("Sound ID"), Question::Sound}}},
    {{1, 8, 11}, {{LABEL("Particle ID"), Question::Particle}}},
    {{2, 3, 4, 15, 16, 17, 18, 19, 20, 25, 33},
     {{LABEL("Radius"), {}},
      {LABEL("Damage"), Question::Damage},
      {nullptr, {}},
      {LABEL("Blood Spray X"), {}},
      {LABEL("Blood Spray Y"), {}},
      {LABEL("Blood Spray Z"), {}}}},
    {{9},
     {{LABEL("Alpha"), {}},
      {LABEL("Red"), {}},
      {LABEL("Green"), {}},
      {LABEL("Blue"), {}},
      {LABEL("Attack Time"), {}},
      {LABEL("Sustain Time"), {}},
      {LABEL("Decay Time"), {}}}},
    {{12, 13}, {{LABEL("X Axis"), {}}, {LABEL("Y Axis"), {}}, {LABEL("Z Axis"), {}}, {LABEL("Radius"), {}}}},
    {{22},
     {{LABEL("UserEvent Arg 1"), {}},
      {LABEL("UserEvent Arg 2"), {}},
      {LABEL("UserEvent Arg 3"), {}},
      {LABEL("UserEvent Arg 4"), {}}}},
    {{23}, {{LABEL("Sound ID"), Question::Sound}, {LABEL("Model Index"), {}}}},
    {{24}, {{LABEL("Particle ID"), Question::Particle}, {LABEL("Model Index"), {}}}},
    {{26, 27}, {{LABEL("Hot Point Bit"), {}}}},
    {{28}, {{LABEL("Actor Type ID"), Question::Actor}, {LABEL("Scale"), {}}}},
    {{29}, {{LABEL("Sound ID"), Question::Sound}, {LABEL("Impact Type"), Question::Impact}}},
    {{30}, {{LABEL("Voice ID"), Question::Voice}}},
};
#undef LABEL
} // namespace

EventArgument eventArgument(int eventType, int argument)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows), [eventType](const EventRow &each) {
        return std::find(each.types.begin(), each.types.end(), eventType) != each.types.end();
    });
    if (row == std::end(rows) || argument < 0 || size_t(argument) >= row->arguments.size())
        return {nullptr, {}};
    return row->arguments[size_t(argument)];
}
