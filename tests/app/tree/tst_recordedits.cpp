// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StructureWindow.h"
#include "Validation.h"

namespace {
std::vector<Finding> findingsOf(const SkinnedMesh &mesh)
{
    return validate(mesh);
}
std::vector<Finding> findingsOf(const AnimFile &file)
{
    return validate(file, nullptr, {});
}
std::vector<Finding> findingsOf(const StaticMesh &mesh)
{
    return validate(mesh);
}
} // namespace

// Records that are cut, copied, pasted, duplicated and moved, and what names them.
class tst_RecordEdits : public QObject, private StructureWindow
{
    Q_OBJECT

private slots:
    void init() { open(); }

    void recordsTravelAsText()
    {
        struct Row
        {
            RecordRef first, second, group;
            const char *key;
        };
        const Row rows[] = {
            {ref(K::HotPoint, 0), ref(K::HotPoint, 1), ref(K::HotPoints), "hotPoints"},
            {ref(K::ChildBone, 0, 1), ref(K::ChildBone, 0, 2), ref(K::ChildBones, 0), "childBones"},
            {ref(K::SkinnedSurface, 0), ref(K::SkinnedSurface, 1), ref(K::SkinnedSurfaces), "surfaces"},
            {ref(K::AnimBlock, 0), ref(K::AnimBlock, 1), ref(K::AnimFile), "blocks"},
            {ref(K::AnimAction, 1, 0), ref(K::AnimAction, 1, 1), ref(K::AnimActions, 1), "actions"},
        };
        for (const Row &row : rows) {
            init();
            Settings::HideMeshData.setValue(false);
            SkinnedMesh model = SampleModels::skinnedMesh();
            model.vertices.resize(65535);
            mesh().open(model);
            const bool isMesh = isOfMesh(row.first);
            KVTreeView *tree = select(row.first);
            const auto bytes = [&] { return isMesh ? mesh().bytes() : anim().bytes(); };
            QUndoStack &stack = isMesh ? mesh().undo() : anim().undo();
            const auto press = [&](const char *keys) {
                QTest::keySequence(tree, QKeySequence(QLatin1String(keys)));
            };
            const auto both = [&] {
                tree->selectRecords({row.first, row.second}, row.first);
                return tree->selectedRecords(row.first.kind);
            };
            const QByteArray before = bytes();
            const bool isNested = row.first.kind == K::ChildBone || row.first.kind == K::AnimAction;
            const size_t at = isNested ? 1 : 0;
            const QVector<RecordIndex> indexes = both();
            QCOMPARE(indexes.size(), 2);

            press("Ctrl+C");
            const QString text = QApplication::clipboard()->text();
            QVERIFY2(text.startsWith(QStringLiteral("{\n \"%1\": [").arg(row.key)), qUtf8Printable(text));
            QCOMPARE(bytes(), before);
            // Out and in again: nothing has changed; the step before is one.
            press("Ctrl+X");
            const QByteArray without = bytes();
            QVERIFY(without != before);
            QCOMPARE(stack.count(), 1);
            tree = indexes[0][at] == 0 ? select(row.group) : select({row.first.kind, row.first.index});
            if (indexes[0][at] > 0) {
                RecordRef last = row.first;
                --last.index[at];
                select(last);
            }
            press("Ctrl+V");
            QCOMPARE(bytes(), before);
            QCOMPARE(tree->selectedRecords(row.first.kind), indexes);
            QCOMPARE(stack.count(), 2);
            stack.undo();
            QCOMPARE(bytes(), without);
            stack.undo();
            QCOMPARE(bytes(), before);

            // A copy of each behind them, as the text editor of another program may have it, too.
            both();
            press("Ctrl+D");
            const QByteArray twice = bytes();
            QVERIFY(twice.size() > before.size());
            stack.undo();
            select(row.second);
            QApplication::clipboard()->setText(text.mid(text.indexOf('[')).section(']', 0, -2) + "]\r\n");
            press("Ctrl+V");
            QCOMPARE(bytes(), twice);
            stack.undo();

            // Up and down again, and not beyond the ends.
            select(row.second);
            press("Ctrl+Shift+Up");
            QVERIFY(tree->currentRecord() == row.first);
            QVERIFY(row.first.kind == K::AnimAction || bytes() != before);
            press("Ctrl+Shift+Down");
            QCOMPARE(bytes(), before);
            stack.setIndex(0);
            tree->selectRecords({row.first, row.second}, row.first);
            for (int i = 0; i < 4; ++i)
                press("Ctrl+Shift+Up");
            QCOMPARE(stack.index(), int(indexes[0][at]));

            // What does not fit gives way to what was copied inside; where there is nothing, it says why.
            stack.setIndex(0);
            const bool hasBuffer = row.first.kind == K::HotPoint || row.first.kind == K::AnimBlock;
            for (const char *other : {"{\"vertices\": []}", "[{}]", "[70000]", "{"}) {
                QApplication::clipboard()->setText(other);
                select(row.first);
                const QString said = hasBuffer ? QString() : saidOf([&] { press("Ctrl+V"); });
                if (hasBuffer)
                    press("Ctrl+V");
                QVERIFY2(hasBuffer || said.contains("Line 1, column"), qUtf8Printable(other + said));
                QCOMPARE(stack.index(), hasBuffer ? 1 : 0);
                QCOMPARE(bytes() == before, !hasBuffer);
                stack.setIndex(0);
            }
        }
        init();
        QApplication::clipboard()->setText("{\"blocks\": []}");
        KVTreeView *tree = select(ref(K::HotPoint, 0));
        QCOMPARE(saidOf([tree] { QTest::keySequence(tree, QKeySequence::Paste); }),
                 QString("The clipboard holds animations, not hot points."));
        // What is cut is in the buffer, too.
        QTest::keySequence(tree, QKeySequence::Cut);
        QApplication::clipboard()->clear();
        QTest::keySequence(tree, QKeySequence::Paste);
        QCOMPARE(mesh().document.model().hotPoints.size(), size_t(2));
    }

