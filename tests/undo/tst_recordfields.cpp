// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordFields.h"

#include "AnimationNaming.h"
#include "Fields.h"
#include "SampleCommands.h"

#include <QUndoStack>

using namespace SampleCommands;
using SampleModels::bytesOf;

class tst_RecordFields : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldCommandHasAField()
    {
        // All but the names of animations, which are no field of a record.
        QSet<QString> named;
        std::apply(
            [&](const auto &...rows) { (named.insert(std::decay_t<decltype(rows)>::Command::name), ...); },
            Fields::all);
        forEach([&](auto tag) {
            using Command = typename decltype(tag)::Type;
            QVERIFY2(!isField<Command> || named.contains(Command::name) ||
                         (std::is_same_v<Command, UC_SkinnedMeshAnimationNames>),
                     Command::name);
        });
    }

    void fieldsAreReadAndWrittenWithoutTheirType()
    {
        drive<SkinnedMesh>({RecordKind::SkinnedMesh, RecordKind::ChildBone, RecordKind::HotPoint,
                            RecordKind::Bone, RecordKind::SkinnedSurface, RecordKind::SkinnedTriangleIndex,
                            RecordKind::SkinnedVertex});
        drive<AnimFile>({RecordKind::AnimBlock, RecordKind::AnimBone, RecordKind::AnimFrame,
                         RecordKind::TranslationKey, RecordKind::RotationKey, RecordKind::AnimAction});
        drive<StaticMesh>({RecordKind::StaticMesh, RecordKind::StaticSurface, RecordKind::StaticTriangleIndex,
                           RecordKind::StaticVertex});
        QCOMPARE(m_fields, 98);
        QVERIFY(RecordFields::of(RecordKind::Bones).isEmpty());
    }

    void animationsAreNamedByTheMesh()
    {
        const RecordField *name = RecordFields::find(RecordKind::AnimBlock, QStringLiteral("name"));
        AnimFile file = SampleModels::plainAnim();
        file.blocks[2].animId = 5;
        SkinnedMesh mesh;
        BlindView view;
        QUndoStack names;
        QUndoStack stack;
        bool isOpen = false;
        const auto valueAt = [&](int block) {
            return static_cast<const ModelField<AnimFile> *>(name)->value(file, {block});
        };
        const auto change = [&](const QVector<FieldChange> &changes) {
            return RecordFields::change(changes, QStringLiteral("Edit"), {file, view}, stack);
        };
        FieldValue value;
        QCOMPARE(valueAt(0), FieldValue(QString()));
        QVERIFY(name->parse("walk", {}, 0, value).contains("Open the mesh") &&
                !change({{name, {0}, "walk"}}));
        AnimationNaming::setMesh(AnimationNaming::Mesh{{mesh, view}, &names, [&isOpen] { return isOpen; }});
        QVERIFY(!name->parse("walk", {}, 0, value).isEmpty() && !change({{name, {0}, "walk"}}));
        isOpen = true;
        QVERIFY(name->parse("walk", {}, 0, value).isEmpty() && name->parse({}, {}, 0, value).isEmpty());
        QVERIFY(name->parse(QString(129, 'x'), {}, 0, value).contains("128"));
        // What has one id has one name; other fields are another step, of their own document.
        const RecordField *speed = RecordFields::find(RecordKind::AnimBlock, QStringLiteral("speed"));
        QVERIFY(change({{name, {0}, " walk "}, {speed, {0}, 3.0}, {name, {2}, "run"}}));
        QVERIFY(stack.count() == 1 && names.count() == 1);
        QCOMPARE(valueAt(1), FieldValue(QStringLiteral("walk")));
        QCOMPARE(mesh.animationNames, (QHash<qint32, QString>{{0, "walk"}, {5, "run"}}));
        QVERIFY(!change({{name, {1}, "walk"}}) && names.count() == 1);
        QVERIFY(change({{name, {2}, QString()}}) && mesh.animationNames.size() == 1);
        QCOMPARE(valueAt(9), FieldValue());
        AnimationNaming::setMesh({});
        QCOMPARE(valueAt(0), FieldValue(QString()));
    }

    void textsAndNames()
    {
        const auto refusal = [](RecordKind kind, const char *field, const char *text, double old = 0.0) {
            FieldValue value;
            return RecordFields::find(kind, QLatin1String(field))
                ->parse(QString::fromUtf8(text), old, 4, value);
        };
        QCOMPARE(refusal(RecordKind::Bone, "damage scale", "*=1.5", 2.0), QString());
        QCOMPARE(refusal(RecordKind::Bone, "Impact-Type", "300"), QString("300 is not from 0 to 255."));
        QCOMPARE(refusal(RecordKind::Bone, "parent", "x/2", 3.0), QString("1.5 is no whole number."));
        QCOMPARE(refusal(RecordKind::SkinnedTriangleIndex, "vertex", "65535"),
                 QString("65535 is not from 0 to 65534."));
        QCOMPARE(refusal(RecordKind::HotPoint, "dealsDamage", "2"), QString("2 is not from 0 to 1."));
        QVERIFY(refusal(RecordKind::SkinnedSurface, "material", "\u0442").contains("Latin-1"));
        QVERIFY(!refusal(RecordKind::AnimAction, "arg8", "two").isEmpty());
        QVERIFY(!RecordFields::find(RecordKind::Bone, QStringLiteral("arg8")));
        const auto number = [](RecordKind kind, const char *field, const QString &text, double old = 0.0) {
            FieldValue value;
            return RecordFields::find(kind, QLatin1String(field))->parse(text, old, 4, value).isEmpty()
                       ? std::get<double>(value)
                       : -1.0;
        };
        QCOMPARE(number(RecordKind::SkinnedVertex, "position X", QStringLiteral("=x+10*i"), 2.0), 42.0);
        QCOMPARE(number(RecordKind::Bone, "impact", Fields::impactTypes().at(3)), 3.0);
        QCOMPARE(number(RecordKind::RotationKey, "angle", QStringLiteral("45deg")), 45.0);
        QCOMPARE(number(RecordKind::SkinnedVertex, "uvy", QStringLiteral("0.1")), double(0.1f));
    }

