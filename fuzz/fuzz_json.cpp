// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelJson.h"
#include "Require.h"
#include "SampleModels.h"

namespace {
QByteArray jsonOf(const ModelJson::Content &content)
{
    QByteArray text;
    ModelJson::write(content, [&text](const QByteArray &part) { text += part; });
    return text;
}

QByteArray storedAs(const ModelJson::Content &content)
{
    return std::visit([](const auto &model) { return SampleModels::bytesOf(model); }, content.model);
}
} // namespace

/// Reads a text as a model. One that is refused is so at a place in it; what was read is written as a text
/// that reads back to the same bytes, unless the model refuses, and to the same text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Memory of its own, so that a read beyond the end is seen.
    const std::vector<char> exact(data, data + size);
    const QByteArray text = QByteArray::fromRawData(exact.data(), int(size));
    ModelJson::Content content;
    const JsonProblem problem = ModelJson::read(text, content);
    if (!problem.text.isEmpty()) {
        Fuzz::require(problem.line >= 1 && problem.line <= text.count('\n') + 1,
                      "a refusal is in a line of the text");
        Fuzz::require(problem.column >= 1 && problem.column <= int(size) + 1,
                      "a refusal is in a column of the text");
        return 0;
    }
    const QByteArray written = jsonOf(content);
    ModelJson::Content again;
    Fuzz::require(ModelJson::read(written, again).text.isEmpty(), "what was written can be read");
    Fuzz::require(jsonOf(again) == written, "what was written reads back to the same");
    Fuzz::require(storedAs(again) == storedAs(content) && again.behind == content.behind,
                  "a text makes the same bytes again");
    return 0;
}
