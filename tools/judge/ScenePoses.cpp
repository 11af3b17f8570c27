// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ScenePoses.h"

#include <assimp/Importer.hpp>
#include <assimp/scene.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace {
using Matrix = aiMatrix4x4t<double>;
using Turn = aiQuaterniont<double>;
using Place = aiVector3t<double>;

constexpr double TicksWithoutWord = 25.0; // a second, where a file does not say

Place toDouble(const aiVector3D &v)
{
    return {v.x, v.y, v.z};
}

Turn toDouble(const aiQuaternion &q)
{
    return {q.w, q.x, q.y, q.z};
}

Matrix toDouble(const aiMatrix4x4 &m)
{
    return {m.a1, m.a2, m.a3, m.a4, m.b1, m.b2, m.b3, m.b4, m.c1, m.c2, m.c3, m.c4, m.d1, m.d2, m.d3, m.d4};
}

Place between(const Place &from, const Place &to, double t)
{
    return from + (to - from) * t;
}

Turn between(const Turn &from, Turn to, double t)
{
    double cosine = from.w * to.w + from.x * to.x + from.y * to.y + from.z * to.z;
    if (cosine < 0.0) {
        to = {-to.w, -to.x, -to.y, -to.z};
        cosine = -cosine;
    }
    double a = 1.0 - t;
    double b = t;
    if (cosine < 1.0 - 1e-9) {
        const double angle = std::acos(cosine);
        a = std::sin(a * angle) / std::sin(angle);
        b = std::sin(b * angle) / std::sin(angle);
    }
    Turn turn(a * from.w + b * to.w, a * from.x + b * to.x, a * from.y + b * to.y, a * from.z + b * to.z);
    return turn.Normalize();
}

/// The value of sorted keys at `time`: the first before them, the last behind.
template <typename Value, typename Key>
Value valueAt(const Key *keys, unsigned count, double time)
{
    const Key *next =
        std::upper_bound(keys, keys + count, time, [](double t, const Key &key) { return t < key.mTime; });
    if (next == keys)
        return toDouble(keys->mValue);
    const Key &before = *(next - 1);
    if (next == keys + count || next->mTime <= before.mTime)
        return toDouble(before.mValue);
    return between(toDouble(before.mValue), toDouble(next->mValue),
                   (time - before.mTime) / (next->mTime - before.mTime));
}

Matrix moved(const aiMatrix3x3t<double> &turn, const Place &place)
{
    Matrix m(turn);
    m.a4 = place.x;
    m.b4 = place.y;
    m.c4 = place.z;
    return m;
}

/// Scales, then turns; the library's own constructor does it the other way round.
Matrix composed(const Place &scale, const Turn &turn, const Place &place)
{
    aiMatrix3x3t<double> m = turn.GetMatrix();
    for (unsigned row = 0; row < 3; ++row) {
        for (unsigned axis = 0; axis < 3; ++axis)
            m[row][axis] *= scale[axis];
    }
    return moved(m, place);
}

/// The place and the turn of a matrix, mirrored if it is: the orthogonal matrix that is nearest to its own.
/// What is flat has no turn.
Matrix stiff(const Matrix &m)
{
    aiMatrix3x3t<double> turn(m);
    for (int step = 0; step < 60 && std::abs(turn.Determinant()) > 1e-18; ++step) {
        aiMatrix3x3t<double> other(turn);
        other.Inverse().Transpose();
        for (unsigned row = 0; row < 3; ++row) {
            for (unsigned column = 0; column < 3; ++column)
                turn[row][column] = (turn[row][column] + other[row][column]) / 2.0;
        }
    }
    return moved(turn, {m.a4, m.b4, m.c4});
}

class PosedScene
{
public:
    PosedScene(const aiScene &scene, SceneVertices vertices)
        : m_scene(scene)
        , m_joints(vertices == SceneVertices::Joints)
        , m_single(vertices == SceneVertices::OneBone)
    {
        collect(*scene.mRootNode, -1);
    }

