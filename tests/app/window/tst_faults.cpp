// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "NoOpenGL.h"

/// The program in surroundings that fail it. All of this runs without OpenGL.
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files.emplace(); }
    void withoutOpenGLAllElseWorks()
    {
        useProgram();
        ShownWindow window;
        const auto *notice = find<QWidget>(window, "viewSkinnedPanel")
                                 ->findChild<QLabel *>(QStringLiteral("lblViewportFailure"));
        QVERIFY(notice && notice->isVisible());
        QVERIFY(notice->height() > window.height() / 4);
        QVERIFY(notice->text().contains(QStringLiteral("OpenGL")));
        // What the view would do is refused or does nothing.
        window.openFiles({m_files->save("man.skinnedmesh", triangleMan())});
        QVERIFY(!find<QAction>(window, "actionSavePicture")->isEnabled());
        for (const char *name : {"actionFrameAll", "actionFrameSelection", "actionLookTop", "actionSkeleton",
                                 "actionStatistics", "actionWireframe"})
            find<QAction>(window, name)->trigger();
        // What really is on the screen: a window that cannot be put together stays black.
        QTRY_COMPARE(onScreen(notice, {10, 10, 1, 1}).pixelColor(0, 0),
                     window.palette().color(QPalette::Window));
    }

    void theFolderGoesWhileTheDialogIsOpen()
    {
        const QString folder = m_files->path("folder");
        QVERIFY(QDir().mkpath(folder));
        ShownWindow window({m_files->save("man.skinnedmesh", triangleMan())});
        Hand hand({[&folder](QDialog *dialog) {
                       auto *name = dialog->findChild<QLineEdit *>();
                       name->setText(folder + QStringLiteral("/new.skinnedmesh"));
                       QVERIFY(QDir(folder).removeRecursively());
                       // The dialog itself may refuse, as when a folder is gone that it can see.
                       QMetaObject::invokeMethod(static_cast<QFileDialog *>(dialog), "accept");
                   },
                   Hand::press(QMessageBox::Ok)});
        find<QAction>(window, "actionSaveAs")->trigger();
        QVERIFY(!QFileInfo::exists(folder));
        QVERIFY(hand.seen.size() >= 2);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
    }

    void anySettingMayHoldAnything_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("word") << QVariant(QStringLiteral("nonsense %1 \n"));
        QTest::newRow("huge") << QVariant(QStringLiteral("99999999999999999999"));
        QTest::newRow("most") << QVariant(std::numeric_limits<int>::max());
        QTest::newRow("least") << QVariant(std::numeric_limits<int>::min());
        QTest::newRow("float") << QVariant(-1e30);
        QTest::newRow("list") << QVariant(QStringList({QStringLiteral("a"), QStringLiteral("b")}));
        QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\x01", 3));
        QTest::newRow("size") << QVariant(QSize(-5, 1 << 30));
        QTest::newRow("point") << QVariant(QPoint(-(1 << 30), 1 << 30));
        QTest::newRow("map") << QVariant(QVariantMap({{QStringLiteral("splitterSkinned"), 5}}));
        QTest::newRow("long") << QVariant(QString(100000, QLatin1Char('/')));
    }

    void anySettingMayHoldAnything()
    {
        QFETCH(QVariant, value);
        // Every key of the header, so that a new one cannot be forgotten.
        const QString header =
            QString::fromUtf8(TestSupport::readFile(TestSupport::source("core/Settings.h")));
        QRegularExpressionMatchIterator keys =
            QRegularExpression(QStringLiteral("SettingKey<[^>]+> \\w+\\{\"(\\w+)\"")).globalMatch(header);
        int count = 0;
        for (; keys.hasNext(); ++count)
            QSettings().setValue(keys.next().captured(1), value);
        QVERIFY(count >= 45);
        // Nothing is to be asked of anybody.
        Settings::UpdateUrl.setValue(QString());
        Settings::Updates.setValue(false);
        useProgram();
    }

    void theStoreCannotBeReadNorWritten()
    {
        // Where the store's folder should be is a file.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_files->put("file", "x"));
        QVERIFY(!Settings::HideMeshData.exists());
        useProgram();
        // Where the store should be is a folder.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_files->path("other"));
        QVERIFY(QDir().mkpath(QSettings().fileName()));
        useProgram();
    }

private:
    /// Opens a model, edits it and saves it, as if nothing were wrong.
    void useProgram()
    {
        const QString path = m_files->save("man.skinnedmesh", triangleMan());
        // Such boxes as the setup of the folders are put away.
        Hand hand({});
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.openAtStart({path});
        typeParent(window, 7);
        find<QAction>(window, "actionSave")->trigger();
        SkinnedMesh saved;
        QVERIFY(!saved.read(path));
        QCOMPARE(int(saved.nodes[1].parentNode), 7);
        QTest::qWait(60);
        window.close();
    }

    std::optional<ProgramFolder> m_files;
};

int main(int argc, char *argv[])
{
    takeOpenGLAway();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    TestFaults test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_faults.moc"
