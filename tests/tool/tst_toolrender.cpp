// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TestSupport.h"
#include "ToolRun.h"

#include <QImage>

/// Pictures that korvane-tool draws.
class tst_ToolRender : public QObject
{
    Q_OBJECT

private slots:
    void framesTheWholeModel_data();
    void framesTheWholeModel();
    void posesByBlockAndFrame();
    void coloursAndFormats();
    void turnsAround();
    void failures_data();
    void failures();

private:
    static QString sample(const QString &name)
    {
        return TestSupport::source(QStringLiteral("samples/") + name);
    }
    /// The picture of a run; null when it failed.
    QImage draw(const QStringList &arguments, const QString &name = QStringLiteral("x.png"))
    {
        const QString picture = m_folder.filePath(name);
        QFile::remove(picture);
        const ToolRun run(QStringList{QStringLiteral("render"), QStringLiteral("-o"), picture} + arguments);
        if (run.exitCode != 0)
            qWarning("%d: %s", run.exitCode, qUtf8Printable(run.err));
        return QImage(picture);
    }

    QTemporaryDir m_folder;
};

namespace {
/// The smallest rectangle around what is not transparent.
QRect covered(const QImage &image)
{
    QRect rectangle;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 40)
                rectangle |= QRect(x, y, 1, 1);
        }
    }
    return rectangle;
}

int distinctColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colours.insert(image.pixel(x, y));
        }
    }
    return colours.size();
}
} // namespace

void tst_ToolRender::framesTheWholeModel_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("size");
    QTest::newRow("static mesh") << "game/models/crate/crate.staticmesh"
                                 << "256";
    QTest::newRow("skinned mesh with the animation that belongs to it")
        << "game/models/tinker/tinker.skinnedmesh"
        << "256";
    QTest::newRow("the mesh that belongs to an animation") << "game/anims/tinker/tinker.anim"
                                                           << "256";
    QTest::newRow("wide") << "game/models/crate/crate.staticmesh"
                          << "300x100";
    QTest::newRow("high") << "game/models/tinker/tinker.skinnedmesh"
                          << "100x300";
}

void tst_ToolRender::framesTheWholeModel()
{
    QFETCH(QString, file);
    QFETCH(QString, size);
    const QImage image = draw({sample(file), QStringLiteral("--size"), size});
    const QStringList sides = size.split(QLatin1Char('x'));
    QCOMPARE(image.size(), QSize(sides.first().toInt(), sides.last().toInt()));
    // Nothing is cut off, and the picture is filled in one direction.
    const QRect rectangle = covered(image);
    QVERIFY(image.rect().adjusted(1, 1, -1, -1).contains(rectangle));
    QVERIFY(rectangle.width() > 0.85 * image.width() || rectangle.height() > 0.85 * image.height());
    // A model without its textures has but a few.
    QVERIFY(distinctColours(image) > 200);
}

void tst_ToolRender::posesByBlockAndFrame()
{
    const QStringList base{sample(QStringLiteral("game/models/tinker/tinker.skinnedmesh")),
                           QStringLiteral("--anim"), sample(QStringLiteral("game/anims/tinker/tinker.anim")),
                           QStringLiteral("--size"), QStringLiteral("128")};
    const auto at = [&](const char *block, const char *frame) {
        return draw(base + QStringList{QStringLiteral("--block"), QLatin1String(block),
                                       QStringLiteral("--frame"), QLatin1String(frame)});
    };
    const QImage start = at("0", "0");
    QVERIFY(!start.isNull());
    QCOMPARE(at("0", "0"), start);
    QCOMPARE(draw({sample(QStringLiteral("game/models/tinker/tinker.skinnedmesh")), QStringLiteral("--size"),
                   QStringLiteral("128")}),
             start);
    QVERIFY(at("0", "6") != start);
    QVERIFY(at("2", "0") != start);
    // In the last one it has sat down.
    const QRect standing = covered(start);
    const QRect sitting = covered(at("4", "60"));
    QVERIFY(sitting.width() * standing.height() > 1.3 * standing.width() * sitting.height());
}

void tst_ToolRender::coloursAndFormats()
{
    const QString crate = sample(QStringLiteral("game/models/crate/crate.staticmesh"));
    const QStringList blue{crate, QStringLiteral("--background"), QStringLiteral("#0000ff"),
                           QStringLiteral("--size"), QStringLiteral("64")};
    const QImage png = draw(blue);
    QCOMPARE(png.pixelColor(0, 0), QColor(0, 0, 255));
    QVERIFY(png.pixelColor(32, 32) != QColor(0, 0, 255));
    QCOMPARE(qAlpha(draw({crate, QStringLiteral("--size"), QStringLiteral("64")}).pixel(0, 0)), 0);

    QVERIFY(!draw(blue, QStringLiteral("x.jpg")).isNull());
    QVERIFY(TestSupport::readFile(m_folder.filePath(QStringLiteral("x.jpg"))).startsWith("\xff\xd8"));
    // File managers ask for a name without an extension.
    QVERIFY(!draw(blue, QStringLiteral("thumbnail.X1")).isNull());
    QVERIFY(TestSupport::readFile(m_folder.filePath(QStringLiteral("thumbnail.X1"))).startsWith("\x89PNG"));
}

void tst_ToolRender::turnsAround()
{
    const auto seenFrom = [this](const char *yaw, const char *pitch) {
        return draw({sample(QStringLiteral("game/models/tinker/tinker.skinnedmesh")),
                     QStringLiteral("--size"), QStringLiteral("128"), QStringLiteral("--yaw"),
                     QLatin1String(yaw), QStringLiteral("--pitch"), QLatin1String(pitch)});
    };
    const QImage front = seenFrom("0", "0");
    QVERIFY(!front.isNull());
    QVERIFY(seenFrom("180", "0") != front);
    QVERIFY(covered(seenFrom("0", "90")).height() < covered(front).height());
}

void tst_ToolRender::failures_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("complaint");
    const QString mesh = QStringLiteral("game/models/tinker/tinker.skinnedmesh");
    QTest::newRow("no file") << "nowhere.staticmesh"
                             << "nowhere.staticmesh: There is no such file";
    QTest::newRow("material") << "game/materials/mat_crate.kmat"
                              << "no mesh";
    QTest::newRow("block") << mesh + QStringLiteral(" --block 5") << "no block 5, only 5";
    QTest::newRow("frame") << mesh + QStringLiteral(" --frame 25") << "no frame 25, only 25";
    QTest::newRow("static mesh with a frame") << "game/models/crate/crate.staticmesh --frame 1"
                                              << "no animation";
    QTest::newRow("animation that is a mesh") << mesh + QStringLiteral(" --anim ") + mesh << "no animation";
}

void tst_ToolRender::failures()
{
    QFETCH(QString, arguments);
    QFETCH(QString, complaint);
    QStringList words = arguments.split(QLatin1Char(' '));
    for (QString &word : words) {
        if (word.contains(QLatin1Char('.')))
            word = sample(word);
    }
    const QString picture = m_folder.filePath(QStringLiteral("none.png"));
    const ToolRun run(QStringList{QStringLiteral("render"), QStringLiteral("-o"), picture} + words);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains(complaint), qUtf8Printable(run.err));
    QVERIFY(!QFileInfo::exists(picture));
}

QTEST_GUILESS_MAIN(tst_ToolRender)
#include "tst_toolrender.moc"
