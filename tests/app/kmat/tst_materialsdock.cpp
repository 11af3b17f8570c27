// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EndSignals.h"
#include "Hand.h"
#include "KMat.h"
#include "MaterialsDock.h"
#include "NoticeBar.h"
#include "Recovery.h"
#include "SessionEnd.h"
#include "TextField.h"
#include "TexturePreview.h"

#include <QTextBlock>

namespace {
const QByteArray Text =
    "// mine\r\nmaterial a {\r\n\tunknown \"x\"\r\n\tsampler \"diffuse\" 0 \"textures/a.png\" "
    "{\r\n\t}\r\n}\r\n"
    "material b {\r\n\tsampler \"normal\" 1 \"n.png\"\r\n\tsampler \"diffuse\" 0 \"b.png\"\r\n}\r\n";
} // namespace

/// Material files in their dock, as a modder edits them.
class tst_MaterialsDock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        qputenv("KORVANE_PATIENCE", "60000");
        m_window.reset();
        m_files.emplace();
        for (const char *folder : {"game", "mod/textures"})
            QDir(m_files->path()).mkpath(folder);
        Settings::GamePath.setValue(m_files->path("game"));
        Settings::OutputDir.setValue(m_files->path("mod"));
        m_mesh = m_files->save("mod/wall.staticmesh", wall({{"materials/m/b", {0, 1, 2}}}));
        m_path = m_files->put("mod/materials/m.kmat", Text);
        for (const char *name : {"a", "new"}) {
            QImage picture(4, 2, QImage::Format_RGB32);
            picture.fill(Qt::red);
            QVERIFY(picture.save(m_files->path(QStringLiteral("mod/textures/%1.png").arg(name))));
        }
    }
    void cleanup()
    {
        if (m_window)
            dock().document().undoStack()->setClean(); // nobody is asked any more
        m_window.reset();
    }

    void opensFromASurface()
    {
        open({m_mesh});
        select(*m_window, "treeStaticMesh", {{RecordKind::StaticSurface, {0}}});
        auto *edit =
            find<QToolButton>(*find<QWidget>(*m_window, "pagesStaticMesh"), "btnEditSurfaceMaterial");
        QTRY_VERIFY(edit->isVisible() && edit->isEnabled());
        QTest::mouseClick(edit, Qt::LeftButton);
        QTRY_VERIFY(dock().isVisible());
        QCOMPARE(list()->topLevelItemCount(), 3);
        QCOMPARE(rows(), (QStringList{"a diffuse textures/a.png", "b normal n.png", "b diffuse b.png"}));
        QCOMPARE(list()->currentItem(), list()->topLevelItem(2)); // what is drawn of it
        QCOMPARE(field()->value(), QString("b.png"));
        QTRY_COMPARE(preview()->words(), QString("not found in game and mod"));

        // Looking changes nothing.
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Home);
        QTRY_COMPARE(preview()->words(), QString::fromUtf8("4 \xc3\x97 2, of the mod"));
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        turnWheel(field(), 120);
        QVERIFY(!dock().document().isModified());
        QCOMPARE(dock().document().text().bytes(), Text);
    }

    void editsOneValue()
    {
        open({m_mesh, m_path});
        typeTexture("nowhere");
        QTest::keyClick(field(), Qt::Key_Escape);
        QCOMPARE(field()->text(), QString("textures/a.png"));
        typeTexture("my new.png");
        QTest::keyClick(field(), Qt::Key_Return);
        QVERIFY(field()->refusal().contains("blanks"));
        QTest::keyClick(field(), Qt::Key_Escape);
        QVERIFY(!dock().document().isModified());

        typeTexture("textures/new.png");
        QTest::keyClick(field(), Qt::Key_Return);
        QVERIFY(dock().document().isModified());
        QCOMPARE(rows().first(), QString("a diffuse textures/new.png"));
        QVERIFY(find<QLabel>(*m_window, "lblMaterialFile")->text().startsWith("m.kmat *"));
        list()->setFocus();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(dock().document().text().bytes(), Text);
        QVERIFY(!dock().document().isModified());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QByteArray expected = Text;
        QCOMPARE(TestSupport::readFile(m_path), expected.replace("textures/a.png", "textures/new.png"));
        QVERIFY(!dock().document().isModified());
        QCOMPARE(field()->value(), QString("textures/new.png"));
    }

    void followsTheFocus()
    {
        open({m_files->save("mod/man.skinnedmesh", triangleMan()), m_path});
        const QByteArray mesh = TestSupport::readFile(m_files->path("mod/man.skinnedmesh"));
        typeTexture("textures/new.png");
        QTest::keyClick(field(), Qt::Key_Return);
        typeParent(*m_window, 0); // an edit of the mesh, whose page has the keys
        QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(TestSupport::readFile(m_files->path("mod/man.skinnedmesh")) != mesh);
        QCOMPARE(TestSupport::readFile(m_path), Text);
        QVERIFY(dock().document().isModified());

        // The window does not go without a question.
        {
            Hand hand({Hand::press(QMessageBox::Cancel)});
            QVERIFY(!m_window->close());
            QVERIFY(hand.seen.value(0).contains("m.kmat"));
        }
        QVERIFY(m_window->isVisible() && dock().document().isModified());
        find<QAction>(*m_window, "actionSaveAll")->trigger();
        QVERIFY(TestSupport::readFile(m_path) != Text);
    }

    void keepsTheGame()
    {
        const QString game = m_files->put("game/materials/g.kmat", Text);
        open({game});
        typeTexture("textures/new.png");
        QTest::keyClick(field(), Qt::Key_Return);
        Hand hand({Hand::clickOn("Save into the Mod")});
        QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(hand.seen.value(0).contains("game folder"));
        QCOMPARE(TestSupport::readFile(game), Text);
        QVERIFY(TestSupport::readFile(m_files->path("mod/materials/g.kmat")).contains("textures/new.png"));
        QCOMPARE(dock().document().path(), m_files->path("mod/materials/g.kmat"));
        QVERIFY(find<QLabel>(*m_window, "lblMaterialFile")->text().contains("the view takes the game's"));
    }

    void showsAPartOfALongText()
    {
        QByteArray text = Text;
        while (text.size() < 1 << 20)
            text += "material m" + QByteArray::number(text.size()) +
                    " {\r\n sampler \"d\" 0 \"d.png\"\r\n}\r\n// " + QByteArray(200, 'x') + "\r\n";
        text += "material last { sampler \"d\" 0 \"last.png\" }";
        m_files->put("mod/materials/m.kmat", text);
        open({m_path});
        const auto *shown = find<QPlainTextEdit>(*m_window, "txtMaterialFile");
        const auto markedLine = [shown] { return shown->extraSelections().value(0).cursor.block().text(); };
        QVERIFY(markedLine().contains("textures/a.png"));
        QVERIFY(shown->document()->characterCount() < 2 * 64 * 1024);
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_End);
        QCOMPARE(markedLine(), QString("material last { sampler \"d\" 0 \"last.png\" }"));
        QTest::keyClick(list(), Qt::Key_Up);
        QVERIFY(markedLine().contains("d.png"));
        list()->setCurrentItem(list()->topLevelItem(list()->topLevelItemCount() / 2));
        QVERIFY(markedLine().contains("sampler") && shown->textCursor().block().previous().text() ==
                                                        "material " + list()->currentItem()->text(0) + " {");
        field()->setFocus();
        field()->selectAll();
        QTest::keyClicks(field(), "half.png");
        QTest::keyClick(field(), Qt::Key_Return);
        QVERIFY(markedLine().contains("half.png"));
        QCOMPARE(shown->horizontalScrollBar()->value(), 0);
    }

    void seesOthers()
    {
        open({m_path});
        m_files->put("mod/materials/m.kmat", "material other { }\n");
        auto *reload = find<QPushButton>(*m_window, "btnReloadMaterials");
        QTRY_VERIFY(reload->isVisible());
        QTest::mouseClick(reload, Qt::LeftButton);
        QCOMPARE(rows(), QStringList("other  "));
        QVERIFY(!reload->isVisible());
        QVERIFY(!field()->isEnabled());
    }

    void addsAMaterial()
    {
        open({m_path});
        const auto name = [](const char *text) {
            return [text](QDialog *dialog) {
                auto *line = dialog->findChild<QLineEdit *>();
                line->setText(text);
                QTimer::singleShot(0, dialog, &QDialog::accept);
            };
        };
        {
            Hand hand({name("a"), name("c")});
            QTest::mouseClick(find<QToolButton>(*m_window, "btnNewMaterial"), Qt::LeftButton);
            QCOMPARE(hand.seen.size(), 2); // there is an "a" already
        }
        QCOMPARE(rows().last(), QString("c diffuse _white"));
        QCOMPARE(field()->value(), QString("_white"));
        QVERIFY(dock().document().text().bytes().startsWith(Text + "material c {\r\n"));
        dock().document().undoStack()->undo();
        QCOMPARE(dock().document().text().bytes(), Text);
    }

    void renamesAMaterial()
    {
        open({m_path});
        const auto name = [](const char *text) {
            return [text](QDialog *dialog) {
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                auto *line = dialog->findChild<QLineEdit *>();
                line->selectAll();
                QTest::keyClicks(line, text);
                QTimer::singleShot(0, line, [line] { QTest::keyClick(line, Qt::Key_Return); });
            };
        };
        list()->setFocus();
        list()->setCurrentItem(list()->topLevelItem(0));
        {
            Hand hand({name("b"), name("wall")});
            QTest::keyClick(list(), Qt::Key_F2);
            QCOMPARE(hand.seen.size(), 2); // there is a "b" already
        }
        QCOMPARE(rows().first(), QString("wall diffuse textures/a.png"));
        QCOMPARE(list()->currentItem(), list()->topLevelItem(0));
        QByteArray expected = Text;
        QCOMPARE(dock().document().text().bytes(), expected.replace("material a", "material wall"));
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(dock().document().text().bytes(), Text);
        Hand hand({Hand::reject});
        QTest::keyClick(list(), Qt::Key_F2);
        QCOMPARE(hand.seen.size(), 1);
        QVERIFY(!dock().document().isModified());
    }

    /// What is still being read comes when no dialog is about the file before it.
    void readsBesideDialogs()
    {
        const QString slow =
            m_files->put("mod/materials/slow.kmat", "material other { }\n//" + QByteArray(12 << 20, 'x'));
        open({m_path});
        qputenv("KORVANE_PATIENCE", "0");
        const MaterialDocument &document = dock().document();
        const auto waitForNothing = [&] {
            QVERIFY(!QTest::qWaitFor([&] { return document.path() != m_path; }, 500));
        };
        const auto *rename = find<QAction>(*m_window, "actionRenameMaterial");
        const QString copy = m_files->path("mod/materials/copy.kmat");
        {
            m_window->openFiles({slow});
            QVERIFY(!rename->isEnabled() && !find<QAction>(*m_window, "actionNewMaterial")->isEnabled());
            Hand hand({[&](QDialog *dialog) {
                waitForNothing();
                Hand::file(copy)(dialog);
            }});
            find<QAction>(*m_window, "actionSaveAs")->trigger();
            QCOMPARE(TestSupport::readFile(copy), Text);
            QTRY_COMPARE_WITH_TIMEOUT(document.path(), slow, 60000);
            QVERIFY(rename->isEnabled());
        }
        m_window->openFiles({m_path});
        QTRY_COMPARE_WITH_TIMEOUT(document.path(), m_path, 60000);
        {
            // The last of the materials of a file that has more; then it is asked about.
            list()->setCurrentItem(list()->topLevelItem(2));
            Hand hand({[&](QDialog *dialog) {
                           m_window->openFiles({slow});
                           waitForNothing();
                           dialog->findChild<QLineEdit *>()->setText("wall");
                           QTimer::singleShot(0, dialog, &QDialog::accept);
                       },
                       Hand::press(QMessageBox::Cancel)});
            find<QAction>(*m_window, "actionRenameMaterial")->trigger();
            QCOMPARE(rows().last(), QString("wall diffuse b.png"));
            QTRY_COMPARE_WITH_TIMEOUT(hand.seen.size(), 2, 60000);
            QTRY_VERIFY(list()->isEnabled());
            QCOMPARE(document.path(), m_path);
        }
        {
            // What is given up for another file is no leave for what is done later, nor for what comes back.
            Hand hand({Hand::press(QMessageBox::No), Hand::press(QMessageBox::Cancel)});
            m_window->openFiles({slow});
            dock().document().undoStack()->undo();
            QVERIFY(dock().document().rename(1, "floor").isEmpty());
            QTRY_COMPARE_WITH_TIMEOUT(hand.seen.size(), 2, 60000);
            QCOMPARE(rows().last(), QString("floor diffuse b.png"));
        }
        dock().document().undoStack()->setClean();
        m_window->openFiles({slow});
        dock().document().restore(m_path, Text, document.stamp());
        QVERIFY(list()->isEnabled());
        waitForNothing();
        QCOMPARE(document.text().bytes(), Text);
    }

    void opensLikeTheOtherFiles()
    {
        open({m_mesh});
        auto *openAction = find<QAction>(*m_window, "actionOpen");
        {
            Hand hand({[this](QDialog *dialog) {
                auto *chooser = qobject_cast<QFileDialog *>(dialog);
                QVERIFY(chooser->nameFilters().join(' ').contains("(*.kmat)"));
                chooser->selectNameFilter(chooser->nameFilters().last());
                Hand::file(m_path)(dialog);
            }});
            openAction->trigger();
        }
        QCOMPARE(dock().document().path(), m_path);
        typeTexture("textures/new.png");
        QTest::keyClick(field(), Qt::Key_Return);

        const QString other = m_files->put("mod/materials/other.kmat", "material other { }\n");
        {
            Hand hand({Hand::file(other), Hand::press(QMessageBox::Cancel)});
            openAction->trigger();
            QVERIFY(hand.seen.value(1).contains("m.kmat"));
        }
        QCOMPARE(dock().document().path(), m_path);
        dock().document().undoStack()->undo();
        {
            Hand hand({Hand::file(other)});
            openAction->trigger();
        }
        QCOMPARE(rows(), QStringList("other  "));
        auto *menu = find<QMenu>(*m_window, "menuRecent");
        emit menu->aboutToShow();
        for (QAction *each : menu->actions()) {
            if (each->text().endsWith("m.kmat"))
                each->trigger();
        }
        QCOMPARE(dock().document().path(), m_path);
        QCOMPARE(Settings::MaterialRecentFiles.value(), QStringList({m_path, other}));
    }

    void isKeptWhenTheProgramEnds()
    {
        open({m_path});
        typeTexture("textures/new.png");
        QTest::keyClick(field(), Qt::Key_Return);
        QByteArray edited = Text;
        edited.replace("textures/a.png", "textures/new.png");
        {
            const EndSignals ending([this](int) { m_window->close(); });
            endSession(*m_window);
            if (!SignalsOfTheEnd.isEmpty())
                QTRY_VERIFY_WITH_TIMEOUT(!m_window->isVisible(), 1500); // nothing is asked
        }
        QCOMPARE(TestSupport::readFile(m_path), Text);
        m_window.reset();

        open({});
        auto *bar = find<NoticeBar>(*m_window, "barRecovery");
        QVERIFY(bar->isVisible() && bar->text().endsWith("m.kmat"));
        QTest::mouseClick(find<QPushButton>(*m_window, "btnRestore"), Qt::LeftButton);
        QVERIFY(dock().isVisible() && dock().document().isModified());
        QCOMPARE(dock().document().text().bytes(), edited);
        QCOMPARE(TestSupport::readFile(m_path), Text);
        typeTexture("textures/a.png");
        QTest::keyClick(field(), Qt::Key_Return);
        dock().document().undoStack()->undo();
        QVERIFY(dock().document().isModified());
        list()->setFocus();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(TestSupport::readFile(m_path), edited);
        auto &store = m_window->findChild<Recovery *>()->store();
        QVERIFY(store.snapshots().isEmpty());
    }

private:
    MaterialsDock &dock() const { return *find<MaterialsDock>(*m_window, "dockMaterials"); }
    QTreeWidget *list() const { return find<QTreeWidget>(*m_window, "listMaterials"); }
    TextField *field() const { return find<TextField>(*m_window, "txtMaterialTexture"); }
    TexturePreview *preview() const { return find<TexturePreview>(*m_window, "viewMaterialTexture"); }
    QStringList rows() const
    {
        QStringList all;
        for (int i = 0; i < list()->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *item = list()->topLevelItem(i);
            all += item->text(0) + ' ' + item->text(1) + ' ' + item->text(2);
        }
        return all;
    }
    void open(const QStringList &files) { m_window = std::make_unique<ShownWindow>(files); }
    void typeTexture(const QString &text)
    {
        list()->setCurrentItem(list()->topLevelItem(0));
        field()->setFocus();
        field()->selectAll();
        QTest::keyClicks(field(), text);
    }

    std::optional<ProgramFolder> m_files;
    std::unique_ptr<ShownWindow> m_window;
    QString m_mesh;
    QString m_path;
};

QTEST_MAIN(tst_MaterialsDock)
#include "tst_materialsdock.moc"
