// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Viewport.h"

#include <QAbstractEventDispatcher>
#include <QHBoxLayout>
#include <QOpenGLContext>
#include <QSignalSpy>

/// A driver that can be told to drop contexts, which none does at will.
class FailingViewport : public Viewport
{
public:
    bool lost = false;

protected:
    bool isContextLost() const override { return lost || Viewport::isContextLost(); }
};

template <typename Deed>
static void withoutShaders(Deed deed)
{
    Q_CLEANUP_RESOURCE(shaders);
    deed();
    Q_INIT_RESOURCE(shaders);
}

namespace {
QSurfaceFormat impossibleFormat()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenVG);
    return format;
}
} // namespace

/// The ways in which a running view loses its context, and that it shows the same as before afterwards.
class tst_LostContext : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::useSettingsHome(m_home); }
    void init();
    void cleanup();
    void theViewComesBack_data();
    void theViewComesBack();
    void aWindowThatIsBeingLaidOut();
    void aModelOpenedMeanwhileIsShown();
    void aDriverThatGoesOnFailing();
    void noContextIsToBeHad();
    void noShadersAreToBeHad();

private:
    /// A real one: the context is destroyed under the view's feet, and it cannot be made current any more.
    void destroyContext();
    void renewWhenLost();

    QTemporaryDir m_home;
    QStringList m_log;
    std::unique_ptr<FailingViewport> m_view;
};

void tst_LostContext::init()
{
    m_log.clear();
    Log::setSink([this](LogSeverity, const QString &text) { m_log += text; });
    m_view = makeView<FailingViewport>();
    const QString white = QStringLiteral("m/a/_white");
    m_view->mesh.surfaces = {{white, {0, 1, 2}}, {white, {2, 1, 3}}};
    m_view->mesh.vertices = {{{-100, 0, 0}, {}, {}, 0},
                             {{0, 0, 150}, {}, {}, 0},
                             {{100, 0, 0}, {}, {}, 0},
                             {{150, 0, 100}, {}, {}, 1}};
}

void tst_LostContext::cleanup()
{
    m_view.reset();
    playback() = {};
    Log::setSink({});
}

void tst_LostContext::destroyContext()
{
    // No frame may be left half way to the screen.
    QSignalSpy swapped(m_view.get(), &QOpenGLWidget::frameSwapped);
    m_view->update();
    QTRY_VERIFY(!swapped.isEmpty());
    m_view->context()->setFormat(impossibleFormat());
    QVERIFY(!m_view->context()->create());
    QVERIFY(!m_view->isValid());
}

void tst_LostContext::renewWhenLost()
{
    connect(m_view.get(), &KVOpenGLWidget::contextLost, m_view.get(), [this] {
        m_view->lost = false;
        m_view->renewContext();
    });
}

void tst_LostContext::theViewComesBack_data()
{
    QTest::addColumn<QString>("loss");
    for (const char *loss : {"another window", "destroyed while idle", "destroyed, then resized", "reset"})
        QTest::newRow(loss) << loss;
}

void tst_LostContext::theViewComesBack()
{
    QFETCH(QString, loss);
    m_view->showBones({{0.0f, 0.0f, 250.0f}, {}});
    m_view->setSelectedSurface(1);
    m_view->setHighlightPoint({-50.0f, 0.0f, 100.0f}, false, 0);
    m_view->setSelectedBone(1);
    m_view->setSurfSelectType(1);
    m_view->open();
    playback().playState = PlayState::Paused;
    playback().time = 0.125f;
    // Away from where every view starts.
    const QVector3D start = m_view->camera().position();
    QTest::keyPress(m_view.get(), Qt::Key_D);
    QTRY_VERIFY(m_view->camera().position() != start);
    QTest::keyRelease(m_view.get(), Qt::Key_D);
    const QVector3D camera = m_view->camera().position();
    const QImage before = m_view->grabFramebuffer();
    QVERIFY(m_view->count(isWhite) > 100);
    const QSize size = m_view->size();

    renewWhenLost();
    QSignalSpy lost(m_view.get(), &KVOpenGLWidget::contextLost);
    const QOpenGLContext *context = m_view->context();
    QWidget window;
    QHBoxLayout layout(&window);
    layout.setContentsMargins({});
    const int frames = m_view->frames;
    if (loss == QLatin1String("another window")) {
        layout.addWidget(m_view.get());
        window.resize(size);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(m_view->context() && m_view->context() != context);
    } else if (loss == QLatin1String("reset")) {
        m_view->lost = true;
        m_view->update();
        QTRY_COMPARE(lost.count(), 1);
    } else {
        destroyContext();
        if (loss == QLatin1String("destroyed, then resized")) {
            m_view->resize(size * 2);
            QTRY_COMPARE(m_view->size(), size * 2);
        }
        QTRY_COMPARE(lost.count(), 1);
        m_view->resize(size);
    }
    QTRY_VERIFY(m_view->isValid() && m_view->frames > frames);
    QTRY_COMPARE(m_view->size(), size);

    QCOMPARE(m_view->grabFramebuffer(), before);
    QCOMPARE(m_view->camera().position(), camera);
    QCOMPARE(playback().time, 0.125f);
    QVERIFY(playback().playState == PlayState::Paused);
    QCOMPARE(m_view->failure(), QString());
    QCOMPARE(m_log.size(), lost.count()); // a line a loss, and none of anything else
    layout.removeWidget(m_view.get());
    m_view->setParent(nullptr);
}

