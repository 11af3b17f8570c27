// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelComparison.h"

#include "RecordPair.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {
using State = RecordDifference::State;

/// Longer lists are counted instead of quoted.
constexpr size_t MostWritten = 12;

template <typename Record>
constexpr RecordKind kindOfRecord = RecordKind::None;
template <>
constexpr RecordKind kindOfRecord<SkinnedMesh> = RecordKind::SkinnedMesh;
template <>
constexpr RecordKind kindOfRecord<SkinnedMeshNode> = RecordKind::Bone;
template <>
constexpr RecordKind kindOfRecord<SkinnedMeshHotPoint> = RecordKind::HotPoint;
template <>
constexpr RecordKind kindOfRecord<SkinnedMeshSurface> = RecordKind::SkinnedSurface;
template <>
constexpr RecordKind kindOfRecord<SkinnedMeshVertex> = RecordKind::SkinnedVertex;
template <>
constexpr RecordKind kindOfRecord<AnimFile> = RecordKind::AnimFile;
template <>
constexpr RecordKind kindOfRecord<AnimBlock> = RecordKind::AnimBlock;
template <>
constexpr RecordKind kindOfRecord<AnimNode> = RecordKind::AnimBone;
template <>
constexpr RecordKind kindOfRecord<QVector3D> = RecordKind::TranslationTrack;
template <>
constexpr RecordKind kindOfRecord<QVector4D> = RecordKind::RotationTrack;
template <>
constexpr RecordKind kindOfRecord<AnimAction> = RecordKind::AnimAction;
template <>
constexpr RecordKind kindOfRecord<StaticMesh> = RecordKind::StaticMesh;
template <>
constexpr RecordKind kindOfRecord<StaticMeshSurface> = RecordKind::StaticSurface;
template <>
constexpr RecordKind kindOfRecord<StaticMeshVertex> = RecordKind::StaticVertex;

/// Records that others name by their number: to take one out or in would have them name another one.
template <typename Record>
constexpr bool isPointedAt =
    std::is_same_v<Record, SkinnedMeshNode> || std::is_same_v<Record, AnimNode> ||
    std::is_same_v<Record, SkinnedMeshVertex> || std::is_same_v<Record, StaticMeshVertex>;

