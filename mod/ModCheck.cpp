// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModCheck.h"

#include "FilePictures.h"
#include "FileStamp.h"
#include "Files.h"
#include "GameMaterials.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>

namespace {
bool isPowerOfTwo(int number)
{
    return number > 0 && (number & (number - 1)) == 0;
}

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool isSameContent(const QString &a, const QString &b)
{
    if (FileStamp::of(a).size != FileStamp::of(b).size)
        return false;
    const std::unique_ptr<QIODevice> left = Files::open(a);
    const std::unique_ptr<QIODevice> right = Files::open(b);
    constexpr qint64 part = 256 * 1024;
    while (left && right) {
        const QByteArray bytes = left->read(part);
        if (bytes != right->read(bytes.size()))
            return false;
        if (bytes.size() < part)
            return left->atEnd() && right->atEnd();
    }
    return false;
}
} // namespace

ModCheck::ModCheck(const MaterialFolders &folders, const ReferenceIds &ids, int listed, Progress progress)
    : m_progress(std::move(progress))
    , m_check(folders, ids, listed, [this] { return !goesOn(); })
    , m_files(ModFiles::Whose::Mod, folders.outputDir, [this] { return goesOn(); })
    , m_game(folders.gamePath.isEmpty()
                 ? ModFiles()
                 : ModFiles(ModFiles::Whose::Game, folders.gamePath, [this] { return goesOn(); }))
{}

bool ModCheck::goesOn() const
{
    return !m_progress || m_progress(m_done, m_all);
}

void ModCheck::add(const QString &name, const FileFinding &finding)
{
    ModFinding added{finding, name};
    if (const CheckSettings::Silence *silence = m_report.settings.silenceOf(finding.rule.id, name)) {
        added.isSilenced = true;
        added.why = silence->why;
    }
    m_report.findings.push_back(std::move(added));
}

ModReport ModCheck::run()
{
    m_all = qint64(m_files.files().size());
    m_report.settings = CheckSettings::of(m_files.folder());
    for (const FileFinding &finding : m_report.settings.findings())
        add(CheckSettings::FileName, finding);
    for (auto gap = m_files.gaps().begin(); gap != m_files.gaps().end(); ++gap)
        add(gap.key(), ModRule::Unreadable, gap.value());
    checkNames();
    // Animations ask for the bones of meshes, which are known by then.
    std::vector<const ModFile *> order;
    for (const ModFile &file : m_files.files())
        order.push_back(&file);
    std::stable_partition(order.begin(), order.end(),
                          [](const ModFile *file) { return file->kind == ModFileKind::SkinnedMesh; });
    for (const ModFile *file : order) {
        if (!goesOn())
            return std::move(m_report);
        checkFile(*file);
        checkGame(*file);
        ++m_done;
    }
    for (const ModFile &file : m_files.files()) {
        if (!goesOn())
            return std::move(m_report);
        checkAnimation(file);
        checkMaterials(file);
        checkPicture(file);
    }
    m_report.files = m_done;
    std::stable_sort(m_report.findings.begin(), m_report.findings.end(),
                     [](const ModFinding &a, const ModFinding &b) { return a.name < b.name; });
    return std::move(m_report);
}

void ModCheck::checkFile(const ModFile &file)
{
    if (file.kind == ModFileKind::Picture || file.kind == ModFileKind::Other)
        return;
    FileFacts &facts = m_facts[file.name];
    m_report.checked.append(file.path);
    for (const FileFinding &finding : m_check.check(file.path, &facts))
        add(file.name, finding);
    const bool isMeshFile = file.kind == ModFileKind::SkinnedMesh || file.kind == ModFileKind::StaticMesh;
    m_hasUnreadMesh |= isMeshFile && !facts.isRead;
    if (!facts.mesh.isEmpty())
        m_animated.insert(facts.mesh);
    for (const QString &material : qAsConst(facts.materials))
        m_materials.insert(materialKey(material));
    for (const auto &[name, texture] : facts.table)
        m_textures.insert(QDir::cleanPath(texture).toCaseFolded());
}

void ModCheck::checkNames()
{
    for (const QString &folder : m_files.folders())
        checkClash(folder);
    for (const ModFile &file : m_files.files())
        checkClash(file.name);
}

/// Of folders that clash, what is in them is not told of once more.
void ModCheck::checkClash(const QString &name)
{
    const int start = name.lastIndexOf(QLatin1Char('/')) + 1;
    const QString key = name.left(start) + name.mid(start).toCaseFolded();
    const auto known = m_names.constFind(key);
    if (known == m_names.constEnd()) {
        m_names.insert(key, name);
        return;
    }
    add(name, ModRule::NameClash,
        tr("The name differs from '%1' by case alone. The game and Windows take both for one: only one of "
           "them "
           "is found. Rename or remove one.")
            .arg(*known));
}