    void surfacesTravelWithTheirMesh()
    {
        mesh().open(SampleModels::plainMesh());
        KVTreeView *tree = select(ref(K::SkinnedSurface, 0));
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        const QByteArray before = mesh().bytes();
        QApplication::clipboard()->setText("{\"material\": \"m/a/b\", \"triangles\": [0, 1, 3]}");
        QVERIFY(press("Ctrl+V").contains("a corner at vertex 3, and the mesh has 3 vertices"));
        QCOMPARE(mesh().bytes(), before);
        tree->selectRecords({ref(K::SkinnedSurface, 0), ref(K::SkinnedSurface, 1), ref(K::SkinnedSurface, 2)},
                            ref(K::SkinnedSurface, 1));
        QVERIFY(press("Ctrl+X").contains("The last surface stays"));
        QVERIFY(mesh().undo().count() == 0 && mesh().bytes() == before);

        // Of a static mesh, too, and from one kind to the other.
        QTest::keySequence(tree, QKeySequence::Copy);
        m_panes->rigid.open(SampleModels::plainStatic());
        tree = &m_panes->rigid.tree;
        tree->setFocus();
        tree->selectRecords({ref(K::StaticSurface, 1)}, ref(K::StaticSurface, 1));
        const QByteArray rigid = m_panes->rigid.bytes();
        QCOMPARE(press("Ctrl+V"), QString());
        QCOMPARE(tree->selectedRecords(K::StaticSurface), QVector<RecordIndex>({{2}, {3}, {4}}));
        for (const char *keys : {"Ctrl+X", "Ctrl+Shift+Up", "Ctrl+D"})
            QCOMPARE(press(keys), QString());
        QCOMPARE(m_panes->rigid.document.model().surfaces.size(), size_t(4));
        QCOMPARE(m_panes->rigid.undo().count(), 4);
        m_panes->rigid.undo().setIndex(0);
        QCOMPARE(m_panes->rigid.bytes(), rigid);
    }

