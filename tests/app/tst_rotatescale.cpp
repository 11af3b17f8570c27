// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelTransforms.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <QApplication>
#include <QDialog>
#include <QDoubleSpinBox>

using SampleModels::bytesOf;

class tst_RotateScale : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void sizesAndRanges();
    void quarterTurns_data();
    void quarterTurns();
    void apply_data();
    void apply();
    void anglesApplyOneAfterAnother();
    void tinyAnglesCount();
    void onlyMeshesAreTurned();

private:
    QDialog *dialog(const char *title) const
    {
        for (auto *each : m_window->findChildren<QDialog *>()) {
            if (each->windowTitle() == QLatin1String(title))
                return each;
        }
        return nullptr;
    }
    static void click(QDialog *dialog, const char *button)
    {
        QTest::mouseClick(dialog->findChild<QWidget *>(QLatin1String(button)), Qt::LeftButton);
    }
    static void type(QDialog *dialog, const char *editor, const char *text)
    {
        auto *box = dialog->findChild<QDoubleSpinBox *>(QLatin1String(editor));
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(text));
    }

    QTemporaryDir m_home;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<SkinnedMeshDocument> m_skinned;
    std::unique_ptr<StaticMeshDocument> m_static;
    Document *m_current = nullptr;
    ModelTransforms *m_transforms = nullptr;
};

void tst_RotateScale::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
}

void tst_RotateScale::init()
{
    m_window = std::make_unique<QWidget>();
    m_skinned = std::make_unique<SkinnedMeshDocument>(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
    m_static = std::make_unique<StaticMeshDocument>(DocumentType::StaticMesh, RecordKind::StaticMesh);
    const QString mesh = m_home.filePath(QStringLiteral("a.skinnedmesh"));
    const QString rigid = m_home.filePath(QStringLiteral("a.staticmesh"));
    QString reason;
    QVERIFY(!SampleModels::skinnedMesh().write(mesh) && !m_skinned->open(mesh, &reason));
    QVERIFY(!SampleModels::staticMesh().write(rigid) && !m_static->open(rigid, &reason));
    m_current = m_static.get();
    m_transforms = new ModelTransforms(
        *m_skinned, *m_static, [this] { return m_current; }, m_window.get());
    m_transforms->showRotateDialog();
    m_transforms->showScaleDialog();
}

void tst_RotateScale::sizesAndRanges()
{
    const QDialog *rotate = dialog("Rotate");
    const QDialog *scale = dialog("Scale");
    QVERIFY(rotate && scale);
    QVERIFY(!rotate->isModal() && !scale->isModal());
    QCOMPARE(rotate->minimumSize(), QSize(341, 88));
    QCOMPARE(rotate->maximumSize(), QSize(600, 600));
    QCOMPARE(scale->size(), QSize(172, 72));
    for (const auto *box : m_window->findChildren<QDoubleSpinBox *>()) {
        const bool isFactor = box->objectName() == QLatin1String("sbScale");
        QCOMPARE(box->decimals(), 6);
        QCOMPARE(box->minimum(), isFactor ? 0.000001 : -1000000.0);
        QCOMPARE(box->maximum(), 1000000.0);
        QCOMPARE(box->value(), isFactor ? 1.0 : 0.0);
    }
    // One dialog of each kind, however often it is asked for.
    m_transforms->showRotateDialog();
    QCOMPARE(m_window->findChildren<QDialog *>().size(), 2);
    click(dialog("Rotate"), "btnClose");
    QVERIFY(!rotate->isVisible() && scale->isVisible());
}

void tst_RotateScale::quarterTurns_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QVector3D>("axes"); // pitch, yaw, roll
    QTest::newRow("-yaw") << QByteArray("btnYawMinus90") << QVector3D(0, -90, 0);
    QTest::newRow("+yaw") << QByteArray("btnYawPlus90") << QVector3D(0, 90, 0);
    QTest::newRow("-pitch") << QByteArray("btnPitchMinus90") << QVector3D(-90, 0, 0);
    QTest::newRow("+pitch") << QByteArray("btnPitchPlus90") << QVector3D(90, 0, 0);
    QTest::newRow("-roll") << QByteArray("btnRollMinus90") << QVector3D(0, 0, -90);
    QTest::newRow("+roll") << QByteArray("btnRollPlus90") << QVector3D(0, 0, 90);
}