    PosesFile describe(const std::vector<PosesClip> &plan)
    {
        PosesFile file;
        pose(nullptr, 0.0);
        file.rest = places();
        for (const Node &each : m_nodes) {
            if (m_joints)
                file.parts.push_back(
                    {QString::fromUtf8(each.node->mName.C_Str()), int(file.parts.size()), 1});
        }
        if (m_joints) {
            file.uvs.resize(m_nodes.size());
            file.normals.resize(m_nodes.size());
            file.solid.assign(m_nodes.size(), 1);
        }
        for (const Instance &each : m_instances) {
            const aiMesh &mesh = *each.mesh;
            file.parts.push_back({QString::fromUtf8(m_nodes[each.node].node->mName.C_Str()),
                                  int(file.uvs.size()), int(mesh.mNumVertices)});
            addTriangles(mesh, int(file.uvs.size()), file);
            for (unsigned v = 0; v < mesh.mNumVertices; ++v) {
                file.solid.push_back(each.influences.empty() || each.influences[v].size() < 2 ? 1 : 0);
                const aiVector3D uv = mesh.HasTextureCoords(0) ? mesh.mTextureCoords[0][v] : aiVector3D();
                file.uvs.emplace_back(uv.x, uv.y);
                const Place normal = mesh.HasNormals() ? toDouble(mesh.mNormals[v]) : Place();
                file.normals.push_back(upright((normalMatrix(each, v) * normal).NormalizeSafe()));
            }
        }
        for (unsigned i = 0; i < m_scene.mNumAnimations; ++i) {
            const aiAnimation &animation = *m_scene.mAnimations[i];
            PosesClip clip;
            clip.name = QString::fromUtf8(animation.mName.C_Str());
            const auto [first, last] = span(animation);
            if (i < plan.size())
                clip = {clip.name, plan[i].rate, plan[i].frames};
            else
                clip.frames = int(std::round((last - first) / ticks(animation) * clip.rate)) + 1;
            file.clips.push_back(clip);
        }
        return file;
    }

    Places poseAt(const PosesClip &clip, int number, int frame)
    {
        const aiAnimation &animation = *m_scene.mAnimations[number];
        const auto [first, last] = span(animation);
        pose(&animation, std::min(last, first + frame / clip.rate * ticks(animation)));
        return places();
    }

private:
    struct Node
    {
        const aiNode *node;
        int parent;
    };
    struct Influence
    {
        size_t node;
        double weight;
        size_t offset;
    };
    struct Instance
    {
        const aiMesh *mesh;
        size_t node;
        std::vector<std::vector<Influence>> influences; ///< by vertex; empty without a skin
    };

    static double ticks(const aiAnimation &animation)
    {
        return animation.mTicksPerSecond > 0.0 ? animation.mTicksPerSecond : TicksWithoutWord;
    }

    static std::pair<double, double> span(const aiAnimation &animation)
    {
        double first = HUGE_VAL;
        double last = -HUGE_VAL;
        const auto see = [&](const auto *keys, unsigned count) {
            if (count > 0) {
                first = std::min(first, keys[0].mTime);
                last = std::max(last, keys[count - 1].mTime);
            }
        };
        for (unsigned c = 0; c < animation.mNumChannels; ++c) {
            const aiNodeAnim &channel = *animation.mChannels[c];
            see(channel.mPositionKeys, channel.mNumPositionKeys);
            see(channel.mRotationKeys, channel.mNumRotationKeys);
            see(channel.mScalingKeys, channel.mNumScalingKeys);
        }
        return first <= last ? std::pair{first, last} : std::pair{0.0, 0.0};
    }

    /// The game's z is up, the library's y.
    static QVector3D upright(const Place &p) { return {float(p.x), float(-p.z), float(p.y)}; }

