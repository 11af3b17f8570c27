// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Session.h"

#include "Find.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "Playback.h"
#include "SampleModels.h"
#include "Settings.h"
#include "TestSupport.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

#include <limits>

class tst_Session : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theNextStartGoesOn();
    void aSessionIsKeptWhereItIsWanted();
    void aCrashKeepsIt();
    void filesThatChangedOrWent();
    void filesOfTheCommandLineWin();
    void keptWorkComesBackOverTheSession();
    void anySessionMayBeStored_data();
    void anySessionMayBeStored();

private:
    static QString root(const MainWindow &window, const char *tree)
    {
        const QTreeWidgetItem *item = find<KVTreeView>(window, tree)->topLevelItem(0);
        return item ? item->text(0) : QString();
    }
    static QStringList console(const MainWindow &window)
    {
        QStringList lines;
        const auto *list = find<QListWidget>(window, "listConsole");
        for (int i = 0; i < list->count(); ++i)
            lines << list->item(i)->text();
        return lines.filter(QStringLiteral("[Session]"));
    }
    /// A start with these files, and a window that is closed when everything is open.
    void run(const QStringList &paths)
    {
        MainWindow window;
        window.show();
        window.openAtStart(paths);
        window.close();
    }

    std::unique_ptr<QTemporaryDir> m_files;
    QString m_mesh;
    QString m_anim;
    QString m_rigid;
};

void tst_Session::init()
{
    m_files = std::make_unique<QTemporaryDir>();
    TestSupport::useSettingsHome(*m_files);
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_files->path()));
    Settings::GamePath.setValue(m_files->path());
    Settings::OutputDir.setValue(m_files->path());
    Settings::Updates.setValue(false);
    Settings::RestoreSession.setValue(true);
    m_mesh = m_files->filePath(QStringLiteral("man.skinnedmesh"));
    m_anim = m_files->filePath(QStringLiteral("man.anim"));
    m_rigid = m_files->filePath(QStringLiteral("box.staticmesh"));
    QVERIFY(!triangleMan().write(m_mesh));
    QVERIFY(!twoBlocks().write(m_anim));
    QVERIFY(!SampleModels::plainStatic().write(m_rigid));
}

