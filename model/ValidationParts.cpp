// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ValidationParts.h"

namespace Validation {
QString recordName(const RecordRef &place)
{
    const QString first = number(place.index[0]);
    const QString second = number(place.index[1]);
    const QString third = number(place.index[2]);
    switch (place.kind) {
    case RecordKind::Bone:
        return Texts::tr("Bone %1").arg(first);
    case RecordKind::HotPoint:
        return Texts::tr("Hot point %1").arg(first);
    case RecordKind::SkinnedVertex:
    case RecordKind::StaticVertex:
        return Texts::tr("Vertex %1").arg(first);
    case RecordKind::AnimBlock:
        return Texts::tr("Animation %1").arg(first);
    case RecordKind::AnimBone:
        return Texts::tr("Bone %2 of animation %1").arg(first, second);
    case RecordKind::AnimFrame:
        return Texts::tr("Frame %2 of animation %1").arg(first, second);
    case RecordKind::TranslationKey:
        return Texts::tr("Frame %3 of translation track %2 of animation %1").arg(first, second, third);
    case RecordKind::RotationKey:
        return Texts::tr("Frame %3 of rotation track %2 of animation %1").arg(first, second, third);
    case RecordKind::AnimAction:
        return Texts::tr("Action %2 of animation %1").arg(first, second);
    default:
        return Texts::tr("The model");
    }
}

void checkEnd(FindingCollector &found, const RecordRef &root, qint64 bytesBehind)
{
    if (bytesBehind <= 0)
        return;
    found.add(Rule::BytesBehindEnd, root, [&] {
        return Texts::tr(
                   "The file goes on for %1 bytes behind the end of the model, which belong to no record. "
                   "Saving drops them: keep a copy of the file if something else needs them.")
            .arg(bytesBehind);
    });
}
} // namespace Validation