template <typename Value>
bool sameBits(const Value &a, const Value &b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Degrees between two rotations, or the distance of two places.
double distanceOf(const QVector4D &a, const QVector4D &b)
{
    double product = 0.0;
    double squares[2] = {0.0, 0.0};
    for (int i = 0; i < 4; ++i) {
        product += double(a[i]) * double(b[i]);
        squares[0] += double(a[i]) * double(a[i]);
        squares[1] += double(b[i]) * double(b[i]);
    }
    const double cosine = std::abs(product) / std::sqrt(squares[0] * squares[1]);
    return 2.0 * std::acos(std::min(cosine, 1.0)) * 180.0 / 3.14159265358979323846;
}
double distanceOf(const QVector3D &a, const QVector3D &b)
{
    return std::hypot(double(a.x()) - double(b.x()), double(a.y()) - double(b.y()),
                      double(a.z()) - double(b.z()));
}

class Comparison
{
public:
    explicit Comparison(size_t mostTold)
        : m_mostTold(mostTold)
    {}

    /// What differs between two records, which stand at these indexes.
    template <typename Record>
    RecordDifference ofRecords(const Record &mine, const Record &theirs, const RecordIndex &mineIndex,
                               const RecordIndex &theirIndex)
    {
        RecordDifference difference;
        difference.mine = {kindOfRecord<Record>, mineIndex};
        difference.theirs = {kindOfRecord<Record>, theirIndex};
        visitBoth(mine, theirs, [&](const JsonField &field, const auto &a, const auto &b) {
            compare(field, a, b, difference);
        });
        return difference;
    }

private:
    static void tell(RecordDifference &difference, const JsonField &field, const QString &mine,
                     const QString &theirs, bool isBound = false)
    {
        difference.fields.push_back({QLatin1String(field.key), mine, theirs, isBound});
    }

    template <typename Value>
    void compare(const JsonField &field, const Value &a, const Value &b, RecordDifference &difference)
    {
        if constexpr (std::is_trivially_copyable_v<Value>) {
            if (sameBits(a, b))
                return;
        } else if (a == b) {
            return;
        }
        if (m_isTelling)
            tell(difference, field, QString::fromUtf8(JsonWriter::textOf(a)),
                 QString::fromUtf8(JsonWriter::textOf(b)));
        else
            difference.fields.resize(1);
    }

    /// Lists of numbers, each as `numberOf` has it.
    template <typename Value, typename Quote>
    void compareNumbers(const JsonField &field, const std::vector<Value> &a, const std::vector<Value> &b,
                        bool isBound, RecordDifference &difference, const Quote &quote)
    {
        size_t others = a.size() > b.size() ? a.size() - b.size() : b.size() - a.size();
        for (size_t i = 0; i < std::min(a.size(), b.size()); ++i)
            others += !sameBits(a[i], b[i]);
        if (others == 0)
            return;
        if (!m_isTelling)
            return difference.fields.resize(1);
        if (a.size() <= MostWritten && b.size() <= MostWritten)
            return tell(difference, field, quote(a), quote(b), isBound);
        constexpr bool areFrames = std::is_same_v<Value, AnimFrame>;
        const auto counted = [](size_t count) {
            return (areFrames ? QCoreApplication::translate("ModelComparison", "%1 frames")
                              : QCoreApplication::translate("ModelComparison", "%1 numbers"))
                .arg(count);
        };
        const auto differing = [others](size_t count) {
            return (areFrames ? QCoreApplication::translate("ModelComparison", "%1 of %2 frames differ")
                              : QCoreApplication::translate("ModelComparison", "%1 of %2 numbers differ"))
                .arg(QString::number(others), QString::number(count));
        };
        tell(difference, field, counted(a.size()),
             a.size() == b.size() ? differing(b.size()) : counted(b.size()), isBound);
    }
    void compare(const JsonField &field, const std::vector<quint16> &a, const std::vector<quint16> &b,
                 RecordDifference &difference)
    {
        compareNumbers(field, a, b, false, difference, [](const std::vector<quint16> &list) {
            return QString::fromLatin1(JsonWriter::textOf(list));
        });
    }
    void compare(const JsonField &field, const std::vector<AnimFrame> &a, const std::vector<AnimFrame> &b,
                 RecordDifference &difference)
    {
        compareNumbers(field, a, b, a.size() != b.size(), difference, [](const std::vector<AnimFrame> &list) {
            return QString::fromLatin1(JsonWriter::textOf(list));
        });
    }

    template <typename Key>
    void compare(const JsonField &field, const TrackTable<Key> &a, const TrackTable<Key> &b,
                 RecordDifference &difference)
    {
        QString name = QLatin1String(field.key);
        name.chop(1);
        for (int track = 0; track < std::max(a.trackCount(), b.trackCount()); ++track) {
            if (!m_isTelling && !difference.children.empty())
                return; // that it differs is known
            RecordDifference child;
            child.name = QStringLiteral("%1 %2").arg(name).arg(track);
            child.isBound = a.trackCount() != b.trackCount() || a.frameCount() != b.frameCount();
            const auto place = [track](const RecordRef &owner) {
                return RecordRef{kindOfRecord<Key>, {owner.index[0], track, 0}};
            };
            if (track < a.trackCount())
                child.mine = place(difference.mine);
            if (track < b.trackCount())
                child.theirs = place(difference.theirs);
            if (child.mine.kind == RecordKind::None || child.theirs.kind == RecordKind::None) {
                child.state = child.mine.kind == RecordKind::None ? State::OnlyTheirs : State::OnlyMine;
                difference.children.push_back(std::move(child));
                continue;
            }
            // Other numbers of frames are the block's own difference.
            bool isSame = true;
            int furthest = 0;
            for (int frame = 0; frame < std::min(a.frameCount(), b.frameCount()); ++frame) {
                const Key &mine = a.at(track, frame);
                const Key &theirs = b.at(track, frame);
                if (sameBits(mine, theirs))
                    continue;
                const double distance = distanceOf(mine, theirs);
                // What is no number is the furthest.
                if (isSame || (!std::isnan(child.distance) && !(distance <= child.distance))) {
                    furthest = frame;
                    child.distance = distance;
                }
                isSame = false;
            }
            if (isSame)
                continue;
            child.fields.push_back({QStringLiteral("key %1").arg(furthest),
                                    QString::fromLatin1(JsonWriter::textOf(a.at(track, furthest))),
                                    QString::fromLatin1(JsonWriter::textOf(b.at(track, furthest))), true});
            difference.children.push_back(std::move(child));
        }
    }

    /// Which of their records each of mine is; -1: none.
    template <typename Record>
    static std::vector<int> matches(const std::vector<Record> &a, const std::vector<Record> &b)
    {
        std::vector<int> matched(a.size(), -1);
        for (size_t i = 0; i < std::min(a.size(), b.size()); ++i)
            matched[i] = int(i);
        return matched;
    }
    static std::vector<int> matches(const std::vector<AnimBlock> &a, const std::vector<AnimBlock> &b)
    {
        QHash<qint32, std::vector<int>> byId;
        for (size_t i = b.size(); i-- > 0;)
            byId[b[i].animId].push_back(int(i));
        std::vector<int> matched;
        for (const AnimBlock &block : a) {
            std::vector<int> &left = byId[block.animId];
            matched.push_back(left.empty() ? -1 : left.back());
            if (!left.empty())
                left.pop_back();
        }
        return matched;
    }

    template <typename Record>
    static QString nameOf(const Record &record, int number)
    {
        QString name = QStringLiteral("%1 %2").arg(QLatin1String(JsonFields<Record>::name)).arg(number);
        if constexpr (std::is_same_v<Record, AnimBlock>)
            name += QStringLiteral(" (id %1)").arg(record.animId);
        else
            Q_UNUSED(record)
        return name;
    }

    static RecordIndex indexIn(const RecordRef &owner, int number)
    {
        const bool isBlock = owner.kind == RecordKind::AnimBlock;
        return isBlock ? RecordIndex{owner.index[0], number, 0} : RecordIndex{number, 0, 0};
    }

    template <typename Record>
    std::enable_if_t<(sizeof(JsonFields<Record>) > 0)>
    compare(const JsonField &field, const std::vector<Record> &a, const std::vector<Record> &b,
            RecordDifference &difference)
    {
        const bool isBound = a.size() != b.size() && isPointedAt<Record>;
        const bool isTelling = m_isTelling;
        size_t told = 0;
        const std::vector<int> matched = matches(a, b);
        std::vector<bool> isTaken(b.size(), false);
        for (size_t i = 0; i < a.size(); ++i) {
            const int other = matched[i];
            RecordDifference child;
            if (other >= 0) {
                isTaken[size_t(other)] = true;
                m_isTelling = isTelling && told < m_mostTold;
                child = ofRecords(a[i], b[size_t(other)], indexIn(difference.mine, int(i)),
                                  indexIn(difference.theirs, other));
                if (child.fields.empty() && child.children.empty())
                    continue;
            } else {
                child.state = State::OnlyMine;
                child.isBound = isBound;
                child.mine = {kindOfRecord<Record>, indexIn(difference.mine, int(i))};
            }
            if (isTelling && told++ < m_mostTold)
                child.name = nameOf(a[i], int(i));
            difference.children.push_back(std::move(child));
        }
        m_isTelling = isTelling;
        for (size_t i = 0; i < b.size(); ++i) {
            if (isTaken[i])
                continue;
            RecordDifference child;
            child.state = State::OnlyTheirs;
            child.isBound = isBound;
            if (isTelling && told++ < m_mostTold)
                child.name = nameOf(b[i], int(i));
            child.theirs = {kindOfRecord<Record>, indexIn(difference.theirs, int(i))};
            child.mine.index = indexIn(difference.mine, int(i));
            difference.children.push_back(std::move(child));
        }
        compareOrder(field, matched, difference);
    }

    /// Records that stand in another order in their list.
    static void compareOrder(const JsonField &field, const std::vector<int> &matched,
                             RecordDifference &difference)
    {
        std::vector<int> both;
        std::copy_if(matched.begin(), matched.end(), std::back_inserter(both),
                     [](int other) { return other >= 0; });
        if (std::is_sorted(both.begin(), both.end()))
            return;
        QStringList mine;
        QStringList theirs;
        for (size_t i = 0; i < matched.size(); ++i) {
            if (matched[i] >= 0) {
                mine += QString::number(i);
                theirs += QString::number(matched[i]);
            }
        }
        const auto order = [](const QStringList &numbers) {
            return QCoreApplication::translate("ModelComparison", "order: %1")
                .arg(numbers.join(QStringLiteral(", ")));
        };
        tell(difference, field, order(mine), order(theirs), true);
    }

    const size_t m_mostTold;
    bool m_isTelling = true; ///< of the record that is compared
};

} // namespace

template <typename Model>
std::vector<RecordDifference> ModelComparison::compare(const Model &mine, const Model &theirs,
                                                       size_t mostTold)
{
    RecordDifference root = Comparison(mostTold).ofRecords(mine, theirs, {}, {});
    std::vector<RecordDifference> differences = std::move(root.children);
    root.children.clear();
    root.name = QLatin1String(JsonFields<Model>::name);
    if (!root.fields.empty())
        differences.insert(differences.begin(), std::move(root));
    return differences;
}

template std::vector<RecordDifference> ModelComparison::compare(const SkinnedMesh &, const SkinnedMesh &,
                                                                size_t);
template std::vector<RecordDifference> ModelComparison::compare(const AnimFile &, const AnimFile &, size_t);
template std::vector<RecordDifference> ModelComparison::compare(const StaticMesh &, const StaticMesh &,
                                                                size_t);
