// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneSurvey.h"

#include "GltfFacts.h"
#include "GltfWeights.h"
#include "ReadyTextures.h"
#include "SceneReading.h"
#include "TextureSearch.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <utility>

namespace {
// A person is about 1.82 m tall, and about 200 units in the game.
constexpr double UnitsPerMeter = 110.0;
constexpr double UnitsPerPerson = 200.0;
constexpr double CentimetersPerMeter = 100.0;
constexpr int PosedBones = 128; // the game poses no more
constexpr unsigned VertexLimit = 65535;
constexpr double UsualTicks = 25.0;     // a second, where the file does not say
constexpr qint64 MetricBytes = 1 << 16; ///< at the beginning of a file, where its measures stand
/// Of a weight that tells, and of a change of size that does.
constexpr float Noticed = 0.001f;

QString said(const char *text)
{
    return QCoreApplication::translate("Survey", text);
}

QString said(const char *text, qint64 number)
{
    return said(text).arg(number);
}

bool isFinite(const aiVector3D &place)
{
    return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.z);
}

/// Formats that say no axes and are read as they are, of programs and games whose z is up; and one that says
/// its own, which is z unless it says y, and is read as it is all the same.
bool isZUp(const QString &path)
{
    static const QSet<QString> formats = {QStringLiteral("cob"), QStringLiteral("ply"),
                                          QStringLiteral("scn"), QStringLiteral("smd"),
                                          QStringLiteral("stl"), QStringLiteral("vta")};
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != QLatin1String("ogex"))
        return formats.contains(suffix);
    static const QRegularExpression yIsUp(
        QStringLiteral(R"(\bMetric\b[^{]*"up"[^{]*\{\s*string\s*\{\s*"y")"));
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           !yIsUp.match(QString::fromUtf8(file.read(MetricBytes))).hasMatch();
}

/// The box around what is at rest, in the scene's axes.
class Extent
{
public:
    void add(const aiVector3D &place)
    {
        if (!isFinite(place))
            return;
        for (unsigned axis = 0; axis < 3; ++axis) {
            m_low[int(axis)] = std::min(m_low[int(axis)], place[axis]);
            m_high[int(axis)] = std::max(m_high[int(axis)], place[axis]);
        }
    }
    QVector3D size() const { return m_low.x() <= m_high.x() ? m_high - m_low : QVector3D(); }

private:
    static constexpr float Far = std::numeric_limits<float>::max();
    QVector3D m_low{Far, Far, Far};
    QVector3D m_high{-Far, -Far, -Far};
};

/// A factor with no more digits than somebody would choose.
double rounded(double factor)
{
    const double step = std::pow(10.0, std::floor(std::log10(factor)) - 1.0);
    return std::round(factor / step) * step;
}

double proposedScale(const QVector3D &size, bool hasBones)
{
    const double greatest = double(std::max({size.x(), size.y(), size.z()}));
    const double extent = hasBones && size.z() > 0.1 * greatest ? double(size.z()) : greatest;
    // Of rigs, in meters: a cat to a giant. Things are from a cup to a house.
    const std::pair<double, double> likely = hasBones ? std::pair(0.4, 4.0) : std::pair(0.1, 20.0);
    for (const double perMeter : {1.0, CentimetersPerMeter}) {
        if (extent >= likely.first * perMeter && extent <= likely.second * perMeter)
            return UnitsPerMeter / perMeter;
    }
    const double factor = rounded(UnitsPerPerson / extent);
    return std::isfinite(factor) && factor > 0.0 ? factor : 1.0;
}

class Survey
{
public:
    Survey(const QString &modelPath, const aiScene &scene)
        : m_modelPath(modelPath)
        , m_scene(scene)
    {
        walkNodes();
        for (unsigned i = 0; i < scene.mNumMeshes; ++i)
            countMesh(*scene.mMeshes[i]);
        for (unsigned i = 0; i < scene.mNumAnimations; ++i)
            addClip(*scene.mAnimations[i]);
        for (unsigned i = 0; i < scene.mNumMaterials; ++i)
            addTextures(*scene.mMaterials[i]);
    }