private:
    /// Gives every field of a record of these kinds another value; counts them.
    template <typename Model>
    void drive(const QVector<RecordKind> &kinds)
    {
        for (const RecordKind kind : kinds) {
            Model model = SampleModels::plainModel<Model>();
            BlindView view;
            QUndoStack stack;
            const QByteArray before = bytesOf(model);
            QSet<QString> ids;
            for (const RecordField *field : RecordFields::of(kind)) {
                ids.insert(field->id());
                if (AnimationNaming::isName({field, {}, {}}))
                    continue; // is no field of the model; see below
                ++m_fields;
                QVERIFY2(field->kind() == kind && RecordFields::find(kind, field->id()) == field &&
                             RecordFields::find(kind, field->title()) == field,
                         qPrintable(field->title()));
                const auto &typed = static_cast<const ModelField<Model> &>(*field);
                const RecordIndex index{};
                const FieldValue old = typed.value(model, index);
                FieldValue same;
                QVERIFY(field->parse(field->text(old), old, 0, same).isEmpty() && same == old);
                QCOMPARE(
                    RecordFields::change({{field, index, same}}, field->stepText(), {model, view}, stack),
                    false);
                const bool isText = field->type() == RecordField::Type::Text;
                FieldValue other;
                const QString text = isText                    ? QString("a/b/c")
                                     : field->text(old) == "0" ? QString("1")
                                                               : QString("0");
                QCOMPARE(field->parse(text, old, 0, other), QString());
                QCOMPARE(
                    RecordFields::change({{field, index, other}}, field->stepText(), {model, view}, stack),
                    true);
                QVERIFY2(stack.count() == 1 && typed.value(model, index) == other, qPrintable(field->id()));
                stack.undo();
                QVERIFY(bytesOf(model) == before && typed.value(model, index) == old);
                stack.clear();
                QVERIFY(typed.value(model, {99, 99, 99}).index() == 0 || kind == RecordKind::SkinnedMesh ||
                        kind == RecordKind::StaticMesh);
            }
            QCOMPARE(ids.size(), RecordFields::of(kind).size());
        }
    }

    int m_fields = 0;
};

QTEST_GUILESS_MAIN(tst_RecordFields)
#include "tst_recordfields.moc"
