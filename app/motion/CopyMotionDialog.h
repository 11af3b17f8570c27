// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BoneRig.h"
#include "Document.h"
#include "PoseTransfer.h"

#include <QDialog>

namespace Ui {
class CopyMotionDialog;
}

/// Asks which animations of another file are to be copied to the bones of the open mesh, and says what comes
/// of that. Files are read, and copies made, in other threads; nothing is changed.
class CopyMotionDialog : public QDialog
{
    Q_OBJECT

public:
    /// The documents outlive this and stay as they are meanwhile.
    CopyMotionDialog(AnimDocument &anim, SkinnedMeshDocument &mesh, QWidget *parent = nullptr);
    ~CopyMotionDialog() override;

    /// What was agreed to, once: animations for the bones of the open mesh.
    std::vector<AnimBlock> takeBlocks();

private slots:
    void on_btnSource_clicked();
    void on_btnSourceMesh_clicked();
    void on_listBlocks_itemSelectionChanged() { copy(); }

private:
    /// Another animation file, with its mesh.
    struct Source
    {
        AnimFile anim;
        SkinnedMesh mesh;
        QString animPath;
        QString meshPath; ///< empty where there is none
        QString error;    ///< names the file
    };
    /// What is made of it in another thread.
    struct Copied
    {
        std::vector<int> blocks;
        std::vector<Motion::CopiedBlock> made;
        Motion::BonePairs pairs; ///< of the first block
        QString lack;            ///< of memory
    };

    static Source readSource(const QString &anim, const QString &mesh,
                             const Background::Cancelled &cancelled);
    void read(const QString &anim, const QString &mesh);
    void showSource();
    void copy();
    void showCopied(const Copied &copied);
    void showBones(const Motion::BonePairs &pairs);
    void refuse(const QString &reason);
    bool isCopied() const;

    std::unique_ptr<Ui::CopyMotionDialog> m_ui;
    AnimDocument &m_anim;
    SkinnedMeshDocument &m_mesh;
    std::shared_ptr<const Source> m_source;
    std::vector<Motion::CopiedBlock> m_made;
    Background m_reader;
    Background m_copier;
};
