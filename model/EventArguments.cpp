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
     {{LABEL("Radius"), nullptr},
      {LABEL("Damage"), Question::Damage},
      {nullptr, nullptr},
      {LABEL("Blood Spray X"), nullptr},
      {LABEL("Blood Spray Y"), nullptr},
      {LABEL("Blood Spray Z"), nullptr}}},
    {{9},
     {{LABEL("Alpha"), nullptr},
      {LABEL("Red"), nullptr},
      {LABEL("Green"), nullptr},
      {LABEL("Blue"), nullptr},
      {LABEL("Attack Time"), nullptr},
      {LABEL("Sustain Time"), nullptr},
      {LABEL("Decay Time"), nullptr}}},
    {{12, 13},
     {{LABEL("X Axis"), nullptr},
      {LABEL("Y Axis"), nullptr},
      {LABEL("Z Axis"), nullptr},
      {LABEL("Radius"), nullptr}}},
    {{22},
     {{LABEL("UserEvent Arg 1"), nullptr},
      {LABEL("UserEvent Arg 2"), nullptr},
      {LABEL("UserEvent Arg 3"), nullptr},
      {LABEL("UserEvent Arg 4"), nullptr}}},
    {{23}, {{LABEL("Sound ID"), Question::Sound}, {LABEL("Model Index"), nullptr}}},
    {{24}, {{LABEL("Particle ID"), Question::Particle}, {LABEL("Model Index"), nullptr}}},
    {{26, 27}, {{LABEL("Hot Point Bit"), nullptr}}},
    {{28}, {{LABEL("Actor Type ID"), Question::Actor}, {LABEL("Scale"), nullptr}}},
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
        return {nullptr, nullptr};
    return row->arguments[size_t(argument)];
}
