// Reads and writes of caller memory. Bits are moved as integers, so that a copied signalling NaN survives.
#pragma once

#include "call.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace zelmref {

template <class T>
using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;

template <class Word>
Word readWord(Address address) {
    Word word;
    std::memcpy(&word, reinterpret_cast<const void *>(address), sizeof word);
    return word;
}

template <class Word>
void writeWord(Address address, Word word) {
    std::memcpy(reinterpret_cast<void *>(address), &word, sizeof word);
}

// A number for arithmetic. Where a function returns a float through the x87 stack a signalling NaN becomes a
// quiet one; every use is an arithmetic operation, which does the same.
template <class T>
T readNumber(Address address) {
    return std::bit_cast<T>(readWord<Bits<T>>(address));
}

// A result, remembered as one: the payload and sign of a NaN that arithmetic makes are not part of a
// contract. IEEE 754 leaves open which of two NaN operands is returned; SSE returns the first, and a compiler
// may exchange the operands of a commutative operation. A NaN that was only copied must arrive bit by bit, so
// it is told apart here.
class ComputedElements {
public:
    struct Element {
        Address address;
        bool computed;
    };

    void clear() { elements_.clear(); }
    const std::vector<Element> &inOrderOfWriting() const { return elements_; }

    template <class T>
    void write(Address address, T number) {
        writeWord(address, std::bit_cast<Bits<T>>(number));
        elements_.push_back({address, true});
    }

    // An element that was read before, bit by bit.
    template <class T>
    void place(Address to, Bits<T> bits) {
        writeWord(to, bits);
        elements_.push_back({to, false});
    }

    template <class T>
    void copy(Address to, Address from) {
        writeWord(to, readWord<Bits<T>>(from));
        elements_.push_back({to, readNumber<T>(from) != readNumber<T>(from) && isComputed(from)});
    }

private:
    // A NaN that was made for one object may be copied as an element of the next.
    bool isComputed(Address address) const {
        for (std::size_t e = elements_.size(); e-- > 0;)
            if (elements_[e].address == address)
                return elements_[e].computed;
        return false;
    }

    std::vector<Element> elements_;
};

} // namespace zelmref