    void tracksTakeTheirBonesAlong()
    {
        AnimFile file = animFile();
        AnimBlock &block = file.blocks[1];
        block.setTranslationCount(3);
        block.nodes.resize(3);
        block.nodes[0].translationIndex = block.nodes[2].translationIndex = 2;
        for (int track = 0; track < 3; ++track)
            block.translations.at(track, 1) = {float(track), 0, 0};
        anim().open(file);
        const QByteArray before = anim().bytes();
        KVTreeView *tree = select(ref(K::TranslationTrack, 1, 2));
        QSignalSpy told(tree, &KVTreeView::told);
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        // The tracks by the first component of a key, and what the bones follow.
        const auto state = [this] {
            const AnimBlock &now = anim().document.model().blocks[1];
            QStringList tracks, bones;
            for (int track = 0; track < now.translations.trackCount(); ++track)
                tracks += QString::number(double(now.translations.at(track, 1).x()));
            for (const AnimNode &bone : now.nodes)
                bones += QString::number(bone.translationIndex);
            return tracks.join(' ') + " | " + bones.join(' ');
        };
        QCOMPARE(state(), QString("0 1 2 | 2 0 2"));
        QCOMPARE(press("Ctrl+Shift+Down"), QString());
        QCOMPARE(anim().undo().count(), 0);
        QCOMPARE(press("Ctrl+Shift+Up"), QString());
        QCOMPARE(state(), QString("0 2 1 | 1 0 1"));
        QCOMPARE(tree->currentRecord(), ref(K::TranslationTrack, 1, 1));
        QCOMPARE(press("Ctrl+D"), QString());
        QCOMPARE(state(), QString("0 2 2 1 | 1 0 1"));
        QCOMPARE(tree->currentRecord(), ref(K::TranslationTrack, 1, 2));
        QVERIFY(told.takeLast().at(0).toString().contains("No bone follows"));
        tree->selectRecords({ref(K::TranslationTrack, 1, 0), ref(K::TranslationTrack, 1, 1)},
                            ref(K::TranslationTrack, 1, 1));
        QCOMPARE(press("Ctrl+X"), QString());
        QCOMPARE(state(), QString("2 1 | 65535 65535 65535"));
        QVERIFY(told.takeLast().at(0).toString().contains("initial position: 3"));
        QCOMPARE(press("Ctrl+V"), QString());
        QCOMPARE(state(), QString("2 0 2 1 | 65535 65535 65535"));
        QCOMPARE(anim().undo().count(), 4);
        for (const char *expected : {"2 1 | 65535 65535 65535", "0 2 2 1 | 1 0 1", "0 2 1 | 1 0 1"}) {
            anim().undo().undo();
            QCOMPARE(state(), QString(expected));
        }
        anim().undo().undo();
        QCOMPARE(anim().bytes(), before);
        QCOMPARE(tree->currentRecord(), ref(K::TranslationTrack, 1, 2));

        tree->selectRecords({ref(K::TranslationTrack, 0, 0), ref(K::TranslationTrack, 1, 2)},
                            ref(K::TranslationTrack, 1, 2));
        QVERIFY(press("Ctrl+X").contains("of several animations"));
        QVERIFY(anim().undo().index() == 0 && anim().bytes() == before);
        select(ref(K::TranslationTrack, 1, 2));
        press("Ctrl+C");

        // Other tables, other lengths, other things.
        select(ref(K::Rotations, 1));
        QVERIFY(press("Ctrl+V").contains("translation tracks, not rotation tracks"));
        anim().document.editTarget().edit().blocks[2].setFrameCount(7);
        select(ref(K::Translations, 2));
        QVERIFY(press("Ctrl+V").contains("4 keys each, and the animation has 7 frames"));
        QApplication::clipboard()->setText("[[[1, 2]]]");
        QVERIFY(press("Ctrl+V").contains("Line 1, column"));
        QCOMPARE(anim().undo().index(), 0);
    }

