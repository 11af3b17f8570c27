// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "LoadingSign.h"
#include "OneRun.h"
#include "SampleModels.h"

#include <QSemaphore>

/// Opening files beside the window: what holds until one was read, and what becomes of it then.
class tst_DocumentLoader : public QObject
{
    Q_OBJECT

    using Outcome = DocumentLoader::Outcome;

private slots:
    void init()
    {
        m_folder.emplace();
        m_outcomes.clear();
        m_run.emplace(m_folder->path("recovery"));
        for (const char *name : {"a", "b", "c"}) {
            SkinnedMesh mesh = SampleModels::plainMesh();
            mesh.headTrackFactor = qint8(name[0]);
            m_folder->save(QString("%1.skinnedmesh").arg(name), mesh);
        }
        m_run->openMesh(path("a"));
        m_run->window.show();
        // From here on each read waits for the test to let it end.
        m_run->files.setPatience(0);
        m_run->mesh.setPreparation([this] {
            return [this](const SkinnedMesh &, const ReadProgress &) {
                m_gate.acquire();
                return std::any();
            };
        });
    }
    void cleanup()
    {
        m_gate.release(100);
        m_run.reset();
        m_gate.acquire(m_gate.available());
    }

    void theOldModelStaysUntilTheNewOneIsThere()
    {
        m_run->edit(5);
        open("b");
        QTest::qWait(20);
        QVERIFY(loader().isLoading() && shown() == 5 && m_run->mesh.undoStack()->canUndo());
        m_run->mesh.undoStack()->undo(); // it can be worked with
        QCOMPARE(shown(), int('a'));
        QVERIFY(m_outcomes.isEmpty());
        m_gate.release();
        Hand hand({Hand::press(QMessageBox::No)});
        QTRY_COMPARE(m_outcomes, QStringList("b opened"));
        QCOMPARE(shown(), int('b'));
        QVERIFY(!loader().isLoading() && !m_run->mesh.undoStack()->canRedo());
        QCOMPARE(m_run->mesh.path(), path("b"));
    }

    void anotherPickGivesUpTheOneBefore()
    {
        open("b");
        open("c");
        m_gate.release(2);
        QTRY_COMPARE(m_outcomes, QStringList("c opened"));
        QTest::qWait(20);
        QCOMPARE(shown(), int('c'));
        m_gate.acquire(m_gate.available()); // what was given up early has left its own
        // What replaces the model by another way does so, too.
        open("b");
        m_run->mesh.take(SampleModels::plainMesh(), "taken");
        m_gate.release();
        QTest::qWait(20);
        QCOMPARE(m_run->mesh.fileName(), QString("taken.skinnedmesh"));
        QCOMPARE(m_outcomes.last(), QString("b given up"));
    }

    void theSignComesLateAndGivesUp()
    {
        LoadingSign sign({&loader()}, &m_run->window);
        open("b");
        QVERIFY(!sign.isVisible());
        QTRY_VERIFY(sign.isVisible());
        QCOMPARE(find<QLabel>(sign, "lblLoading")->text(), QString("Opening 'b.skinnedmesh'…"));
        QTest::mouseClick(find<QPushButton>(sign, "btnCancelLoading"), Qt::LeftButton);
        QCOMPARE(m_outcomes, QStringList("b given up"));
        QVERIFY(!sign.isVisible() && !loader().isLoading());
        m_gate.release();
        QTest::qWait(20);
        QCOMPARE(shown(), int('a'));
        // What is there before it comes shows nothing.
        m_gate.release();
        open("c");
        QTRY_COMPARE(m_outcomes.last(), QString("c opened"));
        QTest::qWait(2 * LoadingSign::DelayMs);
        QVERIFY(!sign.isVisible());
    }

    void whatWasDoneMeanwhileIsAskedAbout()
    {
        open("b");
        m_run->edit(7);
        m_gate.release();
        {
            Hand hand({Hand::press(QMessageBox::Cancel)});
            QTRY_COMPARE(m_outcomes, QStringList("b given up"));
            QCOMPARE(hand.seen.size(), 1);
        }
        QVERIFY(shown() == 7 && m_run->mesh.undoStack()->canUndo());
        // What was there before is nobody's question: whoever wants one asks before.
        open("b");
        m_gate.release();
        QTRY_COMPARE(m_outcomes.last(), QString("b opened"));
    }

