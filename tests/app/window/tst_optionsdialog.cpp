// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OptionsDialog.h"

#include "Find.h"
#include "IntSpinBox.h"
#include "Look.h"
#include "TestArchive.h"

class tst_OptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { TestSupport::useSettingsHome(m_home); }
    void onlyAcceptingWrites()
    {
        const char *boxes[] = {"cbUpdates", "cbHideMeshData", "cbHideAnimData", "cbAnimAutoPlay",
                               "cbRestoreSession"};
        for (const bool accept : {false, true}) {
            OptionsDialog dialog;
            dialog.show();
            QTest::keyClicks(find<QLineEdit>(dialog, "txtGamePath"), QStringLiteral("/some/game/"));
            QTest::keyClicks(find<QLineEdit>(dialog, "txtT2Dir"), QStringLiteral("/some/mod"));
            for (const char *box : boxes)
                QTest::keyClick(find<QCheckBox>(dialog, box), Qt::Key_Space);
            auto *limit = find<IntSpinBox>(dialog, "sbImportTimeLimit");
            QCOMPARE(limit->value(), 60);
            limit->selectAll();
            QTest::keyClicks(limit, QStringLiteral("300"));
            const auto *hint = find<QLabel>(dialog, "lblLanguageHint");
            QVERIFY(!hint->isVisible());
            QTest::keyClick(find<QComboBox>(dialog, "cbLook"), Qt::Key_End);
            QTest::keyClick(find<QComboBox>(dialog, "cbLanguage"), Qt::Key_End);
            // That it takes effect later is said.
            QVERIFY(hint->isVisible());
            QVERIFY(!isDark(QApplication::palette()));
            click(dialog, accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
            QCOMPARE(dialog.result(), int(accept ? QDialog::Accepted : QDialog::Rejected));
            QCOMPARE(isDark(QApplication::palette()), accept);
            if (!accept)
                QVERIFY(QSettings().allKeys().isEmpty());
        }
        QCOMPARE(Settings::GamePath.value(), QStringLiteral("/some/game"));
        QCOMPARE(Settings::OutputDir.value(), QStringLiteral("/some/mod"));
        for (const auto *key : {&Settings::Updates, &Settings::HideMeshData, &Settings::HideAnimData,
                                &Settings::AnimationAutoPlay}) {
            QVERIFY(key->exists() && !key->value());
        }
        QVERIFY(Settings::RestoreSession.value());
        QCOMPARE(Settings::ImportTimeLimit.value(), 300);
        QCOMPARE(Settings::UiLanguage.value(), QStringLiteral("de"));

        // What is stored is shown.
        const OptionsDialog dialog;
        QCOMPARE(find<QLineEdit>(dialog, "txtGamePath")->text(), QDir::toNativeSeparators("/some/game"));
        QCOMPARE(find<QLineEdit>(dialog, "txtT2Dir")->text(), QDir::toNativeSeparators("/some/mod"));
        for (const char *box : boxes)
            QCOMPARE(find<QCheckBox>(dialog, box)->isChecked(), !qstrcmp(box, "cbRestoreSession"));
    }

    void escapeGivesUpTypingFirst()
    {
        Settings::GamePath.setValue("/start");
        OptionsDialog dialog;
        dialog.show();
        for (const char *name : {"txtGamePath", "txtT2Dir"}) {
            auto *edit = find<QLineEdit>(dialog, name);
            const QString before = edit->text();
            QTest::keyClicks(edit, "x");
            QTest::keyClick(edit, Qt::Key_Escape);
            QVERIFY(dialog.isVisible());
            QCOMPARE(edit->text(), before);
        }
        QTest::keyClick(find<QLineEdit>(dialog, "txtGamePath"), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void browsing()
    {
        Settings::GamePath.setValue(QStringLiteral("/start"));
        OptionsDialog dialog;
        QStringList asked;
        QString answer;
        dialog.setFolderChooser([&](QWidget *, const QString &title, const QString &start) {
            asked << title << start;
            return answer;
        });
        auto *browseGame = find<QPushButton>(dialog, "btnGame");
        auto *browseMod = find<QPushButton>(dialog, "btnT2DirBrowse");

        QTest::mouseClick(browseGame, Qt::LeftButton);
        QCOMPARE(asked, QStringList({"game.kpf unzipped folder", QDir::toNativeSeparators("/start")}));
        answer = QStringLiteral("/mods/mine");
        QTest::mouseClick(browseMod, Qt::LeftButton);
        QCOMPARE(asked.mid(2), QStringList({"Turok 2(Your Mod) Folder", ""}));

        click(dialog, QDialogButtonBox::Ok);
        QCOMPARE(Settings::GamePath.value(), QStringLiteral("/start")); // the first question was cancelled
        QCOMPARE(Settings::OutputDir.value(), answer);
    }

    /// By keys alone: the archive's button is next to the folder's.
    void takesTheArchive()
    {
        const QString archive = m_home.filePath("game.kpf");
        TestArchive made;
        made.add("a", "a");
        QVERIFY(made.write(archive));
        OptionsDialog dialog;
        QStringList asked;
        dialog.setArchiveChooser([&](QWidget *, const QString &title, const QString &start) {
            asked << title << start;
            return archive;
        });
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto *edit = find<QLineEdit>(dialog, "txtGamePath");
        const auto *hint = find<QLabel>(dialog, "lblGamePathHint");
        QTest::keyClick(edit, Qt::Key_Tab);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("btnGameArchive"));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
        QCOMPARE(asked, QStringList({"The game's archive, game.kpf", QString()}));
        QCOMPARE(edit->text(), QDir::toNativeSeparators(archive));
        QVERIFY(hint->isHidden());
        QVERIFY(TestSupport::writeFile(archive, "no archive"));
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_Tab);
        QTRY_VERIFY(hint->isVisible());
        QCOMPARE(hint->text(), QStringLiteral("It is no zip archive that can be read."));
        edit->setText(archive + "/models/");
        QTest::mouseClick(find<QPushButton>(dialog, "btnGameArchive"), Qt::LeftButton);
        QCOMPARE(asked.last(), archive);
        click(dialog, QDialogButtonBox::Ok); // the drive may just not be there today
        QCOMPARE(Settings::GamePath.value(), archive);
    }

    void chooserStartsAtNearestFolder()
    {
        const QTemporaryDir folder;
        QString title;
        QString start;
        QTimer::singleShot(0, [&] {
            auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            title = chooser->windowTitle();
            start = chooser->directory().path();
            chooser->reject();
        });
        QVERIFY(chooseFolder(nullptr, QStringLiteral("A title"), folder.filePath("gone/deeper")).isEmpty());
        QCOMPARE(title, QStringLiteral("A title"));
        QCOMPARE(QFileInfo(start).canonicalFilePath(), QFileInfo(folder.path()).canonicalFilePath());
    }

    void normalizesFolders()
    {
        for (const char *typed : {"/a/b", "/a/b/", "/a/b\\", "/a/b/\\", "/a//c/../b"})
            QCOMPARE(normalizedFolder(QLatin1String(typed)), QStringLiteral("/a/b"));
        QCOMPARE(normalizedFolder(QString()), QString());
        QCOMPARE(normalizedFolder(QStringLiteral("/")), QStringLiteral("/"));
    }

    void hintsAtMissingFolder()
    {
        OptionsDialog dialog;
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto *edit = find<QLineEdit>(dialog, "txtGamePath");
        auto *hint = find<QLabel>(dialog, "lblGamePathHint");
        QVERIFY(hint->isHidden()); // empty is not wrong
        QTest::keyClicks(edit, m_home.filePath("gone"));
        QVERIFY(hint->isHidden()); // nor is a path half typed
        QTest::keyClick(edit, Qt::Key_Tab);
        QVERIFY(hint->isVisible());
        edit->setFocus();
        edit->setText(m_home.path());
        QTest::keyClick(edit, Qt::Key_Tab);
        QVERIFY(hint->isHidden());
    }

private:
    static void click(const QDialog &dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(find<QDialogButtonBox>(dialog, "buttonBox")->button(button), Qt::LeftButton);
    }

    QTemporaryDir m_home;
};

QTEST_MAIN(tst_OptionsDialog)
#include "tst_optionsdialog.moc"
