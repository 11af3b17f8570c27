// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CopyMotionDialog.h"

#include "Companions.h"
#include "DocumentLoader.h"
#include "Files.h"
#include "Memory.h"
#include "ModelNames.h"
#include "MotionCommand.h"
#include "Validation.h"
#include "ui_CopyMotionDialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {
QString chooseFile(QWidget *parent, const QString &title, DocumentType type, const QString &known)
{
    const DocumentKind &kind = documentKind(type);
    const QString left = kind.loadPath.value();
    const QString last = left.isEmpty() ? Files::folderOnDisk(kind.explorePath.value()) : left;
    const QString path =
        QFileDialog::getOpenFileName(parent, title, known.isEmpty() ? last : known, kind.filter);
    if (!path.isEmpty())
        kind.loadPath.setValue(QFileInfo(path).absolutePath());
    return path;
}

/// Why a file cannot be read, with its name.
template <typename Model>
QString readModel(Model &model, const QString &path)
{
    QString reason;
    if (!model.read(path, &reason))
        return {};
    return CopyMotionDialog::tr("'%1' cannot be read. %2").arg(path, reason);
}
} // namespace

CopyMotionDialog::CopyMotionDialog(AnimDocument &anim, SkinnedMeshDocument &mesh, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CopyMotionDialog>())
    , m_anim(anim)
    , m_mesh(mesh)
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("Co&py"));
    m_ui->btnSourceMesh->setEnabled(false);
    if (m_mesh.isOpen()) {
        refuse(tr("Choose an animation file."));
    } else {
        m_ui->btnSource->setEnabled(false);
        refuse(tr("Which bones there are is in the mesh: open the one that the animations belong to."));
    }
    m_ui->btnSource->setFocus();
}

CopyMotionDialog::~CopyMotionDialog() = default;

std::vector<AnimBlock> CopyMotionDialog::takeBlocks()
{
    std::vector<AnimBlock> blocks;
    for (Motion::CopiedBlock &each : m_made) {
        if (each.block)
            blocks.push_back(std::move(*each.block));
    }
    m_made.clear();
    return blocks;
}

// --- The other file ----------------------------------------------------------------------------------------

void CopyMotionDialog::on_btnSource_clicked()
{
    const QString path =
        chooseFile(this, tr("Copy Animations of"), DocumentType::Anim, m_ui->txtSource->toolTip());
    if (!path.isEmpty())
        read(path, {});
}

void CopyMotionDialog::on_btnSourceMesh_clicked()
{
    const QString path = chooseFile(this, tr("The Mesh of These Animations"), DocumentType::SkinnedMesh,
                                    m_ui->txtSourceMesh->toolTip());
    if (path.isEmpty() || !m_source)
        return;
    const QString anim = m_source->animPath; // reading lets the source go
    read(anim, path);
}

CopyMotionDialog::Source CopyMotionDialog::readSource(const QString &anim, const QString &mesh,
                                                      const Background::Cancelled &cancelled)
{
    Source source;
    source.animPath = anim;
    source.meshPath = mesh;
    source.error = readModel(source.anim, anim);
    if (!source.error.isEmpty() || cancelled)
        return source;
    if (mesh.isEmpty()) {
        Companions companions({Settings::GamePath.value(), Settings::OutputDir.value()}, {},
                              [&cancelled] { return cancelled.load(); });
        source.meshPath = companions.find(anim).path;
    }
    if (source.meshPath.isEmpty()) {
        source.error = tr("The mesh that '%1' belongs to was not found: choose it.").arg(anim);
        return source;
    }
    source.error = readModel(source.mesh, source.meshPath);
    // Names that cannot be read leave the symbols.
    ModelNames names;
    if (source.error.isEmpty() && !names.read(ModelNames::pathFor(source.meshPath)))
        names.giveTo(source.mesh);
    return source;
}

void CopyMotionDialog::read(const QString &anim, const QString &mesh)
{
    m_copier.cancel();
    m_source.reset();
    m_ui->listBlocks->clear();
    m_ui->treeBones->clear();
    m_ui->btnSourceMesh->setEnabled(false);
    for (const auto &[field, path] :
         {std::pair(m_ui->txtSource, anim), std::pair(m_ui->txtSourceMesh, mesh)}) {
        field->setText(QDir::toNativeSeparators(path));
        field->setToolTip(path);
    }
    refuse(tr("Being read…"));
    const auto work = [anim, mesh](const Background::Cancelled &cancelled) {
        Source source;
        const QString lack = withinMemory([&] { source = readSource(anim, mesh, cancelled); });
        if (!lack.isEmpty())
            source = {{}, {}, anim, {}, tr("'%1' cannot be read. %2").arg(anim, lack)};
        return source;
    };
    m_reader.start(work, [this](Source source) {
        m_source = std::make_shared<const Source>(std::move(source));
        showSource();
    });
    m_reader.wait(DocumentLoader::usualPatience());
}

