// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfReader.h"
#include "ModelUpdate.h"
#include "Require.h"
#include "SampleModels.h"

namespace {
/// Three bones in a row with a triangle each, and a block that moves them.
SkinnedMesh fuzzMesh()
{
    SkinnedMesh mesh = SampleModels::plainMesh();
    mesh.nodes.resize(3);
    for (SkinnedMeshNode &node : mesh.nodes)
        node.childNodes.clear();
    mesh.nodes[0].childNodes = {1};
    mesh.nodes[1].childNodes = {2};
    return mesh;
}

AnimFile fuzzAnim()
{
    AnimFile anim = SampleModels::plainAnim();
    for (AnimBlock &block : anim.blocks) {
        block.nodes.resize(3);
        block.nodes[1].translationIndex = block.nodes[2].rotationIndex = 0;
    }
    return anim;
}

template <typename Model>
void requireReadable(const Model &model)
{
    const QByteArray bytes = SampleModels::bytesOf(model);
    Model again;
    Fuzz::require(!bytes.isEmpty() && !SampleModels::readBytes(again, bytes),
                  "an updated model can be saved and read");
}
} // namespace

/// The toolkit's JSON parser leaves containers behind when a text breaks off.
extern "C" const char *__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libQt5Core";
}

/// Reads a glTF file and updates small models from it: whatever it holds, what comes of it is a model.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    GltfScene scene;
    QString reason;
    if (readGltf(
            file, [](const QString &) { return QByteArray(); }, scene, reason)) {
        Fuzz::require(!reason.isEmpty(), "a failure has a reason");
        return 0;
    }
    SkinnedMesh mesh = fuzzMesh();
    AnimFile anim = fuzzAnim();
    UpdateAccount account;
    if (!updateModel(scene, mesh, anim, account, reason)) {
        requireReadable(mesh);
        requireReadable(anim);
    }
    StaticMesh rigid = SampleModels::plainStatic();
    if (!updateModel(scene, rigid, account, reason))
        requireReadable(rigid);
    return 0;
}
