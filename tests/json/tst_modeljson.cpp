// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FieldPatch.h"
#include "FormatMutator.h"
#include "ModelJson.h"
#include "ModelNames.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace ModelJson;

namespace {
QByteArray textOf(const Content &content)
{
    QByteArray text;
    write(content, [&text](const QByteArray &part) { text += part; });
    return text;
}

/// What the model would be saved as.
QByteArray savedAs(const Content &content)
{
    return std::visit([](const auto &model) { return SampleModels::bytesOf(model); }, content.model) +
           content.behind;
}

/// "line:column text", or nothing.
QString refusal(const QByteArray &text)
{
    Content content;
    const JsonProblem problem = read(text, content);
    return problem.text.isEmpty()
               ? QString()
               : QStringLiteral("%1:%2 %3")
                     .arg(QString::number(problem.line), QString::number(problem.column), problem.text);
}

/// Whether a value is as a schema wants it, as far as ours say.
bool fits(const QJsonValue &value, const QJsonObject &schema, const QJsonObject &definitions)
{
    if (schema.contains("$ref"))
        return fits(value, definitions[schema["$ref"].toString().section('/', -1)].toObject(), definitions);
    if (schema.contains("const"))
        return value == schema["const"];
    if (schema.contains("anyOf")) {
        for (const auto &each : schema["anyOf"].toArray()) {
            if (fits(value, each.toObject(), definitions))
                return true;
        }
        return false;
    }
    const QString type = schema["type"].toString();
    if (type == "string")
        return value.isString() &&
               QRegularExpression(schema["pattern"].toString()).match(value.toString()).hasMatch();
    if (type == "number" || type == "integer")
        return value.isDouble() && value.toDouble() >= schema["minimum"].toDouble(-1e99) &&
               value.toDouble() <= schema["maximum"].toDouble(1e99);
    if (type == "array") {
        const QJsonArray entries = value.toArray();
        bool all = value.isArray() && entries.size() >= schema["minItems"].toInt() &&
                   entries.size() <= schema["maxItems"].toInt(1 << 30);
        for (const auto &each : entries)
            all = all && fits(each, schema["items"].toObject(), definitions);
        return all;
    }
    const QJsonObject object = value.toObject();
    const QJsonObject properties = schema["properties"].toObject();
    const QJsonValue others = schema["additionalProperties"];
    bool all = type == "object" && value.isObject() && (others.isObject() || others == QJsonValue(false));
    const QRegularExpression name(schema["propertyNames"].toObject()["pattern"].toString());
    for (const auto &key : schema["required"].toArray())
        all = all && object.contains(key.toString());
    for (auto each = object.begin(); each != object.end(); ++each) {
        const QJsonValue own = others.isObject() ? others : properties[each.key()];
        all = all && name.match(each.key()).hasMatch() && own.isObject() &&
              fits(*each, own.toObject(), definitions);
    }
    return all;
}
} // namespace

/// Models as JSON text and back.
class tst_ModelJson : public QObject
{
    Q_OBJECT

private:
    /// Writes the model that a file of these bytes holds, if it holds one, and reads it again. Returns
    /// whether there was one that can be saved.
    static bool comesBack(const QString &suffix, const QByteArray &bytes)
    {
        bool isModel = false;
        SampleModels::withModel(suffix, [&](auto model) {
            if (SampleModels::readBytes(model, bytes) || !model.refusal().isEmpty() ||
                LiteralFormat(suffix, bytes).hasNegativeCount())
                return;
            isModel = true;
            const QByteArray behind = bytes.right(int(model.bytesBehind));
            const QByteArray text = textOf({std::move(model), behind});
            Content again;
            const JsonProblem problem = read(text, again);
            QVERIFY2(problem.text.isEmpty(), qUtf8Printable(refusal(text)));
            QCOMPARE(kindOf(again.model), suffix);
            QVERIFY(savedAs(again) == bytes);
            QVERIFY(textOf(again) == text);
        });
        return isModel;
    }

private slots:
    void filesComeBack()
    {
        for (const QString &file : TestSupport::allModelFiles()) {
            QVERIFY2(comesBack(QFileInfo(file).suffix(), TestSupport::readFile(file)), qUtf8Printable(file));
            if (QTest::currentTestFailed())
                return;
        }
    }

