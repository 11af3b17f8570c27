// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfExtras.h"

#include "JsonValues.h"

#include <QJsonDocument>

namespace {
using namespace GltfExtras;
using JsonValues::bitsOf;
using JsonValues::fromJson;
using JsonValues::toJson;

const QLatin1String Property("korvane");
// More than a block can have in a file whose frame numbers have 16 bits.
constexpr int MostRecordFrames = 1 << 20;

// Both are declared before the lists of them.
QJsonValue toJson(const AnimAction &action);
bool fromJson(const QJsonValue &json, AnimAction &action);
QJsonValue toJson(const Block &block);
bool fromJson(const QJsonValue &json, Block &block);

template <typename Value>
QJsonValue toJson(const std::vector<Value> &values)
{
    QJsonArray array;
    for (const Value &value : values)
        array.append(toJson(value));
    return array;
}

template <typename Value>
bool fromJson(const QJsonValue &json, std::vector<Value> &values)
{
    const QJsonArray array = json.toArray();
    values.assign(size_t(array.size()), Value());
    bool fits = json.isArray();
    for (int i = 0; fits && i < array.size(); ++i)
        fits = fromJson(array.at(i), values[size_t(i)]);
    return fits;
}

// --- Records: one list of fields each, for both ways -------------------------------------------------------

class FieldWriter
{
public:
    template <typename Value>
    void operator()(const char *name, const Value &value)
    {
        object.insert(QLatin1String(name), toJson(value));
    }
    QJsonObject object;
};

class FieldReader
{
public:
    explicit FieldReader(QJsonObject from)
        : object(std::move(from))
    {}
    template <typename Value>
    void operator()(const char *name, Value &value)
    {
        const auto field = object.constFind(QLatin1String(name));
        if (field != object.constEnd())
            fits = fromJson(*field, value) && fits;
    }
    QJsonObject object;
    bool fits = true;
};

template <typename Fields, typename Record>
void actionFields(Fields &field, Record &action)
{
    field("frame", action.frame);
    field("event", action.eventType);
    field("node", action.node);
    field("offset", action.offset);
    field("args", action.args);
}

template <typename Fields, typename Record>
void blockFields(Fields &field, Record &block)
{
    field("number", block.number);
    field("clip", block.clip);
    field("animId", block.record.animId);
    field("frameScale", block.record.frameScale);
    field("blendLength", block.record.blendLength);
    field("blendStart", block.record.blendStart);
    field("blendEnd", block.record.blendEnd);
    field("speed", block.record.speed);
    field("loopFrame", block.record.loopFrame);
    field("actions", block.record.actions);
}

template <typename Fields, typename Record>
void modelFields(Fields &field, Record &model)
{
    field("schema", model.schema);
    field("model", model.name);
    field("version", model.version);
    field("bbMin", model.bbMin);
    field("bbMax", model.bbMax);
    field("materials", model.materials);
    if (model.isStatic)
        return;
    field("headTrackStart", model.headTrackStart);
    field("headTrackEnd", model.headTrackEnd);
    field("headTrackFactor", model.headTrackFactor);
    field("unknownA", model.unknownA);
    field("unknownB", model.unknownB);
    field("animVersion", model.animVersion);
    field("blocks", model.blocks);
}

template <typename Fields, typename Record, typename Rest>
void boneFields(Fields &field, Record &bone, Rest &rest)
{
    field("bone", bone.number);
    field("flags", bone.record.flags);
    field("symbol", bone.record.symbolFlags);
    field("impact", bone.record.impactType);
    field("damage", bone.record.damageScale);
    field("bbMin", bone.record.bbMin);
    field("bbMax", bone.record.bbMax);
    field("parent", bone.record.parentNode);
    field("childNodes", bone.record.childNodes);
    field("poseParent", bone.poseParent);
    field("rest", rest);
}

template <typename Fields, typename Record>
void hotPointFields(Fields &field, Record &hotPoint)
{
    field("hotPoint", hotPoint.number);
    field("nodeId", hotPoint.record.nodeId);
    field("flags", hotPoint.record.flags);
    field("effect1", hotPoint.record.particleEffect1);
    field("effect2", hotPoint.record.particleEffect2);
    field("origin", hotPoint.record.origin);
}

template <typename Fields, typename Record>
void surfaceFields(Fields &field, Record &surface)
{
    field("surface", surface.number);
    field("material", surface.material);
}

QJsonValue toJson(const AnimAction &action)
{
    FieldWriter writer;
    actionFields(writer, action);
    return writer.object;
}

bool fromJson(const QJsonValue &json, AnimAction &action)
{
    FieldReader reader(json.toObject());
    actionFields(reader, action);
    return json.isObject() && reader.fits;
}

// Frames are yaw offsets and hardly ever have one: then their number says it all.
QJsonValue toJson(const Block &block)
{
    FieldWriter writer;
    blockFields(writer, block);
    std::vector<float> yaw;
    bool turns = false;
    for (const AnimFrame &frame : block.record.frames) {
        yaw.push_back(frame.yawOffset);
        turns = turns || bitsOf(frame.yawOffset) != 0;
    }
    writer("frames", block.record.frameCount());
    if (turns)
        writer("yaw", yaw);
    return writer.object;
}

bool fromJson(const QJsonValue &json, Block &block)
{
    FieldReader reader(json.toObject());
    blockFields(reader, block);
    int frames = 0;
    std::vector<float> yaw;
    reader("frames", frames);
    reader("yaw", yaw);
    if (!json.isObject() || !reader.fits || frames < 0 || frames > MostRecordFrames ||
        (!yaw.empty() && yaw.size() != size_t(frames)))
        return false;
    block.record.frames.resize(size_t(frames));
    for (size_t i = 0; i < yaw.size(); ++i)
        block.record.frames[i].yawOffset = yaw[i];
    return true;
}

QJsonObject wrapped(const QJsonObject &record)
{
    return {{Property, QString::fromUtf8(QJsonDocument(record).toJson(QJsonDocument::Compact))}};
}

/// The record that has `mark` among its fields.
std::optional<FieldReader> unwrapped(const QJsonObject &extras, const char *mark)
{
    const QJsonObject record = QJsonDocument::fromJson(extras.value(Property).toString().toUtf8()).object();
    if (!record.contains(QLatin1String(mark)))
        return {};
    return FieldReader(record);
}
} // namespace

