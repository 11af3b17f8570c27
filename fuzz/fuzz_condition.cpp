// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordSearch.h"
#include "Require.h"
#include "SampleModels.h"

/// What is typed to find records: it is read or refused, and what was read can be asked of every record.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const SkinnedMesh mesh = SampleModels::skinnedMesh();
    static const AnimFile anim = SampleModels::animFile();
    const ModelValues meshValues(mesh);
    const ModelValues animValues(anim);
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    Condition condition;
    const QString reason = condition.read(text, &mesh);
    Fuzz::require(reason.isEmpty() != condition.isEmpty(), "a text is read or refused");
    for (const RecordRef &record : findRecords(condition, meshValues, RecordKind::SkinnedMesh))
        condition.fieldOf(meshValues, record);
    for (const RecordRef &record : findRecords(condition, animValues, RecordKind::AnimFile))
        Fuzz::require(condition.concerns(record.kind),
                      "only records of the kinds that it is about are found");
    return 0;
}