    void mutantsComeBack()
    {
        int models = 0;
        for (int seed = 0; seed < 2000 && !QTest::currentTestFailed(); ++seed) {
            const QString &suffix = SampleModels::suffixes()[seed % 3];
            QByteArray bytes = SampleModels::bytesOfSample(suffix);
            models += comesBack(suffix, FormatMutator(quint64(seed)).mutated(suffix, bytes));
        }
        QVERIFY2(models > 1000, qUtf8Printable(QString::number(models)));
    }

    void everyFloatComesBack()
    {
        // One of each exponent, both signs, with odd ends: numbers, denormals, infinities and NaN.
        for (quint32 high = 0; high < 512; ++high) {
            for (const quint32 low : {0U, 1U, 0x2aaaabU, 0x400000U, 0x7fffffU}) {
                const float value = SampleModels::floatOfBits(high << 23 | low);
                StaticMesh mesh = SampleModels::plainStatic();
                mesh.bbMin = {value, value, value};
                Content again;
                QVERIFY(read(textOf({mesh, {}}), again).text.isEmpty());
                QCOMPARE(
                    std::memcmp(&std::get<StaticMesh>(again.model).bbMin, &mesh.bbMin, sizeof mesh.bbMin), 0);
            }
        }
        QCOMPARE(JsonWriter::textOf(QVector3D(0.1f, -0.0f, 1e-7f)), QByteArray("[0.1, -0.0, 1e-07]"));
        QCOMPARE(JsonWriter::textOf(QVector2D(SampleModels::oddFloats[1], 16777216.0f)),
                 QByteArray("[\"0xffc12345\", 16777216]"));
    }

    void namesTravelAlong()
    {
        SkinnedMesh mesh = SampleModels::plainMesh();
        mesh.nodes[2].name = QString::fromUtf8("H\u00fcfte \u0416\x01");
        mesh.animationNames = {{-3, "idle"}, {12, "walk"}};
        const QByteArray text = textOf({mesh, "m"});
        const QByteArray names =
            "\n \"names\": {\n  \"animations\": {\n   \"-3\": \"idle\",\n   \"12\": \"walk\"\n"
            "  },\n  \"bones\": {\n   \"2\": \"H\u00fcfte \\u0416\\u0001\"\n  }\n },\n \"behind\"";
        QVERIFY2(text.contains(names), text.right(300));
        Content again;
        QCOMPARE(read(text, again).text, QString());
        QVERIFY(ModelNames::of(std::get<SkinnedMesh>(again.model)) == ModelNames::of(mesh));
        QCOMPARE(textOf(again), text);
        struct Row
        {
            const char *from, *to, *refusal;
        };
        const Row rows[] = {{"\"2\": ", "\"4\": ", "There is no bone 4, which has a name here."},
                            {"\"12\"", "\"012\"", "The key of a name is a number."},
                            {"\"12\"", "\"-3\"", "\"-3\" stands here twice."},
                            {"\"walk\"", "\" walk\"", "A name is a line of 1 to 128 characters."},
                            {"\"walk\"", "\"\\ud800\"", "A name is a line of 1 to 128 characters."},
                            {"\"walk\"", "5", "A text in quotes is wanted here, not '5'."},
                            {"\"animations\"", "\"animation\"", "There is no \"animation\""}};
        for (const Row &row : rows) {
            const QString reason = refusal(QByteArray(text).replace(row.from, row.to));
            QVERIFY2(reason.section(' ', 1).startsWith(row.refusal),
                     qUtf8Printable(row.to + (": " + reason)));
        }
        QVERIFY(
            refusal(
                textOf({SampleModels::plainStatic(), {}}).replace("{\n \"kind", "{ \"names\": {},\n \"kind"))
                .contains("There is no \"names\""));
    }

