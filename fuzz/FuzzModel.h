// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FormatMutator.h"
#include "LiteralFormat.h"
#include "Require.h"
#include "SampleModels.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t most);

namespace Fuzz {
/// Reads `data` as a file of the model's kind and checks that
/// - the result and the message are those of the literal reading,
/// - the draft of what was read can be read,
/// - what was read is written, unless the model refuses, and reads back to the same bytes,
/// - a file that could be whole (no bytes behind its end, no negative counts) is written as it was.
template <typename Model>
void checkModelFile(const QString &suffix, const uint8_t *data, size_t size)
{
    BinaryFileReader reader(data, qint64(size));
    Model model;
    const bool failed = model.read(reader);
    const LiteralFormat literal(suffix,
                                QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)));
    require(failed == literal.failed(), "the result of the literal reading");
    require(reader.errorText() == literal.errorText(), "the message of the literal reading");
    if (failed)
        return;

    BinaryFileWriter draftWriter;
    model.writeDraft(draftWriter);
    const std::vector<uchar> &draft = draftWriter.bytes();
    BinaryFileReader draftReader(draft.data(), qint64(draft.size()));
    require(!Model().read(draftReader), "a draft can be read");

    const QByteArray written = SampleModels::bytesOf(model);
    if (written.isEmpty())
        return;
    if (!literal.hasNegativeCount() && literal.length() == int(size)) {
        require(written.size() == int(size) && std::memcmp(written.constData(), data, size) == 0,
                "an unedited file is written as it was");
    }
    Model again;
    require(!SampleModels::readBytes(again, written), "what was written can be read");
    require(SampleModels::bytesOf(again) == written, "what was written reads back to the same");
}

/// For LLVMFuzzerCustomMutator: now the library's own bytes, now a field at its border.
inline size_t mutateModelFile(const QString &suffix, uint8_t *data, size_t size, size_t most, unsigned seed)
{
    if (seed % 2 == 0)
        return LLVMFuzzerMutate(data, size, most);
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QByteArray mutated = FormatMutator(seed).mutated(suffix, bytes);
    const size_t kept = std::min(size_t(mutated.size()), most);
    std::memcpy(data, mutated.constData(), kept);
    return kept;
}
} // namespace Fuzz
