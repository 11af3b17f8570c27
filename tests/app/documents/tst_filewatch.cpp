// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "NoticeBar.h"
#include "OneRun.h"
#include "ReloadPrompt.h"
#include "SampleModels.h"
#include "TestArchive.h"

namespace {
SkinnedMesh manWithFactor(int factor)
{
    SkinnedMesh mesh = triangleMan();
    mesh.headTrackFactor = qint8(factor);
    return mesh;
}
} // namespace

class TestFileWatch : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_run.reset();
        m_folder.emplace();
        writeWithFactor(1);
        m_run = std::make_unique<OneRun>(m_folder->path(QStringLiteral("recovery")));
        auto *place = new QVBoxLayout(&m_run->window);
        new ReloadPrompt(m_run->files, place, &m_run->window);
        m_bar = m_run->window.findChild<NoticeBar *>(QStringLiteral("barReload_skinnedmesh"));
        m_run->window.show();
        m_run->openMesh(path());
        tick();
    }

    void anotherProgramsChangeIsTold()
    {
        const auto check = [this](const std::function<void()> &change) {
            init();
            change();
            QTRY_VERIFY(m_bar->text().endsWith(QStringLiteral("' was changed by another program.")));
            QVERIFY(m_bar->isVisible() && button("btnReload")->isVisible());
            QCOMPARE(factor(), 1);
            // What was kept, or reloaded, is watched on.
            button("btnKeep")->click();
            QVERIFY(m_bar->isHidden());
            QVERIFY(m_run->mesh.isModified());
            tick();
            writeWithFactor(3);
            QTRY_VERIFY(m_bar->isVisible());
            Hand hand({Hand::press(QMessageBox::Yes)});
            button("btnReload")->click();
            QCOMPARE(factor(), 3);
            QVERIFY(m_bar->isHidden() && !m_run->mesh.isModified());
        };
        // Another file in its place, and the same file written.
        check([this] { writeWithFactor(2); });
        check([this] { m_folder->put("man.skinnedmesh", SampleModels::bytesOf(manWithFactor(2))); });
        // Removed and made anew, at once and after that was seen.
        for (const int rest : {50, 2 * FileWatch::RestMs}) {
            check([this, rest] {
                QVERIFY(QFile::remove(path()));
                QTest::qWait(rest);
                writeWithFactor(2);
            });
        }
    }

    void ownSavesAreNot()
    {
        for (int i = 2; i < 5; ++i) {
            m_run->edit(i);
            QVERIFY(!m_run->mesh.save(path()));
            tick();
        }
        QTest::qWait(2 * FileWatch::RestMs);
        QVERIFY(m_bar->isHidden());

        // One that is gone is all there is, and a save brings it back.
        QVERIFY(QFile::remove(path()));
        QTRY_VERIFY(m_bar->isVisible());
        QVERIFY(!button("btnReload")->isVisible());
        QVERIFY(m_run->mesh.isModified());
        QVERIFY(!m_run->mesh.save(path()));
        QVERIFY(m_bar->isHidden());
    }

    void aFileThatComesBackIsTheSame()
    {
        const QString away = path() + ".away";
        for (const bool keeps : {false, true}) {
            QVERIFY(QFile::rename(path(), away));
            QTRY_VERIFY(m_bar->isVisible());
            QVERIFY(m_run->mesh.isModified());
            if (keeps)
                button("btnKeep")->click();
            QVERIFY(QFile::rename(away, path()));
            QTRY_VERIFY(m_bar->isHidden() && !m_run->mesh.isModified());
        }
        // What was changed meanwhile is in no file, also at the same place of the history.
        m_run->edit(7);
        QVERIFY(!m_run->mesh.save(path()));
        QVERIFY(QFile::rename(path(), away));
        QTRY_VERIFY(m_bar->isVisible());
        m_run->mesh.undoStack()->undo();
        m_run->edit(8);
        QVERIFY(QFile::rename(away, path()));
        QTRY_VERIFY(m_bar->isHidden());
        QVERIFY(m_run->mesh.isModified());
    }

    void savingOverAnotherProgramsChangeAsks()
    {
        m_run->edit(9);
        writeWithFactor(2); // at once: before it was told of
        const QByteArray theirs = TestSupport::readFile(path());
        Hand hand({Hand::press(QMessageBox::No), Hand::press(QMessageBox::Yes)});
        QVERIFY(m_run->files.save(DocumentType::SkinnedMesh));
        QCOMPARE(TestSupport::readFile(path()), theirs);
        QVERIFY(m_run->mesh.isModified());
        QVERIFY(!m_run->files.save(DocumentType::SkinnedMesh));
        QVERIFY(TestSupport::readFile(path()) != theirs && m_bar->isHidden());
        m_run->edit(8);
        QVERIFY(!m_run->files.save(DocumentType::SkinnedMesh));
        QCOMPARE(hand.seen.size(), 2);
    }

    void restoredWorkReplacesNoOtherFileUnasked()
    {
        const auto restore = [this](bool asks) {
            const QVector<Snapshot> kept = m_run->recovery->snapshots();
            QCOMPARE(kept.size(), 1);
            QCOMPARE(int(m_run->recovery->restore(kept[0])), int(Recovery::Outcome::Restored));
            QTest::qWait(2 * FileWatch::RestMs);
            QVERIFY(m_bar->isHidden()); // nothing has changed since
            Hand hand({Hand::press(QMessageBox::No), Hand::press(QMessageBox::Yes)});
            if (asks) {
                QVERIFY(m_run->files.save(DocumentType::SkinnedMesh));
                QVERIFY(m_run->mesh.isModified());
            }
            QVERIFY(!m_run->files.save(DocumentType::SkinnedMesh));
            QCOMPARE(hand.seen.size(), asks ? 2 : 0);
            QVERIFY(!asks || hand.seen[0].contains("has changed since this work began"));
        };
        const auto leave = [this] {
            init();
            m_run->edit(9);
            m_run->openMesh(path());
        };
        leave();
        restore(false);
        // The file went on without that work.
        leave();
        m_run->edit(5);
        QVERIFY(!m_run->mesh.save(path()));
        restore(true);
        // A snapshot of an older program does not say of which file it was.
        leave();
        Snapshot old = m_run->recovery->snapshots().value(0);
        QVERIFY(old.stamp.exists());
        old.stamp = {};
        m_run->recovery->store().keep(old, m_run->mesh.drafter(), {});
        restore(true);
        // What is changed after the restoring is told of.
        writeWithFactor(3);
        QTRY_VERIFY(m_bar->isVisible());
    }

    void aFileIsWaitedFor()
    {
        const QByteArray bytes = SampleModels::bytesOf(manWithFactor(2));
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        // Longer than the rest time in all, with pauses that are shorter.
        for (int i = 0; i < bytes.size(); i += bytes.size() / 6) {
            const QByteArray part = bytes.mid(i, bytes.size() / 6);
            QCOMPARE(file.write(part), qint64(part.size()));
            QElapsedTimer pause;
            pause.start();
            QTest::qWait(FileWatch::RestMs / 3);
            if (pause.elapsed() >= FileWatch::RestMs)
                QSKIP("The machine is too busy to write with short pauses");
            QVERIFY(m_bar->isHidden());
        }
        file.close();
        QTRY_VERIFY(m_bar->isVisible());
        button("btnReload")->click();
        QCOMPARE(factor(), 2);
    }

    void reloadAsksAboutChanges()
    {
        m_run->edit(9);
        writeWithFactor(2);
        QTRY_VERIFY(m_bar->isVisible());
        {
            Hand hand({Hand::press(QMessageBox::No)});
            button("btnReload")->click();
            QCOMPARE(hand.seen.size(), 1);
        }
        QCOMPARE(factor(), 9);
        QVERIFY(m_bar->isVisible());
        Hand hand({Hand::press(QMessageBox::Yes)});
        button("btnReload")->click();
        QCOMPARE(factor(), 2);
        // As the question promised.
        QCOMPARE(m_run->recovery->snapshots().size(), 1);
    }

    /// Another one in the place of an archive is its folder's to tell of; one that is being written is waited
    /// for.
    void archivesGoAndComeBack()
    {
        TestArchive made;
        made.add("models/man.skinnedmesh", SampleModels::bytesOf(manWithFactor(1)));
        const QString archive = m_folder->path(QStringLiteral("game.kpf"));
        QVERIFY(made.write(archive));
        m_run->openMesh(archive + "/models/man.skinnedmesh");
        tick();
        m_folder->put("game.kpf", made.bytes().left(200));
        QTest::qWait(3 * FileWatch::RestMs);
        QVERIFY(m_bar->isHidden());
        QVERIFY(QFile::remove(archive));
        QTRY_VERIFY(m_bar->isVisible());
        QVERIFY(made.write(archive));
        QTRY_VERIFY(m_bar->isHidden());
        QVERIFY(!m_run->mesh.isModified());
    }

    void aFileThatCannotBeReadChangesNothing()
    {
        m_folder->put("man.skinnedmesh", "not a mesh");
        QTRY_VERIFY(m_bar->isVisible());
        Hand hand({Hand::press(QMessageBox::Ok)});
        button("btnReload")->click();
        QCOMPARE(hand.seen.size(), 1);
        QCOMPARE(factor(), 1);
        QVERIFY(m_run->mesh.isModified() && m_bar->isHidden());
    }

private:
    QString path() const { return m_folder->path(QStringLiteral("man.skinnedmesh")); }
    QPushButton *button(const char *name) const { return find<QPushButton>(*m_bar, name); }
    void writeWithFactor(int factor) const { m_folder->save("man.skinnedmesh", manWithFactor(factor)); }
    int factor() const { return m_run->mesh.model().headTrackFactor; }
    void tick() const
    {
        // So that the file's time differs.
        QTest::qWait(20);
    }

    std::optional<TestFolder> m_folder;
    std::unique_ptr<OneRun> m_run;
    NoticeBar *m_bar = nullptr;
};

QTEST_MAIN(TestFileWatch)
#include "tst_filewatch.moc"
