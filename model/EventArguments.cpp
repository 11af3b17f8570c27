// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EventArguments.h"

#include "ReferenceTables.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace {
struct EventRow
{
    std::vector<int> types;
    std::vector<EventArgument> arguments;
};

const EventRow eventRows[] = {
    {{0, 31, 32}, {{QT_TRANSLATE_NOOP("EventArguments", "Sound ID"), Question::Sound}}},
    {{1, 8, 11}, {{QT_TRANSLATE_NOOP("EventArguments", "Particle ID"), Question::Particle}}},
    {{2, 3, 4, 15, 16, 17, 18, 19, 20, 25, 33},
     {{QT_TRANSLATE_NOOP("EventArguments", "Radius"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Damage"), Question::Damage},
      {nullptr, {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Blood Spray X"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Blood Spray Y"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Blood Spray Z"), {}}}},
    {{9},
     {{QT_TRANSLATE_NOOP("EventArguments", "Alpha"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Red"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Green"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Blue"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Attack Time"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Sustain Time"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Decay Time"), {}}}},
    {{12, 13},
     {{QT_TRANSLATE_NOOP("EventArguments", "X Axis"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Y Axis"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Z Axis"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "Radius"), {}}}},
    {{22},
     {{QT_TRANSLATE_NOOP("EventArguments", "UserEvent Arg 1"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "UserEvent Arg 2"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "UserEvent Arg 3"), {}},
      {QT_TRANSLATE_NOOP("EventArguments", "UserEvent Arg 4"), {}}}},
    {{23},
     {{QT_TRANSLATE_NOOP("EventArguments", "Sound ID"), Question::Sound},
      {QT_TRANSLATE_NOOP("EventArguments", "Model Index"), {}}}},
    {{24},
     {{QT_TRANSLATE_NOOP("EventArguments", "Particle ID"), Question::Particle},
      {QT_TRANSLATE_NOOP("EventArguments", "Model Index"), {}}}},
    {{26, 27}, {{QT_TRANSLATE_NOOP("EventArguments", "Hot Point Bit"), {}}}},
    {{28},
     {{QT_TRANSLATE_NOOP("EventArguments", "Actor Type ID"), Question::Actor},
      {QT_TRANSLATE_NOOP("EventArguments", "Scale"), {}}}},
    {{29},
     {{QT_TRANSLATE_NOOP("EventArguments", "Sound ID"), Question::Sound},
      {QT_TRANSLATE_NOOP("EventArguments", "Impact Type"), Question::Impact}}},
    {{30}, {{QT_TRANSLATE_NOOP("EventArguments", "Voice ID"), Question::Voice}}},
};
} // namespace

EventArgument eventArgument(int eventType, int argument)
{
    const auto *row =
        std::find_if(std::begin(eventRows), std::end(eventRows), [eventType](const EventRow &each) {
            return std::find(each.types.begin(), each.types.end(), eventType) != each.types.end();
        });
    if (row == std::end(eventRows) || argument < 0 || size_t(argument) >= row->arguments.size())
        return {nullptr, {}};
    return row->arguments[size_t(argument)];
}

std::optional<ReferenceKind> referenceOf(QLatin1String question)
{
    constexpr std::pair<QLatin1String, ReferenceKind> tables[] = {
        {Question::Actor, ReferenceKind::Actors},         {Question::Sound, ReferenceKind::Sounds},
        {Question::Animation, ReferenceKind::Animations}, {Question::Voice, ReferenceKind::Voices},
        {Question::Particle, ReferenceKind::Particles},   {Question::Impact, ReferenceKind::Impacts}};
    for (const auto &[key, kind] : tables) {
        if (key == question)
            return kind;
    }
    return std::nullopt;
}

QString argumentName(int eventType, int argument, float value)
{
    return numberName(eventArgument(eventType, argument).question, double(value));
}

QString numberName(QLatin1String question, double value)
{
    const auto kind = referenceOf(question);
    return kind ? ReferenceTables::shared().name(*kind, value) : QString();
}