void ModCheck::checkGame(const ModFile &file)
{
    const QString game = m_game.find(file.name);
    if (game.isEmpty() || absolute(game) == absolute(file.path) || !isSameContent(game, file.path))
        return;
    add(file.name, ModRule::SameAsGame,
        tr("The file is the game's own, byte for byte: it replaces nothing. Remove it from the mod."));
}

void ModCheck::checkPicture(const ModFile &file)
{
    // Others may be meant for people, not for the game.
    const bool isTexture = file.name.startsWith(QLatin1String("textures/"), Qt::CaseInsensitive) ||
                           m_textures.contains(file.name.toCaseFolded());
    if (file.kind != ModFileKind::Picture || !isTexture)
        return;
    const QSize size = Files::pictureSize(file.path);
    if (size.isEmpty()) {
        add(file.name, ModRule::TextureUnreadable,
            tr("The file is no picture that can be read, of these kinds: %1. Save it as one of them.")
                .arg(QLatin1String(PictureKinds)));
        return;
    }
    const QString width = QString::number(size.width());
    const QString height = QString::number(size.height());
    if (!isPowerOfTwo(size.width()) || !isPowerOfTwo(size.height())) {
        add(file.name, ModRule::TextureNotPowerOfTwo,
            tr("The texture has %1 × %2 pixels. A side that is no power of two (256, 512, 1024 …) may be "
               "scaled, "
               "which blurs it, or the texture may not be shown. Scale the picture to the next one.")
                .arg(width, height));
    }
    const int largest = m_report.settings.largestTexture();
    if (size.width() > largest || size.height() > largest) {
        add(file.name, ModRule::TextureTooLarge,
            tr("The texture has %1 × %2 pixels, more than %3 a side, and takes %4 MiB of the graphics card "
               "with "
               "its smaller copies. Scale it down, or allow it by 'largestTexture' in %5.")
                .arg(width, height, QString::number(largest),
                     // four bytes a pixel, and a third for the copies
                     QString::number(qint64(size.width()) * size.height() * 4 * 4 / 3 / (1024 * 1024) + 1),
                     CheckSettings::FileName));
    }
}

/// The other way about is told of by the animation's own check.
void ModCheck::checkAnimation(const ModFile &file)
{
    if (file.kind != ModFileKind::SkinnedMesh)
        return;
    const std::vector<int> &bones = m_facts[file.name].bones;
    if (bones.empty() || m_animated.contains(absolute(file.path)))
        return;
    const QString anim = m_check.companionOf(file.path);
    if (anim.isEmpty())
        return;
    const std::vector<int> blocks = m_check.bonesOf(anim);
    const auto other =
        std::find_if(blocks.begin(), blocks.end(), [&bones](int count) { return count != bones.front(); });
    if (other == blocks.end())
        return;
    add(file.name, ModRule::AnimationBoneCount,
        tr("The mesh has %1 bones, but animation %2 of the file that belongs to it, '%3', is for %4: it "
           "cannot "
           "be played right. Give the mod animations for this mesh, or the mesh the bones of these.")
            .arg(QString::number(bones.front()), QString::number(other - blocks.begin()),
                 QDir::toNativeSeparators(anim), QString::number(*other)));
}

/// A file that the game has, too, may be meant for what else names its materials, such as levels; and a mesh
/// that cannot be read may name any.
void ModCheck::checkMaterials(const ModFile &file)
{
    if (file.kind != ModFileKind::Material || m_hasUnreadMesh || !m_game.find(file.name).isEmpty())
        return;
    const QString stem = file.name.left(file.name.lastIndexOf(QLatin1Char('.')));
    const bool knowsGame = !m_check.folders().gamePath.isEmpty();
    int unused = 0;
    for (const auto &[name, texture] : m_facts[file.name].table) {
        if (isNamed(materialKey(stem + QLatin1Char('/') + name)) || ++unused > m_check.listed())
            continue;
        add(file.name, ModRule::MaterialUnused,
            (knowsGame
                 ? tr("No model of game or mod names the material '%1'. If nothing else does, remove it.")
                 : tr("No model of the mod names the material '%1'. If nothing else does, remove it."))
                .arg(name));
    }
    const int more = unused - m_check.listed();
    if (more > 0) {
        add(file.name, {wordsOf(ModRule::MaterialUnused),
                        QCoreApplication::translate("Validation", "And %1 more like these.").arg(more),
                        {},
                        more});
    }
}

/// The game's models are read only where the mod's do not name a material.
bool ModCheck::isNamed(const QString &key)
{
    if (m_materials.contains(key))
        return true;
    if (!m_gameMaterials) {
        m_gameMaterials =
            std::make_unique<QSet<QString>>(materialsOfGame(m_game, [this] { return goesOn(); }));
    }
    return m_gameMaterials->contains(key);
}