    SceneSummary summary(const GltfFacts &facts)
    {
        SceneSummary summary;
        Extent extent;
        for (const auto &[node, transform] : m_shown) {
            for (unsigned i = 0; i < node->mNumMeshes; ++i) {
                if (node->mMeshes[i] < m_scene.mNumMeshes)
                    addInstance(*m_scene.mMeshes[node->mMeshes[i]], transform, extent, summary);
            }
        }
        const QVector3D size = extent.size();
        summary.proposesZUp = isZUp(m_modelPath);
        summary.size = summary.proposesZUp ? size : QVector3D(size.x(), size.z(), size.y());
        summary.objects = qint32(m_shown.size());
        summary.bones = qint32(m_bones.size());
        summary.clips = std::move(m_clips);
        summary.textures = std::move(m_textures);
        if (!facts.isOurs) {
            summary.proposedScale = float(proposedScale(summary.size, summary.bones > 0));
            summary.otherScale = float(proposedScale(summary.turned().size, summary.bones > 0));
        }
        summary.losses = losses(summary.vertices, facts);
        return summary;
    }

private:
    QStringList losses(qint64 vertices, const GltfFacts &facts) const
    {
        QStringList lines;
        const auto note = [&lines](qint64 number, const char *text) {
            if (number > 0)
                lines += said(text, number);
        };
        if (vertices > VertexLimit)
            lines += said(QT_TRANSLATE_NOOP("Survey", "Vertices: %1. A model can hold no more than %2."))
                         .arg(QString::number(vertices), QString::number(VertexLimit));
        if (m_bones.size() > PosedBones)
            lines += said(QT_TRANSLATE_NOOP("Survey", "Bones: %1. The game poses %2, so bones that nothing "
                                                      "follows or nothing moves have to go."))
                         .arg(QString::number(m_bones.size()), QString::number(PosedBones));
        if (m_shared > 0)
            lines += said(QT_TRANSLATE_NOOP(
                              "Survey", "Vertices that follow several bones: %1 of %2. Each "
                                        "will follow the one with the greatest weight, unless extra bones "
                                        "are wanted."))
                         .arg(QString::number(m_shared), QString::number(m_skinned));
        note(qint64(m_scaledNodes.size()),
             QT_TRANSLATE_NOOP("Survey", "Bones or objects that change their size in animations: %1. In the "
                                         "game they keep it, unless extra bones are wanted."));
        note(m_morphs, QT_TRANSLATE_NOOP("Survey", "Objects with shapes to blend (morph targets): %1. They "
                                                   "keep the shape that they have at rest."));
        note(facts.stepClips,
             QT_TRANSLATE_NOOP("Survey", "Animations that jump from key to key: %1. They will glide."));
        note(m_points + m_lines, QT_TRANSLATE_NOOP("Survey", "Points and lines: %1. They are left out."));
        note(m_manyUvs, QT_TRANSLATE_NOOP("Survey", "Objects with more than one set of texture coordinates: "
                                                    "%1. The first one comes along."));
        note(m_colored, QT_TRANSLATE_NOOP("Survey", "Objects with colored vertices: %1. The colors are left "
                                                    "out."));
        note(m_moreTextures.size(), QT_TRANSLATE_NOOP("Survey", "Textures beside those of the color, such as "
                                                                "relief or shine: %1. They are left out."));
        return lines;
    }

    void walkNodes()
    {
        std::vector<std::pair<const aiNode *, aiMatrix4x4>> rest{{m_scene.mRootNode, aiMatrix4x4()}};
        while (!rest.empty()) {
            const auto [node, above] = rest.back();
            rest.pop_back();
            const aiMatrix4x4 transform = above * node->mTransformation;
            m_places.emplace(node->mName.C_Str(), transform);
            if (node->mNumMeshes > 0)
                m_shown.emplace_back(node, transform);
            for (unsigned i = 0; i < node->mNumChildren; ++i) {
                if (node->mChildren[i])
                    rest.emplace_back(node->mChildren[i], transform);
            }
        }
    }