void tst_Session::theNextStartGoesOn()
{
    QVector3D place;
    {
        MainWindow window;
        window.show();
        window.openAtStart({m_mesh, m_anim, m_rigid});
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        find<KVTreeView>(window, "treeSkinnedMesh")
            ->selectRecords({{RecordKind::Bone, {1}}}, {RecordKind::Bone, {1}});
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
    MainWindow window;
    window.show();
    window.openAtStart({});
    QCOMPARE(root(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
    QCOMPARE(root(window, "treeAnim"), QStringLiteral("man.anim"));
    QCOMPARE(root(window, "treeStaticMesh"), QStringLiteral("box.staticmesh"));
    QCOMPARE(find<KVTreeView>(window, "treeSkinnedMesh")->currentRecord(),
             (RecordRef{RecordKind::Bone, {1}}));
    QCOMPARE(find<KVTreeView>(window, "treeAnim")->currentRecord(), (RecordRef{RecordKind::AnimBlock, {1}}));
    QCOMPARE(playback().blockIndex, 1);
    QCOMPARE(find<KVOpenGLWidget>(window, "viewSkinned")->camera().position(), place);
    QCOMPARE(find<QTabWidget>(window, "tabWidget")->currentWidget(), find<QWidget>(window, "tabDatabase"));
    QCOMPARE(find<QTabWidget>(window, "tabTrees")->currentIndex(), 1);
    QCOMPARE(console(window), QStringList());
    // Until it is stored anew there is none: what brought this start down would bring down the next.
    QVERIFY(Settings::Session.value().isEmpty());
}

void tst_Session::aSessionIsKeptWhereItIsWanted()
{
    Settings::RestoreSession.setValue(false);
    run({m_mesh});
    QVERIFY(!Settings::Session.exists());
    Settings::RestoreSession.setValue(true);
    run({m_mesh});
    QVERIFY(Settings::Session.exists());
    Settings::RestoreSession.setValue(false);
    MainWindow window;
    window.openAtStart({});
    QCOMPARE(root(window, "treeSkinnedMesh"), QString());
}

void tst_Session::aCrashKeepsIt()
{
    {
        MainWindow window;
        window.show();
        auto *session = window.findChild<Session *>();
        session->setDelay(0);
        window.openAtStart({m_rigid});
        QTRY_VERIFY(Settings::Session.value().contains(QStringLiteral("staticmesh")));
    }
    MainWindow window;
    window.openAtStart({});
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - box.staticmesh"));
}

void tst_Session::filesThatChangedOrWent()
{
    {
        MainWindow window;
        window.openAtStart({m_mesh, m_anim, m_rigid});
        find<KVTreeView>(window, "treeSkinnedMesh")
            ->selectRecords({{RecordKind::Bone, {1}}}, {RecordKind::Bone, {1}});
        window.close();
    }
    SkinnedMesh other = triangleMan();
    other.nodes.resize(1);
    QVERIFY(!other.write(m_mesh));
    QVERIFY(QFile::remove(m_anim));
    QVERIFY(TestSupport::writeFile(m_rigid, QByteArray(3, 'x')));
    const Hand hand({});
    MainWindow window;
    window.show();
    window.openAtStart({});
    QTest::qWait(50);
    QCOMPARE(hand.seen, QStringList());
    QCOMPARE(find<KVTreeView>(window, "treeSkinnedMesh")->currentRecord().kind, RecordKind::SkinnedMesh);
    QCOMPARE(root(window, "treeAnim"), QString());
    const QStringList lines = console(window);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], QStringLiteral("[Session] '%1' has changed since the last session").arg(m_mesh));
    QCOMPARE(lines[1], QStringLiteral("[Session] '%1' is not there any more").arg(m_anim));
    QVERIFY2(lines[2].contains(m_rigid), qPrintable(lines[2]));
}

void tst_Session::filesOfTheCommandLineWin()
{
    run({m_mesh, m_anim, m_rigid});
    const QString other = m_files->filePath(QStringLiteral("other.skinnedmesh"));
    QVERIFY(!triangleMan().write(other));
    MainWindow window;
    window.show();
    window.openAtStart({other});
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - other.skinnedmesh"));
    // The animation belonged to another mesh; the other tab has nothing to do with it.
    QCOMPARE(root(window, "treeAnim"), QString());
    QCOMPARE(root(window, "treeStaticMesh"), QStringLiteral("box.staticmesh"));
}

void tst_Session::keptWorkComesBackOverTheSession()
{
    {
        MainWindow window;
        window.show();
        window.openAtStart({m_mesh});
        find<QSpinBox>(window, "sbSMHTFactor")->setValue(9);
        window.close();
    }
    MainWindow window;
    window.show();
    window.openAtStart({});
    QCOMPARE(find<QSpinBox>(window, "sbSMHTFactor")->value(), 0);
    find<QPushButton>(window, "btnRestore")->click();
    QCOMPARE(find<QSpinBox>(window, "sbSMHTFactor")->value(), 9);
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
    // Whatever else is done: what is open stays.
    window.findChild<Session *>()->store();
    window.openAtStart({});
    QCOMPARE(find<QSpinBox>(window, "sbSMHTFactor")->value(), 9);
}

void tst_Session::anySessionMayBeStored_data()
{
    QTest::addColumn<QVariantMap>("damage");
    QTest::addColumn<QVariantList>("record"); ///< of the animation; empty: as it was
    const double infinity = std::numeric_limits<double>::infinity();
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    QTest::newRow("values of other types")
        << QVariantMap{{"viewSkinned", QVariantList{"a", "b", "c", "d", "e"}},
                       {"viewStatic", "far"},
                       {"block", "first"},
                       {"tabWidget", "tabNone"},
                       {"tabTrees", QVariantList{1, 2}},
                       {"anim", 17}}
        << QVariantList();
    QTest::newRow("beyond the end") << QVariantMap{{"viewSkinned", QVariantList{infinity, 0, qQNaN(), 0, 0}},
                                                   {"viewStatic", QVariantList{1e30, 0, 0, 0, 0}},
                                                   {"block", most}}
                                    << QVariantList{int(RecordKind::AnimAction), most, -1, 0};
    QTest::newRow("below the start") << QVariantMap{{"viewSkinned", QVariantList{1}},
                                                    {"viewStatic", QVariantList()},
                                                    {"block", least}}
                                     << QVariantList{int(RecordKind::AnimBlock), least, least, least};
    QTest::newRow("a folder") << QVariantMap{{"anim", QVariantMap{{"path", "/"}}}} << QVariantList();
    QTest::newRow("a device") << QVariantMap{{"anim", QVariantMap{{"path", "/dev/zero"}}}} << QVariantList();
    QTest::newRow("no kind") << QVariantMap() << QVariantList{0, 0, 0, 0};
    QTest::newRow("an unknown kind") << QVariantMap() << QVariantList{999, 0, 0, 0};
    QTest::newRow("another tree") << QVariantMap() << QVariantList{int(RecordKind::Bone), 1, 0, 0};
}

void tst_Session::anySessionMayBeStored()
{
    QFETCH(QVariantMap, damage);
    QFETCH(QVariantList, record);
    run({m_mesh, m_anim, m_rigid});
    QVariantMap state = Settings::Session.value();
    if (!record.isEmpty()) {
        QVariantMap file = state.value(QStringLiteral("anim")).toMap();
        QVERIFY(file.contains(QStringLiteral("record")));
        file.insert(QStringLiteral("record"), record);
        damage.insert(QStringLiteral("anim"), file);
    }
    for (auto it = damage.constBegin(); it != damage.constEnd(); ++it) {
        QVERIFY2(state.contains(it.key()), qPrintable(it.key()));
        state.insert(it.key(), it.value());
    }
    Settings::Session.setValue(state);
    const Hand hand({});
    MainWindow window;
    window.show();
    window.openAtStart({});
    QTest::qWait(20);
    QCOMPARE(hand.seen, QStringList());
    QCOMPARE(root(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
    if (!record.isEmpty())
        QVERIFY(find<KVTreeView>(window, "treeAnim")->currentRecord().kind != RecordKind::None);
    for (const char *view : {"viewSkinned", "viewStatic"}) {
        const QVector3D place = find<KVOpenGLWidget>(window, view)->camera().position();
        QVERIFY(std::isfinite(place.x()) && place.length() < 1e7f);
    }
}

QTEST_MAIN(tst_Session)
#include "tst_session.moc"
