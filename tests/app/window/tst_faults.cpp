// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentFiles.h"
#include "Files.h"
#include "Hand.h"
#include "NoOpenGL.h"
#include "Recovery.h"
#include "TestArchive.h"
#include "ZipReader.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
/// There is no memory for so many bytes at once; 0 while there is for all.
std::atomic<size_t> refusedBytes{0};
} // namespace

void *operator new(size_t size)
{
    void *memory = size > 0 && size == refusedBytes ? nullptr : std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void *operator new(size_t size, const std::nothrow_t &) noexcept
{
    return std::malloc(size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, size_t) noexcept
{
    std::free(memory);
}

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

    /// What needs a copy of the model says that there is none, and the work goes on.
    void thereIsNoMemoryForACopy()
    {
        SkinnedMesh mesh = triangleMan();
        mesh.vertices.resize(12347);
        const QString path = m_files->save("man.skinnedmesh", mesh);
        const QByteArray before = TestSupport::readFile(path);
        ShownWindow window({path});
        const QString lack = QStringLiteral("There is not enough memory.");
        refusedBytes = mesh.vertices.size() * sizeof(SkinnedMeshVertex);
        {
            Hand hand({Hand::press(QMessageBox::Ok)});
            window.openFiles({path});
            QTRY_VERIFY(hand.seen.value(0).startsWith("File error|"));
        }
        QVERIFY(consoleOf(window).last().contains(lack));
        typeParent(window, 7);
        {
            Hand hand({Hand::press(QMessageBox::Ok)});
            find<QAction>(window, "actionSave")->trigger();
            QTRY_VERIFY(hand.seen.value(0).contains(lack));
        }
        QVERIFY(window.windowTitle().endsWith(QStringLiteral(" * ")));
        QCOMPARE(TestSupport::readFile(path), before);
        window.findChild<Recovery *>()->keepAll();
        QTRY_VERIFY(consoleOf(window).join('\n').contains("Unsaved work cannot be kept: " + lack));
        {
            Hand hand({Hand::file(path)});
            find<QAction>(window, "actionCompare")->trigger();
        }
        QTRY_COMPARE(find<QTreeWidget>(window, "treeCompare")->accessibleDescription(),
                     "man.skinnedmesh cannot be compared: " + lack);
        QTRY_VERIFY(consoleOf(window).join('\n').contains("'man.skinnedmesh' was not searched: " + lack));
        // Who waits for a copy has none, rather than one of what came later.
        auto &document = static_cast<SkinnedMeshDocument &>(
            *window.findChild<DocumentFiles *>()->document(DocumentType::SkinnedMesh));
        const auto promised = document.copy();
        typeParent(window, 8);
        QVERIFY(promised->isLost());
        refusedBytes = 0;
        find<QAction>(window, "actionSave")->trigger();
        SkinnedMesh saved;
        QVERIFY(!saved.read(path));
        QCOMPARE(int(saved.nodes[1].parentNode), 8);
        QCOMPARE(saved.vertices.size(), mesh.vertices.size());
        find<QAction>(window, "actionCompareAgain")->trigger();
        QTRY_COMPARE(find<QTreeWidget>(window, "treeCompare")->accessibleDescription(),
                     QStringLiteral("No record differs."));
    }

    void thereIsNoMemoryForADirectory()
    {
        constexpr int Count = 1237;
        TestArchive made;
        for (int i = 0; i < Count; ++i)
            made.add("models/" + QByteArray::number(i), "x");
        const QString path = m_files->path("game.kpf");
        QVERIFY(made.write(path));
        refusedBytes = Count * sizeof(ZipEntry);
        const QString problem = Files::archiveProblem(path);
        refusedBytes = 0;
        QCOMPARE(problem, QString("There is not enough memory."));
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
