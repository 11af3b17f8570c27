// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentKind.h"
#include "Find.h"
#include "Hand.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "TestSupport.h"

#include <QAction>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QSpinBox>
#include <QStackedWidget>
#include <QSurfaceFormat>
#include <QTabWidget>

/// Models of other programs, in and out of the whole window.
class tst_ImportExport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init();
    void droppedFiles();
    void importReplacesBothDocuments();
    void failedImportTouchesNothing();
    void unsavedChangesAreAskedFor();
    void exportAndBack();
    void exportOnOtherTabs();

private:
    QString writeBytes(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_files->filePath(name);
        TestSupport::writeFile(path, bytes);
        return path;
    }
    QString writeObj(const QString &name)
    {
        return writeBytes(name, "v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0.5 0.25\nf 1/1 2/1 3/1\n");
    }
    template <typename Model>
    QString write(const QString &name, const Model &model)
    {
        const QString path = m_files->filePath(name);
        return model.write(path) ? QString() : path;
    }
    static void trigger(const MainWindow &window, const char *action)
    {
        window.findChild<QAction *>(QString::fromLatin1(action))->trigger();
    }
    static QString rootLabel(const MainWindow &window, const char *tree)
    {
        auto *view = find<KVTreeView>(window, tree);
        return view->model()->index(0, 0).data().toString();
    }
    /// Presses Import, waits for the end, notes the page and leaves.
    Hand::Answer importing()
    {
        return [this](QDialog *dialog) {
            auto *pages = find<QStackedWidget>(*dialog, "stackPages");
            QTest::mouseClick(find<QPushButton>(*dialog, "btnImport"), Qt::LeftButton);
            QTRY_VERIFY_WITH_TIMEOUT(pages->currentWidget()->objectName() != QLatin1String("pageProgress"),
                                     20000);
            m_page = pages->currentWidget()->objectName();
            QTest::keyClick(dialog, Qt::Key_Escape);
            if (dialog->isVisible())
                dialog->reject();
        };
    }

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_files;
    QString m_page;
};

void tst_ImportExport::init()
{
    TestSupport::useSettingsHome(m_home);
    m_files = std::make_unique<QTemporaryDir>();
    m_page.clear();
    Settings::GamePath.setValue(m_files->path());
    Settings::OutputDir.setValue(m_files->path());
    Settings::ImportRotPitch.setValue(false);
    Settings::Updates.setValue(false);
}

