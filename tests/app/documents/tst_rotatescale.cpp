// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Find.h"
#include "FloatSpinBox.h"
#include "ModelTransforms.h"
#include "RotateDialog.h"
#include "SampleModels.h"
#include "ScaleDialog.h"

using SampleModels::bytesOf;

class tst_RotateScale : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::useSettingsHome(m_home); }

    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_skinned = std::make_unique<SkinnedMeshDocument>(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
        m_static = std::make_unique<StaticMeshDocument>(DocumentType::StaticMesh, RecordKind::StaticMesh);
        const QString mesh = m_home.filePath(QStringLiteral("a.skinnedmesh"));
        const QString rigid = m_home.filePath(QStringLiteral("a.staticmesh"));
        QString reason;
        QVERIFY(!SampleModels::skinnedMesh().write(mesh) && !m_skinned->open(mesh, &reason));
        QVERIFY(!SampleModels::staticMesh().write(rigid) && !m_static->open(rigid, &reason));
        m_transforms = new ModelTransforms(*m_skinned, *m_static, m_window.get());
        m_transforms->setCurrent(m_static.get());

        m_transforms->on_actionRotate_triggered();
        m_transforms->on_actionScale_triggered();
        m_rotate = m_window->findChild<RotateDialog *>();
        m_scale = m_window->findChild<ScaleDialog *>();
    }

    void eachDialogIsThereOnce()
    {
        QVERIFY(!m_rotate->isModal() && !m_scale->isModal());
        m_transforms->on_actionRotate_triggered();
        QCOMPARE(m_window->findChildren<QDialog *>().size(), 2);
        click(m_rotate, "btnClose");
        QVERIFY(!m_rotate->isVisible() && m_scale->isVisible());
    }

    void quarterTurns()
    {
        const std::pair<const char *, QVector3D> turns[] = {
            {"btnYawMinus90", {0, -90, 0}}, {"btnYawPlus90", {0, 90, 0}},    {"btnPitchMinus90", {-90, 0, 0}},
            {"btnPitchPlus90", {90, 0, 0}}, {"btnRollMinus90", {0, 0, -90}}, {"btnRollPlus90", {0, 0, 90}}};
        type("sbRoll", "45"); // which is not applied
        StaticMesh expected = m_static->model();
        for (const auto &[button, axes] : turns) {
            const QByteArray before = bytesOf(expected);
            expected.rotate(axes.x(), axes.y(), axes.z());
            click(m_rotate, button);
            QCOMPARE(bytesOf(m_static->model()), bytesOf(expected));
            QVERIFY2(bytesOf(expected) != before, button);
        }
    }

    void apply()
    {
        const struct
        {
            QDialog *dialog;
            const char *editor, *text, *step;
        } rows[] = {{m_rotate, "sbYaw", "0.0000001", ""},
                    {m_scale, "sbScale", "1.000001", ""},
                    {m_rotate, "sbYaw", "0.000001", "Rotate Vertices"},
                    {m_rotate, "sbPitch", "-1000000", "Rotate Vertices"},
                    {m_scale, "sbScale", "1.00001", "Scale Vertices"},
                    {m_scale, "sbScale", "0.000001", "Scale Vertices"}};
        for (Document *document :
             {static_cast<Document *>(m_static.get()), static_cast<Document *>(m_skinned.get())}) {
            m_transforms->setCurrent(document);
            for (const auto &row : rows) {
                document->undoStack()->clear();
                type(row.editor, row.text);
                click(row.dialog, "btnApply");
                QCOMPARE(document->undoStack()->undoText(), QString::fromLatin1(row.step));
            }
            type("sbPitch", "0");
            type("sbYaw", "0");
        }
    }

    void anglesApplyOneAfterAnother()
    {
        type("sbYaw", "20");
        type("sbPitch", "10");
        type("sbRoll", "30");
        StaticMesh expected = m_static->model();
        expected.rotate(10, 0, 0);
        expected.rotate(0, 20, 0);
        expected.rotate(0, 0, 30);
        StaticMesh atOnce = m_static->model();
        atOnce.rotate(10, 20, 30);
        click(m_rotate, "btnApply");
        QCOMPARE(m_static->undoStack()->count(), 1);
        QCOMPARE(bytesOf(m_static->model()), bytesOf(expected));
        QVERIFY(bytesOf(m_static->model()) != bytesOf(atOnce));
    }

    /// Beside 0 nothing but the smallest denormals is equal to 0; an axis that is, is not turned at all,
    /// which the payload of a NaN would show.
    void tinyAnglesCount()
    {
        const QByteArray before = bytesOf(m_static->model());
        m_transforms->rotate(0.0f, 0.0f, 1.0e-44f);
        QCOMPARE(bytesOf(m_static->model()), before);
        StaticMesh expected = m_static->model();
        expected.rotate(0.0f, 1.0e-7f, 0.0f);
        m_transforms->rotate(0.0f, 0.0f, 1.0e-7f);
        QCOMPARE(bytesOf(m_static->model()), bytesOf(expected));
    }

    void onlyMeshesAreTurned()
    {
        AnimDocument anim(DocumentType::Anim, RecordKind::AnimFile);
        const QString path = m_home.filePath(QStringLiteral("a.anim"));
        QString reason;
        QVERIFY(!SampleModels::animFile().write(path) && !anim.open(path, &reason));
        StaticMeshDocument empty(DocumentType::StaticMesh, RecordKind::StaticMesh);
        for (Document *document : {static_cast<Document *>(&anim), static_cast<Document *>(&empty),
                                   static_cast<Document *>(nullptr)}) {
            m_transforms->setCurrent(document);
            click(m_rotate, "btnYawPlus90");
            m_transforms->scale(2.0f);
            QVERIFY(!m_skinned->isModified() && !m_static->isModified() && !anim.isModified());
        }
    }

private:
    static void click(const QDialog *dialog, const char *button)
    {
        QTest::mouseClick(find<QWidget>(*dialog, button), Qt::LeftButton);
    }
    void type(const char *editor, const char *text)
    {
        auto *box = find<FloatSpinBox>(*m_window, editor);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(text));
    }

    QTemporaryDir m_home;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<SkinnedMeshDocument> m_skinned;
    std::unique_ptr<StaticMeshDocument> m_static;
    ModelTransforms *m_transforms = nullptr;
    QDialog *m_rotate = nullptr;
    QDialog *m_scale = nullptr;
};

QTEST_MAIN(tst_RotateScale)
#include "tst_rotatescale.moc"
