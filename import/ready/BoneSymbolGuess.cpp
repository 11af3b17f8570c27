// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoneSymbolGuess.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {
enum Type { Body, Head, Arm, Leg };

struct Word
{
    const char *word; ///< in the name, written without blanks and signs; a short one as a word of its own
    Type type;
    int part; ///< see bonePartNames()
};

// The first that fits counts: "forearm" before "arm", "upleg" before "leg". A leg that is neither upper nor
// lower is what most programs call the lower one.
constexpr Word Words[] = {
    {"eyebrow", Head, 1},    {"brow", Head, 1},       {"eye", Head, 1},        {"nose", Head, 1},
    {"face", Head, 1},       {"jaw", Head, 2},        {"chin", Head, 2},       {"mouth", Head, 2},
    {"neck", Head, 3},       {"forehead", Head, 1},   {"head", Head, 0},       {"skull", Head, 0},
    {"forearm", Arm, 2},     {"lowerarm", Arm, 2},    {"lowarm", Arm, 2},      {"armlow", Arm, 2},
    {"elbow", Arm, 2},       {"upperarm", Arm, 1},    {"uparm", Arm, 1},       {"armup", Arm, 1},
    {"thumb", Arm, 3},       {"finger", Arm, 3},      {"hand", Arm, 3},        {"wrist", Arm, 3},
    {"palm", Arm, 3},        {"shoulder", Arm, 0},    {"clavicle", Arm, 0},    {"collar", Arm, 0},
    {"arm", Arm, 1},         {"upperleg", Leg, 1},    {"upleg", Leg, 1},       {"legup", Leg, 1},
    {"thigh", Leg, 1},       {"lowerleg", Leg, 2},    {"lowleg", Leg, 2},      {"leglow", Leg, 2},
    {"calf", Leg, 2},        {"shin", Leg, 2},        {"knee", Leg, 2},        {"foot", Leg, 3},
    {"ankle", Leg, 3},       {"toes", Leg, 3},        {"toe", Leg, 3},         {"heel", Leg, 3},
    {"leg", Leg, 2},         {"hips", Body, 3},       {"pelvis", Body, 3},     {"hip", Leg, 0},
    {"upperchest", Body, 1}, {"chest", Body, 1},      {"uppertorso", Body, 1}, {"torso", Body, 1},
    {"ribs", Body, 1},       {"abdomen", Body, 2},    {"waist", Body, 2},      {"stomach", Body, 2},
    {"belly", Body, 2},      {"lowertorso", Body, 2},
};

constexpr int LongestShortWord = 3;

/// "LeftUpLeg", "b_left_upleg.001" → "left", "up", "leg".
QStringList wordsOf(const QString &name)
{
    static const QRegularExpression word(QStringLiteral("[A-Z]*[a-z]+|[A-Z]+"));
    QStringList words;
    auto found = word.globalMatch(name);
    while (found.hasNext())
        words += found.next().captured().toLower();
    return words;
}

bool isControl(const QStringList &words)
{
    static const QStringList controls{
        QStringLiteral("ik"),   QStringLiteral("pole"),   QStringLiteral("target"), QStringLiteral("control"),
        QStringLiteral("ctrl"), QStringLiteral("handle"), QStringLiteral("slot")};
    return std::any_of(words.begin(), words.end(),
                       [](const QString &word) { return controls.contains(word); });
}

enum class Side { None, Left, Right };

/// Takes the side's word away, so that "hand.l" is a hand and nothing else.
Side takeSide(QStringList &words)
{
    for (const auto &[side, letter, whole] :
         {std::tuple(Side::Left, "l", "left"), std::tuple(Side::Right, "r", "right")}) {
        for (QString &word : words) {
            if (word == QLatin1String(letter)) {
                word.clear();
                return side;
            }
            if (word.startsWith(QLatin1String(whole)) || word.endsWith(QLatin1String(whole))) {
                word.remove(QLatin1String(whole));
                return side;
            }
        }
    }
    return Side::None;
}
} // namespace

std::optional<qint8> guessedSymbolFlags(const QString &name)
{
    QStringList words = wordsOf(name);
    if (isControl(words))
        return std::nullopt;
    const Side side = takeSide(words);
    const QString joined = words.join(QString());
    const Word *found = std::find_if(std::begin(Words), std::end(Words), [&](const Word &each) {
        // An armature has no arms.
        const QLatin1String word(each.word);
        return word.size() > LongestShortWord ? joined.contains(word) : words.contains(word);
    });
    Type type = Body;
    int part = 0;
    if (joined.startsWith(QLatin1String("spine"))) {
        // The first above the hips is the lower half of the torso, whatever number it begins with.
        type = Body;
        part = name.contains(QRegularExpression(QStringLiteral("0*[2-9]\\b"))) ? 1 : 2;
    } else if (found != std::end(Words)) {
        type = found->type;
        part = found->part;
        // A hip of no side is both: the pelvis.
        if (type == Leg && part == 0 && side == Side::None) {
            type = Body;
            part = 3;
        }
    } else {
        return std::nullopt;
    }
    const int sideBit = side == Side::Right && type != Body ? 4 : 0;
    return qint8(type | sideBit | part << 6);
}
