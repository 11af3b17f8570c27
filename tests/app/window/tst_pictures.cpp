// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "PictureThreads.h"
#include "Playback.h"
#include "TextField.h"

#include <QComboBox>

#include <cmath>

/// Pictures that the window saves, one at a time and many.
class tst_Pictures : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QSettings().clear();
        m_files.emplace();
        Settings::AnimationAutoPlay.setValue(false);
    }

    void picturesAreSaved()
    {
        MainWindow empty;
        QVERIFY(!find<QAction>(empty, "actionSavePicture")->isEnabled());
        const auto window = open();
        auto *action = find<QAction>(*window, "actionSavePicture");
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        QTest::keyClick(view, Qt::Key_Home);
        const QString path = m_files->path(QStringLiteral("shots of it.png"));
        {
            const Hand hand({pictureOf(320, true), Hand::file(path)});
            action->trigger();
            QCOMPARE(hand.seen.size(), 2);
        }
        const QImage clear(path);
        QCOMPARE(clear.width(), 320);
        QCOMPARE(clear.height(), qRound(320.0 * view->height() / view->width()));
        QCOMPARE(clear.pixelColor(1, 1).alpha(), 0);
        QCOMPARE(clear.pixelColor(160, clear.height() / 2 + 20), QColor(Qt::white));
        QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("shots of it.png")));

        // Asked again it knows the answers; the view may have had other proportions then.
        Settings::PictureSize.setValue({320, 7});
        {
            const Hand hand(
                {[&clear](QDialog *dialog) {
                     QCOMPARE(find<IntSpinBox>(*dialog, "sbPictureWidth")->value(), 320);
                     QCOMPARE(find<IntSpinBox>(*dialog, "sbPictureHeight")->value(), clear.height());
                     auto *box = find<QCheckBox>(*dialog, "cbTransparent");
                     QVERIFY(box->isChecked());
                     box->click();
                     dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
                 },
                 Hand::file(m_files->path("second"))});
            action->trigger();
        }
        const QImage whole(m_files->path("second.png"));
        QVERIFY(!whole.hasAlphaChannel());
        QCOMPARE(whole.pixelColor(1, 1), Settings::BGColor.value());

        if (!FullDisk::IsPossible)
            return;
        const QString small = m_files->path("small.png");
        std::optional<FullDisk> disk;
        const Hand hand({pictureOf(64, false),
                         [&disk, &small](QDialog *dialog) {
                             disk.emplace(100);
                             Hand::file(small)(dialog);
                         },
                         Hand::press(QMessageBox::Ok)});
        action->trigger();
        QCOMPARE(hand.seen.last(), "File error|Failed to save\n" + small + "|File too large");
        QVERIFY(!QFileInfo::exists(small));
    }

    void framesAreSaved()
    {
        const auto window = open();
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        auto *action = find<QAction>(*window, "actionSavePicture");
        QTest::keyClick(view, Qt::Key_Home);
        view->grabFramebuffer();
        const QString folder = m_files->path(QStringLiteral("new folder"));
        {
            // The whole block, by keys alone.
            const Hand hand({[&](QDialog *dialog) {
                auto *kind = find<QComboBox>(*dialog, "cbPictureKind");
                kind->setFocus();
                QVERIFY(!find<QLabel>(*dialog, "lblPictureFiles")->isVisible());
                QTest::keyClick(kind, Qt::Key_Down);
                auto *step = find<IntSpinBox>(*dialog, "sbPictureStep");
                QVERIFY(step->isVisible() && !find<IntSpinBox>(*dialog, "sbPictureTurns")->isVisible());
                QCOMPARE(find<IntSpinBox>(*dialog, "sbLastFrame")->value(), 10);
                type(step, QStringLiteral("5"));
                type(find<IntSpinBox>(*dialog, "sbPictureWidth"), QStringLiteral("200"));
                type(find<TextField>(*dialog, "txtPictureFolder"), folder);
                type(find<TextField>(*dialog, "txtPictureName"), QStringLiteral("walk"));
                QCOMPARE(find<QLabel>(*dialog, "lblPictureFiles")->text(),
                         QString("walk-0000.png to walk-0010.png (pictures: 3)"));
                QTest::keyClick(find<TextField>(*dialog, "txtPictureName"), Qt::Key_Return);
            }});
            action->trigger();
            QCOMPARE(hand.seen.size(), 1);
        }
        QCOMPARE(QDir(folder).entryList(QDir::Files),
                 QStringList({"walk-0000.png", "walk-0005.png", "walk-0010.png"}));
        QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("new folder: 3 of 3")));
        // Each is what the view shows of the frame, and the view has gone nowhere.
        QCOMPARE(playback().playState, PlayState::InitialPose);
        QSet<QByteArray> different;
        for (const int frame : {0, 5, 10}) {
            playback().playState = PlayState::Paused;
            playback().time = float(frame) / 10.0f;
            view->grabFramebuffer();
            const QImage saved(folder + QStringLiteral("/walk-%1.png").arg(frame, 4, 10, QLatin1Char('0')));
            const QImage shown = view->picture(saved.size(), view->backgroundColor().rgb());
            QCOMPARE(saved.width(), 200);
            QCOMPARE(saved, shown.convertToFormat(QImage::Format_RGB32));
            different.insert(
                QByteArray(reinterpret_cast<const char *>(saved.constBits()), int(saved.sizeInBytes())));
        }
        QCOMPARE(different.size(), 3);

        // Asked again it knows the answers. What would be replaced is asked about, and nothing is begun.
        playback().range = {2, 5};
        const QString first = folder + QStringLiteral("/man-0002.png");
        QVERIFY(TestSupport::writeFile(first, "mine"));
        const Hand hand({[&](QDialog *dialog) {
                             QCOMPARE(find<QComboBox>(*dialog, "cbPictureKind")->currentIndex(), 1);
                             QCOMPARE(find<IntSpinBox>(*dialog, "sbPictureStep")->value(), 5);
                             QCOMPARE(find<IntSpinBox>(*dialog, "sbFirstFrame")->value(), 2);
                             QCOMPARE(find<IntSpinBox>(*dialog, "sbLastFrame")->value(), 5);
                             type(find<IntSpinBox>(*dialog, "sbPictureStep"), QStringLiteral("3"));
                             save(dialog);
                         },
                         Hand::press(QMessageBox::No)});
        action->trigger();
        QCOMPARE(hand.seen.size(), 2);
        QVERIFY(hand.seen.last().contains(QStringLiteral("man-0002.png' exists already")));
        QCOMPARE(TestSupport::readFile(first), QByteArray("mine"));
        QVERIFY(!QFileInfo::exists(folder + QStringLiteral("/man-0005.png")));
    }

    void whatIsNotSeenRefusesNothing()
    {
        const auto window = open();
        const QString path = m_files->path(QStringLiteral("view.png"));
        const Hand hand({[](QDialog *dialog) {
                             auto *kind = find<QComboBox>(*dialog, "cbPictureKind");
                             kind->setFocus();
                             QTest::keyClick(kind, Qt::Key_End);
                             auto *turns = find<IntSpinBox>(*dialog, "sbPictureTurns");
                             type(turns, QStringLiteral("0"));
                             QVERIFY(turns->isRefused());
                             kind->setFocus();
                             QTest::keyClick(kind, Qt::Key_Home);
                             save(dialog);
                             if (dialog->isVisible()) // refused
                                 dialog->reject();
                         },
                         Hand::file(path)});
        find<QAction>(*window, "actionSavePicture")->trigger();
        QVERIFY(QFileInfo::exists(path));
    }

    void lackOfMemoryIsTold()
    {
        const std::atomic_bool cancelled{false};
        const auto lack = [](size_t) -> QString { throw std::bad_alloc(); };
        QStringList told;
        const auto tell = [&told](size_t picture, const DrawnPicture &drawn) {
            told += QString::number(picture) + drawn.error;
            return drawn.error.isEmpty();
        };
        // Of one picture, and of all that a thread needs.
        QVERIFY(!PictureThreads(100, {8, 8})
                     .run(
                         [&lack](OffscreenScene &) -> PictureThreads::Draw {
                             return [&lack](size_t picture) { return picture == 3 ? lack(3) : QString(); };
                         },
                         tell, cancelled));
        QCOMPARE(told, QStringList({"0", "1", "2", "3There is not enough memory."}));
        told.clear();
        QVERIFY(!PictureThreads(100, {8, 8})
                     .run([](OffscreenScene &) -> PictureThreads::Draw { throw std::bad_alloc(); }, tell,
                          cancelled));
        QCOMPARE(told, QStringList("0There is not enough memory."));
        // Where it is missing for the telling, the threads do not wait for that.
        QVERIFY_EXCEPTION_THROWN(
            PictureThreads(1000, {8, 8})
                .run(
                    [](OffscreenScene &) -> PictureThreads::Draw { return [](size_t) { return QString(); }; },
                    [](size_t, const DrawnPicture &) -> bool { throw std::bad_alloc(); }, cancelled),
            std::bad_alloc);
    }

    void turntablesAreSaved()
    {
        const auto window = open();
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        QTest::keyClick(view, Qt::Key_Home);
        view->grabFramebuffer();
        const QImage before = view->picture({120, 90}, Qt::transparent);
        Settings::PictureKind.setValue(2);
        Settings::PicturePath.setValue(m_files->path());
        const auto turntable = [](QDialog *dialog) {
            type(find<IntSpinBox>(*dialog, "sbPictureTurns"), QStringLiteral("4"));
            find<QCheckBox>(*dialog, "cbKeepProportions")->setChecked(false);
            find<QCheckBox>(*dialog, "cbTransparent")->setChecked(true);
            type(find<IntSpinBox>(*dialog, "sbPictureWidth"), QStringLiteral("120"));
            type(find<IntSpinBox>(*dialog, "sbPictureHeight"), QStringLiteral("90"));
            save(dialog);
        };
        {
            const Hand hand({turntable});
            find<QAction>(*window, "actionSavePicture")->trigger();
        }
        const auto picture = [this](int number) {
            return QImage(m_files->path(QStringLiteral("man-000%1.png").arg(number)))
                .convertToFormat(QImage::Format_ARGB32);
        };
        QCOMPARE(picture(0), before.convertToFormat(QImage::Format_ARGB32));
        QVERIFY(!picture(3).isNull() && picture(4).isNull());
        // A triangle seen from its edge is all but gone; from behind it is itself mirrored.
        QVERIFY(opaque(picture(1)) * 5 < opaque(picture(0)));
        QVERIFY(opaque(picture(2)) > 0.9 * opaque(picture(0)) &&
                opaque(picture(2)) < 1.1 * opaque(picture(0)));

        if (!FullDisk::IsPossible)
            return;
        for (int number = 0; number < 4; ++number)
            QFile::remove(m_files->path(QStringLiteral("man-000%1.png").arg(number)));
        std::optional<FullDisk> disk;
        const Hand hand({[&](QDialog *dialog) {
                             disk.emplace(100);
                             turntable(dialog);
                         },
                         Hand::press(QMessageBox::Ok)});
        find<QAction>(*window, "actionSavePicture")->trigger();
        QCOMPARE(hand.seen.last(),
                 "File error|Failed to save\n" + m_files->path("man-0000.png") + "|File too large");
        QVERIFY(picture(0).isNull());
    }

