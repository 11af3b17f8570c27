// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EventArguments.h"
#include "IndexHint.h"
#include "Panes.h"
#include "Questions.h"
#include "RecordItem.h"

#include <cmath>

using namespace SampleModels;

class tst_Pages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TestSupport::useSettingsHome(m_home);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
    }

    void lookingChangesNothing()
    {
        Panes panes;
        SkinnedMesh mesh = skinnedMesh();
        mesh.surfaces[1].materialPath = QString(40000, QLatin1Char('x'));
        panes.mesh.open(mesh);
        panes.anim.open(animFile());
        panes.rigid.open(staticMesh());
        lookAtAll(panes.mesh);
        lookAtAll(panes.anim);
        lookAtAll(panes.rigid);

        // A number without a name stands for itself.
        panes.anim.select({{RecordKind::AnimAction, {0, 1}}});
        QCOMPARE(shownText(panes.anim.child<QComboBox>("cbAnimActionEventType")), QStringLiteral("77"));
        panes.mesh.select({{RecordKind::Bone, {1}}});
        QCOMPARE(shownText(panes.mesh.child<QComboBox>("cbNodeImpactType")), QStringLiteral("200"));
    }

    /// What has an editor has a column, and a word to be found by.
    void everyEditorHasAField()
    {
        Panes panes;
        panes.openPlain();
        int editors = 0;
        const auto look = [&editors](auto &pane, const QVector<RecordKind> &kinds) {
            for (const RecordKind kind : kinds) {
                pane.select({{kind, {}}});
                QVERIFY2(pane.page(), qPrintable(QString::number(int(kind))));
                for (const QWidget *editor : editorsOf(pane.page())) {
                    const QString id = editor->property(PropertyPage::FieldProperty).toString();
                    const RecordField *field = RecordFields::find(kind, id);
                    QVERIFY2(field && field->id() == id, qPrintable(editor->objectName()));
                    ++editors;
                }
            }
        };
        using K = RecordKind;
        look(panes.mesh, {K::SkinnedMesh, K::ChildBone, K::HotPoint, K::Bone, K::SkinnedSurface,
                          K::SkinnedTriangleIndex, K::SkinnedVertex});
        look(panes.anim,
             {K::AnimBlock, K::AnimBone, K::AnimFrame, K::TranslationKey, K::RotationKey, K::AnimAction});
        look(panes.rigid, {K::StaticMesh, K::StaticSurface, K::StaticTriangleIndex, K::StaticVertex});
        QVERIFY2(editors > 90, qPrintable(QString::number(editors)));
    }

    void theWheelScrolls()
    {
        Panes panes;
        panes.openPlain();
        wheelOverAll(panes.mesh);
        wheelOverAll(panes.anim);
        wheelOverAll(panes.rigid);

        // With Ctrl it is a hand at the editor: one step a tick.
        auto &pane = panes.mesh;
        pane.stack.resize(400, 700);
        pane.select({{RecordKind::Bone, {1}}});
        QCoreApplication::processEvents();
        auto *parent = pane.child<IntSpinBox>("sbNodeParentNode");
        static_cast<QScrollArea *>(pane.stack.pages()->currentWidget())->ensureWidgetVisible(parent);
        const int before = parent->value();
        turnWheel(parent, 120, Qt::ControlModifier);
        QCOMPARE(parent->value(), before + 1);
        QCOMPARE(pane.undo().count(), 1);
    }

    void whatCannotBeAValueIsNotStored()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(plainMesh());
        pane.select({{RecordKind::Bone, {1}}, {RecordKind::Bone, {2}}});
        auto *parent = pane.child<IntSpinBox>("sbNodeParentNode");
        type(parent, QStringLiteral("300"));
        QCOMPARE(pane.undo().count(), 0);
        // An edit of another field leaves it where it is; another record does not, and says so.
        type(pane.child<QWidget>("sbNodeDamageScale"), QStringLiteral("0.25"));
        QVERIFY(shownText(parent) == QLatin1String("300") && parent->isRefused());
        QSignalSpy told(&pane.stack, &PageStack::told);
        pane.select({{RecordKind::Bone, {2}}});
        QVERIFY(!parent->isRefused());
        QCOMPARE(told.takeFirst().first().toString(),
                 QString("Not stored. Parent Bone: '300' is no whole number from 0 to 255."));
        // What can be one is stored for the record that it was typed for.
        QApplication::setActiveWindow(&pane.stack);
        for (const RecordRef &next : {RecordRef{RecordKind::Bone, {3}}, {RecordKind::SkinnedSurface, {0}}}) {
            const int bone = pane.tree.currentRecord().index[0];
            parent->setFocus();
            parent->selectAll();
            QTest::keyClicks(parent, QStringLiteral("17"));
            pane.select({next});
            QCOMPARE(pane.tree.currentRecord(), next);
            QCOMPARE(int(pane.document.model().nodes[size_t(bone)].parentNode), 17);
        }
        // A page of another kind forgets it as well.
        pane.select({{RecordKind::Bone, {1}}});
        type(parent, QStringLiteral("300"));
        pane.select({{RecordKind::SkinnedMesh, {}}});
        QVERIFY(!parent->isRefused() && told.size() == 1);

        pane.select({{RecordKind::SkinnedSurface, {0}}});
        auto *path = pane.child<TextField>("txtSurfaceMaterial");
        const QString before = path->text();
        QTest::keyClick(path, Qt::Key_End);
        QTest::sendKeyEvent(QTest::Click, path, Qt::Key_unknown, QString(QChar(0x442)), Qt::NoModifier);
        QTest::keyClick(path, Qt::Key_Return);
        QVERIFY(path->isRefused() && path->text().endsWith(QChar(0x442)) && QToolTip::isVisible());
        QCOMPARE(pane.undo().count(), 3);
        QTest::keyClick(path, Qt::Key_Escape);
        QVERIFY(!path->isRefused() && path->text() == before);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void anEditReachesAllSelectedAndOnlyItsPart()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(plainMesh());
        const QByteArray before = pane.bytes();
        pane.select({{RecordKind::Bone, {1}}, {RecordKind::Bone, {2}}, {RecordKind::Bone, {3}}});
        // Values that are not the same in all of them are marked.
        const auto *count = pane.stack.findChild<QLabel *>(QStringLiteral("lblPageCount"));
        const auto *differing = pane.child<QWidget>("sbNodeBBMinX");
        QCOMPARE(count->text(), QStringLiteral("3 bones selected; values in italics differ"));
        QVERIFY(differing->font().italic() && !pane.child<QWidget>("sbNodeDamageScale")->font().italic());
        type(pane.child<QWidget>("sbNodeBBMinX"), QStringLiteral("-5,5"));
        QCOMPARE(pane.undo().count(), 1);
        const auto &nodes = pane.document.model().nodes;
        QCOMPARE(nodes[0].bbMin, QVector3D(0.0f, 10.0f, 20.0f));
        for (size_t i = 1; i < 4; ++i)
            QCOMPARE(nodes[i].bbMin, QVector3D(-5.5f, 10.0f + float(i), 20.0f + float(i)));
        QVERIFY(!differing->font().italic());
        QCOMPARE(pane.tree.selectedRecords(RecordKind::Bone).size(), 3);
        pane.undo().undo();
        QVERIFY(pane.bytes() == before && differing->font().italic());
        pane.select({{RecordKind::HotPoint, {0}}, {RecordKind::HotPoint, {1}}});
        QCOMPARE(count->text(), QStringLiteral("2 hot points selected"));

        // A switched bit leaves each record's others alone.
        SkinnedMesh flagged = plainMesh();
        flagged.nodes[0].flags = 0x10;
        flagged.nodes[1].flags = 0x21;
        pane.open(flagged);
        pane.select({{RecordKind::Bone, {0}}, {RecordKind::Bone, {1}}});
        const auto flags = [&nodes] { return QVector<qint32>{nodes[0].flags, nodes[1].flags}; };
        for (int bit = 0; bit < 32; ++bit) {
            const QByteArray name = "cbBit" + QByteArray::number(bit);
            QCOMPARE(pane.child<QCheckBox>(name)->font().italic(), bit == 0 || bit == 4 || bit == 5);
        }
        pane.child<QCheckBox>("cbBit0")->click();
        QCOMPARE(flags(), QVector<qint32>({0x11, 0x21}));
        pane.child<QPushButton>("btnFlagsNone")->click();
        QCOMPARE(flags(), QVector<qint32>({0, 0}));
        pane.undo().undo();
        QCOMPARE(flags(), QVector<qint32>({0x11, 0x21}));

        // The boxes are one stop on the way with Tab, from which arrow keys move.
        QApplication::setActiveWindow(&pane.stack);
        auto *all = pane.child<QPushButton>("btnFlagsAll");
        all->setFocus();
        QTest::keyClick(all, Qt::Key_Backtab);
        const auto focused = [] { return QApplication::focusWidget()->objectName(); };
        QCOMPARE(focused(), QStringLiteral("cbBit0"));
        for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right})
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QCOMPARE(focused(), QStringLiteral("cbBit6"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("btnFlagsAll"));
        QTest::keyClick(all, Qt::Key_Backtab);
        QCOMPARE(focused(), QStringLiteral("cbBit6"));

        // What Ctrl+click took out of the selection is not edited.
        pane.select({{RecordKind::Bone, {0}}, {RecordKind::Bone, {1}}});
        pane.tree.findItem({RecordKind::Bone, {0}})->setSelected(false);
        type(pane.child<QWidget>("sbNodeDamageScale"), QStringLiteral("0.125"));
        QVERIFY(nodes[0].damageScale != 0.125f && nodes[1].damageScale == 0.125f);

        // A symbol's bits without a meaning stay.
        pane.select({{RecordKind::Bone, {1}}});
        QTest::keyClick(pane.child<QWidget>("cbNodeSymbolPart"), Qt::Key_End);
        QCOMPARE(int(quint8(nodes[1].symbolFlags)), 0xf8);
        QCOMPARE(pane.tree.currentItem()->text(0), QStringLiteral("1: Left Pelvis"));
    }

    void argumentsAreNamedByTheirEvent()
    {
        const QString damage = QStringLiteral("Radius|Damage||Blood Spray X|Blood Spray Y|Blood Spray Z");
        // One with all its names, one of each question, damage, one without a name, one without a meaning.
        const QVector<QPair<int, QString>> types{
            {9, QStringLiteral("Alpha|Red|Green|Blue|Attack Time|Sustain Time|Decay Time")},
            {30, QStringLiteral("Voice ID")},
            {2, damage},
            {33, damage},
            {24, QStringLiteral("Particle ID|Model Index")},
            {28, QStringLiteral("Actor Type ID|Scale")},
            {29, QStringLiteral("Sound ID|Impact Type")},
            {10, QString()},
            {65535, QString()}};
        AnimFile file = plainAnim();
        for (const auto &type : types) {
            AnimAction action;
            action.eventType = quint16(type.first);
            file.blocks[1].actions.push_back(action);
        }
        Panes panes;
        panes.anim.open(file);
        for (int i = 0; i < types.size(); ++i) {
            panes.anim.select({{RecordKind::AnimAction, {1, i + 3}}});
            const bool isDamage = types[i].second == damage;
            const QStringList expected = types[i].second.split(QLatin1Char('|'));
            for (int arg = 0; arg < 8; ++arg) {
                const auto *label =
                    panes.anim.child<QLabel>(QByteArray("lblAnimActionArg" + QByteArray::number(arg + 1)));
                const QString plain = QStringLiteral("Arg %1").arg(arg + 1);
                QCOMPARE(label->text(), expected.value(arg).isEmpty() ? plain : expected.value(arg));
                QCOMPARE(label->toolTip().startsWith(QLatin1String("Damage is this value / 256.")),
                         isDamage && arg == 1);
                // The editor, which the mouse rests on, says the same.
                const auto *editor =
                    panes.anim.child<QWidget>(QByteArray("sbAnimActionArg" + QByteArray::number(arg + 1)));
                QCOMPARE(editor->toolTip(), label->toolTip());
                QVERIFY(!label->toolTip().isEmpty());
            }
            const QString first = Questions::of(panes.anim.child<QWidget>("sbAnimActionArg1")).first();
            const QString asked = expected.first().section(QLatin1Char(' '), 0, 0).toLower();
            if (expected.first().endsWith(QLatin1String(" ID")))
                QCOMPARE(first, asked);
            if (isDamage)
                QCOMPARE(Questions::of(panes.anim.child<QWidget>("sbAnimActionArg2")).first(),
                         QString(Question::Damage));
            QCOMPARE(Questions::of(panes.anim.child<QWidget>("sbAnimActionArg8")).size(), 7);
        }

        // By hand, from a type with many names to one with few.
        panes.anim.select({{RecordKind::AnimAction, {1, 3}}});
        panes.anim.child<QComboBox>("cbAnimActionEventType")->setCurrentIndex(30);
        QCOMPARE(panes.anim.child<QLabel>("lblAnimActionArg1")->text(), QStringLiteral("Voice ID"));
        QCOMPARE(panes.anim.child<QLabel>("lblAnimActionArg2")->text(), QStringLiteral("Arg 2"));
        QCOMPARE(panes.anim.undo().count(), 1);
    }

    void indexesSayWhatTheyPointAt()
    {
        Panes panes;
        auto &mesh = panes.mesh;
        SkinnedMesh model = plainMesh();
        model.vertices[2].position = {1.5f, -2.0f, 30.25f};
        mesh.open(model);
        panes.anim.open(plainAnim());
        const auto says = [](const auto &pane, const char *hint, const char *text, bool missing = false) {
            const auto *found = pane.template child<IndexHint>(hint);
            QCOMPARE(found->text(), QString::fromLatin1(text));
            QCOMPARE(found->isMissing(), missing);
            QVERIFY(!found->toolTip().isEmpty());
        };

        mesh.select({{RecordKind::Bone, {1}}});
        says(mesh, "hintNodeParentNode", "0: Left Root");
        type(mesh.child<QWidget>("sbNodeParentNode"), QStringLiteral("4"));
        says(mesh, "hintNodeParentNode", "no such bone", true);
        // A bone's own name, which is typed on its page and can be taken back.
        mesh.select({{RecordKind::Bone, {0}}});
        type(mesh.child<TextField>("txtNodeName"), QStringLiteral("hips"));
        mesh.select({{RecordKind::Bone, {1}}});
        type(mesh.child<IntSpinBox>("sbNodeParentNode"), QStringLiteral("0"));
        says(mesh, "hintNodeParentNode", "0: hips");
        mesh.undo().undo();
        mesh.undo().undo();
        mesh.select({{RecordKind::Bone, {1}}});
        type(mesh.child<QWidget>("sbNodeParentNode"), QStringLiteral("255"));
        says(mesh, "hintNodeParentNode", "no parent");
        mesh.select({{RecordKind::SkinnedTriangleIndex, {0, 2}}});
        says(mesh, "hintTIIndex", "at 1.5, -2, 30.25");
        type(mesh.child<QWidget>("sbTIIndex"), QStringLiteral("3"));
        says(mesh, "hintTIIndex", "no such vertex", true);
        // 65535 ends the list in a file.
        QCOMPARE(mesh.child<IntSpinBox>("sbTIIndex")->maximum(), 65534);

        auto &anim = panes.anim;
        anim.select({{RecordKind::AnimBone, {0, 1}}});
        says(anim, "hintAnimNodeTransIndex", "keeps initial position");
        type(anim.child<QWidget>("sbAnimNodeTransIndex"), QStringLiteral("1"));
        says(anim, "hintAnimNodeTransIndex", "1 of 2 tracks");
        type(anim.child<QWidget>("sbAnimNodeTransIndex"), QStringLiteral("2"));
        says(anim, "hintAnimNodeTransIndex", "no such track", true);
        QCOMPARE(anim.child<QLabel>("lblAnimNodeBone")->text(), QStringLiteral("1: Left Root"));

        anim.select({{RecordKind::AnimAction, {0, 0}}});
        says(anim, "hintAnimActionNode", "no bone");
        type(anim.child<QWidget>("sbAnimActionNode"), QStringLiteral("3"));
        says(anim, "hintAnimActionNode", "3: Left Root");
        // The names follow the mesh beside the animation.
        model.nodes.resize(2);
        mesh.open(model);
        says(anim, "hintAnimActionNode", "3 of 4 bones");
        type(anim.child<QWidget>("sbAnimActionFrame"), QStringLiteral("3"));
        says(anim, "hintAnimActionFrame", "never happens", true);
    }

    void dealDamage()
    {
        Panes panes;
        auto &pane = panes.mesh;
        SkinnedMesh model = plainMesh();
        model.hotPoints[0].particleEffect2 = 40;
        pane.open(model);
        pane.select({{RecordKind::HotPoint, {0}}, {RecordKind::HotPoint, {1}}});
        QTest::keyClick(pane.child<QWidget>("cbHPDealDamage"), Qt::Key_Space);
        const auto &points = pane.document.model().hotPoints;
        QCOMPARE(points[0].particleEffect1, quint16(0xFFFF));
        QCOMPARE(points[1].particleEffect1, quint16(0xFFFF));
        QCOMPARE(points[0].particleEffect2, quint16(40));
        QVERIFY(!pane.child<QWidget>("sbHPEffect1")->isEnabled());
        QCOMPARE(pane.child<QLabel>("lblHPEffect2")->text(), QStringLiteral("Damage"));
        QTest::keyClick(pane.child<QWidget>("cbHPDealDamage"), Qt::Key_Space);
        QCOMPARE(points[0].particleEffect1, quint16(0));
        QVERIFY(pane.child<QWidget>("sbHPEffect1")->isEnabled());
    }

    void anglesKeepTheirAxis()
    {
        Panes panes;
        auto &pane = panes.anim;
        AnimFile file = plainAnim();
        file.blocks[0].rotations.at(0, 0) = {0.0f, 2.0f, 0.0f, 2.0f}; // 90 degrees about y, of length 2.8
        pane.open(file);
        const auto &key = pane.document.model().blocks[0].rotations;
        pane.select({{RecordKind::RotationKey, {0, 0, 0}}});
        auto *angle = pane.child<QWidget>("sbAnimRotationAngle");
        QCOMPARE(shownText(angle), QStringLiteral("90"));
        for (const char *degrees : {"30", "270", "359.5", "0.25"}) {
            type(angle, QString::fromLatin1(degrees));
            QCOMPARE(shownText(angle), QString::fromLatin1(degrees));
            QVERIFY(std::abs(key.at(0, 0).length() - 1.0f) < 1e-6f);
            QCOMPARE(pane.child<QLabel>("lblAnimRotationAxis")->text(), QStringLiteral("0, 1, 0"));
        }
        pane.select({{RecordKind::RotationKey, {0, 1, 0}}});
        type(angle, QStringLiteral("180"));
        QCOMPARE(key.at(1, 0).z(), 1.0f);
    }

    void positionToBone()
    {
        Panes panes;
        auto &pane = panes.anim;
        AnimFile file = plainAnim();
        file.blocks[0].actions[0].offset = {1.0f, 2.0f, 3.0f};
        pane.open(file);
        pane.select({{RecordKind::AnimAction, {0, 0}}});
        auto *button = pane.child<QPushButton>("btnAnimActionPositionToBone");
        button->click();
        button->click();
        QCOMPARE(pane.undo().count(), 1);
        QCOMPARE(pane.undo().undoText(), QStringLiteral("Key Frame Action Position To Bone"));
        QVERIFY(pane.document.model().blocks[0].actions[0].offset.isNull());
    }

    void pagesFitTheirPane()
    {
        const QFont usual = QApplication::font();
        for (const int points : {9, 15}) {
            QFont font = usual;
            font.setPointSize(points);
            QApplication::setFont(font);
            Panes panes;
            panes.openPlain();
            checkFit(panes.mesh);
            checkFit(panes.anim);
            checkFit(panes.rigid);
        }
        QApplication::setFont(usual);
    }

    void longPathsShowTheirStart()
    {
        Panes panes;
        auto &pane = panes.rigid;
        pane.open(plainStatic());
        pane.select({{RecordKind::StaticSurface, {0}}});
        auto *path = pane.child<QLineEdit>("txtSurfaceMaterial");
        QCOMPARE(path->cursorPosition(), 0);
        // Not while the user is at work in it.
        QApplication::setActiveWindow(&pane.stack);
        path->setFocus();
        QTRY_VERIFY(path->hasFocus());
        type(path, QStringLiteral("materials/other"));
        QCOMPARE(path->cursorPosition(), path->text().size());
        pane.select({{RecordKind::StaticSurface, {1}}});
        path->clearFocus();
        pane.select({{RecordKind::StaticSurface, {0}}});
        QCOMPARE(path->cursorPosition(), 0);
    }

