// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelJson.h"

#include "BinaryFileWriter.h"
#include "JsonReader.h"
#include "ModelNames.h"
#include "Records.h"

namespace {
QString tell(const char *text)
{
    return QCoreApplication::translate("ModelJson", text);
}

/// The value of the key "kind" of the outermost object, wherever it stands there.
QString kindIn(std::string_view text, JsonProblem &problem)
{
    JsonReader reader(text);
    QString kind;
    const char *start = reader.next();
    reader.expect('{');
    if (!reader.failed() && !reader.accept('}')) {
        do {
            const bool isKind = reader.key() == "kind";
            const char *at = reader.next();
            if (!isKind) {
                if (!reader.failed())
                    reader.skip();
                continue;
            }
            reader.read(JsonField{}, kind);
            if (!reader.failed() && !ModelJson::kinds().contains(kind))
                reader.fail(at, tell(QT_TRANSLATE_NOOP("ModelJson", "The kind is one of %1."))
                                    .arg(ModelJson::kinds().join(QStringLiteral(", "))));
            break;
        } while (!reader.failed() && reader.accept(','));
    }
    if (kind.isEmpty())
        reader.fail(start, tell(QT_TRANSLATE_NOOP(
                               "ModelJson", "\"kind\" is missing, which says of what this is a text.")));
    problem = reader.problem();
    return kind;
}

JsonNames namesOf(const SkinnedMesh &mesh)
{
    const ModelNames names = ModelNames::of(mesh);
    JsonNames ordered;
    for (auto it = names.animations.constBegin(); it != names.animations.constEnd(); ++it)
        ordered.animations.insert(it.key(), it.value());
    for (auto it = names.bones.constBegin(); it != names.bones.constEnd(); ++it)
        ordered.bones.insert(it.key(), it.value());
    return ordered;
}

void giveNames(const JsonNames &names, SkinnedMesh &mesh, const char *at, JsonReader &reader)
{
    for (auto it = names.animations.constBegin(); it != names.animations.constEnd(); ++it)
        mesh.animationNames.insert(it.key(), it.value());
    for (auto it = names.bones.constBegin(); it != names.bones.constEnd(); ++it) {
        SkinnedMeshNode *bone = Records::element(mesh.nodes, it.key());
        if (!bone)
            return reader.fail(
                at, tell(QT_TRANSLATE_NOOP("ModelJson", "There is no bone %1, which has a name here."))
                        .arg(it.key()));
        bone->name = it.value();
    }
}

template <typename Model>
JsonProblem readModel(std::string_view text, ModelJson::Content &content)
{
    JsonReader reader(text);
    Model model;
    JsonNames names;
    const char *namesAt = nullptr;
    QStringList others;
    reader.readRecord(model, [&](const char *keyAt, std::string_view key) {
        const QString name = QString::fromUtf8(key.data(), int(key.size()));
        const char *at = reader.next();
        if (others.contains(name))
            reader.failTwice(keyAt, key);
        others += name;
        if (key == "$schema" || key == "kind") {
            reader.skip(); // the kind is known by now
        } else if (key == "schema") {
            qint32 schema = 0;
            reader.read(JsonField{}, schema);
            if (schema != ModelJson::Schema)
                reader.fail(at, tell(QT_TRANSLATE_NOOP("ModelJson",
                                                       "This is a text of schema %1; only %2 can be read."))
                                    .arg(QString::number(schema), QString::number(ModelJson::Schema)));
        } else if (key == "behind") {
            QString digits;
            reader.read(JsonField{}, digits);
            content.behind = QByteArray::fromHex(digits.toLatin1());
            if (QString::fromLatin1(content.behind.toHex()) != digits.toLower())
                reader.fail(at,
                            tell(QT_TRANSLATE_NOOP("ModelJson", "Bytes are two hexadecimal digits each.")));
        } else if (std::is_same_v<Model, SkinnedMesh> && key == "names") {
            namesAt = at;
            reader.read(JsonField{}, names);
        } else {
            return false;
        }
        return true;
    });
    if constexpr (std::is_same_v<Model, SkinnedMesh>) {
        if (!reader.failed())
            giveNames(names, model, namesAt, reader);
    }
    if (!reader.failed() && !others.contains(QLatin1String("schema")))
        reader.fail(text.data(), tell(QT_TRANSLATE_NOOP(
                                     "ModelJson", "\"schema\" is missing, which says how to read this.")));
    reader.expectEnd();
    content.model = std::move(model);
    return reader.problem();
}
} // namespace

void ModelJson::write(const Content &content, const JsonWriter::Sink &sink)
{
    JsonWriter writer(sink);
    writer.beginObject(false);
    writer(JsonField{"kind", ""}, kindOf(content.model));
    writer(JsonField{"schema", ""}, Schema);
    std::visit(
        [&writer](const auto &model) { JsonFields<std::decay_t<decltype(model)>>::visit(writer, model); },
        content.model);
    const auto *mesh = std::get_if<SkinnedMesh>(&content.model);
    if (mesh && !ModelNames::of(*mesh).isEmpty())
        writer(JsonField{"names", ""}, namesOf(*mesh));
    if (!content.behind.isEmpty())
        writer(JsonField{"behind", ""}, QString::fromLatin1(content.behind.toHex()));
    writer.endObject();
    writer.endLine();
}

JsonProblem ModelJson::read(const QByteArray &text, Content &content)
{
    const std::string_view view(text.constData(), size_t(text.size()));
    JsonProblem problem;
    const QString kind = kindIn(view, problem);
    if (!problem.text.isEmpty())
        return problem;
    if (kind == QLatin1String(JsonFields<SkinnedMesh>::kind))
        return readModel<SkinnedMesh>(view, content);
    if (kind == QLatin1String(JsonFields<AnimFile>::kind))
        return readModel<AnimFile>(view, content);
    return readModel<StaticMesh>(view, content);
}

QByteArray ModelJson::storedBytes(const Content &content)
{
    BinaryFileWriter writer;
    if (std::visit([&writer](const auto &model) { return model.write(writer); }, content.model))
        return {};
    const std::vector<uchar> &bytes = writer.bytes();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size())) + content.behind;
}

QString ModelJson::kindOf(const Model &model)
{
    return std::visit(
        [](const auto &each) {
            return QString(QLatin1String(JsonFields<std::decay_t<decltype(each)>>::kind));
        },
        model);
}

QStringList ModelJson::kinds()
{
    return {QLatin1String(JsonFields<SkinnedMesh>::kind), QLatin1String(JsonFields<AnimFile>::kind),
            QLatin1String(JsonFields<StaticMesh>::kind)};
}
