// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ValueNames.h"

#include "EventArguments.h"
#include "NameTables.h"
#include "ReferenceTables.h"

#include <algorithm>
#include <functional>

namespace {
using Named = std::function<void(double number, const QString &name)>;

void eachBone(const SkinnedMesh &mesh, const Named &visit)
{
    for (int i = 0; i < int(mesh.nodes.size()); ++i) {
        if (!mesh.nodes[size_t(i)].name.isEmpty())
            visit(i, mesh.nodes[size_t(i)].name);
        visit(i, boneSymbolName(mesh, i));
    }
}

void eachReference(ReferenceKind kind, const Named &visit)
{
    ReferenceTables &tables = ReferenceTables::shared();
    for (const ReferenceRow &row : tables.table(kind).rows) {
        // Of several rows with one number the first gives the name.
        if (tables.find(kind, row.number) == &row)
            visit(row.number, row.name.trimmed());
    }
}

/// Each number that the meaning's names tell of, some more than once.
void eachName(const WordMeaning &meaning, const SkinnedMesh *mesh, const Named &visit)
{
    if (meaning.isBone && mesh)
        eachBone(*mesh, visit);
    if (meaning.question == Question::Animation && mesh) {
        for (auto it = mesh->animationNames.begin(); it != mesh->animationNames.end(); ++it)
            visit(it.key(), it.value());
    }
    if (const auto kind = referenceOf(meaning.question))
        eachReference(*kind, visit);
    const QStringList names = meaning.field ? meaning.field->names() : QStringList();
    for (int i = 0; i < names.size(); ++i) {
        // Events have their number before the name.
        const int colon = names[i].indexOf(QLatin1String(": "));
        visit(i, colon < 0 ? names[i] : names[i].mid(colon + 2));
    }
}

bool hasAllWords(const QString &name, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(),
                       [&name](const QString &word) { return name.contains(word, Qt::CaseInsensitive); });
}

void sortOut(std::vector<double> &numbers)
{
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}
} // namespace

bool ValueNames::hasNames(const WordMeaning &meaning)
{
    return meaning.isBone || referenceOf(meaning.question) ||
           (meaning.field && !meaning.field->names().isEmpty());
}

QStringList ValueNames::namesOf(const WordMeaning &meaning, const SkinnedMesh *mesh)
{
    QStringList names;
    eachName(meaning, mesh, [&names](double, const QString &name) { names << name; });
    names.removeDuplicates();
    return names;
}

std::vector<double> ValueNames::numbersCalled(const WordMeaning &meaning, const QString &name, bool isPart,
                                              const SkinnedMesh *mesh)
{
    const QStringList words = name.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString whole = words.join(QLatin1Char(' '));
    std::vector<double> same;
    std::vector<double> alike;
    if (words.isEmpty())
        return alike;
    eachName(meaning, mesh, [&](double number, const QString &each) {
        if (each.compare(whole, Qt::CaseInsensitive) == 0)
            same.push_back(number);
        if (hasAllWords(each, words))
            alike.push_back(number);
    });
    std::vector<double> &found = isPart || same.empty() ? alike : same;
    sortOut(found);
    return found;
}

std::vector<double> ValueNames::bonesBelow(const QString &name, const SkinnedMesh *mesh)
{
    WordMeaning bone;
    bone.isBone = true;
    bool isNumber = false;
    const int number = name.trimmed().toInt(&isNumber);
    std::vector<double> found;
    if (!isNumber)
        found = numbersCalled(bone, name, false, mesh);
    else if (mesh && number >= 0 && number < int(mesh->nodes.size()))
        found = {double(number)};
    std::vector<bool> isIn(mesh ? mesh->nodes.size() : 0);
    for (const double each : found)
        isIn[size_t(each)] = true;
    // Whatever the hierarchy says, each bone is taken once.
    for (size_t i = 0; i < found.size(); ++i) {
        for (size_t child = 0; child < isIn.size(); ++child) {
            if (isIn[child] || double(mesh->nodes[child].parentNode) != found[i])
                continue;
            isIn[child] = true;
            found.push_back(double(child));
        }
    }
    sortOut(found);
    return found;
}
