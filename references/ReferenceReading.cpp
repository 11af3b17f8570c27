// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceReading.h"

#include "BinaryFileReader.h"
#include "KMat.h"
#include "MaterialFiles.h"

#include <QCoreApplication>

#include <map>
#include <tuple>

namespace {
struct ReadingTexts
{
    Q_DECLARE_TR_FUNCTIONS(References)
};

/// Makes one entry of each thing that is named any number of times.
class NamingCollector
{
public:
    NamingCollector(FileNaming &file, size_t keptPlaces)
        : m_file(file)
        , m_keptPlaces(keptPlaces)
    {}

    void add(const NamedThing &thing, const RecordRef &place)
    {
        if (m_named.size() >= FileNaming::MostNames)
            return;
        const QString key = isNamedByPath(thing.kind) ? keyOf(thing.path) : QString();
        Named &named = m_named[{thing.kind, thing.number, key}];
        if (named.entry.count++ == 0) {
            named.entry.thing = thing;
            named.entry.key = key;
        }
        if (named.places.size() < m_keptPlaces)
            named.places.push_back(place);
    }

    void finish()
    {
        m_file.names.reserve(m_named.size());
        for (auto &[key, named] : m_named) {
            named.entry.firstPlace = int(m_file.places.size());
            named.entry.placeCount = int(named.places.size());
            m_file.names.push_back(std::move(named.entry));
            m_file.places.insert(m_file.places.end(), named.places.begin(), named.places.end());
        }
        if (m_named.size() >= FileNaming::MostNames)
            m_file.error = ReadingTexts::tr("The file names more than any model has.");
    }

private:
    struct Named
    {
        NamedInFile entry{{NamedKind::Material}, {}, 0, 0, 0};
        std::vector<RecordRef> places;
    };

    /// Surfaces of one material are many.
    const QString &keyOf(const QString &path)
    {
        if (path != m_path || m_key.isNull()) {
            m_path = path;
            m_key = pathKey(path);
        }
        return m_key;
    }

    FileNaming &m_file;
    const size_t m_keptPlaces;
    QString m_path, m_key;
    std::map<std::tuple<NamedKind, double, QString>, Named> m_named;
};

template <typename Model>
void collectNames(const Model &model, FileNaming &file)
{
    NamingCollector collector(file, FileNaming::KeptPlaces);
    visitNamingRecords(model, [&](const RecordRef &record) {
        visitNamed(model, record, [&](const NamedThing &thing) { collector.add(thing, record); });
    });
    collector.finish();
}

template <typename Model>
void readModelNaming(FileNaming &file)
{
    BinaryFileReader reader(file.path);
    Model model;
    if (!reader.isOpen())
        file.error = reader.hasError() ? reader.errorText() : ReadingTexts::tr("The file cannot be opened.");
    else if (model.read(reader))
        file.error =
            reader.hasError() ? reader.errorText() : ReadingTexts::tr("A count in the file is negative.");
    else
        collectNames(model, file);
}

void readMaterialNaming(FileNaming &file)
{
    std::vector<MaterialSampler> samplers;
    file.error = readSamplers(QStringList(file.path), samplers);
    NamingCollector collector(file, FileNaming::MostNames); // all: uses of textures go by them
    for (const MaterialSampler &each : samplers) {
        if (file.materials.isEmpty() || file.materials.last() != each.material)
            file.materials += each.material;
        if (!each.texture.isEmpty() && each.texture != MaterialFiles::Blank)
            collector.add({NamedKind::Texture, 0.0, each.texture},
                          {RecordKind::None, {file.materials.size() - 1, 0, 0}});
    }
    collector.finish();
}

template <typename Model>
FileNaming namingInMemory(const Model &model, IndexedType type)
{
    FileNaming file;
    file.type = type;
    collectNames(model, file);
    return file;
}
} // namespace

void readNaming(FileNaming &file)
{
    switch (file.type) {
    case IndexedType::SkinnedMesh:
        return readModelNaming<SkinnedMesh>(file);
    case IndexedType::Anim:
        return readModelNaming<AnimFile>(file);
    case IndexedType::StaticMesh:
        return readModelNaming<StaticMesh>(file);
    case IndexedType::Materials:
        return readMaterialNaming(file);
    case IndexedType::Picture:
        return;
    }
}

FileNaming namingOf(const SkinnedMesh &mesh)
{
    return namingInMemory(mesh, IndexedType::SkinnedMesh);
}

FileNaming namingOf(const AnimFile &anim)
{
    return namingInMemory(anim, IndexedType::Anim);
}

FileNaming namingOf(const StaticMesh &mesh)
{
    return namingInMemory(mesh, IndexedType::StaticMesh);
}