    static void addTriangles(const aiMesh &mesh, int first, PosesFile &file)
    {
        for (unsigned f = 0; f < mesh.mNumFaces; ++f) {
            const aiFace &face = mesh.mFaces[f];
            for (unsigned c = 2; c < face.mNumIndices; ++c) {
                file.triangles.push_back({first + int(face.mIndices[0]), first + int(face.mIndices[c - 1]),
                                          first + int(face.mIndices[c])});
            }
        }
    }

    void collect(const aiNode &node, int parent)
    {
        const auto index = int(m_nodes.size());
        m_nodes.push_back({&node, parent});
        // Of two nodes of one name the one without a mesh is meant.
        const auto [named, isNew] = m_named.emplace(node.mName.C_Str(), size_t(index));
        if (!isNew && node.mNumMeshes == 0 && m_nodes[named->second].node->mNumMeshes > 0)
            named->second = size_t(index);
        for (unsigned m = 0; m < node.mNumMeshes; ++m)
            m_instances.push_back({m_scene.mMeshes[node.mMeshes[m]], size_t(index), {}});
        for (unsigned c = 0; c < node.mNumChildren; ++c)
            collect(*node.mChildren[c], index);
        if (parent < 0)
            followOwnParents();
        if (parent < 0 && m_joints)
            m_instances.clear();
        if (parent < 0) {
            for (Instance &instance : m_instances)
                bind(instance);
        }
    }

    /// The reader of Half-Life models lists all bones below one node, but has them name their parents.
    void followOwnParents()
    {
        std::map<const aiNode *, int> numbers;
        for (size_t n = 0; n < m_nodes.size(); ++n) {
            const auto named = numbers.find(m_nodes[n].node->mParent);
            if (named != numbers.end())
                m_nodes[n].parent = named->second;
            numbers.emplace(m_nodes[n].node, int(n));
        }
    }

    void bind(Instance &instance)
    {
        const aiMesh &mesh = *instance.mesh;
        if (!mesh.HasBones())
            return;
        instance.influences.resize(mesh.mNumVertices);
        for (unsigned b = 0; b < mesh.mNumBones; ++b) {
            const aiBone &bone = *mesh.mBones[b];
            const auto named = m_named.find(bone.mName.C_Str());
            if (named == m_named.end())
                continue;
            m_offsets.push_back(toDouble(bone.mOffsetMatrix));
            for (unsigned w = 0; w < bone.mNumWeights; ++w) {
                const aiVertexWeight &weight = bone.mWeights[w];
                if (weight.mVertexId < mesh.mNumVertices && weight.mWeight > 0.0f)
                    instance.influences[weight.mVertexId].push_back(
                        {named->second, weight.mWeight, m_offsets.size() - 1});
            }
        }
    }

    void pose(const aiAnimation *animation, double time)
    {
        std::vector<Matrix> locals(m_nodes.size());
        for (size_t n = 0; n < m_nodes.size(); ++n)
            locals[n] = toDouble(m_nodes[n].node->mTransformation);
        for (unsigned c = 0; animation && c < animation->mNumChannels; ++c) {
            const aiNodeAnim &channel = *animation->mChannels[c];
            const auto named = m_named.find(channel.mNodeName.C_Str());
            if (named == m_named.end())
                continue;
            Place scale;
            Turn turn;
            Place place;
            locals[named->second].Decompose(scale, turn, place);
            if (channel.mNumPositionKeys > 0)
                place = valueAt<Place>(channel.mPositionKeys, channel.mNumPositionKeys, time);
            if (channel.mNumRotationKeys > 0)
                turn = valueAt<Turn>(channel.mRotationKeys, channel.mNumRotationKeys, time);
            if (channel.mNumScalingKeys > 0)
                scale = valueAt<Place>(channel.mScalingKeys, channel.mNumScalingKeys, time);
            locals[named->second] = composed(scale, turn, place);
        }
        m_worlds.resize(m_nodes.size());
        for (size_t n = 0; n < m_nodes.size(); ++n)
            m_worlds[n] = m_nodes[n].parent < 0 ? locals[n] : m_worlds[size_t(m_nodes[n].parent)] * locals[n];
        if (!animation)
            m_rest = m_worlds;
        for (size_t n = 0; animation && m_single && n < m_nodes.size(); ++n)
            m_worlds[n] = stiff(m_worlds[n]) * stiff(m_rest[n]).Inverse() * m_rest[n];
    }