    void countMesh(const aiMesh &mesh)
    {
        for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
            m_points += mesh.mFaces[i].mNumIndices == 1 ? 1 : 0;
            m_lines += mesh.mFaces[i].mNumIndices == 2 ? 1 : 0;
        }
        m_morphs += mesh.mNumAnimMeshes > 0 ? 1 : 0;
        m_manyUvs += mesh.GetNumUVChannels() > 1 ? 1 : 0;
        m_colored += mesh.GetNumColorChannels() > 0 ? 1 : 0;
        struct Followed
        {
            unsigned bones = 0;
            unsigned last = 0; ///< a file may name a bone twice for a vertex
        };
        std::vector<Followed> vertices(mesh.mNumBones > 0 ? mesh.mNumVertices : 0);
        for (unsigned b = 0; b < mesh.mNumBones; ++b) {
            const aiBone &bone = *mesh.mBones[b];
            m_bones.insert(text(bone.mName));
            for (unsigned w = 0; w < bone.mNumWeights; ++w) {
                const aiVertexWeight &weight = bone.mWeights[w];
                if (weight.mVertexId >= vertices.size() || !(weight.mWeight > Noticed))
                    continue;
                Followed &vertex = vertices[weight.mVertexId];
                if (vertex.bones == 0 || vertex.last != b)
                    vertex = {vertex.bones + 1, b};
            }
        }
        const auto follow = [&vertices](unsigned least) {
            return std::count_if(vertices.begin(), vertices.end(),
                                 [least](const Followed &vertex) { return vertex.bones >= least; });
        };
        m_skinned += follow(1);
        m_shared += follow(2);
    }

    void addClip(const aiAnimation &animation)
    {
        SceneSummary::Clip clip;
        clip.name = text(animation.mName);
        double first = std::numeric_limits<double>::max();
        double last = std::numeric_limits<double>::lowest();
        const auto spans = [&first, &last](const auto *keys, unsigned count) {
            if (count > 1 && keys) { // one stands for what does not move, at whatever time
                first = std::min(first, keys[0].mTime);
                last = std::max(last, keys[count - 1].mTime);
            }
        };
        for (unsigned i = 0; i < animation.mNumChannels; ++i) {
            const aiNodeAnim &channel = *animation.mChannels[i];
            spans(channel.mPositionKeys, channel.mNumPositionKeys);
            spans(channel.mRotationKeys, channel.mNumRotationKeys);
            spans(channel.mScalingKeys, channel.mNumScalingKeys);
            if (changesSize(channel))
                m_scaledNodes.insert(text(channel.mNodeName));
        }
        const double ticks = animation.mTicksPerSecond;
        clip.rate = std::isfinite(ticks) && ticks > 0.0 ? ticks : 0.0;
        const double seconds = (last - first) / (clip.rate > 0.0 ? clip.rate : UsualTicks);
        clip.seconds = last > first && std::isfinite(seconds) ? seconds : 0.0;
        m_clips.push_back(clip);
    }

    static bool changesSize(const aiNodeAnim &channel)
    {
        const auto differs = [&channel](const aiVectorKey &key) {
            const aiVector3D &first = channel.mScalingKeys[0].mValue;
            const float length = std::max(first.Length(), Noticed);
            return (key.mValue - first).Length() > Noticed * length;
        };
        return channel.mNumScalingKeys > 1 &&
               std::any_of(channel.mScalingKeys, channel.mScalingKeys + channel.mNumScalingKeys, differs);
    }

    void addTextures(const aiMaterial &material)
    {
        aiString stored;
        if (hasColorTexture(material, stored)) {
            const QString name = text(stored);
            if (!m_knownTextures.contains(name)) {
                m_knownTextures.insert(name);
                const aiTexture *embedded = m_scene.GetEmbeddedTexture(stored.C_Str());
                const QString inside = embedded ? text(embedded->mFilename) : QString();
                m_textures.push_back({inside.isEmpty() ? name : inside,
                                      embedded ? QString() : foundTexture(m_modelPath, name),
                                      embedded != nullptr});
            }
        }
        for (const aiTextureType type :
             {aiTextureType_SPECULAR, aiTextureType_AMBIENT, aiTextureType_EMISSIVE, aiTextureType_HEIGHT,
              aiTextureType_NORMALS, aiTextureType_SHININESS, aiTextureType_DISPLACEMENT,
              aiTextureType_LIGHTMAP, aiTextureType_REFLECTION, aiTextureType_METALNESS,
              aiTextureType_DIFFUSE_ROUGHNESS, aiTextureType_AMBIENT_OCCLUSION, aiTextureType_UNKNOWN}) {
            if (material.GetTexture(type, 0, &stored) == aiReturn_SUCCESS)
                m_moreTextures.insert(text(stored));
        }
    }

    /// Each vertex where the bone of its greatest weight has it, or its node.
    void addInstance(const aiMesh &mesh, const aiMatrix4x4 &transform, Extent &extent, SceneSummary &summary)
    {
        struct Bound
        {
            float weight = 0.0f;
            unsigned bone = 0;
        };
        std::vector<Bound> bounds(mesh.mNumBones > 0 ? mesh.mNumVertices : 0);
        std::vector<aiMatrix4x4> matrices;
        for (unsigned b = 0; b < mesh.mNumBones; ++b) {
            const aiBone &bone = *mesh.mBones[b];
            const auto place = m_places.find(bone.mName.C_Str());
            matrices.push_back((place == m_places.end() ? transform : place->second) * bone.mOffsetMatrix);
            for (unsigned w = 0; w < bone.mNumWeights; ++w) {
                const aiVertexWeight &weight = bone.mWeights[w];
                if (weight.mVertexId < bounds.size() && weight.mWeight > bounds[weight.mVertexId].weight)
                    bounds[weight.mVertexId] = {weight.mWeight, b};
            }
        }
        for (unsigned i = 0; i < mesh.mNumVertices && mesh.mVertices; ++i) {
            const bool isBound = !bounds.empty() && bounds[i].weight > 0.0f;
            extent.add((isBound ? matrices[bounds[i].bone] : transform) * mesh.mVertices[i]);
        }
        summary.vertices += qint32(mesh.mNumVertices);
        for (unsigned i = 0; i < mesh.mNumFaces; ++i)
            summary.triangles += mesh.mFaces[i].mNumIndices == 3 ? 1 : 0;
    }

    const QString &m_modelPath;
    const aiScene &m_scene;
    std::map<std::string, aiMatrix4x4> m_places; ///< of the nodes, from the root; of two of a name, one
    std::vector<std::pair<const aiNode *, aiMatrix4x4>> m_shown;
    QSet<QString> m_bones;
    QSet<QString> m_scaledNodes;
    QSet<QString> m_knownTextures;
    QSet<QString> m_moreTextures;
    std::vector<SceneSummary::Clip> m_clips;
    std::vector<SceneSummary::Texture> m_textures;
    qint64 m_points = 0;
    qint64 m_lines = 0;
    qint64 m_morphs = 0;
    qint64 m_manyUvs = 0;
    qint64 m_colored = 0;
    qint64 m_skinned = 0;
    qint64 m_shared = 0;
};
} // namespace

SceneSummary surveyScene(const QString &modelPath, ImportMessages &messages)
{
    QStringList textures;
    Assimp::Importer importer;
    const SceneSource source{modelPath, {}, textures, messages};
    const aiScene *scene = readScene(importer, "Survey", source, 0);
    if (!scene)
        return {};
    readGltfWeights(modelPath, *scene);
    scene = importer.ApplyPostProcessing(aiProcess_Triangulate | aiProcess_JoinIdenticalVertices);
    if (!scene) {
        messages.addError(QCoreApplication::translate("Import", "%1 Could not read file. %2")
                              .arg(modelPath, QString::fromUtf8(importer.GetErrorString())));
        return {};
    }
    SceneSummary summary = Survey(modelPath, *scene).summary(gltfFacts(modelPath));
    if (summary.triangles == 0)
        messages.addError(
            QCoreApplication::translate("Import", "%1 does not contain any triangles").arg(modelPath));
    return summary;
}