void CopyMotionDialog::showSource()
{
    m_ui->btnSourceMesh->setEnabled(!m_source->anim.blocks.empty());
    m_ui->txtSourceMesh->setText(QDir::toNativeSeparators(m_source->meshPath));
    m_ui->txtSourceMesh->setToolTip(m_source->meshPath);
    if (!m_source->error.isEmpty())
        return refuse(m_source->error);
    QStringList titles;
    for (size_t i = 0; i < m_source->anim.blocks.size(); ++i)
        titles.append(Motion::blockTitle(m_source->anim, int(i), &m_source->mesh));
    if (titles.isEmpty())
        return refuse(tr("'%1' has no animations.").arg(m_source->animPath));
    m_ui->listBlocks->addItems(titles);
    m_ui->listBlocks->setCurrentRow(0); // which selects it, and copies it
    m_ui->listBlocks->setFocus();
}

// --- The copies --------------------------------------------------------------------------------------------

void CopyMotionDialog::copy()
{
    m_copier.cancel();
    Background::discard(std::exchange(m_made, {}));
    if (!m_source || !m_source->error.isEmpty())
        return;
    std::vector<int> blocks;
    for (const QModelIndex &index : m_ui->listBlocks->selectionModel()->selectedRows())
        blocks.push_back(index.row());
    std::sort(blocks.begin(), blocks.end());
    if (blocks.empty()) {
        m_ui->treeBones->clear();
        return refuse(tr("Choose the animations to be copied."));
    }
    refuse(tr("Being worked out…"));
    const auto work = [source = m_source, blocks, anim = m_anim.copy(),
                       mesh = m_mesh.copy()](const Background::Cancelled &cancelled) {
        Copied copied;
        copied.blocks = blocks;
        copied.lack = withinMemory([&] {
            const Motion::Animated to{mesh->get(), anim->get()};
            const Motion::Animated from{source->mesh, source->anim};
            if (to.anim.blocks.empty())
                return;
            copied.pairs = Motion::partners(
                from.mesh, Motion::BoneRig(from.mesh, from.anim.blocks[size_t(blocks.front())].nodes),
                to.mesh, Motion::BoneRig(to.mesh, to.anim.blocks.front().nodes));
            std::vector<qint32> taken;
            for (const int block : blocks) {
                copied.made.push_back(Motion::copiedTo(to, from, block, taken, &cancelled));
                if (cancelled)
                    return;
                if (copied.made.back().block)
                    taken.push_back(copied.made.back().block->animId);
            }
        });
        return copied;
    };
    m_copier.start(work, [this](Copied copied) {
        m_made = std::move(copied.made);
        showCopied(copied);
    });
    m_copier.wait(DocumentLoader::usualPatience());
}

void CopyMotionDialog::showCopied(const Copied &copied)
{
    if (!copied.lack.isEmpty())
        return refuse(copied.lack);
    showBones(copied.pairs);
    QVector<MotionPreview::Entry> entries;
    for (size_t i = 0; i < m_made.size(); ++i) {
        const Motion::CopiedBlock &made = m_made[i];
        MotionPreview::Entry entry{Motion::blockTitle(m_source->anim, copied.blocks[i], &m_source->mesh),
                                   made.account.notes, !made.block};
        if (entry.isRefused)
            entry.lines = QStringList{made.refusal, tr("It is not copied.")};
        entries.append(entry);
    }
    m_ui->preview->setEntries(entries);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(isCopied());
}

void CopyMotionDialog::showBones(const Motion::BonePairs &pairs)
{
    const QString none = tr("none");
    QList<QTreeWidgetItem *> rows;
    const auto add = [&](const QString &own, const QString &other) {
        auto *row = new QTreeWidgetItem({own, other});
        for (const int column : {0, 1}) {
            row->setToolTip(column, row->text(column));
            if (own == none || other == none)
                row->setForeground(column, palette().brush(QPalette::PlaceholderText));
        }
        rows.append(row);
    };
    std::vector<bool> isPartner(m_source->mesh.nodes.size(), false);
    for (size_t bone = 0; bone < pairs.size(); ++bone) {
        const int other = pairs[bone];
        if (other != Motion::BoneRig::NoBone)
            isPartner[size_t(other)] = true;
        add(boneTitle(m_mesh.model(), int(bone)),
            other == Motion::BoneRig::NoBone ? none : boneTitle(m_source->mesh, other));
    }
    for (size_t bone = 0; bone < isPartner.size(); ++bone) {
        if (!isPartner[bone])
            add(none, boneTitle(m_source->mesh, int(bone)));
    }
    m_ui->treeBones->clear();
    m_ui->treeBones->addTopLevelItems(rows);
    m_ui->treeBones->setColumnWidth(0, m_ui->treeBones->viewport()->width() / 2);
}

bool CopyMotionDialog::isCopied() const
{
    return std::any_of(m_made.begin(), m_made.end(),
                       [](const Motion::CopiedBlock &made) { return made.block.has_value(); });
}

void CopyMotionDialog::refuse(const QString &reason)
{
    m_ui->preview->tell(reason);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
}