    void bonesTakeTheirNumbersAlong()
    {
        SkinnedMesh model;
        model.nodes.resize(5);
        const int parents[] = {255, 0, 1, 2, 0};
        for (int b = 0; b < 5; ++b) {
            model.nodes[size_t(b)].parentNode = quint8(parents[b]);
            model.nodes[size_t(b)].name = QString(QChar('a' + b));
            if (b > 0)
                model.nodes[size_t(parents[b] % 255)].childNodes.push_back(quint16(b));
        }
        model.surfaces = {{QString(), {0, 0, 0}}};
        model.vertices = {{{}, {}, {0, 0, 1}, 4}};
        mesh().open(model);
        const QByteArray before = mesh().bytes();
        KVTreeView *tree = select(ref(K::Bone, 4));
        QSignalSpy told(tree, &KVTreeView::told);
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        // Each bone with its parent, and the bone of the vertex, by their names.
        const auto state = [this] {
            const SkinnedMesh &now = mesh().document.model();
            QString text;
            for (const SkinnedMeshNode &bone : now.nodes)
                text +=
                    bone.name +
                    (bone.parentNode < now.nodes.size() ? now.nodes[bone.parentNode].name : QString("-")) +
                    QLatin1Char(' ');
            for (const Finding &finding : validate(now))
                text += finding.text;
            return text + now.nodes[now.vertices[0].nodeIndex].name;
        };
        QCOMPARE(state(), QString("a- ba cb dc ea e"));
        QCOMPARE(press("Ctrl+Shift+Up"), QString());
        QCOMPARE(state(), QString("a- ba cb ea dc e"));
        QVERIFY(told.takeLast().at(0).toString().contains("another file"));
        QVERIFY(press("Ctrl+X").contains("Bone 3 moves vertices (1)"));
        // A bone with one that hangs on it.
        tree->selectRecords({ref(K::Bone, 2), ref(K::Bone, 4)}, ref(K::Bone, 2));
        QCOMPARE(press("Ctrl+D"), QString());
        QCOMPARE(state(), QString("a- ba cb ea dc cb dc e"));
        QCOMPARE(int(mesh().document.model().nodes[6].parentNode), 5);
        QCOMPARE(tree->selectedRecords(K::Bone), QVector<RecordIndex>({{5}, {6}}));
        QCOMPARE(press("Ctrl+X"), QString());
        QCOMPARE(state(), QString("a- ba cb ea dc e"));
        // They come back beside another one, the lower still on the upper.
        select(ref(K::Bone, 3));
        QCOMPARE(press("Ctrl+V"), QString());
        QCOMPARE(state(), QString("a- ba cb ea ca dc dc e"));
        QCOMPARE(int(mesh().document.model().nodes[5].parentNode), 4);
        mesh().undo().undo();
        QApplication::clipboard()->setText(QApplication::clipboard()->text().replace("numbers", "others"));
        QVERIFY(press("Ctrl+V").contains("\"numbers\" was expected"));
        select(ref(K::Bone, 1));
        QVERIFY(press("Ctrl+Shift+Up").contains("Bone 0 stays"));
        select(ref(K::Bone, 0));
        QVERIFY(press("Ctrl+X").contains("Bone 0 stays"));
        QCOMPARE(mesh().undo().index(), 3);
        mesh().undo().setIndex(0);
        QCOMPARE(mesh().bytes(), before);
    }

