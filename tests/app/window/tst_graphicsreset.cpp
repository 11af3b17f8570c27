// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "KVOpenGLWidget.h"

/// A reset of the graphics driver under the whole program: its window's context goes with those of the
/// viewports.
class TestGraphicsReset : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_files.emplace();
        m_skinned = m_files->save("man.skinnedmesh", triangleMan());
        m_rigid = m_files->save("stone.staticmesh", wall({{QStringLiteral("m/a/_white"), {0, 1, 2}}}));
    }

    void theWindowComesBackAsItWas()
    {
        ShownWindow window({m_rigid, m_skinned});
        find<QDockWidget>(window, "dockConsole")->show();
        auto *tabs = find<QTabWidget>(window, "tabWidget");
        auto *skinned = find<KVOpenGLWidget>(window, "viewSkinned");
        auto *rigid = find<KVOpenGLWidget>(window, "viewStatic");
        QTRY_VERIFY(rigid->isVisible() && whitePixels(rigid) > 100);
        tabs->setCurrentIndex(0);
        waitForNotice(window);
        const RecordRef bone{RecordKind::Bone, {1, 0, 0}};
        select(window, "treeSkinnedMesh", {bone});
        const int before = settledPixels(skinned);
        QVERIFY(before > 100);
        const QRect geometry = window.geometry();
        const QString title = window.windowTitle();

        // A question that is open meanwhile goes on being asked.
        QMessageBox box(QMessageBox::Question, QString("Question"), QString("?"), QMessageBox::Ok, &window);
        box.setWindowModality(Qt::ApplicationModal);
        box.move(window.geometry().bottomRight() - QPoint(20, 20));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy lost(skinned, &KVOpenGLWidget::contextLost);
        const QWindow *handle = window.windowHandle();
        waitForFrame(skinned);
        reset(window);
        QTRY_COMPARE(lost.count(), 1);
        QVERIFY(window.windowHandle() != handle);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(whitePixels(skinned), before);
        QVERIFY(box.isVisible() && QApplication::activeModalWidget() == &box);
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        QVERIFY(!box.isVisible());

        QCOMPARE(window.geometry(), geometry);
        QCOMPARE(window.windowTitle(), title);
        QVERIFY(find<KVTreeView>(window, "treeSkinnedMesh")->currentRecord() == bone);
        QVERIFY(find<QDockWidget>(window, "dockConsole")->isVisible());
        // The view that was not in sight, too.
        tabs->setCurrentIndex(1);
        QTRY_VERIFY(whitePixels(rigid) > 100);
        QCOMPARE(lost.count(), 1);
    }

    void aDriverThatGoesOnFailingCostsTheViewOnly()
    {
        ShownWindow window({m_skinned});
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        QSignalSpy failed(view, &KVOpenGLWidget::failed);
        QTRY_VERIFY(view->isValid());
        waitForNotice(window);
        waitForFrame(view);
        connect(
            view, &QOpenGLWidget::frameSwapped, &window, [&window] { reset(window); }, Qt::QueuedConnection);
        view->update();
        QTRY_COMPARE(failed.count(), 1);
        checkNotice(window, QStringLiteral("driver"));
    }

    void noContextIsToBeHad()
    {
        const QSurfaceFormat usual = QSurfaceFormat::defaultFormat();
        QSurfaceFormat::setDefaultFormat(impossibleFormat());
        ShownWindow window({m_skinned});
        checkNotice(window, QStringLiteral("OpenGL"));
        QSurfaceFormat::setDefaultFormat(usual);
    }

private:
    /// Until the view has the size that the word on a missing animation leaves it.
    static void waitForNotice(const MainWindow &window)
    {
        QTRY_VERIFY(find<QWidget>(window, "barNoAnimation")->isVisible());
        QCoreApplication::processEvents();
    }
    /// Until what is to be seen is on the screen.
    static void waitForFrame(KVOpenGLWidget *view)
    {
        QSignalSpy swapped(view, &QOpenGLWidget::frameSwapped);
        view->update();
        QTRY_VERIFY(!swapped.isEmpty());
    }
    /// How many are white once three frames in a row have as many: the screen is a little behind the view.
    static int settledPixels(KVOpenGLWidget *view)
    {
        int pixels = -1;
        for (int alike = 0, frames = 0; alike < 3 && frames < 100; ++frames) {
            waitForFrame(view);
            const int now = whitePixels(view);
            alike = now == pixels ? alike + 1 : 0;
            pixels = now;
        }
        return pixels;
    }
    static QSurfaceFormat impossibleFormat()
    {
        QSurfaceFormat format;
        format.setRenderableType(QSurfaceFormat::OpenVG);
        return format;
    }
    /// None of the window's contexts works any more. No frame may be half way to the screen.
    static void reset(MainWindow &window)
    {
        for (KVOpenGLWidget *view : window.findChildren<KVOpenGLWidget *>()) {
            if (!view->isValid())
                continue;
            for (QOpenGLContext *context : {view->context()->shareContext(), view->context()}) {
                context->setFormat(impossibleFormat());
                QVERIFY(!context->create());
            }
        }
    }
    static int whitePixels(const QWidget *view)
    {
        return countPixels(onScreen(view, view->rect()), Qt::white);
    }
    /// The notice is in the view's place, and really on the screen: a window that cannot be put together
    /// stays black.
    static void checkNotice(const MainWindow &window, const QString &word)
    {
        const auto *notice = find<QWidget>(window, "viewSkinnedPanel")
                                 ->findChild<QLabel *>(QStringLiteral("lblViewportFailure"));
        QTRY_VERIFY(notice->isVisible());
        QVERIFY(notice->text().contains(word));
        QTRY_COMPARE(onScreen(notice, {10, 10, 1, 1}).pixelColor(0, 0),
                     window.palette().color(QPalette::Window));
    }

    std::optional<ProgramFolder> m_files;
    QString m_skinned;
    QString m_rigid;
};

int main(int argc, char *argv[])
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setOption(QSurfaceFormat::ResetNotification);
    QSurfaceFormat::setDefaultFormat(format);
    QApplication application(argc, argv);
    TestGraphicsReset test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_graphicsreset.moc"
