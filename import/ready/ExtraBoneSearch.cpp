// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ExtraBoneSearch.h"

#include "Transform.h"

#include <algorithm>

namespace {
/// Of the model's size: how far off vertices may be.
constexpr double Tolerance = 0.01;
/// Vertices times frames: where all are looked at, and those that are off. Of more frames only some are, and
/// where these were too few, of the vertices.
constexpr qint64 SeenLimit = 40'000'000;
constexpr qint64 SearchedLimit = 1'000'000;
constexpr qint64 LeastFrames = 100;
/// Of fitting bones to their vertices and finding vertices their bones in turn.
constexpr int Rounds = 2;
constexpr double Progress = 0.9; // of the error before, what counts as better

class ExtraBoneSearch
{
public:
    ExtraBoneSearch(const SceneParts &parts, const ReadyClips &clips, const ReadySkeleton &skeleton);

    bool isSound() const { return m_size > 0.0 && std::isfinite(m_size); }
    /// The greatest distance of any vertex from its place, in parts of the size.
    double greatestError() const;
    void measure();
    void search();
    std::unique_ptr<ExtraBones> bones() const;

private:
    /// A vertex that is off.
    struct Point
    {
        quint32 vertex;
        int bone;     ///< of the source
        double error; ///< the greatest of all frames with that bone, or with the group that has it
    };
    /// Points that shall be one bone.
    struct Group
    {
        int bone;
        std::vector<size_t> points;
        Vector3 restMiddle;
        // By frame, from the rest pose on.
        std::vector<Matrix3> turns;
        std::vector<Vector3> middles;

        Vector3 placeOf(const Vector3 &rest, size_t frame) const
        {
            return turns[frame] * (rest - restMiddle) + middles[frame];
        }
    };

    void collect();
    template <typename Look>
    void eachTakenFrame(Look look) const;
    void follow();
    void fit(Group &group) const;
    double error(const Group &group, size_t point, double limit) const;
    Group grown(size_t seed) const;
    void assign(int bone);
    void assignOthers();

    const SceneParts &m_parts;
    const ReadyClips &m_clips;
    const ReadySkeleton &m_skeleton;
    std::vector<bool> m_nodes; ///< all
    std::shared_ptr<const BlendedVertices> m_vertices;
    std::vector<Matrix4> m_restWorld;
    SkeletonPose m_rest;
    std::vector<Vector3> m_places; ///< of all vertices, at rest
    double m_size = 0.0;
    std::vector<double> m_errors;      ///< by vertex, the greatest of all frames
    std::vector<double> m_frameErrors; ///< by frame looked at
    int m_step;                        ///< from frame to frame looked at

