// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "Patience.h"
#include "Playback.h"

#include <QThread>
#include <QtEndian>

/// Models on their way out of the window: the menu, the dialogs, what stands in the way.
class tst_ModelExport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { m_files.emplace(); }
    void whatThereIsToExport();
    void skinnedMesh();
    void selectedAnimations();
    void pose();
    void patience();

private:
    QString path(const QString &name) const { return m_files->path(name); }
    /// The man and his two animations, of which the second moves him.
    QStringList man() const
    {
        AnimFile anim = twoBlocks();
        anim.blocks[1].animId = 12;
        anim.blocks[1].setTranslationCount(1);
        anim.blocks[1].nodes[0].translationIndex = 0;
        for (int frame = 0; frame < 11; ++frame)
            anim.blocks[1].translations.at(0, frame) = {0.0f, 0.0f, float(frame)};
        m_files->put("man.names.json", R"({"animations": {"12": "walk"}})");
        return {m_files->save("man.skinnedmesh", triangleMan()), m_files->save("man.anim", anim)};
    }
    /// Types a name over the one that is offered.
    static Hand::Answer typed(const QString &name)
    {
        return [name](QDialog *dialog) {
            auto *line = find<QLineEdit>(*dialog, "fileNameEdit");
            QApplication::setActiveWindow(dialog);
            line->setFocus();
            QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(line, name);
            QTest::keyClick(line, Qt::Key_Return);
        };
    }
    /// Opens the menu and presses a letter of it.
    static void chooseInMenu(MainWindow &window, Qt::Key letter)
    {
        const auto press = [&window](Qt::KeyboardModifiers held, int key) {
            QTest::simulateEvent(window.windowHandle(), true, key, held, QString(QChar(key).toLower()),
                                 false);
            QTest::simulateEvent(window.windowHandle(), false, key, held, {}, false);
        };
        press(Qt::AltModifier, Qt::Key_F);
        QTRY_VERIFY(QApplication::activePopupWidget());
        press({}, letter);
    }
    QStringList clips(const QString &name) const
    {
        QByteArray bytes = TestSupport::readFile(path(name));
        if (bytes.startsWith("glTF"))
            bytes = bytes.mid(20, int(qFromLittleEndian<quint32>(bytes.constData() + 12)));
        QStringList names;
        for (const QJsonValue &clip : QJsonDocument::fromJson(bytes)["animations"].toArray())
            names += clip["name"].toString();
        return names;
    }

    std::optional<ProgramFolder> m_files;
};

void tst_ModelExport::whatThereIsToExport()
{
    ShownWindow window;
    const auto enabled = [&window] {
        QString letters;
        for (const char *name : {"actionExportGltf", "actionExportAnimation", "actionExportPose"})
            letters += find<QAction>(window, name)->isEnabled() ? '+' : '-';
        return letters;
    };
    QCOMPARE(enabled(), QString("---"));
    const QStringList files = man();
    window.openFiles({files[0]});
    QTRY_COMPARE(enabled(), QString("+++")); // its animation comes along
    AnimFile other;
    other.blocks.resize(1);
    other.blocks[0].nodes.resize(5);
    window.openFiles({m_files->save("other.anim", other)});
    QCOMPARE(enabled(), QString("+-+"));
    find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, "tabDatabase"));
    QCOMPARE(enabled(), QString("---"));
    window.openFiles({m_files->save("wall.staticmesh", wall({{QStringLiteral("m/m/_white"), {0, 1, 2}}}))});
    QCOMPARE(enabled(), QString("+--"));
    Hand hand({Hand::file(path("wall"))});
    QTest::keyClick(&window, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(TestSupport::readFile(path("wall.glb")).startsWith("glTF"));
}

