#pragma once

#include <QHash>

#include <optional>

// Folds values into one hash; used by the value types to hash every field.
class HashCombine {
public:
    explicit HashCombine(size_t seed = 0) : m_seed(seed) {}

    template <typename T>
    HashCombine& add(const T& value)
    {
        m_seed = QtPrivate::QHashCombine()(m_seed, value);
        return *this;
    }

    template <typename T>
    HashCombine& add(const std::optional<T>& value)
    {
        add(value.has_value());
        if (value)
            add(*value);
        return *this;
    }

    size_t result() const { return m_seed; }

private:
    size_t m_seed;
};
