// One object several times, as each layout wants it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace edge {

template <class T>
class Copies {
public:
    Copies(const std::vector<T> &object, std::size_t count) : size_(object.size()) {
        for (std::size_t k = 0; k < count; ++k)
            packed_.insert(packed_.end(), object.begin(), object.end());
        for (const T element : object)
            positions_.insert(positions_.end(), count, element);
        for (std::size_t j = 0; j < size_; ++j) {
            byElement_.push_back(&packed_[j]);
            byPosition_.push_back(&positions_[j * count]);
        }
        for (std::size_t k = 0; k < count; ++k)
            byObject_.push_back(&packed_[k * size_]);
    }
    Copies(const Copies &) = delete;
    Copies &operator=(const Copies &) = delete;

    const T *data() const { return packed_.data(); }                  // standard, S2
    const T *const *byPosition() const { return byPosition_.data(); } // P
    const T *const *byElement() const { return byElement_.data(); }   // PS2 with objStride()
    const T *const *byObject() const { return byObject_.data(); }     // L, LS2
    std::int32_t objStride() const { return static_cast<std::int32_t>(size_ * sizeof(T)); }

private:
    std::size_t size_;
    std::vector<T> packed_, positions_;
    std::vector<const T *> byElement_, byPosition_, byObject_;
};

} // namespace edge