void tst_RotateScale::quarterTurns()
{
    QFETCH(QByteArray, button);
    QFETCH(QVector3D, axes);
    type(dialog("Rotate"), "sbRoll", "45");
    StaticMesh expected = m_static->model();
    QList<QByteArray> states;
    for (int i = 0; i < 3; ++i) {
        expected.rotate(axes.x(), axes.y(), axes.z());
        states << bytesOf(expected);
        click(dialog("Rotate"), button);
        QCOMPARE(bytesOf(m_static->model()), states.last());
    }
    QCOMPARE(dialog("Rotate")->findChild<QDoubleSpinBox *>("sbRoll")->value(), 45.0);
    m_static->undoStack()->undo();
    QCOMPARE(bytesOf(m_static->model()), states[1]);
}

void tst_RotateScale::apply_data()
{
    QTest::addColumn<QByteArray>("dialog");
    QTest::addColumn<QByteArray>("editor");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("step");
    const auto add = [](const char *title, const char *editor, const char *text, const char *step) {
        QTest::addRow("%s %s", editor, text)
            << QByteArray(title) << QByteArray(editor) << QByteArray(text) << QString::fromLatin1(step);
    };
    add("Rotate", "sbYaw", "0", "");
    add("Rotate", "sbYaw", "0.0000001", "");
    add("Rotate", "sbYaw", "0.000001", "Rotate Vertices");
    add("Rotate", "sbPitch", "-12.5", "Rotate Vertices");
    add("Scale", "sbScale", "1", "");
    add("Scale", "sbScale", "1.000001", "");
    add("Scale", "sbScale", "1.00001", "Scale Vertices");
    add("Scale", "sbScale", "0.000001", "Scale Vertices");
}

void tst_RotateScale::apply()
{
    QFETCH(QByteArray, dialog);
    QFETCH(QByteArray, editor);
    QFETCH(QByteArray, text);
    QFETCH(QString, step);
    for (Document *document :
         {static_cast<Document *>(m_static.get()), static_cast<Document *>(m_skinned.get())}) {
        m_current = document;
        type(this->dialog(dialog), editor, text);
        click(this->dialog(dialog), "btnApply");
        QCOMPARE(document->undoStack()->count(), step.isEmpty() ? 0 : 1);
        QCOMPARE(document->undoStack()->undoText(), step);
    }
}

void tst_RotateScale::anglesApplyOneAfterAnother()
{
    type(dialog("Rotate"), "sbYaw", "20");
    type(dialog("Rotate"), "sbPitch", "10");
    type(dialog("Rotate"), "sbRoll", "30");
    StaticMesh expected = m_static->model();
    expected.rotate(10, 0, 0);
    expected.rotate(0, 20, 0);
    expected.rotate(0, 0, 30);
    StaticMesh atOnce = m_static->model();
    atOnce.rotate(10, 20, 30);
    click(dialog("Rotate"), "btnApply");
    QCOMPARE(m_static->undoStack()->count(), 1);
    QCOMPARE(bytesOf(m_static->model()), bytesOf(expected));
    QVERIFY(bytesOf(m_static->model()) != bytesOf(atOnce));
}

/// Beside 0 nothing but the smallest denormals is equal to 0; an axis that is, is not turned at all, which
/// the payload of a NaN would show.
void tst_RotateScale::tinyAnglesCount()
{
    const QByteArray before = bytesOf(m_static->model());
    m_transforms->rotate(0.0f, 0.0f, 1.0e-44f);
    QCOMPARE(bytesOf(m_static->model()), before);
    StaticMesh expected = m_static->model();
    expected.rotate(0.0f, 1.0e-7f, 0.0f);
    m_transforms->rotate(0.0f, 0.0f, 1.0e-7f);
    QCOMPARE(bytesOf(m_static->model()), bytesOf(expected));
}

void tst_RotateScale::onlyMeshesAreTurned()
{
    AnimDocument anim(DocumentType::Anim, RecordKind::AnimFile);
    const QString path = m_home.filePath(QStringLiteral("a.anim"));
    QString reason;
    QVERIFY(!SampleModels::animFile().write(path) && !anim.open(path, &reason));
    StaticMeshDocument empty(DocumentType::StaticMesh, RecordKind::StaticMesh);
    for (Document *document : {static_cast<Document *>(&anim), static_cast<Document *>(&empty),
                               static_cast<Document *>(nullptr)}) {
        m_current = document;
        click(dialog("Rotate"), "btnYawPlus90");
        m_transforms->scale(2.0f);
        QVERIFY(!m_skinned->isModified() && !m_static->isModified() && !anim.isModified());
    }
}

QTEST_MAIN(tst_RotateScale)
#include "tst_rotatescale.moc"