private:
    template <typename Model>
    void lookAtAll(Pane<Model> &pane)
    {
        const QByteArray before = pane.bytes();
        QVERIFY(!before.isEmpty());
        for (QTreeWidgetItemIterator item(&pane.tree); *item; ++item)
            pane.tree.setCurrentItem(*item);
        QVERIFY(pane.undo().isClean());
        QCOMPARE(pane.undo().count(), 0);
        QVERIFY(pane.bytes() == before);
    }

    template <typename Model>
    void wheelOverAll(Pane<Model> &pane)
    {
        pane.stack.resize(300, 160);
        QApplication::setActiveWindow(&pane.stack);
        const QByteArray before = pane.bytes();
        QSet<QWidget *> done;
        for (QTreeWidgetItemIterator item(&pane.tree); *item; ++item) {
            pane.tree.setCurrentItem(*item);
            if (!pane.page() || done.contains(pane.page()))
                continue;
            done.insert(pane.page());
            QCoreApplication::processEvents();
            auto *scroll = static_cast<QScrollArea *>(pane.stack.pages()->currentWidget());
            for (QWidget *editor : editorsOf(pane.page())) {
                for (const bool hasKeys : {false, true}) {
                    if (hasKeys)
                        editor->setFocus();
                    else if (QWidget *other = QApplication::focusWidget())
                        other->clearFocus();
                    scroll->ensureWidgetVisible(editor);
                    const int place = scroll->verticalScrollBar()->value();
                    turnWheel(editor, place < scroll->verticalScrollBar()->maximum() ? -120 : 120);
                    QVERIFY2(scroll->verticalScrollBar()->maximum() == 0 ||
                                 scroll->verticalScrollBar()->value() != place,
                             qPrintable(editor->objectName()));
                    QVERIFY2(hasKeys || !QApplication::focusWidget(), qPrintable(editor->objectName()));
                }
            }
        }
        QCOMPARE(pane.undo().count(), 0);
        QVERIFY(pane.bytes() == before);
    }

    template <typename Model>
    void checkFit(Pane<Model> &pane)
    {
        const int gap = QApplication::style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
        QVERIFY(pane.stack.minimumSizeHint().width() <= 400);
        pane.stack.resize(400, 700);
        pane.stack.show();
        for (QTreeWidgetItemIterator item(&pane.tree); *item; ++item) {
            pane.tree.setCurrentItem(*item);
            if (!pane.page() || pane.page()->property("checked").toBool())
                continue;
            pane.page()->setProperty("checked", true);
            QCoreApplication::processEvents();
            const auto *scroll = static_cast<QScrollArea *>(pane.stack.pages()->currentWidget());
            QVERIFY2(!scroll->horizontalScrollBar()->maximum(), qPrintable(pane.page()->objectName()));
            for (const QWidget *child : pane.page()->template findChildren<QWidget *>()) {
                const QByteArray name = child->objectName().toUtf8();
                if (name.isEmpty() || name.startsWith("qt_") || child->isHidden())
                    continue;
                QVERIFY2(child->parentWidget()->rect().contains(child->geometry()), name);
                const int height = child->hasHeightForWidth() ? child->heightForWidth(child->width())
                                                              : child->minimumSizeHint().height();
                QVERIFY2(child->height() >= height, name);
                // A form counts on the gap beside a label, too.
                QVERIFY2(child->width() + gap >= child->minimumSizeHint().width(), name);
            }
        }
    }

    QTemporaryDir m_home;
};

QTEST_MAIN(tst_Pages)
#include "tst_pages.moc"
