// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <new>

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

    /// Others wait meanwhile. Throws std::bad_alloc where there is no memory for it, then and ever after: the
    /// model may be another one by then.
    const Model &get()
    {
        const std::lock_guard<std::mutex> alone(m_making);
        if (m_isLost)
            throw std::bad_alloc();
        try {
            if (!m_copy)
                m_copy = std::make_unique<const Model>(*m_model);
        } catch (const std::bad_alloc &) {
            m_isLost = true;
            throw;
        }
        return *m_copy;
    }
    /// Whether there was no memory for it.
    bool isLost() const { return m_isLost; }

private:
    const Model *m_model;
    std::mutex m_making;
    std::atomic_bool m_isLost{false};
    std::unique_ptr<const Model> m_copy;
};