    void bonesOfAnimationsGoTogether()
    {
        AnimFile file = animFile();
        for (AnimBlock &block : file.blocks) {
            block.nodes.resize(4);
            for (size_t b = 0; b < 4; ++b)
                block.nodes[b].initialPosition = {float(b), 0, 0};
            block.actions[0].node = 2;
        }
        file.blocks[2].nodes.resize(3);
        anim().open(file);
        const QByteArray before = anim().bytes();
        KVTreeView *tree = select(ref(K::AnimBone, 1, 2));
        QSignalSpy told(tree, &KVTreeView::told);
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        const auto state = [this](size_t number) {
            const AnimBlock &block = anim().document.model().blocks[number];
            QString text;
            for (const AnimNode &bone : block.nodes)
                text += QString::number(double(bone.initialPosition.x())) + QLatin1Char(' ');
            return text + QString::number(block.actions[0].node);
        };
        QCOMPARE(press("Ctrl+Shift+Down"), QString());
        QVERIFY(state(0) == "0 1 3 2 3" && state(1) == state(0) && state(2) == "0 1 2 2");
        QVERIFY(told.takeLast().at(0).toString().contains("as many bones: 2. The mesh is another file"));
        QVERIFY(press("Ctrl+X").contains("happens at bone 3"));
        QCOMPARE(press("Ctrl+C") + press("Ctrl+Shift+Down"), QString());
        QCOMPARE(press("Ctrl+D"), QString());
        QVERIFY(state(0) == "0 1 3 2 2 3" && state(1) == state(0));
        QCOMPARE(tree->currentRecord(), ref(K::AnimBone, 1, 4));
        QCOMPARE(press("Ctrl+X"), QString());
        QCOMPARE(state(1), QString("0 1 3 2 3"));
        select(ref(K::AnimBones, 2));
        QCOMPARE(press("Ctrl+V"), QString());
        QVERIFY(state(2) == "0 2 1 2 3" && state(1) == "0 1 3 2 3");
        select(ref(K::AnimBone, 0, 1));
        QVERIFY(press("Ctrl+Shift+Up").contains("Bone 0 stays"));
        QApplication::clipboard()->setText(QApplication::clipboard()->text().replace("65535", "9"));
        QVERIFY(press("Ctrl+V").contains("follows track 9"));
        QCOMPARE(anim().undo().count(), 4);
        anim().undo().setIndex(0);
        QCOMPARE(anim().bytes(), before);
    }

    void realModelsStandEveryEdit()
    {
        const auto check = [this](auto &pane, const char *path, const QVector<RecordRef> &records) {
            const QString file = TestSupport::shared(QStringLiteral("gamedata/") + QLatin1String(path));
            if (file.isEmpty())
                return;
            pane.openFile(file);
            const QByteArray before = pane.bytes();
            const auto faults = [&pane] {
                QStringList all;
                for (const Finding &finding : findingsOf(pane.document.model())) {
                    // Copies are copies: what is the same twice, and tracks that nobody follows yet.
                    if (finding.rule != Rule::AnimationIdRepeated && finding.rule != Rule::TrackUnused)
                        all += finding.text;
                }
                return all;
            };
            QCOMPARE(faults(), QStringList());
            for (const RecordRef &record : records) {
                for (const char *keys : {"Ctrl+Shift+Up", "Ctrl+Shift+Down", "Ctrl+D", "Ctrl+X"}) {
                    pane.tree.selectRecords({record}, record);
                    pane.tree.setFocus();
                    saidOf([&] { QTest::keySequence(&pane.tree, QKeySequence(QLatin1String(keys))); });
                    QVERIFY2(faults().isEmpty(), qUtf8Printable(path + faults().join('\n')));
                    QVERIFY(pane.bytes() != before || pane.undo().index() == 0);
                    pane.undo().setIndex(0);
                    QCOMPARE(pane.bytes(), before);
                }
            }
        };
        for (const char *name : {"knight", "fox", "trex"}) {
            const QString number = QLatin1String(name);
            check(mesh(), qUtf8Printable(QStringLiteral("game/models/%1/%1.skinnedmesh").arg(number)),
                  {ref(K::Bone, 5), ref(K::Bone, 8), ref(K::HotPoint, 1), ref(K::SkinnedSurface, 0),
                   ref(K::ChildBone, 0, 0)});
            check(anim(), qUtf8Printable(QStringLiteral("game/anims/%1/%1.anim").arg(number)),
                  {ref(K::AnimBlock, 1), ref(K::TranslationTrack, 1, 1), ref(K::RotationTrack, 1, 2),
                   ref(K::AnimBone, 1, 5)});
        }
        check(m_panes->rigid, "game/models/avocado/avocado.staticmesh", {ref(K::StaticSurface, 0)});
    }
};

QTEST_MAIN(tst_RecordEdits)
#include "tst_recordedits.moc"
