// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "ModelComparison.h"
#include "ModelText.h"
#include "Output.h"
#include "Verbs.h"

#include <QJsonObject>
#include <QMap>

namespace {
/// As of other programs that compare files.
enum DiffCode : int { Same = 0, Different = 1, Trouble = 2 };

/// So many records of one kind are listed.
constexpr int MostListed = 20;

const char *stateName(RecordDifference::State state)
{
    switch (state) {
    case RecordDifference::State::OnlyMine:
        return "removed";
    case RecordDifference::State::OnlyTheirs:
        return "added";
    case RecordDifference::State::Changed:
        break;
    }
    return "changed";
}

QString distanceText(const RecordDifference &track)
{
    return track.mine.kind == RecordKind::RotationTrack
               ? QStringLiteral("%1 degrees").arg(track.distance, 0, 'g', 4)
               : QStringLiteral("%1").arg(track.distance, 0, 'g', 4);
}

bool isTrack(const RecordDifference &difference)
{
    return difference.mine.kind == RecordKind::TranslationTrack ||
           difference.mine.kind == RecordKind::RotationTrack;
}

/// The records of one list, some of each kind.
void print(const std::vector<RecordDifference> &differences, const QString &indent, bool listsAll)
{
    RecordKind kind = RecordKind::None;
    int listed = 0;
    int left = 0;
    const auto endList = [&] {
        if (left > 0)
            Output::line(QStringLiteral("%1  and %2 more; --all lists them").arg(indent).arg(left));
        listed = left = 0;
    };
    for (const RecordDifference &each : differences) {
        const RecordKind its = each.mine.kind == RecordKind::None ? each.theirs.kind : each.mine.kind;
        if (its != kind)
            endList();
        kind = its;
        if (!listsAll && ++listed > MostListed) {
            ++left;
            continue;
        }
        const char *mark = each.state == RecordDifference::State::Changed    ? " "
                           : each.state == RecordDifference::State::OnlyMine ? "-"
                                                                             : "+";
        const bool hasDistance = isTrack(each) && each.state == RecordDifference::State::Changed;
        Output::line(
            QStringLiteral("%1%2 %3%4")
                .arg(indent, QLatin1String(mark), each.name,
                     hasDistance ? QStringLiteral(": up to %1 apart").arg(distanceText(each)) : QString()));
        for (const FieldDifference &field : each.fields)
            Output::line(
                QStringLiteral("%1    %2: %3 -> %4").arg(indent, field.field, field.mine, field.theirs));
        print(each.children, indent + QStringLiteral("  "), listsAll);
    }
    endList();
}

QJsonArray toJson(const std::vector<RecordDifference> &differences)
{
    QJsonArray array;
    for (const RecordDifference &each : differences) {
        QJsonObject object{{QStringLiteral("record"), each.name},
                           {QStringLiteral("state"), QLatin1String(stateName(each.state))}};
        if (isTrack(each) && each.state == RecordDifference::State::Changed)
            object[QStringLiteral("distance")] = each.distance;
        QJsonArray fields;
        for (const FieldDifference &field : each.fields) {
            fields += QJsonObject{{QStringLiteral("field"), field.field},
                                  {QStringLiteral("old"), field.mine},
                                  {QStringLiteral("new"), field.theirs}};
        }
        if (!fields.isEmpty())
            object[QStringLiteral("fields")] = fields;
        if (!each.children.empty())
            object[QStringLiteral("records")] = toJson(each.children);
        array += object;
    }
    return array;
}

/// The names that two models have for other things, or one of them has alone.
template <typename Number>
void compareNames(const QString &place, const QHash<Number, QString> &a, const QHash<Number, QString> &b,
                  RecordDifference &difference)
{
    QMap<Number, bool> numbers;
    for (const Number number : a.keys() + b.keys())
        numbers.insert(number, true);
    for (const Number number : numbers.keys()) {
        if (a.value(number) != b.value(number))
            difference.fields.push_back({place.arg(number),
                                         QString::fromUtf8(JsonWriter::textOf(a.value(number))),
                                         QString::fromUtf8(JsonWriter::textOf(b.value(number))), true});
    }
}

std::vector<RecordDifference> differencesOf(const ModelJson::Content &a, const ModelJson::Content &b,
                                            bool listsAll)
{
    std::vector<RecordDifference> differences = std::visit(
        [&](const auto &mine) {
            const auto &theirs = std::get<std::decay_t<decltype(mine)>>(b.model);
            return listsAll ? ModelComparison::compare(mine, theirs)
                            : ModelComparison::compare(mine, theirs, MostListed);
        },
        a.model);
    // A model without names is often a copy that came without the file.
    const ModelNames names = namesOf(a);
    const ModelNames others = namesOf(b);
    RecordDifference named;
    named.name = QStringLiteral("names");
    if (!names.isEmpty() && !others.isEmpty()) {
        compareNames(QStringLiteral("animation %1"), names.animations, others.animations, named);
        compareNames(QStringLiteral("bone %1"), names.bones, others.bones, named);
    }
    if (!named.fields.empty())
        differences.push_back(std::move(named));
    if (a.behind != b.behind) {
        RecordDifference behind;
        behind.name = QStringLiteral("bytes behind the last record");
        behind.fields.push_back({QStringLiteral("behind"), QString::fromLatin1(a.behind.toHex()),
                                 QString::fromLatin1(b.behind.toHex()), true});
        differences.push_back(std::move(behind));
    }
    return differences;
}
} // namespace

int diff(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("diff"), QStringLiteral("FILE FILE"),
        QStringLiteral(
            "Says in which records and fields two models of one kind differ: the first one's "
            "value, then the second one's. Blocks are matched by id, other records by number. Names of bones "
            "and animations count where both have some. Exit status: 0 the same, 1 different, 2 trouble."));
    line.flag(QStringLiteral("json"),
              QStringLiteral("Write a JSON array with an object for each record that differs."));
    line.flag(QStringLiteral("all"),
              QStringLiteral("List all records, not only the first %1 of a list.").arg(MostListed));
    if (const auto end = line.parse(arguments, true))
        return *end;
    const QStringList files = line.operands();
    if (files.size() != 2)
        return line.refuse(QStringLiteral("Two files are wanted, not %1.").arg(files.size()));
    ModelJson::Content contents[2];
    for (int i = 0; i < 2; ++i) {
        QString note;
        const QString error = readWholeModel(files.at(i), contents[i], note);
        if (!error.isEmpty()) {
            Output::complain(QStringLiteral("%1: %2").arg(files.at(i), error));
            return Trouble;
        }
        if (!note.isEmpty())
            Output::complain(QStringLiteral("%1: warning: %2").arg(files.at(i), note));
    }
    if (contents[0].model.index() != contents[1].model.index()) {
        Output::complain(
            QStringLiteral("These are models of two kinds: %1 and %2.")
                .arg(ModelJson::kindOf(contents[0].model), ModelJson::kindOf(contents[1].model)));
        return Trouble;
    }
    const bool isJson = line.isSet(QStringLiteral("json"));
    const bool listsAll = line.isSet(QStringLiteral("all"));
    const std::vector<RecordDifference> differences =
        differencesOf(contents[0], contents[1], isJson || listsAll);
    if (isJson)
        Output::json(toJson(differences));
    else
        print(differences, QString(), listsAll);
    return differences.empty() ? Same : Different;
}