    void otherProgramsMayWriteIt()
    {
        for (const QString &suffix : SampleModels::suffixes()) {
            SampleModels::withModel(suffix, [](auto model) {
                model = SampleModels::plainModel<decltype(model)>();
                const QByteArray text = textOf({model, "more"});
                Content again;
                // Keys in another order, no blanks; CRLF; a mark at the beginning; another way to write the
                // same.
                for (const QByteArray &other :
                     {QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact),
                      QByteArray(text).replace("\n", "\r\n"), "\xef\xbb\xbf" + text,
                      QByteArray(text)
                          .replace("\"version\": ", "\"$schema\": [{}, null], \"\\u0076ersion\":")
                          .replace("2", "20e-1")
                          .replace("\"behind\": \"6d6f7265\"", "\"behind\": \"6D6F7265\"")
                          .replace("20e-1", "2")
                          .replace("\"bbMin\": [0,", "\"bbMin\": [0.0e5, ")}) {
                    const QString reason = refusal(other);
                    QVERIFY2(reason.isEmpty(), qUtf8Printable(reason));
                    QVERIFY(read(other, again).text.isEmpty());
                    QCOMPARE(savedAs(again), SampleModels::bytesOf(model) + "more");
                }
            });
        }
    }

    void refusesWhatCannotBe()
    {
        struct Row
        {
            const char *kind, *from, *to, *refusal;
        };
        const Row rows[] = {
            {"anim", "\"speed\": 1", "\"sped\": 1", "12:4 There is no \"sped\""},
            {"anim", "\"speed\": 1,", "", "6:3 \"speed\" is missing"},
            {"anim", "\"speed\": 1", "\"speed\": 1, \"speed\": 1", "12:16 \"speed\" stands here twice"},
            {"anim", "\"schema\": 1", "\"schema\": 1, \"schema\": 1", "3:15 \"schema\" stands here twice"},
            {"anim", "\"schema\": 1", "\"schema\": 2", "3:12 This is a text of schema 2"},
            {"anim", "\"schema\": 1,", "", "1:1 \"schema\" is missing"},
            {"anim", "\"kind\": \"anim\",", "", "1:1 \"kind\" is missing"},
            {"anim", "\"anim\"", "\"animation\"", "2:10 The kind is one of skinnedmesh, anim"},
            {"anim", "\"blendEnd\": 0", "\"blendEnd\": 65536", "11:16 A whole number from 0 to 65535"},
            {"anim", "\"blendEnd\": 0", "\"blendEnd\": -1", "11:16 A whole number"},
            {"anim", "\"blendEnd\": 0", "\"blendEnd\": 0.5", "11:16 A whole number"},
            {"anim", "\"blendEnd\": 0", "\"blendEnd\": 01", "11:17 '}' is wanted here, not '1'."},
            {"anim", "\"blendEnd\": 0", "\"blendEnd\": 1e99999", "11:16 A whole number"},
            {"anim", "\"speed\": 1", "\"speed\": 1e39", "12:13 '1e39' is too large"},
            {"anim", "\"speed\": 1", "\"speed\": -1e999", "12:13 '-1e999' is too large"},
            {"anim", "\"speed\": 1", "\"speed\": NaN", "12:13 A number is wanted here, not 'NaN'."},
            {"anim", "\"speed\": 1", "\"speed\": \"0x7fc0\"", "12:13 A float that is no number"},
            {"anim", "\"speed\": 1", "\"speed\": 1.", "12:13 A number is wanted here, not '1.'."},
            {"anim", "\"speed\": 1", "\"speed\": null", "12:13 A number"},
            {"anim", "[0, 0, 0, 1]", "[0, 0, 0]", "18:106 4 entries are wanted here, not 3."},
            {"anim", "[0, 0, 0]", "[0, 0, 0, 0]", "18:76 3 entries are wanted here, not 4."},
            // A track of two keys among those of three; all of three, of two frames.
            {"anim", "     [0, 0, 0]\n    ],", "     [0, 0, 0], [0, 0, 0]\n    ],",
             "29:5 4 entries are wanted here, not 3."},
            {"anim", "0, 0, 0\n", "0, 0\n", "23:20 The tracks have 3 keys, but there are 2 frames."},
            {"anim", "]\n}\n", "]\n", "54:1 '}' is wanted here, not the end of the text."},
            {"anim", "]\n}\n", "],\n}\n", "54:1 A key in quotes is wanted here, not '}'."},
            {"anim", "]\n}\n", "]\n}\n}", "55:1 The text should end here"},
            {"anim", "\"version\"", "\"$schema\": [[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[",
             "4:46 Nothing is nested"},
            {"anim", "\"version\"", "\"$schema\": [1, maybe", "4:17 'maybe' is no value."},
            {"skinnedmesh", "0, 1, 2\n", "0, 1, 65535\n", "27:11 A whole number from 0 to 65534"},
            {"skinnedmesh", "materials/a", "materials/\u0416", "25:16 The files hold texts of Latin-1"},
            {"skinnedmesh", "materials/a", "materials/\\u0000", "25:16 The files hold texts of Latin-1"},
            {"skinnedmesh", "materials/a", "materials/\xe9", "25:16 This text is no UTF-8."},
            {"skinnedmesh", "materials/a", "materials/\\x41", "25:27 There is no such escape"},
            {"skinnedmesh", "materials/a", "materials/\\u 41", "25:27 There is no such escape"},
            {"skinnedmesh", "materials/a", "materials/\n", "25:27 A control character"},
            {"skinnedmesh", "\"surfaces\": [", "\"surfaces\": [], \"\\u0024schema\": [",
             "43:14 A mesh without a surface"},
            {"staticmesh", "0, 1, 2\n", "0, 1\n", "10:17 The last triangle"},
            {"staticmesh", "\"behind\": \"", "\"behind\": \"f", "32:12 Bytes are two"},
        };
        for (const Row &row : rows) {
            QByteArray text;
            SampleModels::withModel(row.kind, [&text](auto model) {
                model = SampleModels::plainModel<decltype(model)>();
                if constexpr (std::is_same_v<decltype(model), AnimFile>)
                    model.blocks.resize(1);
                text = textOf({model, std::is_same_v<decltype(model), StaticMesh> ? "m" : ""});
            });
            const int at = text.indexOf(row.from);
            QVERIFY2(at > 0, row.from);
            text.replace(at, int(qstrlen(row.from)), row.to);
            const QString reason = refusal(text);
            QVERIFY2(reason.startsWith(QString::fromUtf8(row.refusal)),
                     qUtf8Printable(row.to + (": " + reason)));
        }
        QCOMPARE(refusal(""), QString("1:1 '{' is wanted here, not the end of the text."));
        QCOMPARE(refusal("\n  \"ab"), QString("2:3 '{' is wanted here, not '\"'."));
        QCOMPARE(refusal("{\"kind"), QString("1:2 This text does not end."));
        // Cut off anywhere, a text is refused there or behind.
        const QByteArray text = textOf({SampleModels::skinnedMesh(), "m"});
        for (int length = 0; length < text.size() - 2; ++length)
            QVERIFY2(!refusal(text.left(length)).isEmpty(), qPrintable(QString::number(length)));
    }

    void patchesByWords()
    {
        struct Row
        {
            const char *kind, *path, *value, *outcome;
        };
        // What changed, or why it cannot be.
        const Row rows[] = {
            {"anim", "block 1 speed", "30", "block 1 speed: 1 -> 30"},
            {"anim", "block 1 speed", "1", ""},
            {"anim", "block 0-1 loop frame", "=10*i",
             "block 0 loopFrame: 65535 -> 0; block 1 loopFrame: 65535 -> 10"},
            {"anim", "blocks * animId", "+=i", "block 1 animId: 0 -> 1; block 2 animId: 0 -> 2"},
            {"anim", "block id 0 frame 2 yaw", "-.5",
             "block 0 frame 2 yaw: 0 -> -0.5; block 1 frame 2 yaw: 0 -> -0.5; block 2 frame 2 yaw: 0 -> "
             "-0.5"},
            {"anim", "block 0 action 1 arg8", "0x10", "block 0 action 1 args 8: 0 -> 16"},
            {"anim", "block 0 action 1 args 1", "\"0x7fc00001\"",
             "block 0 action 1 args 1: 0 -> \"0x7fc00001\""},
            {"anim", "block 0 action 2 Event Type", "0.3", "block 0 action 2 event: 0.3 is no whole number."},
            {"anim", "block 0 bone 3 translation index", "1", "block 0 bone 3 translationTrack: 65535 -> 1"},
            {"anim", "block 0 rotation 1 key 2 w", "*=.5", "block 0 rotation 1 key 2 w: 1 -> 0.5"},
            {"anim", "block 0 translations 1 2", "1, 2, 3",
             "block 0 translation 1 key 2: [0, 0, 0] -> [1, 2, 3]"},
            {"anim", "block 0 translation 2 0", "1", "'block 0 translation' is from 0 to 1."},
            {"anim", "block 0 translation 1", "1", "The number of a key is missing"},
            {"anim", "block 3 speed", "1", "'block' is from 0 to 2."},
            {"anim", "block id 7 speed", "1", "There is no block with the id '7'."},
            {"anim", "block 0 sped", "1", "There is no 'sped' in block 0, which has animId, frameScale"},
            {"anim", "block 0 speed", "fast", "block 0 speed: "},
            {"anim", "block 0 blend end", "65536", "block 0 blendEnd: 65536 is not from 0 to 65535."},
            {"anim", "blocks", "1", "There is no 'blocks' in animation file"},
            {"anim", "", "1", "There is no '' in animation file"},
            {"skinnedmesh", "hot point 1 origin", "*=2", ""},
            {"skinnedmesh", "hotpoint 0-1 particle effect 1", "65535",
             "hot point 0 effect1: 0 -> 65535; hot point 1 effect1: 0 -> 65535"},
            {"skinnedmesh", "Bone 1 bounding box min", "*=2", "bone 1 bbMin: [1, 11, 21] -> [2, 22, 42]"},
            {"skinnedmesh", "bone 1 bbMin y", "-=1", "bone 1 bbMin y: 11 -> 10"},
            {"skinnedmesh", "bone 1 bbMin", "1, 2", "bone 1 bbMin: 3 numbers are wanted, not '1, 2'."},
            {"skinnedmesh", "bone 1 flags", "0x80000001", "bone 1 flags: 0 -> -2147483647"},
            {"skinnedmesh", "bone 0 symbol", "0xC0", "bone 0 symbol: 0 -> -64"},
            {"skinnedmesh", "bone 0 symbol", "192", "bone 0 symbol: 192 is not from -128 to 127."},
            {"skinnedmesh", "bone 1 damage", "2", "bone 1 damageScale: 1 -> 2"},
            {"skinnedmesh", "bone 1 impact type", "4", "bone 1 impact: 0 -> 4"},
            {"skinnedmesh", "bone 0 child bones 1", "3", "bone 0 childBones 1: 2 -> 3"},
            {"skinnedmesh", "bone 0 children", "1,2", "bone 0 childBones: [1, 2, 3] -> [1, 2]"},
            {"skinnedmesh", "surface 0 triangles 0", "65535",
             "surface 0 triangles 0: 65535 is not from 0 to 65534."},
            {"skinnedmesh", "surface 2 material", "materials/b",
             "surface 2 material: \"materials/a\" -> \"materials/b\""},
            {"skinnedmesh", "surface 2 material", "materials/\u0416",
             "surface 2 material: The files hold texts of Latin-1"},
            {"skinnedmesh", "bone 1-2 name", "h\u00fcfte \u0416",
             "bone 1 name: \"\" -> \"h\u00fcfte \\u0416\"; bone 2 name: \"\" -> \"h\u00fcfte \\u0416\""},
            {"skinnedmesh", "bone 1 name", " x",
             "bone 1 name: A name is a line of 1 to 128 characters, not ' x'."},
            {"skinnedmesh", "Animation -5 name", "walk", "animation -5 name: \"\" -> \"walk\""},
            {"skinnedmesh", "animation walk name", "x", "There is no 'animation walk name' in skinned mesh"},
            {"skinnedmesh", "vertex 1 position z", "=x+pi-pi", ""},
            {"skinnedmesh", "vertex 1 uv w", "0", "There is no 'uv w' in vertex 1"},
            {"staticmesh", "surface 0 triangles", "[0, 1]", "The last triangle has no three corners."},
        };
        for (const Row &row : rows) {
            Model model;
            SampleModels::withModel(
                row.kind, [&model](auto each) { model = SampleModels::plainModel<decltype(each)>(); });
            std::vector<PatchedField> changes;
            QString outcome = patchModel(model, row.path, row.value, changes);
            if (outcome.isEmpty()) {
                QStringList lines;
                for (const PatchedField &change : changes)
                    lines += change.place + ": " + change.before + " -> " + change.after;
                outcome = lines.join("; ");
                QCOMPARE(outcome, QString(row.outcome));
                continue;
            }
            QVERIFY2(outcome.startsWith(QString::fromUtf8(row.outcome)),
                     qUtf8Printable(row.path + (": " + outcome)));
        }
    }

    void schemaFits()
    {
        for (const QString &suffix : SampleModels::suffixes()) {
            const QJsonObject rules = QJsonDocument::fromJson(schema(suffix)).object();
            SampleModels::withModel(suffix, [&](auto model) {
                model = SampleModels::oddModel<decltype(model)>();
                if constexpr (std::is_same_v<decltype(model), SkinnedMesh>) {
                    model.nodes[0].name = "hips";
                    model.animationNames = {{-12, "walk"}};
                }
                const QByteArray text = textOf({std::move(model), "\x01"});
                const QJsonObject object = QJsonDocument::fromJson(text).object();
                QVERIFY(fits(object, rules, rules["$defs"].toObject()));
                // And not everything does.
                for (const QString &key : object.keys()) {
                    QJsonObject other = object;
                    other[key] = true;
                    QVERIFY2(!fits(other, rules, rules["$defs"].toObject()), qUtf8Printable(key));
                }
            });
        }
    }
};

QTEST_GUILESS_MAIN(tst_ModelJson)
#include "tst_modeljson.moc"
