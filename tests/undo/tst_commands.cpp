// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"
#include "TestSupport.h"

#include <QUndoStack>

#include <cstring>
#include <limits>

namespace {
struct RecordingView : DocumentView
{
    void recordChanged(const RecordRef &record) override { changes.append(record); }
    void structureChanged(const StructureChange &) override {}
    QVector<RecordRef> changes;
};

// Another value than the given one, of each type that a field has.
template <typename Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
Number other(Number value)
{
    return Number(value + 1);
}
float other(float value)
{
    return value + 1.5f;
}
QString other(const QString &value)
{
    return value + QLatin1Char('x');
}
template <typename Vector, std::enable_if_t<std::is_class_v<Vector>, int> = 0>
Vector other(Vector value)
{
    // The last component, so that a field that stores only its first is found out.
    auto &last = value[int(sizeof(Vector) / sizeof(value[0])) - 1];
    last = other(last);
    return value;
}

template <typename Model>
QByteArray bytesOf(const Model &model, const QTemporaryDir &home)
{
    const QString path = home.filePath(QStringLiteral("model"));
    return model.write(path) ? QByteArray() : TestSupport::readFile(path);
}

// Every list holds more than one record, no value is a default and no two bytes in a row are alike.
SkinnedMesh skinnedMesh()
{
    SkinnedMesh mesh;
    mesh.version = 2;
    mesh.nodes.resize(3);
    for (SkinnedMeshNode &node : mesh.nodes)
        node.childNodes = {1, 2};
    mesh.hotPoints.resize(2);
    mesh.surfaces = {{QStringLiteral("materials/a"), {0, 1, 2}}, {QStringLiteral("materials/b"), {2, 1, 0}}};
    mesh.vertices.resize(3);
    return mesh;
}

AnimFile animFile()
{
    AnimFile file;
    file.blocks.resize(2);
    for (AnimBlock &block : file.blocks) {
        block.nodes.resize(3);
        block.setTranslationCount(2);
        block.setRotationCount(2);
        block.setFrameCount(3);
        block.actions.resize(2);
    }
    return file;
}

StaticMesh staticMesh()
{
    StaticMesh mesh;
    mesh.surfaces = {{QStringLiteral("materials/a"), {0, 1, 2}}, {QStringLiteral("materials/b"), {2, 1, 0}}};
    mesh.vertices.resize(3);
    return mesh;
}
} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandIsUndoneAndRedoneBitForBit();
    void onRealModelsToo();
    void aRecordThatIsGoneIsLeftAlone();
    void oddFloatsSurvive();

private:
    template <typename Tags, typename Model>
    void walk(const Tags &tags, const Model &fresh)
    {
        std::apply([&](auto... tag) { (checkCommand<typename decltype(tag)::Type>(fresh), ...); }, tags);
    }
    template <typename Command, typename Model>
    void checkCommand(Model model);

    QTemporaryDir m_home;
};

template <typename Command, typename Model>
void tst_Commands::checkCommand(Model model)
{
    using Record = typename Command::Record;
    RecordIndex index{};
    for (const RecordIndex &candidate : {RecordIndex{1, 1, 1}, RecordIndex{1, 0, 0}, RecordIndex{0, 1, 1}}) {
        index = candidate;
        if (Record::find(model, index))
            break;
    }
    RecordingView view;
    QUndoStack stack;
    const auto *record = Record::find(model, index);
    QVERIFY2(record, Command::name);
    const auto oldValue = Command::Field::get(*record);
    const auto newValue = other(oldValue);
    const QByteArray before = bytesOf(model, m_home);

    auto *command = new Command({model, view}, index, newValue);
    QCOMPARE(bytesOf(model, m_home), before);
    QCOMPARE(command->text(), QString::fromLatin1(Command::undoText));
    stack.push(command);
    const QByteArray after = bytesOf(model, m_home);
    QVERIFY2(Command::Field::get(*Record::find(model, index)) == newValue, Command::name);
    QVERIFY2(after != before, Command::name);
    if (after.size() == before.size()) {
        int first = 0;
        int last = before.size() - 1;
        while (after[first] == before[first])
            ++first;
        while (after[last] == before[last])
            --last;
        QVERIFY2(last - first < int(sizeof newValue), Command::name);
    }
    stack.undo();
    QCOMPARE(bytesOf(model, m_home), before);
    stack.redo();
    QCOMPARE(bytesOf(model, m_home), after);
    QCOMPARE(view.changes, QVector<RecordRef>(3, {Record::kind, index}));

    // No command merges: the next one is a step of its own.
    stack.push(new Command({model, view}, index, other(newValue)));
    QCOMPARE(stack.count(), 2);
}

void tst_Commands::everyCommandIsUndoneAndRedoneBitForBit()
{
    walk(skinnedMeshCommands, skinnedMesh());
    walk(animCommands, animFile());
    walk(staticMeshCommands, staticMesh());
}

void tst_Commands::onRealModelsToo()
{
    SKIP_WITHOUT_SHARED("gamedata");
    const QString models = TestSupport::shared(QStringLiteral("gamedata/game"));
    SkinnedMesh mesh;
    QVERIFY(!mesh.read(models + "/models/knight/knight.skinnedmesh"));
    walk(skinnedMeshCommands, mesh);
    AnimFile anim;
    QVERIFY(!anim.read(models + "/anims/knight/knight.anim"));
    walk(animCommands, anim);
    StaticMesh barrel;
    QVERIFY(!barrel.read(models + "/models/barrel/barrel.staticmesh"));
    walk(staticMeshCommands, barrel);
}

void tst_Commands::aRecordThatIsGoneIsLeftAlone()
{
    SkinnedMesh mesh = skinnedMesh();
    RecordingView view;
    UC_SkinnedMeshNodeFlags command({mesh, view}, {2}, 7);
    command.redo();
    mesh.nodes.resize(2);
    view.changes.clear();
    const QByteArray before = bytesOf(mesh, m_home);
    command.undo();
    command.redo();
    QCOMPARE(bytesOf(mesh, m_home), before);
    QVERIFY(view.changes.isEmpty());
}

void tst_Commands::oddFloatsSurvive()
{
    // A signalling NaN with a payload: any conversion on the way would quieten it.
    const quint32 bits = 0x7fa01234;
    float odd;
    std::memcpy(&odd, &bits, sizeof odd);
    AnimFile file = animFile();
    file.blocks[0].speed = odd;
    file.blocks[0].frameScale = -std::numeric_limits<float>::infinity();
    RecordingView view;
    const QByteArray before = bytesOf(file, m_home);
    UC_AnimBlockAnimSpeed speed({file, view}, {0}, 30.0f);
    UC_AnimBlockFrameScale scale({file, view}, {0}, odd);
    speed.redo();
    scale.redo();
    QVERIFY(bytesOf(file, m_home) != before);
    scale.undo();
    speed.undo();
    QCOMPARE(bytesOf(file, m_home), before);
}

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_commands.moc"