void tst_ModelExport::skinnedMesh()
{
    ShownWindow window(man());
    QDir(path({})).mkpath("out");
    Hand hand({Hand::file(path("out/man")), Hand::file(path("out/man.glb")), Hand::file(path("out/man.glb")),
               Hand::press(QMessageBox::No), Hand::file(path("out/man.glb")),
               [](QDialog *dialog) { dialog->findChildren<QPushButton *>().last()->click(); },
               typed("man.gltf")});
    const auto exportNow = [&window] {
        QApplication::setActiveWindow(&window); // nobody gives it the keys back where nothing manages windows
        QTest::keyClick(&window, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    };
    exportNow();
    QCOMPARE(hand.seen, QStringList("Export as glTF"));
    QCOMPARE(clips("out/man.glb"), QStringList({"[0]", "walk [12]"}));
    QCOMPARE(Settings::GltfExportPath.value(), path("out"));
    QVERIFY(window.statusBar()->currentMessage().contains("man.glb"));
    const QByteArray first = TestSupport::readFile(path("out/man.glb"));
    exportNow(); // the same once more takes nothing's place

    QCOMPARE(hand.seen.size(), 2);
    typeParent(window, 7);
    auto *name = find<QLineEdit>(window, "txtNodeName");
    name->setFocus();
    QTest::keyClicks(name, QStringLiteral("skull"));
    exportNow();
    QCOMPARE(hand.seen.size(), 4);
    QVERIFY(hand.seen[3].startsWith("Export as glTF|These files exist already. Replace them?"));
    QCOMPARE(TestSupport::readFile(path("out/man.glb")), first);
    exportNow();
    QCOMPARE(hand.seen.size(), 6);
    // Names that are saved nowhere yet go out, too.
    QVERIFY(TestSupport::readFile(path("out/man_2.glb")).contains("bone_001 skull"));
    exportNow();

    QVERIFY(QFile::exists(path("out/man.gltf")) && QFile::exists(path("out/man.bin")));
    QCOMPARE(Settings::GltfExportFormat.value(), QString("gltf"));
    QVERIFY(window.windowTitle().endsWith(" * ")); // nothing of the model was saved by it
}

void tst_ModelExport::selectedAnimations()
{
    ShownWindow window(man());
    Hand hand({[this](QDialog *dialog) {
                   // What is offered says which.
                   QCOMPARE(find<QLineEdit>(*dialog, "fileNameEdit")->text(), QString("man_walk_12.glb"));
                   QCOMPARE(static_cast<QFileDialog *>(dialog)->directory().path(), path({}));
                   dialog->accept();
               },
               Hand::file(path("both.glb"))});
    select(window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
    chooseInMenu(window, Qt::Key_M);
    QTRY_COMPARE(hand.seen, QStringList("Export Animation as glTF"));
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(clips("man_walk_12.glb"), QStringList("walk [12]"));
    select(window, "treeAnim", {{RecordKind::AnimBlock, {0}}, {RecordKind::AnimBlock, {1}}});
    chooseInMenu(window, Qt::Key_M);
    QTRY_COMPARE(clips("both.glb").size(), 2);
}

void tst_ModelExport::pose()
{
    Settings::AnimationAutoPlay.setValue(false);
    ShownWindow window(man());
    Hand hand({Hand::file(path("one.obj")), Hand::file(path("two")), Hand::file(path("two.obj")),
               Hand::press(QMessageBox::No)});
    chooseInMenu(window, Qt::Key_P);
    QTRY_COMPARE_WITH_TIMEOUT(QFile::exists(path("one.mtl")), true, 20000);
    select(window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
    QTest::mouseClick(find<QAbstractButton>(window, "btnAnimTrackStop"), Qt::LeftButton);
    find<QSlider>(window, "sliderAnimTrack")->setValue(7);
    chooseInMenu(window, Qt::Key_P);
    QTRY_COMPARE_WITH_TIMEOUT(QFile::exists(path("two.mtl")), true, 20000);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QVERIFY(TestSupport::readFile(path("one.obj")).contains("v -100 0 0\n"));
    QVERIFY(TestSupport::readFile(path("two.obj")).contains("v -100 0 7\n"));
    QVERIFY(TestSupport::writeFile(path("two.mtl"), "mine"));
    chooseInMenu(window, Qt::Key_P);
    QTRY_COMPARE(hand.seen.size(), 4);
    QVERIFY(hand.seen[3].startsWith("Export|These files exist already."));
    QCOMPARE(TestSupport::readFile(path("two.mtl")), QByteArray("mine"));
}

// Work that takes its time says so and can be given up; what is quick is not heard of.
void tst_ModelExport::patience()
{
    QWidget window;
    window.show();
    QStringList labels;
    QTimer look;
    connect(&look, &QTimer::timeout, &window, [&labels] {
        const QPointer<QProgressDialog> dialog =
            qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (!dialog || (dialog->maximum() == 100 && dialog->value() != 40))
            return;
        if (!labels.endsWith(dialog->labelText()))
            labels += dialog->labelText();
        if (auto *cancel = dialog->findChild<QPushButton *>())
            QTest::mouseClick(cancel, Qt::LeftButton);
    });
    look.start(10);
    const auto quick = [](const Background::Cancelled &) { return 5; };
    QCOMPARE(workWithPatience(quick, "quick", &window).value_or(0), 5);
    const auto endless = [](const Background::Cancelled &cancelled) {
        while (!cancelled)
            QThread::msleep(1);
        return 5;
    };
    QVERIFY(!workWithPatience(endless, "endless", &window));
    const std::atomic_int percent{40};
    QVERIFY(!workWithPatience(endless, "measured", &window, &percent));
    // The window stays alive until the work has noticed.
    const auto slow = [](const Background::Cancelled &cancelled) {
        while (!cancelled)
            QThread::msleep(1);
        QThread::msleep(1500);
        return 5;
    };
    QVERIFY(!workWithPatience(slow, "slow", &window));
    QCOMPARE(labels, QStringList({"endless", "measured", "slow", "Ending…"}));
}

QTEST_MAIN(tst_ModelExport)
#include "tst_modelexport.moc"
