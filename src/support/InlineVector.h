#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <type_traits>
#include <vector>

namespace kinesta {

/// A list that stays in place up to `Capacity` elements and moves to the heap beyond that: the usual few contacts need
/// no allocation, and there is no limit to their number.
template <typename T, std::size_t Capacity>
class InlineVector {
    static_assert(std::is_trivially_copyable_v<T>);

  public:
    InlineVector() = default;
    InlineVector(std::initializer_list<T> values) { assign(std::span<const T>(values.begin(), values.size())); }
    explicit InlineVector(std::span<const T> values) { assign(values); }
    InlineVector(const InlineVector& other) { assign(other.view()); }
    InlineVector& operator=(const InlineVector& other) {
        if (this != &other)
            assign(other.view());
        return *this;
    }
    ~InlineVector() = default;

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    T* data() { return isSpilled() ? m_spilled.data() : m_inline.data(); }
    const T* data() const { return isSpilled() ? m_spilled.data() : m_inline.data(); }
    T* begin() { return data(); }
    T* end() { return data() + m_size; }
    const T* begin() const { return data(); }
    const T* end() const { return data() + m_size; }
    T& operator[](std::size_t index) { return data()[index]; }
    const T& operator[](std::size_t index) const { return data()[index]; }
    std::span<const T> view() const { return {data(), m_size}; }

    /// Empties the list and frees its heap memory.
    void clear() {
        m_size = 0;
        if (m_spilled.capacity() != 0)
            std::vector<T>().swap(m_spilled);
    }

    void push_back(T value) {
        if (m_size < Capacity) {
            m_inline[m_size++] = value;
            return;
        }
        if (m_size == Capacity)
            m_spilled.assign(m_inline.begin(), m_inline.end());
        m_spilled.push_back(value);
        ++m_size;
    }

    void assign(std::span<const T> values) {
        clear();
        m_size = values.size();
        if (m_size <= Capacity)
            std::copy(values.begin(), values.end(), m_inline.begin());
        else
            m_spilled.assign(values.begin(), values.end());
    }

    /// Keeps the first `count` elements.
    void truncate(std::size_t count) {
        if (isSpilled() && count <= Capacity) {
            std::copy_n(m_spilled.begin(), count, m_inline.begin());
            std::vector<T>().swap(m_spilled);
        } else if (isSpilled()) {
            m_spilled.resize(count);
        }
        m_size = count;
    }

    friend bool operator==(const InlineVector& a, const InlineVector& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

  private:
    bool isSpilled() const { return m_size > Capacity; }

    std::size_t m_size = 0;
    std::array<T, Capacity> m_inline;  // not initialized beyond m_size: most frames use little of it
    std::vector<T> m_spilled;
};

}  // namespace kinesta
