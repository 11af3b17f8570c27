// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "MotionCommand.h"
#include "MotionKind.h"
#include "MotionOnView.h"

#include <QDialog>
#include <QTimer>

namespace Ui {
class MotionDialog;
}

/// Asks for the numbers of an animation command and says what it would do. Another thread works that out, so
/// the dialog can be left at any time; it changes nothing itself. While it is open the view shows what the
/// animation that plays would be.
class MotionDialog : public QDialog
{
    Q_OBJECT

public:
    /// `selected`: the animations that are offered first, beside all. The documents outlive this and stay as
    /// they are meanwhile.
    MotionDialog(MotionKind::Name kind, AnimDocument &anim, SkinnedMeshDocument &mesh,
                 std::vector<int> selected, QWidget *parent = nullptr);
    ~MotionDialog() override;

    /// What was agreed to, once.
    std::vector<Motion::BlockChange> takeChanges() { return std::move(m_changes); }

public slots:
    void accept() override;
    void done(int result) override;

private:
    void fillNumbers();
    void watchNumbers();
    std::vector<int> blocks() const;
    /// What the numbers say; empty text in `refusal` when they say something.
    Motion::Command command(QString &refusal) const;
    /// Works out what the numbers change: at once, or a little later where that takes long.
    void workOut();
    void start();
    void showChanges();

    std::unique_ptr<Ui::MotionDialog> m_ui;
    const MotionKind::Name m_kind;
    AnimDocument &m_anim;
    SkinnedMeshDocument &m_mesh;
    const std::vector<int> m_selected;
    MotionOnView m_onView;
    std::vector<Motion::BlockChange> m_changes;
    std::shared_ptr<std::atomic_int> m_percent = std::make_shared<std::atomic_int>(0);
    QTimer m_look;           ///< at how far it is
    QTimer m_later;          ///< runs until it is begun
    bool m_isWanted = false; ///< accepted as it stands, before it is worked out
    Background m_work;
};
