// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Number fields of pages that reach many records: calculations, vectors, labels that are dragged.
#include "Panes.h"

class tst_Numbers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TestSupport::useSettingsHome(m_home);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
    }

    void calculationsGoByEachRecordsOwnNumber()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(SampleModels::plainMesh());
        const auto &nodes = pane.document.model().nodes;
        const QByteArray before = pane.bytes();
        selectBones(pane, {1, 2, 3});
        auto *x = pane.child<FloatSpinBox>("sbNodeBBMinX");
        auto *y = pane.child<FloatSpinBox>("sbNodeBBMinY");
        const auto steps = [&] { return pane.undo().count(); };

        // Of bone 1: 1, 11 and 21; of the next ones more by 1 each.
        type(x, QStringLiteral("*=2"));
        type(y, QStringLiteral("+=0,5"));
        QCOMPARE(steps(), 2);
        QCOMPARE(pane.undo().undoText(), QStringLiteral("Bone Bounding Box Min Y"));
        QCOMPARE(nodes[0].bbMin, QVector3D(0.0f, 10.0f, 20.0f));
        for (size_t i = 1; i < 4; ++i)
            QCOMPARE(nodes[i].bbMin, QVector3D(2.0f * float(i), 10.5f + float(i), 20.0f + float(i)));
        QCOMPARE(shownText(x), QStringLiteral("2"));
        // Numbering on counts from the first that is selected, even where the shown one stays as it is.
        type(x, QStringLiteral("=2+i"));
        QCOMPARE(steps(), 3);
        QCOMPARE(nodes[3].bbMin.x(), 4.0f);
        pane.undo().undo();
        QCOMPARE(nodes[3].bbMin.x(), 6.0f);
        // What changes nothing is no step.
        type(x, QStringLiteral("=x"));
        QCOMPARE(steps(), 3);
        QCOMPARE(pane.undo().index(), 2);
        QCOMPARE(shownText(x), QStringLiteral("2"));
        // The same for all.
        type(x, QStringLiteral("2*4"));
        QVERIFY(nodes[1].bbMin.x() == 8.0f && nodes[3].bbMin.x() == 8.0f);
        pane.undo().setIndex(0);
        QVERIFY(pane.bytes() == before);

        // One that does not fit: none is changed, and it is named.
        auto *parent = pane.child<IntSpinBox>("sbNodeParentNode");
        SkinnedMesh model = SampleModels::plainMesh();
        model.nodes[2].parentNode = 254;
        pane.open(model);
        selectBones(pane, {1, 2, 3});
        type(parent, QStringLiteral("+=3"));
        QCOMPARE(pane.undo().count(), 0);
        QVERIFY(parent->isRefused() && shownText(parent) == QLatin1String("+=3"));
        QCOMPARE(parent->refusal(), QStringLiteral("Parent Bone: Of %1: 257 is not from 0 to 255.")
                                        .arg(pane.tree.label({RecordKind::Bone, {2}})));
        QTest::keyClick(parent, Qt::Key_Escape);
        QVERIFY(!parent->isRefused());
        type(parent, QStringLiteral("=x/0"));
        QVERIFY(parent->isRefused() && pane.undo().count() == 0);
        QTest::keyClick(parent, Qt::Key_Escape);

        // A field that the model has once.
        pane.select({{RecordKind::SkinnedMesh, {}}});
        auto *least = pane.child<FloatSpinBox>("sbSMBBMinX");
        type(least, QStringLiteral("4"));
        type(least, QStringLiteral("/=8"));
        QVERIFY(pane.document.model().bbMin.x() == 0.5f && pane.undo().count() == 2);
        QCOMPARE(pane.undo().undoText(), QStringLiteral("Bounding Box Min"));
    }

    void degreesAreRadiansUnlessTheFieldHasDegrees()
    {
        Panes panes;
        auto &pane = panes.anim;
        AnimFile file = SampleModels::plainAnim();
        file.blocks[0].rotations.at(0, 0) = {0.0f, 1.0f, 0.0f, 1.0f};
        pane.open(file);
        const auto &block = pane.document.model().blocks[0];
        pane.select({{RecordKind::AnimFrame, {0, 1}}});
        type(pane.child<QWidget>("sbAnimFrameYaw"), QStringLiteral("180deg"));
        QCOMPARE(block.frames[1].yawOffset, 3.14159274f);
        pane.select({{RecordKind::RotationKey, {0, 0, 0}}});
        auto *angle = pane.child<QWidget>("sbAnimRotationAngle");
        type(angle, QStringLiteral("45deg+x"));
        QCOMPARE(shownText(angle), QStringLiteral("135"));
    }

    void aVectorIsPastedAtOnce()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(SampleModels::plainMesh());
        const auto &nodes = pane.document.model().nodes;
        selectBones(pane, {1, 2});
        auto *y = pane.child<FloatSpinBox>("sbNodeBBMinY");
        const auto paste = [&](const char *text) {
            QApplication::clipboard()->setText(QString::fromUtf8(text));
            QTest::keyClick(y, Qt::Key_V, Qt::ControlModifier);
        };
        float next = 1.0f;
        for (const char *list :
             {"%1, 2.5, -3", "(%1; 2,5; -3)", "%1\t2,5\t-3\n", "%1 2.5 -3", "[%1,2.5,-3]"}) {
            paste(qPrintable(QString::fromLatin1(list).arg(next)));
            for (const size_t bone : {size_t(1), size_t(2)})
                QCOMPARE(nodes[bone].bbMin, QVector3D(next, 2.5f, -3.0f));
            QCOMPARE(pane.undo().count(), int(next));
            next += 1.0f;
        }
        QCOMPARE(pane.undo().undoText(), QStringLiteral("Bone Bounding Box Min"));
        // Two go from the field on; four do not fit, and one is only typed.
        paste("7, 8");
        QCOMPARE(nodes[2].bbMin, QVector3D(5.0f, 7.0f, 8.0f));
        paste("1, 2, 3, 4");
        QCOMPARE(nodes[2].bbMin, QVector3D(5.0f, 7.0f, 8.0f));
        QTest::keyClick(y, Qt::Key_A, Qt::ControlModifier);
        paste("9,5");
        QCOMPARE(shownText(y), QStringLiteral("9,5"));
        QTest::keyClick(y, Qt::Key_Return);
        QCOMPARE(nodes[2].bbMin, QVector3D(5.0f, 9.5f, 8.0f));
        QCOMPARE(pane.undo().count(), 7);

        // All arguments of an action.
        auto &anim = panes.anim;
        anim.open(SampleModels::plainAnim());
        anim.select({{RecordKind::AnimAction, {0, 0}}});
        QApplication::clipboard()->setText(QStringLiteral("1\t2\t3\t4\t5\t6\t7\t8"));
        QTest::keyClick(anim.child<QWidget>("sbAnimActionArg3"), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(anim.document.model().blocks[0].actions[0].args,
                 (std::array<float, 8>{1, 2, 3, 4, 5, 6, 7, 8}));
        QCOMPARE(anim.undo().count(), 1);
    }

    void theMenuSetsAll()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(SampleModels::plainMesh());
        selectBones(pane, {1, 2, 3});
        auto *x = pane.child<FloatSpinBox>("sbNodeBBMinX");
        const auto choose = [&](const char *name, bool enabled) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, x->rect().center(), x->mapToGlobal({5, 5}));
            QApplication::sendEvent(x->findChild<QLineEdit *>(), &event);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            QSet<QString> texts;
            int count = 0;
            for (const QAction *each : menu->actions()) {
                texts += each->text().section('\t', 0, 0);
                count += !each->isSeparator();
            }
            texts.remove({});
            QCOMPARE(texts.size(), count);
            auto *action = menu->findChild<QAction *>(QLatin1String(name));
            QCOMPARE(action->isEnabled(), enabled);
            menu->setActiveAction(action);
            QTest::keyClick(menu, enabled ? Qt::Key_Return : Qt::Key_Escape);
        };
        choose("actionFieldSetAll", true);
        for (size_t i = 1; i < 4; ++i)
            QCOMPARE(pane.document.model().nodes[i].bbMin.x(), 1.0f);
        QCOMPARE(pane.undo().count(), 1);
        choose("actionFieldSetAll", false);
        // What is typed goes to all.
        x->setFocus();
        x->selectAll();
        QTest::keyClicks(x, "7");
        choose("actionFieldSetAll", true);
        for (size_t i = 1; i < 4; ++i)
            QCOMPARE(pane.document.model().nodes[i].bbMin.x(), 7.0f);
        QCOMPARE(pane.undo().count(), 2);
        x->selectAll();
        QTest::keyClicks(x, "1");
        QTest::keyClick(x, Qt::Key_Return);
        QApplication::clipboard()->clear();
        choose("actionFieldCopy", true);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1"));
    }

    void draggingALabelChangesTheNumber()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(SampleModels::plainMesh());
        QApplication::setActiveWindow(&pane.stack);
        pane.stack.resize(700, 700);
        const auto &nodes = pane.document.model().nodes;
        pane.select({{RecordKind::Bone, {2}}});
        auto *axis = pane.child<QLabel>("lblNodeBBMinZAxis");
        auto *scale = pane.child<QLabel>("lblNodeDamageScale");
        const float scaleBefore = nodes[2].damageScale;
        const auto drag = [](QWidget *label, int pixels, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            const QPoint from = label->rect().center();
            const auto send = [=](QEvent::Type kind, int x, Qt::MouseButton button, Qt::MouseButtons held) {
                QMouseEvent event(kind, from + QPoint(x, 0), label->mapToGlobal(from + QPoint(x, 0)), button,
                                  held, modifiers);
                QApplication::sendEvent(label, &event);
            };
            send(QEvent::MouseButtonPress, 0, Qt::LeftButton, Qt::LeftButton);
            for (int x = 1; x <= std::abs(pixels); ++x)
                send(QEvent::MouseMove, pixels < 0 ? -x : x, Qt::NoButton, Qt::LeftButton);
            return [send, pixels] { send(QEvent::MouseButtonRelease, pixels, Qt::LeftButton, Qt::NoButton); };
        };
        // A click, and a hand that trembles, change nothing.
        drag(scale, 2)();
        QCOMPARE(pane.undo().count(), 0);
        drag(scale, 30)();
        QVERIFY(nodes[2].damageScale == scaleBefore + 1.0f && pane.undo().count() == 1);
        drag(scale, -30)();
        QVERIFY(nodes[2].damageScale == scaleBefore && pane.undo().count() == 2);
        // Esc gives it up, and what the mouse still does is nothing.
        const auto release = drag(scale, 60);
        QVERIFY(shownText(pane.child<QWidget>("sbNodeDamageScale")) != QString::number(double(scaleBefore)));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        release();
        QVERIFY(nodes[2].damageScale == scaleBefore && pane.undo().count() == 2);
        // Of several that differ each goes on from its own.
        selectBones(pane, {1, 2});
        const float between = nodes[2].bbMin.z() - nodes[1].bbMin.z();
        const float first = nodes[1].bbMin.z();
        drag(axis, 30, Qt::ShiftModifier)();
        QVERIFY(nodes[1].bbMin.z() > first && pane.undo().count() == 3);
        QCOMPARE(nodes[2].bbMin.z() - nodes[1].bbMin.z(), between);
    }

    void vectorsStandInARowWhereThereIsRoom()
    {
        Panes panes;
        auto &pane = panes.mesh;
        pane.open(SampleModels::plainMesh());
        pane.select({{RecordKind::Bone, {2}}});
        const auto place = [&](const char *name) {
            QWidget *widget = pane.child<QWidget>(name);
            return QRect(widget->mapTo(pane.page(), {0, 0}), widget->size());
        };
        for (const int width : {900, 280}) {
            pane.stack.resize(width, 700);
            QTRY_COMPARE(pane.stack.width(), std::max(width, pane.stack.minimumSizeHint().width()));
            QCoreApplication::processEvents();
            const QRect x = place("sbNodeBBMinX"), y = place("sbNodeBBMinY"), z = place("sbNodeBBMinZ");
            QCOMPARE(x.top() == z.top(), width == 900);
            QVERIFY(width == 900 ? x.right() < y.left() && y.right() < z.left() : x.bottom() < y.top());
            QVERIFY(std::abs(x.width() - z.width()) < 2);
            const QRect axis = place("lblNodeBBMinZAxis");
            QVERIFY(axis.right() < z.left() && axis.top() >= z.top() - 1 && axis.bottom() <= z.bottom() + 1);
        }
        // A number whose size would be cut off has a line of its own; decimals alone are told by the tool
        // tip.
        const auto isRow = [&] {
            QCoreApplication::processEvents();
            return place("sbNodeBBMinX").top() == place("sbNodeBBMinZ").top();
        };
        for (int width = 300; !isRow(); width += 10)
            pane.stack.resize(width, 700);
        auto *x = pane.child<FloatSpinBox>("sbNodeBBMinX");
        type(x, QStringLiteral("-116.988235"));
        QVERIFY(isRow());
        const auto toolTip = [x] {
            QToolTip::hideText();
            QHelpEvent help(QEvent::ToolTip, x->rect().center(), x->mapToGlobal(x->rect().center()));
            QCoreApplication::sendEvent(x, &help);
            return QToolTip::text();
        };
        const QString usual = x->toolTip();
        x->setFixedWidth(70);
        QTRY_COMPARE(toolTip(), QStringLiteral("-116.988235\n") + usual);
        x->setFixedWidth(200);
        QTRY_COMPARE(toolTip(), usual);
        x->setMinimumWidth(0);
        x->setMaximumWidth(QWIDGETSIZE_MAX);
        type(x, QStringLiteral("-1.1754944e-38"));
        QTRY_VERIFY(!isRow());
        pane.undo().undo();
        QTRY_VERIFY(isRow());
        // Groups have their labels in one column.
        pane.stack.resize(900, 700);
        QTRY_COMPARE(place("sbNodeParentNode").left(), place("cbNodeImpactType").left());
        QCOMPARE(place("cbNodeSymbolSide").left(), place("sbNodeParentNode").left());
        QCOMPARE(place("lblNodeBBMinXAxis").left(), place("sbNodeParentNode").left());
    }

private:
    static void selectBones(Pane<SkinnedMesh> &pane, const QVector<int> &bones)
    {
        QVector<RecordRef> records;
        for (const int bone : bones)
            records.append({RecordKind::Bone, {bone}});
        pane.select(records);
    }

    QTemporaryDir m_home;
};

QTEST_MAIN(tst_Numbers)
#include "tst_numbers.moc"
