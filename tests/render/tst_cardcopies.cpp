// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Viewport.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>

// What the card has of a model, and what of it is made anew.
class tst_CardCopies : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_view = makeView(); }
    void cleanup();

    void refreshesWhatChanged();
    void surfacesShareCopies();
    void longListsGoInParts();

private:
    int objectsOnTheCard();

    QTemporaryDir m_home;
    QTemporaryDir m_folder;
    std::unique_ptr<Viewport> m_view;
};

void tst_CardCopies::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
    putQuarters(m_folder.path());
    Settings::GamePath.setValue(m_folder.path());
}

void tst_CardCopies::cleanup()
{
    m_view.reset();
    Log::setSink({});
}

// Clockwise faces the viewer; what is changed is shown when the view is told, without looking for textures
// again.
void tst_CardCopies::refreshesWhatChanged()
{
    QStringList log;
    Log::setSink([&log](LogSeverity, const QString &text) { log.append(text); });
    m_view->openSquare(QStringLiteral("m/missing/x"));
    StaticMesh &square = m_view->square;
    const int built = log.size();
    QVERIFY(built > 0);
    const auto turnOver = [&] {
        for (auto &surface : square.surfaces)
            std::reverse(surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        m_view->refreshIndexes();
    };
    turnOver();
    QVERIFY(isBackground(m_view->centrePixel()));
    m_view->setBackCull(false);
    QVERIFY(isWhite(m_view->centrePixel()));
    m_view->setBackCull(true);
    QVERIFY(isBackground(m_view->centrePixel()));
    turnOver();
    QVERIFY(isWhite(m_view->centrePixel()));

    square.scale(0.01f);
    QVERIFY(isWhite(m_view->centrePixel())); // not told yet
    m_view->refreshVertices();
    QVERIFY(isBackground(m_view->centrePixel()));
    QCOMPARE(log.size(), built);
    m_view->rebuildModel();
    QCOMPARE(log.size(), 2 * built);

    // Fewer vertices than the indexes name.
    square.scale(100.0f);
    square.vertices.pop_back();
    m_view->refreshVertices();
    QVERIFY(isWhite(m_view->pixel(175, 120)));
    QVERIFY(isBackground(m_view->pixel(225, 180)));
}

int tst_CardCopies::objectsOnTheCard()
{
    m_view->makeCurrent();
    QOpenGLFunctions &gl = *m_view->context()->functions();
    int count = 0;
    for (GLuint name = 1; name < 5000; ++name)
        count += gl.glIsTexture(name) + gl.glIsBuffer(name);
    m_view->doneCurrent();
    return count;
}

// Surfaces of one picture share its copy, and those without triangles have nothing on the card until they get
// some.
void tst_CardCopies::surfacesShareCopies()
{
    m_view->openSquare(QStringLiteral("m/a/quarters"));
    m_view->grabFramebuffer();
    StaticMesh &square = m_view->square;
    const StaticMeshSurface first = square.surfaces[0];
    const int before = objectsOnTheCard();
    QVERIFY(before > 0);
    square.surfaces.resize(1000, {first.materialPath, {}});
    m_view->rebuildModel();
    QTRY_COMPARE(objectsOnTheCard(), before);
    square.surfaces.resize(1064, first);
    m_view->rebuildModel();
    QVERIFY(objectsOnTheCard() < before);          // when nothing else is to be done
    QTRY_COMPARE(objectsOnTheCard(), before + 64); // the index buffers
    square.surfaces.resize(1000);
    m_view->rebuildModel();
    const QImage seen = m_view->grabFramebuffer();
    std::swap(square.surfaces[0].triangleIndexes, square.surfaces[999].triangleIndexes);
    m_view->refreshIndexes();
    QCOMPARE(m_view->grabFramebuffer(), seen);
}

// A list of more than 4 MB, whose last triangles stand on both sides of the cut, is drawn whole.
void tst_CardCopies::longListsGoInParts()
{
    m_view->openSquare(QStringLiteral("m/a/quarters"));
    const QImage seen = m_view->grabFramebuffer();
    const int before = objectsOnTheCard();
    const StaticMesh square = m_view->square;
    std::vector<quint16> indexes(2 * 1024 * 1024 - 5, 0);
    for (StaticMeshSurface &surface : m_view->square.surfaces) {
        indexes.insert(indexes.end(), surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        surface.triangleIndexes.clear();
    }
    m_view->square.surfaces[0].triangleIndexes = indexes;
    m_view->refreshIndexes();
    QCOMPARE(m_view->grabFramebuffer(), seen);
    m_view->square = square;
    m_view->refreshIndexes();
    QCOMPARE(m_view->grabFramebuffer(), seen);
    QCOMPARE(objectsOnTheCard(), before);
}

QTEST_MAIN(tst_CardCopies)
#include "tst_cardcopies.moc"
