// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "Find.h"
#include "IntSpinBox.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <functional>

/// Answers the modal dialogs that come up, one after another, as a hand would; says what they were. Those
/// that only tell of progress, which a slow machine has more of, are waited for.
class Hand : public QObject
{
public:
    using Answer = std::function<void(QDialog *)>;

    explicit Hand(QVector<Answer> answers)
        : m_answers(std::move(answers))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog || dialog == m_last || qobject_cast<QProgressDialog *>(dialog))
                return;
            m_last = dialog;
            const auto *box = qobject_cast<QMessageBox *>(dialog);
            seen.append(box ? box->windowTitle() + QLatin1Char('|') + box->text() : dialog->windowTitle());
            if (box && !box->informativeText().isEmpty())
                seen.last() += QLatin1Char('|') + box->informativeText();
            if (m_answers.isEmpty())
                dialog->reject();
            else
                m_answers.takeFirst()(dialog);
        });
        m_timer.start(10);
    }

    static Answer press(QMessageBox::StandardButton button)
    {
        return [button](QDialog *dialog) { static_cast<QMessageBox *>(dialog)->button(button)->click(); };
    }
    /// Clicks the button whose text begins so.
    static Answer clickOn(const char *text)
    {
        return [text](QDialog *dialog) {
            for (auto *button : dialog->findChildren<QAbstractButton *>()) {
                if (button->text().remove('&').startsWith(QLatin1String(text)))
                    return button->click();
            }
            qFatal("no button %s", text);
        };
    }
    static void reject(QDialog *dialog) { dialog->reject(); }
    /// Types the path into a dialog of files; a folder is entered first, and chosen then.
    static Answer file(const QString &path)
    {
        return [path](QDialog *dialog) {
            auto *line = find<QLineEdit>(*dialog, "fileNameEdit");
            line->setText(path);
            QTest::keyClick(line, Qt::Key_Return);
            if (dialog->isVisible())
                QTest::keyClick(line, Qt::Key_Return);
        };
    }

    QStringList seen;

private:
    QVector<Answer> m_answers;
    QTimer m_timer;
    QPointer<QDialog> m_last;
};

/// Sees to it that a dialog does not stay open, whatever becomes of the test.
class Closing
{
public:
    explicit Closing(QDialog *dialog)
        : m_dialog(dialog)
    {}
    ~Closing()
    {
        if (m_dialog && m_dialog->isVisible())
            m_dialog->done(QDialog::Rejected);
    }
    Q_DISABLE_COPY(Closing)

private:
    QPointer<QDialog> m_dialog;
};

/// Two bones, one triangle, no texture to look for.
inline SkinnedMesh triangleMan()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(2);
    mesh.nodes[0].childNodes = {1};
    mesh.surfaces = {{QStringLiteral("materials/m/_white"), {0, 2, 1}}};
    mesh.vertices = {{{-100, 0, 0}, {}, {0, -1, 0}, 0},
                     {{100, 0, 0}, {}, {0, -1, 0}, 0},
                     {{0, 0, 200}, {}, {0, -1, 0}, 1}};
    return mesh;
}

/// One triangle that faces the camera.
inline StaticMesh wall(const std::vector<StaticMeshSurface> &surfaces)
{
    StaticMesh mesh;
    mesh.surfaces = surfaces;
    mesh.vertices = {{{-100, 0, 0}, {}, {}}, {{0, 0, 200}, {}, {}}, {{100, 0, 0}, {}, {}}};
    return mesh;
}

/// Two blocks of 11 frames for it, at 10 frames per second.
inline AnimFile twoBlocks()
{
    AnimFile file;
    file.blocks.resize(2);
    for (AnimBlock &block : file.blocks) {
        block.nodes.resize(2);
        block.speed = 10;
        block.setFrameCount(11);
    }
    return file;
}

/// The whole program, in front of everything, with these files.
struct ShownWindow : MainWindow
{
    explicit ShownWindow(const QStringList &paths = {})
    {
        show();
        openFiles(paths);
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("no window");
        QApplication::setActiveWindow(this);
    }
};

inline void select(const QWidget &window, const char *tree, const QVector<RecordRef> &records)
{
    find<KVTreeView>(window, tree)->selectRecords(records, records.last());
}

/// The text at the root of a tree; empty when the tree is.
inline QString rootOf(const QWidget &window, const char *tree)
{
    return find<KVTreeView>(window, tree)->model()->index(0, 0).data().toString();
}

inline QStringList consoleOf(const QWidget &window)
{
    QStringList lines;
    const auto *list = find<QListWidget>(window, "listConsole");
    for (int i = 0; i < list->count(); ++i)
        lines << list->item(i)->text();
    return lines;
}

inline void typeNumber(IntSpinBox *box, int number)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QString::number(number));
    QTest::keyClick(box, Qt::Key_Return);
}

/// An edit as the user makes it: bone 1 of the mesh that is open gets another parent.
inline void typeParent(const QWidget &window, int parent)
{
    select(window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
    typeNumber(find<IntSpinBox>(window, "sbNodeParentNode"), parent);
}