double shortestNumber(float value)
{
    for (int digits = 6; digits < 9; ++digits) {
        const double number = QString::number(double(value), 'g', digits).toDouble();
        if (float(number) == value)
            return number;
    }
    return QString::number(double(value), 'g', 9).toDouble();
}

QJsonObject GltfExtras::extras(const Model &model)
{
    FieldWriter writer;
    writer("kind", QString(model.isStatic ? QStringLiteral("staticmesh") : QStringLiteral("skinnedmesh")));
    modelFields(writer, model);
    return wrapped(writer.object);
}

QJsonObject GltfExtras::extras(const Bone &bone)
{
    FieldWriter writer;
    const std::array<float, 7> rest{bone.restPosition.x(),     bone.restPosition.y(), bone.restPosition.z(),
                                    bone.restRotation.x(),     bone.restRotation.y(), bone.restRotation.z(),
                                    bone.restRotation.scalar()};
    boneFields(writer, bone, rest);
    return wrapped(writer.object);
}

QJsonObject GltfExtras::extras(const HotPoint &hotPoint)
{
    FieldWriter writer;
    hotPointFields(writer, hotPoint);
    return wrapped(writer.object);
}

QJsonObject GltfExtras::extras(const Surface &surface)
{
    FieldWriter writer;
    surfaceFields(writer, surface);
    return wrapped(writer.object);
}

QJsonObject GltfExtras::extras(const Clip &clip)
{
    FieldWriter writer;
    writer("block", clip.number);
    return wrapped(writer.object);
}

QJsonObject GltfExtras::extras(const Yaw &yaw)
{
    FieldWriter writer;
    writer("yaw", yaw.turns);
    return wrapped(writer.object);
}

template <>
std::optional<Model> GltfExtras::read<Model>(const QJsonObject &extras)
{
    auto reader = unwrapped(extras, "schema");
    if (!reader)
        return {};
    Model model;
    QString kind;
    (*reader)("kind", kind);
    model.isStatic = kind == QLatin1String("staticmesh");
    modelFields(*reader, model);
    const bool isKnown = model.isStatic || kind == QLatin1String("skinnedmesh");
    return reader->fits && isKnown ? std::optional(model) : std::nullopt;
}

template <>
std::optional<Bone> GltfExtras::read<Bone>(const QJsonObject &extras)
{
    auto reader = unwrapped(extras, "bone");
    if (!reader)
        return {};
    Bone bone;
    std::array<float, 7> rest{0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f};
    boneFields(*reader, bone, rest);
    bone.restPosition = {rest[0], rest[1], rest[2]};
    bone.restRotation = {rest[6], rest[3], rest[4], rest[5]};
    return reader->fits ? std::optional(bone) : std::nullopt;
}

template <>
std::optional<HotPoint> GltfExtras::read<HotPoint>(const QJsonObject &extras)
{
    auto reader = unwrapped(extras, "hotPoint");
    if (!reader)
        return {};
    HotPoint hotPoint;
    hotPointFields(*reader, hotPoint);
    return reader->fits ? std::optional(hotPoint) : std::nullopt;
}

template <>
std::optional<Surface> GltfExtras::read<Surface>(const QJsonObject &extras)
{
    auto reader = unwrapped(extras, "surface");
    if (!reader)
        return {};
    Surface surface;
    surfaceFields(*reader, surface);
    return reader->fits ? std::optional(surface) : std::nullopt;
}

template <>
std::optional<Clip> GltfExtras::read<Clip>(const QJsonObject &extras)
{
    auto reader = unwrapped(extras, "block");
    if (!reader)
        return {};
    Clip clip;
    (*reader)("block", clip.number);
    return reader->fits ? std::optional(clip) : std::nullopt;
}

template <>
std::optional<Yaw> GltfExtras::read<Yaw>(const QJsonObject &extras)
{
    auto reader = unwrapped(extras, "yaw");
    if (!reader)
        return {};
    Yaw yaw;
    (*reader)("yaw", yaw.turns);
    return reader->fits ? std::optional(yaw) : std::nullopt;
}