void tst_ImportExport::droppedFiles()
{
    MainWindow window;
    window.show();
    const auto drop = [&window](const QStringList &paths) {
        QMimeData mime;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls += QUrl::fromLocalFile(path);
        mime.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
        return event.isAccepted();
    };
    QVERIFY(!drop({}));
    QVERIFY(drop({write(QStringLiteral("man.skinnedmesh"), triangleMan())}));
    QTRY_COMPARE(rootLabel(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));

    // On the static tab a foreign model becomes a static mesh.
    find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, "tabStatic"));
    Hand hand({importing()});
    QVERIFY(drop({writeObj(QStringLiteral("crate %1.obj"))}));
    QTRY_COMPARE_WITH_TIMEOUT(rootLabel(window, "treeStaticMesh"), QStringLiteral("crate %1.staticmesh"),
                              20000);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(hand.seen, QStringList(QStringLiteral("Import model to Static Mesh")));
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - crate %1.staticmesh"));
    QCOMPARE(rootLabel(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
}

void tst_ImportExport::importReplacesBothDocuments()
{
    MainWindow window;
    window.show();
    window.openFiles({write(QStringLiteral("man.skinnedmesh"), triangleMan()),
                      write(QStringLiteral("man.anim"), twoBlocks())});
    const QString original = m_files->filePath(QStringLiteral("man.skinnedmesh"));
    const QByteArray before = TestSupport::readFile(original);
    Hand hand({importing(),
               // A model without a file asks where to: the file that was open before is left alone.
               [this](QDialog *dialog) {
                   static_cast<QFileDialog *>(dialog)->selectFile(
                       m_files->filePath(QStringLiteral("saved.skinnedmesh")));
                   QTest::keyClick(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")),
                                   Qt::Key_Return);
               }});
    window.openFiles({writeObj(QStringLiteral("box.obj"))});
    QCOMPARE(m_page, QStringLiteral("pageSuccess"));
    QCOMPARE(rootLabel(window, "treeSkinnedMesh"), QStringLiteral("box.skinnedmesh"));
    QCOMPARE(rootLabel(window, "treeAnim"), QStringLiteral("box.anim"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - box.skinnedmesh"));
    trigger(window, "actionSave");
    QCOMPARE(hand.seen.size(), 2);
    QCOMPARE(TestSupport::readFile(original), before);
    SkinnedMesh saved;
    QVERIFY(!saved.read(m_files->filePath(QStringLiteral("saved.skinnedmesh"))));
    QCOMPARE(saved.vertices.size(), size_t(3));
    QCOMPARE(saved.surfaces.at(0).materialPath, QStringLiteral("materials/mat_box/surf_0_white"));
}

void tst_ImportExport::failedImportTouchesNothing()
{
    MainWindow window;
    window.show();
    window.openFiles({write(QStringLiteral("man.skinnedmesh"), triangleMan())});
    Hand hand({importing()});
    window.openFiles({writeBytes(QStringLiteral("broken.obj"), "v")});
    QCOMPARE(m_page, QStringLiteral("pageError"));
    QCOMPARE(rootLabel(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
}

void tst_ImportExport::unsavedChangesAreAskedFor()
{
    MainWindow window;
    window.show();
    window.openFiles({write(QStringLiteral("man.skinnedmesh"), triangleMan())});
    auto *tree = find<KVTreeView>(window, "treeSkinnedMesh");
    const RecordRef bone{RecordKind::Bone, {1, 0, 0}};
    tree->selectRecords({bone}, bone);
    auto *parent = find<QSpinBox>(window, "sbNodeParentNode");
    parent->selectAll();
    QTest::keyClicks(parent, QStringLiteral("7"));
    QTest::keyClick(parent, Qt::Key_Return);
    QVERIFY(window.windowTitle().endsWith(QLatin1String(" * ")));
    Hand hand({Hand::press(QMessageBox::Cancel), Hand::press(QMessageBox::No), Hand::reject});
    trigger(window, "actionImport");
    QCOMPARE(hand.seen.size(), 1);
    QVERIFY(hand.seen[0].startsWith(QLatin1String("Unsaved changes|")));
    trigger(window, "actionImport");
    QCOMPARE(hand.seen.size(), 3);
    QCOMPARE(hand.seen[2], QStringLiteral("Import model to Skinned Mesh"));
    QVERIFY(window.windowTitle().endsWith(QLatin1String(" * ")));
}

void tst_ImportExport::exportAndBack()
{
    MainWindow window;
    window.show();
    find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, "tabStatic"));
    QVERIFY(QDir(m_files->path()).mkpath(QStringLiteral("out")));
    const QString out = m_files->filePath(QStringLiteral("out"));
    const auto choose = [&out](QDialog *dialog) {
        auto *files = static_cast<QFileDialog *>(dialog);
        auto *name = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        name->setText(out);
        QTest::keyClick(name, Qt::Key_Return);
        if (dialog->isVisible())
            QTest::keyClick(name, Qt::Key_Return);
    };
    Hand hand({importing(), choose, choose, Hand::press(QMessageBox::No)});
    window.openFiles({writeObj(QStringLiteral("box.obj"))});
    QCOMPARE(m_page, QStringLiteral("pageSuccess"));
    trigger(window, "actionExport");
    QCOMPARE(hand.seen.value(1), QStringLiteral("Export To Folder"));
    QCOMPARE(Settings::StaticMeshExportPath.value(), out);
    QCOMPARE(QDir(out).entryList(QDir::Files),
             QStringList({QStringLiteral("box.mtl"), QStringLiteral("box.obj")}));
    const QString obj = out + QStringLiteral("/box.obj");
    QVERIFY(TestSupport::readFile(obj).contains("vt 0.5 0.25"));

    // What stands there is not replaced unasked.
    QVERIFY(TestSupport::writeFile(obj, "mine"));
    trigger(window, "actionExport");
    QCOMPARE(hand.seen.size(), 4);
    QVERIFY(hand.seen[3].startsWith(QLatin1String("Export|These files exist already.")));
    QCOMPARE(TestSupport::readFile(obj), QByteArray("mine"));
}

void tst_ImportExport::exportOnOtherTabs()
{
    MainWindow window;
    window.show();
    Hand hand({Hand::press(QMessageBox::Ok)});
    trigger(window, "actionExport");
    QCOMPARE(hand.seen, QStringList(QStringLiteral("Error|No dice!")));
    find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, "tabDatabase"));
    trigger(window, "actionExport");
    trigger(window, "actionImport");
    QCOMPARE(hand.seen.size(), 1);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    tst_ImportExport test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_importexport.moc"
