// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimationFollower.h"

#include "DocumentFiles.h"
#include "FileSystem.h"
#include "FolderExplorer.h"
#include "Icons.h"
#include "NoticeBar.h"
#include "Settings.h"
#include "Validation.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPushButton>

#include <utility>

AnimationFollower::AnimationFollower(DocumentFiles &files, FolderExplorer &animations, QAction &sync,
                                     QBoxLayout &view, QObject *parent)
    : QObject(parent)
    , m_files(files)
    , m_animations(animations)
    , m_sync(sync)
    , m_bar(new NoticeBar(namedIcon(QStringLiteral("info")), QStringLiteral("barNoAnimation")))
    , m_offer(m_bar->addButton(tr("Animations Found"), QStringLiteral("btnOfferedAnimation"), {}))
    , m_offers(new QMenu(m_bar))
{
    Settings::AnimationSyncSkin.ensure();
    m_sync.setChecked(Settings::AnimationSyncSkin.value());
    m_animations.addExtraAction(&m_sync);
    connect(&m_sync, &QAction::triggered, this, &AnimationFollower::OnActionAnimSyncSkinSelect);

    const QPushButton *other = m_bar->addButton(tr("Open Animation…"), QStringLiteral("btnOtherAnimation"),
                                                tr("Choose an animation file"));
    m_bar->addCross(tr("Hide this notice"));
    m_offers->setObjectName(QStringLiteral("menuOfferedAnimations"));
    m_offers->setToolTipsVisible(true);
    view.insertWidget(0, m_bar);
    connect(m_offer, &QPushButton::clicked, this, [this] { openOffered(m_onlyOffer); });
    connect(other, &QPushButton::clicked, this, [this] { m_files.openChosen(DocumentType::Anim); });

    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &AnimationFollower::OnTurnEnded);
    connect(&m_files, &DocumentFiles::opened, this, &AnimationFollower::OnOpened);
    for (const DocumentType type : {DocumentType::SkinnedMesh, DocumentType::Anim})
        connect(m_files.document(type), &Document::replaced, this, &AnimationFollower::OnReplaced);
}

void AnimationFollower::OnActionAnimSyncSkinSelect(bool on)
{
    Settings::AnimationSyncSkin.setValue(on);
}

void AnimationFollower::OnReplaced()
{
    m_bar->hide();
    m_search.cancel();
    m_found.reset();
    if (std::exchange(m_isFollowing, false))
        m_files.loader(DocumentType::Anim).cancel(); // which belongs to the mesh before
}

void AnimationFollower::OnOpened(DocumentType type)
{
    if (type == DocumentType::SkinnedMesh)
        m_mesh = m_files.document(type)->path();
    else if (type == DocumentType::Anim)
        m_isChosen = true;
    // Several files may be opened at once, and an animation among them is the wanted one.
    m_turn.start(0);
}

void AnimationFollower::OnTurnEnded()
{
    // A question about one of the files is still open, or an animation that was chosen is still read.
    if (QApplication::activeModalWidget() || m_files.loader(DocumentType::Anim).isLoading()) {
        m_turn.start(50);
        return;
    }
    const QString mesh = std::exchange(m_mesh, {});
    const auto found = std::exchange(m_found, std::nullopt);
    if (std::exchange(m_isChosen, false))
        return;
    if (!mesh.isEmpty())
        search(mesh);
    else if (found)
        follow(*found);
}

void AnimationFollower::search(const QString &mesh)
{
    const MaterialFolders folders{Settings::GamePath.value(), Settings::OutputDir.value()};
    const auto find = [folders, mesh, listed = m_animations.files()](const Background::Cancelled &cancelled) {
        return Companions(folders, listed, [&cancelled] { return cancelled.load(); }).find(mesh);
    };
    m_search.start(find, [this](const CompanionFile &found) {
        m_found = found;
        m_turn.start(0);
    });
}

void AnimationFollower::follow(const CompanionFile &found)
{
    const bool isOpen = !found.path.isEmpty() &&
                        FileSystem::isSamePath(found.path, m_files.document(DocumentType::Anim)->path());
    if (isOpen)
        m_animations.selectPath(found.path);
    else if (m_sync.isChecked() && !found.path.isEmpty() && m_files.promptUnsaved(DocumentType::Anim))
        openAlong(found);
    else
        offer(found);
}

void AnimationFollower::openAlong(const CompanionFile &found)
{
    const QString mesh = m_files.document(DocumentType::SkinnedMesh)->path();
    m_isFollowing = true;
    m_files.openAlong(DocumentType::Anim, found.path, [this, found, mesh](DocumentFiles::Outcome outcome) {
        m_isFollowing = false;
        if (outcome != DocumentFiles::Outcome::Opened) {
            if (m_files.document(DocumentType::SkinnedMesh)->path() == mesh)
                offer(found);
            return;
        }
        emit posed();
        m_animations.selectPath(found.path);
    });
}

void AnimationFollower::openOffered(const QString &path)
{
    // A button that has a menu can be clicked by what is no mouse.
    if (path.isEmpty() || !m_files.promptUnsaved(DocumentType::Anim))
        return;
    m_files.open(DocumentType::Anim, path, [this, path](DocumentFiles::Outcome outcome) {
        if (outcome != DocumentFiles::Outcome::Opened)
            return;
        m_animations.selectPath(path);
        emit posed();
    });
}

void AnimationFollower::offer(const CompanionFile &found)
{
    const Document *mesh = m_files.document(DocumentType::SkinnedMesh);
    const Document *anim = m_files.document(DocumentType::Anim);
    QStringList offers = found.others;
    if (!found.path.isEmpty())
        offers.prepend(found.path);
    // Who has switched the following off may want to see one animation on several meshes.
    const bool fits = anim->isOpen() &&
                      anim->recordCount(RecordKind::AnimBone, {0}) == mesh->recordCount(RecordKind::Bone, {});
    if (offers.contains(anim->path()) || (fits && !m_sync.isChecked()))
        return;
    m_onlyOffer = offers.size() == 1 ? offers.first() : QString();
    m_offers->clear();
    for (const QString &path : qAsConst(offers)) {
        const QFileInfo file(path);
        QString text = QDir::toNativeSeparators(file.dir().dirName() + QLatin1Char('/') + file.fileName());
        QAction *action = m_offers->addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { openOffered(path); });
    }
    m_offer->setVisible(!offers.isEmpty());
    m_offer->setMenu(offers.size() > 1 ? m_offers : nullptr);
    m_offer->setText(offers.size() > 1 ? tr("Animations Found") : tr("Open What Was Found"));
    m_offer->setToolTip(offers.size() > 1 ? tr("Animation files that may belong to the mesh")
                                          : QDir::toNativeSeparators(m_onlyOffer));

    const QString name = mesh->fileName();
    if (!found.path.isEmpty())
        m_bar->tell(tr("'%1' was opened without its animation.").arg(name));
    else if (!offers.isEmpty())
        m_bar->tell(tr("It is not certain which animation belongs to '%1'.").arg(name));
    else if (anim->isOpen())
        m_bar->tell(tr("No animation was found for '%1'; '%2' stays open.").arg(name, anim->fileName()));
    else
        m_bar->tell(tr("No animation was found for '%1'.").arg(name));
}