private:
    std::unique_ptr<MainWindow> open()
    {
        SkinnedMesh mesh = triangleMan();
        AnimFile file = twoBlocks();
        // The upper bone goes up from frame to frame.
        AnimBlock &block = file.blocks[0];
        block.translations = {1, block.frameCount()};
        for (int frame = 0; frame < block.frameCount(); ++frame)
            block.translations.at(0, frame) = {0.0f, 0.0f, 10.0f * float(frame)};
        block.nodes[1].translationIndex = 0;
        auto window = std::make_unique<ShownWindow>(
            QStringList{m_files->save("man.skinnedmesh", mesh), m_files->save("man.anim", file)});
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        view->setFocus();
        view->grabFramebuffer();
        return window;
    }
    static void type(QWidget *field, const QString &text)
    {
        // What is typed is stored when a field loses the keys, which only an active window has.
        QApplication::setActiveWindow(field->window());
        field->setFocus();
        if (auto *line = qobject_cast<QLineEdit *>(field))
            line->selectAll();
        else
            static_cast<IntSpinBox *>(field)->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Tab);
    }
    static void save(QDialog *dialog)
    {
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    }
    static int opaque(const QImage &picture)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += qAlpha(picture.pixel(x, y)) > 127 ? 1 : 0;
        }
        return count;
    }
    static Hand::Answer pictureOf(int width, bool transparent)
    {
        return [width, transparent](QDialog *dialog) {
            auto *box = find<IntSpinBox>(*dialog, "sbPictureWidth");
            box->setFocus();
            box->selectAll();
            QTest::keyClicks(box, QString::number(width));
            QTest::keyClick(box, Qt::Key_Tab);
            find<QCheckBox>(*dialog, "cbTransparent")->setChecked(transparent);
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
        };
    }

    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Pictures)
#include "tst_pictures.moc"
