// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Panes.h"
#include "RecordItem.h"
#include "StructureActions.h"

using SampleModels::bytesOf;
using K = RecordKind;

inline RecordRef ref(K kind, int first = 0, int second = 0)
{
    return {kind, {first, second, 0}};
}

/// Three animations of two bones, the second of which follows a track.
inline AnimFile animFile()
{
    AnimFile file;
    file.blocks.resize(3);
    for (int i = 0; i < 3; ++i) {
        file.blocks[size_t(i)].animId = 100 + i;
        file.blocks[size_t(i)].nodes.resize(2);
        file.blocks[size_t(i)].nodes[1].initialPosition = {1.0f, 2.0f, 3.0f};
        file.blocks[size_t(i)].nodes[1].translationIndex = 0;
        file.blocks[size_t(i)].setTranslationCount(1);
        file.blocks[size_t(i)].setFrameCount(4);
        file.blocks[size_t(i)].actions.resize(2);
        file.blocks[size_t(i)].actions[1].frame = 3;
    }
    return file;
}

/// The trees of a mesh, an animation and a static mesh in a window, with the actions on their records.
class StructureWindow
{
protected:
    void open()
    {
        TestSupport::useSettingsHome(m_home);
        QApplication::clipboard()->clear();
        Settings::HideAnimData.setValue(false);
        m_panes.reset();
        m_window = std::make_unique<QWidget>();
        m_panes = std::make_unique<Panes>();
        auto *layout = new QVBoxLayout(m_window.get());
        for (KVTreeView *tree : {&mesh().tree, &anim().tree, &m_panes->rigid.tree})
            layout->addWidget(tree);
        m_actions = new StructureActions({mesh().document, &mesh().tree}, {anim().document, &anim().tree},
                                         {m_panes->rigid.document, &m_panes->rigid.tree}, m_window.get());
        SkinnedMesh model = SampleModels::skinnedMesh();
        model.nodes[2].symbolFlags = 5;
        mesh().open(model);
        anim().open(animFile());
        m_window->resize(500, 900);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    Pane<SkinnedMesh> &mesh() const { return m_panes->mesh; }
    Pane<AnimFile> &anim() const { return m_panes->anim; }
    static bool isOfMesh(const RecordRef &record) { return int(record.kind) < int(K::AnimFile); }
    KVTreeView *select(const RecordRef &record) const
    {
        KVTreeView *tree = isOfMesh(record) ? &mesh().tree : &anim().tree;
        tree->selectRecords({record}, record);
        tree->setFocus();
        return tree;
    }
    /// What a message box says that comes of this.
    template <typename Act>
    QString saidOf(Act act)
    {
        m_window->activateWindow();
        if (!QTest::qWaitForWindowActive(m_window.get()))
            return {};
        QString said;
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, &answer, [&said] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                said = box->text();
                box->accept();
            }
        });
        answer.start(0);
        act();
        m_window->activateWindow();
        return QTest::qWaitForWindowActive(m_window.get()) ? said : QString();
    }
    /// The context menu that the tree opens for its current item.
    static QMenu *openMenu(KVTreeView *tree)
    {
        const QPoint place = tree->visualItemRect(tree->currentItem()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree->viewport(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }

    QTemporaryDir m_home;
    // The trees of the panes stand in the window, and go before it.
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Panes> m_panes;
    StructureActions *m_actions = nullptr;
};