    void whatIsOpenAboutTheOldModelIsClosedFirst()
    {
        QMenu menu;
        QDialog dialog;
        dialog.setModal(true);
        for (QWidget *open : {static_cast<QWidget *>(&menu), static_cast<QWidget *>(&dialog)}) {
            this->open("b");
            open->show();
            m_gate.release();
            QTest::qWait(150);
            QCOMPARE(m_outcomes, QStringList());
            open->close();
            QTRY_COMPARE(m_outcomes, QStringList("b opened"));
            m_outcomes.clear();
        }
    }

    void aFailureIsSaidByName()
    {
        TestSupport::writeFile(path("b"), "no model");
        QStringList log;
        Log::setSink([&log](LogSeverity, const QString &text) { log << text; });
        open("b");
        Hand hand({Hand::press(QMessageBox::Ok)});
        QTRY_COMPARE(m_outcomes, QStringList("b failed"));
        Log::setSink({});
        const QString shownPath = QDir::toNativeSeparators(path("b"));
        QCOMPARE(hand.seen, QStringList("File error|Failed to open\n" + shownPath));
        QVERIFY(log.size() == 1 && log.first().startsWith("[Open] '" + shownPath));
        QCOMPARE(shown(), int('a'));
    }

    void aSaveIsDoneWhenTheFileIsThere()
    {
        Settings::GamePath.setValue(QString());
        const auto save = [this] { return m_run->files.save(DocumentType::SkinnedMesh); };
        const auto inFile = [this] {
            SkinnedMesh mesh;
            return mesh.read(path("a")) ? -1 : mesh.headTrackFactor;
        };
        m_run->edit(5);
        QVERIFY(!save() && m_run->mesh.isModified());
        QTRY_VERIFY(!m_run->mesh.isModified());
        QCOMPARE(inFile(), 5);
        // What is changed meanwhile is in no file, and no step leads back to what is.
        m_run->edit(6);
        QVERIFY(!save());
        m_run->edit(7);
        m_run->files.finishAllSaving();
        QCOMPARE(inFile(), 6);
        QVERIFY(m_run->mesh.isModified() && m_run->mesh.differsFromFile());
        m_run->mesh.undoStack()->undo();
        QVERIFY(m_run->mesh.isModified());
        // One save after another; what replaces the model waits for them.
        QVERIFY(!save());
        m_run->edit(8);
        QVERIFY(!save());
        m_run->mesh.take(SampleModels::plainMesh(), "taken");
        QCOMPARE(inFile(), 8);
        QVERIFY(m_run->mesh.path().isEmpty());
    }

    void aFailedSaveLeavesTheDocumentModified()
    {
        Settings::GamePath.setValue(QString());
        m_run->edit(5);
        QVERIFY(QFile::remove(path("a")) && QDir().mkpath(path("a")));
        Hand hand({Hand::press(QMessageBox::Ok)});
        m_run->files.save(DocumentType::SkinnedMesh);
        QVERIFY(m_run->files.finishSaving(DocumentType::SkinnedMesh));
        QCOMPARE(hand.seen.size(), 1);
        QVERIFY(m_run->mesh.isModified() && m_run->mesh.path() == path("a"));
    }

private:
    QString path(const char *name) const { return m_folder->path(QString("%1.skinnedmesh").arg(name)); }
    DocumentLoader &loader() { return m_run->files.loader(DocumentType::SkinnedMesh); }
    int shown() const { return m_run->mesh.model().headTrackFactor; }
    void open(const char *name)
    {
        m_run->files.open(DocumentType::SkinnedMesh, path(name), [this, name](Outcome outcome) {
            const char *said = outcome == Outcome::Opened   ? "%1 opened"
                               : outcome == Outcome::Failed ? "%1 failed"
                                                            : "%1 given up";
            m_outcomes << QString(said).arg(name);
        });
    }

    std::optional<ProgramFolder> m_folder;
    std::optional<OneRun> m_run;
    QSemaphore m_gate;
    QStringList m_outcomes;
};

QTEST_MAIN(tst_DocumentLoader)
#include "tst_documentloader.moc"