    /// Of two that weigh the same the one further down the hierarchy is.
    static bool isWeaker(const Influence &a, const Influence &b)
    {
        return a.weight != b.weight ? a.weight < b.weight : a.node > b.node;
    }

    /// The node that moves the vertex most.
    static size_t strongest(const Instance &instance, unsigned v)
    {
        if (instance.influences.empty() || instance.influences[v].empty())
            return instance.node;
        const std::vector<Influence> &all = instance.influences[v];
        return std::max_element(all.begin(), all.end(), isWeaker)->node;
    }

    Place blended(const Instance &instance, unsigned v, const std::vector<Matrix> &worlds) const
    {
        const Place at = toDouble(instance.mesh->mVertices[v]);
        Place sum;
        double weights = 0.0;
        if (!instance.influences.empty()) {
            for (const Influence &each : instance.influences[v]) {
                sum += worlds[each.node] * (m_offsets[each.offset] * at) * each.weight;
                weights += each.weight;
            }
        }
        return weights > 0.0 ? sum / weights : worlds[instance.node] * at;
    }

    aiMatrix3x3t<double> normalMatrix(const Instance &instance, unsigned v) const
    {
        Matrix place = m_worlds[instance.node];
        if (!instance.influences.empty() && !instance.influences[v].empty()) {
            const std::vector<Influence> &all = instance.influences[v];
            const Influence &most = *std::max_element(all.begin(), all.end(), isWeaker);
            place = m_worlds[most.node] * m_offsets[most.offset];
        }
        return aiMatrix3x3t<double>(place.Inverse().Transpose());
    }

    Places places() const
    {
        Places found;
        for (size_t n = 0; m_joints && n < m_nodes.size(); ++n)
            found.push_back(upright(m_worlds[n] * Place()));
        for (const Instance &instance : m_instances) {
            for (unsigned v = 0; v < instance.mesh->mNumVertices; ++v) {
                if (!m_single) {
                    found.push_back(upright(blended(instance, v, m_worlds)));
                    continue;
                }
                const size_t node = strongest(instance, v);
                const Matrix move = m_worlds[node] * Matrix(m_rest[node]).Inverse();
                found.push_back(upright(move * blended(instance, v, m_rest)));
            }
        }
        return found;
    }

    const aiScene &m_scene;
    bool m_joints;             ///< of every node its origin, instead of meshes
    bool m_single;             ///< the strongest bone moves a vertex alone, and no bone stretches
    std::vector<Node> m_nodes; ///< parents first
    std::map<std::string, size_t> m_named;
    std::vector<Instance> m_instances;
    std::vector<Matrix> m_offsets;
    std::vector<Matrix> m_worlds;
    std::vector<Matrix> m_rest; ///< of them without a clip
};
} // namespace

QString writeScenePoses(const QString &source, const QString &target, const std::vector<PosesClip> &plan,
                        SceneVertices vertices)
{
    Assimp::Importer importer;
    const aiScene *scene = importer.ReadFile(source.toUtf8().constData(), 0);
    if (!scene || !scene->mRootNode)
        return QString::fromUtf8(importer.GetErrorString());
    PosedScene posed(*scene, vertices);
    const PosesFile file = posed.describe(plan);
    return file.write(
        target, [&](int clip, int frame) { return posed.poseAt(file.clips[size_t(clip)], clip, frame); });
}
