// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>

/// A model as it was when this was made, for any thread. Who asks first makes the copy, so that the GUI
/// thread seldom has to; the model has to stay as it is until then (see ModelDocument::aboutToChange()).
template <typename Model>
class ModelCopy
{
public:
    explicit ModelCopy(const Model &model)
        : m_model(&model)
    {}
    ModelCopy(const ModelCopy &) = delete;
    ModelCopy &operator=(const ModelCopy &) = delete;

    /// Others wait meanwhile.
    const Model &get()
    {
        std::call_once(m_once, [this] { m_copy = std::make_unique<const Model>(*m_model); });
        return *m_copy;
    }

private:
    const Model *m_model;
    std::once_flag m_once;
    std::unique_ptr<const Model> m_copy;
};