    std::vector<Point> m_points; ///< those that are searched with, then the others
    size_t m_searched = 0;
    std::vector<Group> m_groups;
    std::vector<std::vector<size_t>> m_pointsOf; ///< by bone
    std::vector<std::vector<size_t>> m_groupsOf; ///< by bone
    std::vector<bool> m_isTaken;                 ///< by frame looked at
    size_t m_frames = 0;                         ///< that are taken
    std::vector<Vector3> m_tracks;               ///< by point that is searched with, then frame taken
    std::vector<Matrix3> m_changes;              ///< the same
};

ExtraBoneSearch::ExtraBoneSearch(const SceneParts &parts, const ReadyClips &clips,
                                 const ReadySkeleton &skeleton)
    : m_parts(parts)
    , m_clips(clips)
    , m_skeleton(skeleton)
    , m_vertices(std::make_shared<BlendedVertices>(parts))
    , m_restWorld(clips.restWorld())
    , m_pointsOf(size_t(skeleton.count()))
    , m_groupsOf(size_t(skeleton.count()))
{
    m_nodes.assign(m_restWorld.size(), true);
    skeleton.pose(m_restWorld, m_rest);
    const BlendedVertices::Movers movers = m_vertices->movers(m_restWorld);
    std::optional<Box> box;
    for (quint32 v = 0; v < m_vertices->count(); ++v) {
        m_places.push_back(m_vertices->place(movers, v));
        widen(box, single(m_places.back()));
    }
    if (box)
        m_size = double((box->max - box->min).length());
    m_step = int(qint64(m_vertices->count()) * clips.frames() / SeenLimit) + 1;
}

double ExtraBoneSearch::greatestError() const
{
    return m_errors.empty() ? 0.0 : *std::max_element(m_errors.begin(), m_errors.end()) / m_size;
}

/// Finds how far off vertices are from their places in the source, the extra bones counted in if there are
/// any.
void ExtraBoneSearch::measure()
{
    SkeletonPose rest;
    m_skeleton.pose(m_restWorld, rest);
    struct Rider
    {
        size_t bone;
        Vector3 inBone;
    };
    std::vector<Rider> riders;
    for (const SceneParts::Part &part : m_parts.parts()) {
        for (unsigned v = 0; v < part.mesh->mNumVertices; ++v) {
            const auto bone = size_t(m_skeleton.boneOf(part, v));
            riders.push_back({bone, rest.world[bone].unmap(m_places[part.first + v])});
        }
    }
    m_errors.assign(riders.size(), 0.0);
    m_frameErrors.clear();
    m_clips.eachPose(
        m_skeleton, m_nodes, m_step, [&](const std::vector<Matrix4> &world, const SkeletonPose &pose) {
            const BlendedVertices::Movers movers = m_vertices->movers(world);
            std::vector<Matrix4> bones;
            for (const RigidFrame &frame : pose.world)
                bones.push_back(composed(Vector3(1.0), frame.turn, frame.origin));
            double most = 0.0;
            for (quint32 v = 0; v < m_errors.size(); ++v) {
                const Vector3 apart = bones[riders[v].bone] * riders[v].inBone - m_vertices->place(movers, v);
                const double off = apart.SquareLength();
                if (!std::isfinite(off))
                    continue;
                most = std::max(most, off);
                m_errors[v] = std::max(m_errors[v], off);
            }
            m_frameErrors.push_back(most);
        });
    for (double &error : m_errors)
        error = std::sqrt(error);
}

/// Finds the points, and the frames that shall tell of them.
void ExtraBoneSearch::collect()
{
    for (const SceneParts::Part &part : m_parts.parts()) {
        for (unsigned v = 0; v < part.mesh->mNumVertices; ++v) {
            const quint32 number = part.first + v;
            if (!(m_errors[number] > m_size * Tolerance))
                continue;
            m_points.push_back({number, m_skeleton.boneOf(part, v), m_errors[number]});
        }
    }
    if (m_points.empty())
        return;
    const qint64 every = qint64(m_points.size()) * LeastFrames / SearchedLimit + 1;
    qint64 count = 0;
    const auto others = std::stable_partition(m_points.begin(), m_points.end(),
                                              [&](const Point &) { return count++ % every == 0; });
    m_searched = size_t(others - m_points.begin());
    for (size_t p = 0; p < m_searched; ++p)
        m_pointsOf[size_t(m_points[p].bone)].push_back(p);
    // Of each so many frames the one where most is off.
    const size_t all = m_frameErrors.size();
    const size_t wanted = size_t(std::max(SearchedLimit / qint64(m_searched), LeastFrames));
    const size_t run = (all + wanted - 1) / wanted;
    m_isTaken.assign(all, false);
    for (size_t first = 0; first < all; first += run) {
        const auto begin = m_frameErrors.begin() + qptrdiff(first);
        const auto end = m_frameErrors.begin() + qptrdiff(std::min(first + run, all));
        m_isTaken[size_t(std::max_element(begin, end) - m_frameErrors.begin())] = true;
        ++m_frames;
    }
    follow();
}

/// Calls look(number of the frame, movers) for the frames that tell.
template <typename Look>
void ExtraBoneSearch::eachTakenFrame(Look look) const
{
    size_t seen = 0;
    size_t frame = 0;
    m_clips.eachPose(m_skeleton, m_nodes, m_step,
                     [&](const std::vector<Matrix4> &world, const SkeletonPose &) {
                         if (m_isTaken[seen++])
                             look(frame++, m_vertices->movers(world));
                     });
}

/// Keeps where the source has the points that are searched with, and what becomes of their surroundings.
void ExtraBoneSearch::follow()
{
    m_tracks.resize(m_searched * m_frames);
    m_changes.resize(m_tracks.size());
    const BlendedVertices::Movers rest = m_vertices->movers(m_restWorld);
    std::vector<Matrix3> toRest;
    for (size_t p = 0; p < m_searched; ++p)
        toRest.push_back(m_vertices->toRest(rest, m_points[p].vertex));
    eachTakenFrame([&](size_t frame, const BlendedVertices::Movers &movers) {
        for (size_t p = 0; p < m_searched; ++p) {
            const quint32 vertex = m_points[p].vertex;
            m_tracks[p * m_frames + frame] = m_vertices->place(movers, vertex);
            m_changes[p * m_frames + frame] = m_vertices->surroundings(movers, vertex) * toRest[p];
        }
    });
}

void ExtraBoneSearch::fit(Group &group) const
{
    const std::vector<size_t> points = TurnFit::some(group.points);
    const double share = 1.0 / double(points.size());
    group.restMiddle = {};
    for (const size_t p : points)
        group.restMiddle += m_places[m_points[p].vertex] * share;
    group.turns.resize(m_frames);
    group.middles.assign(m_frames, {});
    for (size_t f = 0; f < m_frames; ++f) {
        TurnFit fit;
        for (const size_t p : points) {
            const Vector3 &place = m_tracks[p * m_frames + f];
            group.middles[f] += place * share;
            fit.addPoint(m_places[m_points[p].vertex] - group.restMiddle, place);
            fit.addSurroundings(m_changes[p * m_frames + f], m_size);
        }
        if (const std::optional<Turn> turn = fit.turn())
            group.turns[f] = turn->GetMatrix();
    }
}

/// The greatest distance of a point from its place if it went with the group; more than `limit` as soon as
/// that is sure.
double ExtraBoneSearch::error(const Group &group, size_t point, double limit) const
{
    const Vector3 &rest = m_places[m_points[point].vertex];
    double most = 0.0;
    limit *= limit;
    for (size_t f = 0; f < m_frames && most <= limit; ++f)
        most = std::max(most, (group.placeOf(rest, f) - m_tracks[point * m_frames + f]).SquareLength());
    return std::sqrt(most);
}

/// A group of those points of the bone that would be nearer to their places with the seed than they are.
ExtraBoneSearch::Group ExtraBoneSearch::grown(size_t seed) const
{
    Group group{m_points[seed].bone, {seed}, {}, {}, {}};
    fit(group);
    for (int round = 0; round < Rounds; ++round) {
        std::vector<size_t> near;
        for (const size_t p : m_pointsOf[size_t(group.bone)]) {
            if (error(group, p, m_points[p].error) < m_points[p].error)
                near.push_back(p);
        }
        if (near.empty() || near == group.points)
            break;
        group.points = near;
        fit(group);
    }
    return group;
}

/// Has every point of the bone go with the group, or the bone itself, that it is nearest to.
void ExtraBoneSearch::assign(int bone)
{
    const std::vector<size_t> &numbers = m_groupsOf[size_t(bone)];
    for (const size_t g : numbers)
        m_groups[g].points.clear();
    for (const size_t p : m_pointsOf[size_t(bone)]) {
        Point &point = m_points[p];
        point.error = m_errors[point.vertex];
        Group *nearest = nullptr;
        for (const size_t g : numbers) {
            const double off = error(m_groups[g], p, point.error);
            if (off < point.error) {
                point.error = off;
                nearest = &m_groups[g];
            }
        }
        if (nearest)
            nearest->points.push_back(p);
    }
}

void ExtraBoneSearch::search()
{
    collect();
    const auto others = m_points.begin() + qptrdiff(m_searched);
    const auto isNearer = [](const Point &a, const Point &b) { return a.error < b.error; };
    while (m_searched > 0 && m_skeleton.count() + int(m_groups.size()) < ReadySkeleton::BoneLimit) {
        const auto worst = std::max_element(m_points.begin(), others, isNearer);
        if (worst->error <= m_size * Tolerance)
            break;
        const auto seed = size_t(worst - m_points.begin());
        const int bone = worst->bone;
        const double before = worst->error;
        m_groupsOf[size_t(bone)].push_back(m_groups.size());
        m_groups.push_back(grown(seed));
        for (int round = 0; round < Rounds; ++round) {
            assign(bone);
            for (const size_t g : m_groupsOf[size_t(bone)]) {
                if (!m_groups[g].points.empty())
                    fit(m_groups[g]);
            }
        }
        assign(bone);
        if (m_points[seed].error > before * Progress) {
            // What is nearest to many may do nothing for the one: a bone that has it in its place does.
            m_groups.back().points = {seed};
            fit(m_groups.back());
            assign(bone);
        }
    }
    assignOthers();
}

/// Does the same for the points that were not searched with.
void ExtraBoneSearch::assignOthers()
{
    std::vector<std::vector<double>> errors; // of each by group of its bone
    for (size_t p = m_searched; p < m_points.size(); ++p)
        errors.emplace_back(m_groupsOf[size_t(m_points[p].bone)].size());
    if (errors.empty())
        return;
    eachTakenFrame([&](size_t frame, const BlendedVertices::Movers &movers) {
        for (size_t o = 0; o < errors.size(); ++o) {
            const Point &point = m_points[m_searched + o];
            const Vector3 place = m_vertices->place(movers, point.vertex);
            for (size_t i = 0; i < errors[o].size(); ++i) {
                const Group &group = m_groups[m_groupsOf[size_t(point.bone)][i]];
                const Vector3 apart = group.placeOf(m_places[point.vertex], frame) - place;
                errors[o][i] = std::max(errors[o][i], apart.SquareLength());
            }
        }
    });
    for (size_t o = 0; o < errors.size(); ++o) {
        const Point &point = m_points[m_searched + o];
        const auto least = std::min_element(errors[o].begin(), errors[o].end());
        if (least != errors[o].end() && std::sqrt(*least) < point.error)
            m_groups[m_groupsOf[size_t(point.bone)][size_t(least - errors[o].begin())]].points.push_back(
                m_searched + o);
    }
}

std::unique_ptr<ExtraBones> ExtraBoneSearch::bones() const
{
    std::vector<ExtraBones::Group> found;
    for (const Group &group : m_groups) {
        if (group.points.empty())
            continue;
        ExtraBones::Group &added = found.emplace_back(ExtraBones::Group{group.bone, {}});
        for (const size_t p : group.points)
            added.vertices.push_back(m_points[p].vertex);
    }
    return std::make_unique<ExtraBones>(m_vertices, m_restWorld, m_rest, m_size, found);
}
} // namespace

std::optional<ExtraBoneAccount> addExtraBones(const SceneParts &parts, const ReadyClips &clips,
                                              ReadySkeleton &skeleton)
{
    ExtraBoneAccount account;
    ExtraBoneSearch search(parts, clips, skeleton);
    if (skeleton.count() == 0 || clips.isEmpty() || !search.isSound())
        return std::nullopt;
    search.measure();
    account.without = account.with = search.greatestError();
    search.search();
    skeleton.setExtras(search.bones());
    account.bones = skeleton.count() - skeleton.sourceCount();
    if (account.bones > 0) {
        search.measure();
        account.with = search.greatestError();
    }
    if (account.with > account.without) {
        // Between the frames that were looked at something went another way.
        skeleton.setExtras(nullptr);
        account.bones = 0;
        account.with = account.without;
    }
    account.isWithin = account.with <= Tolerance;
    account.isFull = !account.isWithin && skeleton.count() == ReadySkeleton::BoneLimit;
    return account;
}