// Each size would cost a framebuffer.
void tst_LostContext::aWindowThatIsBeingLaidOut()
{
    QSignalSpy made(m_view.get(), &QOpenGLWidget::aboutToResize);
    QWidget window;
    QHBoxLayout layout(&window);
    layout.addWidget(m_view.get());
    window.show();
    window.resize(500, 300);
    m_view->setSkinnedMeshMode(true);
    m_view->setSkinnedMesh(&m_view->mesh);
    window.resize(400, 300);
    layout.activate();
    QVERIFY(!m_view->context());
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(m_view->frames > 0);
    QCOMPARE(made.count(), 1);
    QVERIFY(m_view->count(isWhite) > 100);
    window.resize(500, 300);
    QTRY_COMPARE(made.count(), 2);
    layout.removeWidget(m_view.get());
    m_view->setParent(nullptr);
}

// Whatever is asked of a view without a context waits for the new one.
void tst_LostContext::aModelOpenedMeanwhileIsShown()
{
    m_view->setSkinnedMeshMode(true);
    m_view->open();
    destroyContext();
    renewWhenLost();
    SkinnedMesh other = m_view->mesh;
    for (SkinnedMeshVertex &vertex : other.vertices)
        vertex.position += {0.0f, 0.0f, 250.0f};
    m_view->setSkinnedMesh(&other);
    m_view->setBackgroundColor(Qt::black);
    m_view->refreshVertices();
    QTRY_VERIFY(m_view->isValid());
    QCOMPARE(m_view->pixel(2, 2), QColor(Qt::black));
    QVERIFY(m_view->count(isWhite) > 100);
    m_view->setSkinnedMesh(nullptr);
}

void tst_LostContext::aDriverThatGoesOnFailing()
{
    m_view->open();
    connect(m_view.get(), &KVOpenGLWidget::contextLost, m_view.get(), [this] { m_view->renewContext(); });
    QSignalSpy lost(m_view.get(), &KVOpenGLWidget::contextLost);
    QSignalSpy failed(m_view.get(), &KVOpenGLWidget::failed);
    m_view->lost = true;
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(lost.count(), 3);
    QVERIFY(m_view->failure().contains(QStringLiteral("driver")));
    QVERIFY(!m_view->isVisible());
    m_view->setBackgroundColor(Qt::black);
    m_view->rebuildModel();
    QTest::qWait(50);
    QCOMPARE(lost.count(), 3);
}

void tst_LostContext::noContextIsToBeHad()
{
    m_view->setFormat(impossibleFormat());
    QSignalSpy failed(m_view.get(), &KVOpenGLWidget::failed);
    m_view->show();
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!m_view->failure().isEmpty());
    QVERIFY(!m_view->isVisible());
}

// Whatever plays, a view that cannot draw ticks no more.
void tst_LostContext::noShadersAreToBeHad()
{
    m_view->showBones({{}, {}});
    m_view->anim.blocks[0].speed = 10.0f;
    m_view->anim.blocks[0].setFrameCount(11);
    playback().playState = PlayState::Playing;
    QSignalSpy failed(m_view.get(), &KVOpenGLWidget::failed);
    withoutShaders([&] {
        m_view->show();
        QTRY_COMPARE(failed.count(), 1);
    });
    QVERIFY(!m_view->isVisible());
    const auto ticks = [this] {
        return QAbstractEventDispatcher::instance()->registeredTimers(m_view.get()).size();
    };
    QTRY_COMPARE(ticks(), 0);
    m_view->playbackChanged();
    QCOMPARE(ticks(), 0);
}

QTEST_MAIN(tst_LostContext)
#include "tst_lostcontext.moc"
