// A table of fixed size: elements 0..last. Any other index raises error 9.
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
    static int checked(int index)
    {
        if (index < 0 || index > last)
            throw RuntimeError(outOfRange);
        return index;
    }

    std::array<T, last + 1> elements{};
};
