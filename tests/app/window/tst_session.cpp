// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Session.h"

#include "DocumentFiles.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "MaterialsDock.h"
#include "Playback.h"
#include "SampleModels.h"

#include <QSemaphore>

#include <limits>

class tst_Session : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_files.emplace();
        Settings::RestoreSession.setValue(true);
        m_mesh = m_files->save("man.skinnedmesh", triangleMan());
        m_anim = m_files->save("man.anim", twoBlocks());
        m_rigid = m_files->save("box.staticmesh", SampleModels::plainStatic());
        m_materials = m_files->put("m.kmat", "material a {\n}\nmaterial b {\n}\n");
    }

    void theNextStartGoesOn()
    {
        QVector3D place;
        {
            Started window({m_mesh, m_anim, m_rigid});
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            select(window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
            find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
            select(window, "treeAnim", {{RecordKind::AnimBlock, {0}}});
            auto *blocks = find<QComboBox>(window, "cbAnimTrackBlock");
            blocks->setFocus();
            QTest::keyClick(blocks, Qt::Key_Down);
            auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
            const QVector3D start = view->camera().position();
            QTest::keyPress(view, Qt::Key_W);
            QTRY_VERIFY(view->camera().position() != start);
            QTest::keyRelease(view, Qt::Key_W);
            place = view->camera().position();
            find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, "tabDatabase"));
            window.close();
        }
        Started window;
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
        QCOMPARE(rootOf(window, "treeAnim"), QStringLiteral("man.anim"));
        QCOMPARE(rootOf(window, "treeStaticMesh"), QStringLiteral("box.staticmesh"));
        QCOMPARE(find<KVTreeView>(window, "treeSkinnedMesh")->currentRecord(),
                 (RecordRef{RecordKind::Bone, {1}}));
        QCOMPARE(find<KVTreeView>(window, "treeAnim")->currentRecord(),
                 (RecordRef{RecordKind::AnimBlock, {0}}));
        QCOMPARE(playback().blockIndex, 1);
        QCOMPARE(find<KVOpenGLWidget>(window, "viewSkinned")->camera().position(), place);
        QCOMPARE(find<QTabWidget>(window, "tabWidget")->currentWidget(),
                 find<QWidget>(window, "tabDatabase"));
        QCOMPARE(find<QTabWidget>(window, "tabTrees")->currentIndex(), 1);
        QCOMPARE(consoleOf(window).filter("[Session]"), QStringList());
        // Until it is stored anew there is none: what brought this start down would bring down the next.
        QVERIFY(Settings::Session.value().isEmpty());
    }

    // The animation, which comes after it, has no say in what the view marks while the mesh is in front.
    void whatIsSelectedIsMarked()
    {
        {
            Started window({m_mesh, m_anim});
            find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);
            select(window, "treeSkinnedMesh", {{RecordKind::SkinnedSurface, {0}}});
            window.close();
        }
        Started window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        QTRY_VERIFY(countPixels(view->grabFramebuffer(), QColor(255, 140, 0)) > 50);
    }

    void aSessionIsKeptWhereItIsWanted()
    {
        Settings::RestoreSession.setValue(false);
        Started({m_mesh}).close();
        QVERIFY(!Settings::Session.exists());
        Settings::RestoreSession.setValue(true);
        Started({m_mesh}).close();
        QVERIFY(Settings::Session.exists());
        Settings::RestoreSession.setValue(false);
        Started window;
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QString());
    }

    void aCrashKeepsIt()
    {
        {
            MainWindow window;
            window.show();
            window.findChild<Session *>()->setDelay(0);
            window.openAtStart({m_rigid});
            QTRY_VERIFY(Settings::Session.value().contains(QStringLiteral("staticmesh")));
        }
        Started window;
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - box.staticmesh"));
    }

    void filesThatChangedOrWent()
    {
        {
            Started window({m_mesh, m_anim, m_rigid});
            select(window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
            window.close();
        }
        SkinnedMesh other = triangleMan();
        other.nodes.resize(1);
        QVERIFY(!other.write(m_mesh));
        QVERIFY(QFile::remove(m_anim));
        QVERIFY(TestSupport::writeFile(m_rigid, QByteArray(3, 'x')));
        const Hand hand({});
        Started window;
        QTest::qWait(50);
        QCOMPARE(hand.seen, QStringList());
        QCOMPARE(find<KVTreeView>(window, "treeSkinnedMesh")->currentRecord().kind, RecordKind::SkinnedMesh);
        QCOMPARE(rootOf(window, "treeAnim"), QString());
        const QStringList lines = consoleOf(window);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], QStringLiteral("[Session] '%1' has changed since the last session")
                               .arg(QDir::toNativeSeparators(m_mesh)));
        QCOMPARE(
            lines[1],
            QStringLiteral("[Session] '%1' is not there any more").arg(QDir::toNativeSeparators(m_anim)));
        QVERIFY2(lines[2].contains(QDir::toNativeSeparators(m_rigid)), qPrintable(lines[2]));
    }

    void theMaterialFileComesBack()
    {
        const auto dock = [](const QWidget &window) { return find<MaterialsDock>(window, "dockMaterials"); };
        const auto leave = [&](Started &window) {
            QTest::keyClick(find<QTreeWidget>(window, "listMaterials"), Qt::Key_Down);
            QCOMPARE(dock(window)->currentMaterial(), QStringLiteral("b"));
            dock(window)->hide();
            window.close();
        };
        {
            Started window({m_mesh, m_materials});
            QTRY_VERIFY(dock(window)->document().isOpen());
            leave(window);
        }
        {
            Started window;
            QTRY_COMPARE(dock(window)->document().path(), m_materials);
            QCOMPARE(dock(window)->currentMaterial(), QStringLiteral("b"));
            QVERIFY(!dock(window)->isVisible());
            QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
            QCOMPARE(consoleOf(window), QStringList());
            window.close();
        }
        {
            // One of the command line takes its place, and leaves the models alone.
            const QString other = m_files->put("other.kmat", "material a {\n}\nmaterial b {\n}\n");
            Started window({other});
            QTRY_COMPARE(dock(window)->document().path(), other);
            QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
            leave(window);
            QVERIFY(QFile::remove(other));
        }
        const Hand hand({});
        Started window;
        QCOMPARE(
            consoleOf(window),
            QStringList(QStringLiteral("[Session] '%1' is not there any more")
                            .arg(QDir::toNativeSeparators(m_files->path(QStringLiteral("other.kmat"))))));
        QVERIFY(!dock(window)->document().isOpen());
        QCOMPARE(hand.seen, QStringList());
    }

    // What is asked when the window closes is asked after the session was stored.
    void aMaterialFileThatIsSavedElsewhereAtTheEnd()
    {
        Settings::GamePath.setValue(m_files->path("game"));
        Settings::OutputDir.setValue(m_files->path("mod"));
        QVERIFY(QDir(m_files->path()).mkpath(QStringLiteral("mod")));
        const QString game = m_files->put("game/materials/m.kmat", "material a {\n}\n");
        {
            Started window({game});
            auto *dock = find<MaterialsDock>(window, "dockMaterials");
            QTRY_VERIFY(dock->document().isOpen());
            QCOMPARE(dock->document().rename(0, QStringLiteral("c")), QString());
            Hand hand({Hand::press(QMessageBox::Yes), Hand::clickOn("Save into the Mod")});
            window.close();
            QTRY_COMPARE(hand.seen.size(), 2);
        }
        Started window;
        const auto &document = find<MaterialsDock>(window, "dockMaterials")->document();
        QTRY_COMPARE(document.path(), m_files->path("mod/materials/m.kmat"));
        QCOMPARE(document.text().materials().front().name, QStringLiteral("c"));
    }

    void filesOfTheCommandLineWin()
    {
        Started({m_mesh, m_anim, m_rigid}).close();
        Started window({m_files->save("other.skinnedmesh", triangleMan())});
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - other.skinnedmesh"));
        // The animation belonged to another mesh; the other tab has nothing to do with it.
        QCOMPARE(rootOf(window, "treeAnim"), QString());
        QCOMPARE(rootOf(window, "treeStaticMesh"), QStringLiteral("box.staticmesh"));
    }

    void whatIsStillBeingReadStays()
    {
        {
            Started window({m_mesh, m_anim, m_rigid});
            select(window, "treeStaticMesh", {{RecordKind::StaticSurface, {0}}});
            select(window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
            window.close();
        }
        const QVariantMap stored = Settings::Session.value();
        QSemaphore gate;
        const QByteArray patience = qgetenv("KORVANE_PATIENCE");
        qputenv("KORVANE_PATIENCE", "0");
        {
            MainWindow window;
            auto &files = *window.findChild<DocumentFiles *>();
            const auto hold = [&gate](auto *document) {
                document->setPreparation([&gate] {
                    return [&gate](const auto &, const ReadProgress &) {
                        gate.acquire();
                        return std::any();
                    };
                });
            };
            hold(static_cast<AnimDocument *>(files.document(DocumentType::Anim)));
            hold(static_cast<StaticMeshDocument *>(files.document(DocumentType::StaticMesh)));
            window.show();
            window.openAtStart({});
            QTRY_COMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
            window.findChild<Session *>()->store();
            QVERIFY(!Settings::Session.value().contains(QStringLiteral("anim"))); // it may crash us yet
            window.close();
            gate.release(2);
        }
        qputenv("KORVANE_PATIENCE", patience);
        QCOMPARE(Settings::Session.value(), stored);
    }

    void keptWorkComesBackOverTheSession()
    {
        {
            Started window({m_mesh});
            typeNumber(find<IntSpinBox>(window, "sbSMHTFactor"), 9);
            window.close();
        }
        Started window;
        QCOMPARE(find<IntSpinBox>(window, "sbSMHTFactor")->value(), 0);
        find<QPushButton>(window, "btnRestore")->click();
        QCOMPARE(find<IntSpinBox>(window, "sbSMHTFactor")->value(), 9);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
        // Whatever else is done: what is open stays.
        window.findChild<Session *>()->store();
        window.openAtStart({});
        QCOMPARE(find<IntSpinBox>(window, "sbSMHTFactor")->value(), 9);
    }

    void anySessionMayBeStored()
    {
        // What stands there instead of what was stored, whole or within a file's map.
        const auto check = [this](const char *name, const QVariantMap &damage) {
            init();
            Started({m_mesh, m_anim, m_rigid, m_materials}).close();
            QVariantMap state = Settings::Session.value();
            for (auto it = damage.constBegin(); it != damage.constEnd(); ++it) {
                QVERIFY2(state.contains(it.key()), qPrintable(it.key()));
                QVariantMap file = state[it.key()].toMap();
                const QVariantMap instead = it.value().toMap();
                for (auto part = instead.constBegin(); part != instead.constEnd(); ++part) {
                    QVERIFY2(file.contains(part.key()), qPrintable(part.key()));
                    file.insert(part.key(), part.value());
                }
                state.insert(it.key(), instead.isEmpty() ? it.value() : file);
            }
            Settings::Session.setValue(state);
            const Hand hand({});
            Started window;
            QTest::qWait(20);
            QVERIFY2(hand.seen.isEmpty(), name);
            QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
            for (auto *tree : window.findChildren<KVTreeView *>())
                QVERIFY2(!tree->topLevelItem(0) || tree->currentRecord().kind != RecordKind::None, name);
            for (const char *view : {"viewSkinned", "viewStatic"}) {
                const QVector3D place = find<KVOpenGLWidget>(window, view)->camera().position();
                QVERIFY2(std::isfinite(place.x()) && place.length() < 1e7f, name);
            }
        };
        const double infinity = std::numeric_limits<double>::infinity();
        constexpr int most = std::numeric_limits<int>::max();
        constexpr int least = std::numeric_limits<int>::min();
        const auto record = [](const QVariantList &numbers) {
            return QVariantMap{{"record", QVariant(numbers)}};
        };
        check("values of other types", {{"viewSkinned", QVariantList{"a", "b", "c", "d", "e"}},
                                        {"viewStatic", "far"},
                                        {"block", "first"},
                                        {"tabWidget", "tabNone"},
                                        {"tabTrees", QVariantList{1, 2}},
                                        {"anim", 17}});
        check("beyond the end", {{"viewSkinned", QVariantList{infinity, 0, qQNaN(), 0, 0}},
                                 {"viewStatic", QVariantList{1e30, 0, 0, 0, 0}},
                                 {"block", most},
                                 {"anim", record({int(RecordKind::AnimAction), most, -1, 0})}});
        check("below the start", {{"viewSkinned", QVariantList{1}},
                                  {"viewStatic", QVariantList()},
                                  {"block", least},
                                  {"anim", record({int(RecordKind::AnimBlock), least, least, least})}});
        for (const char *path : {"/", "/dev/zero"})
            check(path, {{"anim", QVariantMap{{"path", path}}},
                         {"kmat", QVariantMap{{"path", path}, {"material", QVariantList{1}}}}});
        // None, an unknown one, and one of another tree.
        check("odd kinds", {{"skinnedmesh", record({0, 0, 0, 0})},
                            {"anim", record({999, 0, 0, 0})},
                            {"staticmesh", record({int(RecordKind::Bone), 1, 0, 0})}});
    }

private:
    struct Started : MainWindow
    {
        explicit Started(const QStringList &paths = {})
        {
            show();
            openAtStart(paths);
        }
    };

    std::optional<ProgramFolder> m_files;
    QString m_mesh;
    QString m_anim;
    QString m_rigid;
    QString m_materials;
};

QTEST_MAIN(tst_Session)
#include "tst_session.moc"
