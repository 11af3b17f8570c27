// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KMat.h"
#include "SampleModels.h"
#include "TestSupport.h"
#include "Validation.h"

#include <functional>
#include <limits>

/// Good models, and for every rule of the validator a way to break them that no other rule notices.
namespace BrokenModels {
template <typename Model>
struct Breakage
{
    Rule rule;
    std::function<void(Model &)> apply;
};

inline const QString materialWithoutPicture = QStringLiteral("materials/mat_no_picture/lost");
inline const QString materialWithoutSampler = QStringLiteral("materials/mat_no_sampler/bare");

// What both kinds of meshes have.
template <typename Mesh>
std::vector<Breakage<Mesh>> meshBreakages()
{
    return {
        {Rule::TriangleIndexOutOfRange, [](Mesh &mesh) { mesh.surfaces[0].triangleIndexes[4] = 65534; }},
        {Rule::TriangleIncomplete, [](Mesh &mesh) { mesh.surfaces[0].triangleIndexes.pop_back(); }},
        {Rule::SurfaceEmpty, [](Mesh &mesh) { mesh.surfaces[0].triangleIndexes.clear(); }},
        {Rule::NormalZero,
         [](Mesh &mesh) {
             mesh.vertices[7].normal = {0.0f, -0.0f, 0.0f};
         }},
        {Rule::BytesBehindEnd, [](Mesh &mesh) { mesh.bytesBehind = 5; }},
        {Rule::NotFinite,
         [](Mesh &mesh) { mesh.vertices[7].uv.setX(std::numeric_limits<float>::infinity()); }},
        {Rule::NotFinite, [](Mesh &mesh) { mesh.bbMax.setZ(std::numeric_limits<float>::quiet_NaN()); }},
        {Rule::BoxInverted, [](Mesh &mesh) { std::swap(mesh.bbMin, mesh.bbMax); }},
        {Rule::TextNotKept,
         [](Mesh &mesh) { mesh.surfaces[0].materialPath = QString::fromUtf8("materials/кот/_white"); }},
        {Rule::MaterialNotFound,
         [](Mesh &mesh) { mesh.surfaces[0].materialPath = QStringLiteral("materials/no_such_file/x"); }},
        {Rule::MaterialNotFound, [](Mesh &mesh) { mesh.surfaces[0].materialPath += QLatin1Char('x'); }},
        {Rule::TextureNotFound, [](Mesh &mesh) { mesh.surfaces[0].materialPath = materialWithoutPicture; }},
        {Rule::TextureNotFound, [](Mesh &mesh) { mesh.surfaces[0].materialPath = materialWithoutSampler; }},
        {Rule::NameCase,
         [](Mesh &mesh) {
             mesh.surfaces[0].materialPath.replace(QStringLiteral("materials"), QStringLiteral("Materials"));
         }},
    };
}

template <typename Model>
std::vector<Breakage<Model>> breakages();

template <>
inline std::vector<Breakage<SkinnedMesh>> breakages()
{
    using Mesh = SkinnedMesh;
    const auto withoutEntry = [](Mesh &mesh, quint16 bone) {
        auto &children = mesh.nodes[mesh.nodes[bone].parentNode].childNodes;
        children.erase(std::find(children.begin(), children.end(), bone));
    };
    const auto last = [](const Mesh &mesh) { return quint16(mesh.nodes.size() - 1); };
    std::vector<Breakage<Mesh>> all{
        {Rule::NoBones, [](Mesh &mesh) { mesh.nodes.clear(); }},
        {Rule::ChildBoneOutOfRange, [](Mesh &mesh) { mesh.nodes.back().childNodes = {1000}; }},
        {Rule::BoneCycle, [](Mesh &mesh) { mesh.nodes.back().childNodes = {mesh.nodes.back().parentNode}; }},
        {Rule::BoneCycle, [](Mesh &mesh) { mesh.nodes[0].childNodes.push_back(0); }},
        {Rule::BoneListedTwice, [=](Mesh &mesh) { mesh.nodes[0].childNodes.push_back(last(mesh)); }},
        {Rule::BoneListedTwice, [](Mesh &mesh) { mesh.nodes[0].childNodes.push_back(1); }},
        {Rule::BoneUnreachable, [=](Mesh &mesh) { withoutEntry(mesh, last(mesh)); }},
        {Rule::BoneUnreachable, [=](Mesh &mesh) { withoutEntry(mesh, 2); }}, // with all that hangs on it
        {Rule::BoneUnreachable,
         [=](Mesh &mesh) {
             withoutEntry(mesh, last(mesh));
             mesh.nodes.back().parentNode = 255;
         }},
        {Rule::ParentBoneOutOfRange, [](Mesh &mesh) { mesh.nodes[1].parentNode = 200; }},
        {Rule::ParentBoneOutOfRange, [](Mesh &mesh) { mesh.nodes[0].parentNode = 200; }},
        {Rule::ParentBoneMismatch, [](Mesh &mesh) { mesh.nodes[1].parentNode = 3; }},
        {Rule::ParentBoneMismatch, [](Mesh &mesh) { mesh.nodes[1].parentNode = 255; }},
        {Rule::ParentBoneMismatch, [](Mesh &mesh) { mesh.nodes[0].parentNode = 1; }},
        {Rule::TooManyBones,
         [](Mesh &mesh) {
             while (mesh.nodes.size() < 129) {
                 mesh.nodes[0].childNodes.push_back(quint16(mesh.nodes.size()));
                 mesh.nodes.emplace_back().parentNode = 0;
             }
         }},
        {Rule::HeadTrackOutOfRange, [](Mesh &mesh) { mesh.headTrackEnd = 254; }},
        {Rule::HeadTrackOutOfRange, [](Mesh &mesh) { mesh.headTrackStart = 254; }},
        {Rule::HotPointBoneOutOfRange, [](Mesh &mesh) { mesh.hotPoints[0].nodeId = 254; }},
        {Rule::BoxInverted,
         [](Mesh &mesh) {
             SkinnedMeshNode &bone = mesh.nodes[mesh.vertices[7].nodeIndex];
             bone.bbMin.setY(bone.bbMax.y() + 1.0f);
         }},
        {Rule::ImpactTypeUnknown, [](Mesh &mesh) { mesh.nodes[1].impactType = 10; }},
        {Rule::ParticleUnknown,
         [](Mesh &mesh) {
             mesh.hotPoints[0].particleEffect1 = 0;
             mesh.hotPoints[0].particleEffect2 = 999;
         }},
        {Rule::VertexBoneOutOfRange, [](Mesh &mesh) { mesh.vertices[7].nodeIndex = 254; }},
        {Rule::TriangleIndexReserved,
         [](Mesh &mesh) { mesh.surfaces[0].triangleIndexes[4] = Mesh::IndexTerminator; }},
        {Rule::NotFinite,
         [](Mesh &mesh) { mesh.nodes[1].damageScale = std::numeric_limits<float>::infinity(); }},
        {Rule::NotFinite,
         [](Mesh &mesh) { mesh.hotPoints[0].origin.setY(std::numeric_limits<float>::quiet_NaN()); }},
    };
    for (const auto &each : meshBreakages<Mesh>())
        all.push_back(each);
    return all;
}

template <>
inline std::vector<Breakage<StaticMesh>> breakages()
{
    auto all = meshBreakages<StaticMesh>();
    all.push_back({Rule::NoSurfaces, [](StaticMesh &mesh) { mesh.surfaces.clear(); }});
    return all;
}

/// An action of that kind at the end of the first animation's list.
inline std::function<void(AnimFile &)> action(quint16 eventType, std::array<float, 8> args,
                                              quint16 bone = 0xFFFF, quint16 frame = 0)
{
    return [=](AnimFile &file) { file.blocks[0].actions.push_back({frame, eventType, bone, {}, args}); };
}

template <>
inline std::vector<Breakage<AnimFile>> breakages()
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    const auto idle = [](AnimFile &file, quint16 AnimNode::*index) -> AnimNode & {
        auto &bones = file.blocks[0].nodes;
        return *std::find_if(bones.begin(), bones.end(),
                             [index](const AnimNode &bone) { return bone.*index == 0xFFFF; });
    };
    return {
        {Rule::NoAnimations, [](AnimFile &file) { file.blocks.clear(); }},
        {Rule::BoneCountMismatch, [](AnimFile &file) { file.blocks[1].nodes.emplace_back(); }},
        {Rule::BoneCountMismatch,
         [](AnimFile &file) {
             for (AnimBlock &block : file.blocks)
                 block.nodes.emplace_back();
         }},
        {Rule::AnimationIdRepeated, [](AnimFile &file) { file.blocks[2].animId = file.blocks[1].animId; }},
        {Rule::TranslationTrackOutOfRange,
         [=](AnimFile &file) {
             idle(file, &AnimNode::translationIndex).translationIndex =
                 quint16(file.blocks[0].translations.trackCount());
         }},
        {Rule::RotationTrackOutOfRange,
         [=](AnimFile &file) { idle(file, &AnimNode::rotationIndex).rotationIndex = 65534; }},
        {Rule::TrackUnused,
         [](AnimFile &file) {
             file.blocks[1].setTranslationCount(file.blocks[1].translations.trackCount() + 1);
         }},
        {Rule::TrackUnused,
         [](AnimFile &file) { file.blocks[1].setRotationCount(file.blocks[1].rotations.trackCount() + 1); }},
        {Rule::QuaternionZero, [](AnimFile &file) { file.blocks[1].nodes[2].initialRotation = {}; }},
        {Rule::QuaternionZero, [](AnimFile &file) { file.blocks[1].rotations.at(3, 4) = {}; }},
        {Rule::QuaternionUnnormalised,
         [](AnimFile &file) { file.blocks[1].nodes[2].initialRotation *= 0.9f; }},
        {Rule::QuaternionUnnormalised, [](AnimFile &file) { file.blocks[1].rotations.at(3, 4) *= 1.0e5f; }},
        {Rule::LoopFrameBeyondEnd,
         [](AnimFile &file) { file.blocks[1].loopFrame = quint16(file.blocks[1].frameCount()); }},
        {Rule::ActionFrameBeyondEnd, action(22, {}, 0xFFFF, 60000)},
        {Rule::ActionBoneOutOfRange, action(22, {}, 254)},
        {Rule::EventTypeUnknown, action(35, {})},
        {Rule::SoundUnknown, action(0, {9999.0f})},
        {Rule::SoundUnknown, action(29, {-7.0f, 9.0f})},
        {Rule::ParticleUnknown, action(24, {3.0e9f})},
        {Rule::ActorUnknown, action(28, {353.0f})},
        {Rule::VoiceUnknown, action(30, {1.0f})},
        {Rule::ImpactTypeUnknown, action(29, {10.0f, 10.0f})},
        {Rule::BytesBehindEnd, [](AnimFile &file) { file.bytesBehind = 5; }},
        {Rule::NotFinite, action(28, {nan})},
        {Rule::NotFinite, [](AnimFile &file) { file.blocks[1].frames[3].yawOffset = nan; }},
        {Rule::NotFinite, [](AnimFile &file) { file.blocks[1].speed = nan; }},
        {Rule::NotFinite, [](AnimFile &file) { file.blocks[1].translations.at(0, 3).setY(nan); }},
        {Rule::NotFinite, [](AnimFile &file) { file.blocks[1].rotations.at(0, 3).setW(nan); }},
        {Rule::NotFinite, [](AnimFile &file) { file.blocks[1].nodes[1].initialPosition.setX(nan); }},
    };
}

