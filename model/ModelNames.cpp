// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelNames.h"

#include "Files.h"
#include "NameTables.h"
#include "ReferenceTables.h"
#include "SkinnedMesh.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace {
constexpr qint64 LargestFile = 4 * 1024 * 1024; // 65536 names have room in it
const QString BonesKey = QStringLiteral("bones");
const QString AnimationsKey = QStringLiteral("animations");

template <typename Number>
QJsonObject namesObject(const QHash<Number, QString> &names)
{
    QJsonObject object;
    for (auto it = names.constBegin(); it != names.constEnd(); ++it)
        object.insert(QString::number(it.key()), it.value());
    return object;
}

template <typename Number>
QHash<Number, QString> namesOf(const QJsonValue &value)
{
    QHash<Number, QString> names;
    const QJsonObject object = value.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        bool isNumber = false;
        const Number number = it.key().toInt(&isNumber);
        const QString name = it.value().toString().simplified();
        if (isNumber && ModelNames::isName(name))
            names.insert(number, name);
    }
    return names;
}

/// The toolkit's own order is that of the texts, which puts "10" before "2".
QByteArray linesOf(const QJsonObject &object)
{
    QMap<int, QByteArray> lines;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const QByteArray pair =
            QJsonDocument(QJsonObject{{it.key(), it.value()}}).toJson(QJsonDocument::Compact);
        lines.insert(it.key().toInt(), "        " + pair.mid(1, pair.size() - 2));
    }
    return lines.isEmpty() ? QByteArray("{}") : "{\n" + lines.values().join(",\n") + "\n    }";
}
} // namespace

bool ModelNames::isName(const QString &text)
{
    return !text.isEmpty() && text.size() <= LongestName && text == text.simplified() && text.isValidUtf16();
}

ModelNames ModelNames::of(const SkinnedMesh &mesh)
{
    ModelNames names{{}, mesh.animationNames};
    for (size_t i = 0; i < mesh.nodes.size(); ++i) {
        if (!mesh.nodes[i].name.isEmpty())
            names.bones.insert(int(i), mesh.nodes[i].name);
    }
    return names;
}

void ModelNames::giveTo(SkinnedMesh &mesh) const
{
    for (size_t i = 0; i < mesh.nodes.size(); ++i)
        mesh.nodes[i].name = bones.value(int(i));
    mesh.animationNames = animations;
}

QString ModelNames::pathFor(const QString &modelPath)
{
    const QFileInfo file(modelPath);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".names.json");
}

QByteArray ModelNames::toJson() const
{
    return "{\n    \"animations\": " + linesOf(namesObject(animations)) +
           ",\n    \"bones\": " + linesOf(namesObject(bones)) + "\n}\n";
}

bool ModelNames::fromJson(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return true;
    bones = namesOf<int>(document.object().value(BonesKey));
    animations = namesOf<qint32>(document.object().value(AnimationsKey));
    return false;
}

bool ModelNames::read(const QString &path, QString *errorText)
{
    const auto fail = [&](const QString &reason) {
        if (errorText)
            *errorText = reason;
        return true;
    };
    *this = {};
    if (!Files::isFile(path) && !QFileInfo::exists(path))
        return false;
    const std::unique_ptr<QIODevice> file = Files::open(path);
    if (!file)
        return fail(
            QCoreApplication::translate("ModelNames", "The names in '%1' could not be read.").arg(path));
    if (file->size() > LargestFile || fromJson(file->read(LargestFile)))
        return fail(QCoreApplication::translate("ModelNames", "The names in '%1' are damaged.").arg(path));
    return false;
}

QString animationName(const SkinnedMesh &mesh, qint32 id)
{
    const QString own = mesh.animationNames.value(id);
    return own.isEmpty() ? ReferenceTables::shared().name(ReferenceKind::Animations, id) : own;
}

QString boneTitle(const SkinnedMesh &mesh, int bone)
{
    const QString symbol = boneSymbolName(mesh, bone);
    if (symbol.isEmpty())
        return {};
    const QString &own = mesh.nodes[size_t(bone)].name;
    return QStringLiteral("%1: %2").arg(QString::number(bone), own.isEmpty() ? symbol : own);
}
