// A fixed table of the system: elements 0..last, every other index an error of the running operation.
#pragma once

#include "platform/errors.h"

#include <array>

template <class T, int last>
class Table {
public:
    T& operator[](int index) { return elements[checked(index)]; }
    const T& operator[](int index) const { return elements[checked(index)]; }
    auto begin() { return elements.begin(); }
    auto end() { return elements.end(); }
    auto begin() const { return elements.begin(); }
    auto end() const { return elements.end(); }
    bool operator==(const Table&) const = default;

private:
    static std::size_t checked(int index)
    {
        if (index < 0 || index > last)
            throw RuntimeError(outOfRange);
        return static_cast<std::size_t>(index);
    }

    std::array<T, static_cast<std::size_t>(last) + 1> elements{};
};