/// A folder with a game and a mod, whose models are without fault, and the names of one of each kind. The
/// mod's folder is a copy, in which one material's picture is missing.
class Base
{
public:
    Base(const QString &folder, const QString &figure, const QString &prop)
        : m_folder(folder)
        , m_figure(figure)
        , m_prop(prop)
    {
        for (const char *kept : {"materials", "textures"}) {
            const QString from = m_folder + QStringLiteral("/mod/") + QLatin1String(kept);
            const QString to = m_mod.filePath(QLatin1String(kept));
            QDir().mkpath(to);
            for (const QString &name : QDir(from).entryList(QDir::Files))
                QFile::copy(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name);
        }
        const QString broken = writeKMat(m_mod.filePath(QStringLiteral("materials/mat_no_picture.kmat")),
                                         {{QStringLiteral("lost"), QStringLiteral("textures/none.png")}});
        if (!broken.isEmpty())
            qFatal("%s", qPrintable(broken));
        TestSupport::writeFile(m_mod.filePath("materials/mat_no_sampler.kmat"), "material bare {\n}\n");
    }

    MaterialFolders folders() const { return {m_folder + QStringLiteral("/game"), m_mod.path()}; }

    template <typename Model>
    Model model() const
    {
        QString name = QStringLiteral("models/%1/%1.staticmesh").arg(m_prop);
        if (std::is_same_v<Model, SkinnedMesh>)
            name = QStringLiteral("models/%1/%1.skinnedmesh").arg(m_figure);
        else if (std::is_same_v<Model, AnimFile>)
            name = QStringLiteral("anims/%1/%1.anim").arg(m_figure);
        Model read;
        if (read.read(m_folder + QStringLiteral("/game/") + name))
            qFatal("%s cannot be read", qPrintable(name));
        return read;
    }

private:
    QString m_folder;
    QString m_figure;
    QString m_prop;
    QTemporaryDir m_mod;
};

/// The samples of the program, and real models where there are any.
inline std::vector<std::unique_ptr<Base>> bases()
{
    std::vector<std::unique_ptr<Base>> all;
    all.push_back(std::make_unique<Base>(TestSupport::source("samples"), "tinker", "crate"));
    const QString real = TestSupport::shared("gamedata");
    if (!real.isEmpty())
        all.push_back(std::make_unique<Base>(real, QStringLiteral("fox"), QStringLiteral("avocado")));
    return all;
}
} // namespace BrokenModels
