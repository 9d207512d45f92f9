// Memory for the operands of a case: slabs that lie between unreadable pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zelmtest {

// A part of a slab that a case uses, with the bytes around it that must not change.
struct Window {
    std::size_t slab, begin, end;
};

class Arena {
public:
    static constexpr std::size_t slabCount = 9;
    static constexpr std::size_t slabSize = std::size_t{1} << 18;

    Arena();
    ~Arena();
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    unsigned char *slab(std::size_t index) const { return slabs_[index]; }

    // What a slab holds before a call, and what it must hold after it.
    unsigned char *before(std::size_t index) const { return before_[index]; }
    unsigned char *expected(std::size_t index) const { return expected_[index]; }

    // The slab of an address and the offset in it; one past the end counts. False if there is none.
    bool locate(std::uintptr_t address, std::size_t &index, std::size_t &offset) const;

    // Are all slabs as they were before? Puts them right if not. It costs a pass over all slabs, so it is
    // asked once per function, about the bytes outside of all windows.
    bool intact();

private:
    std::vector<unsigned char *> slabs_, before_, expected_;
    std::vector<void *> mappings_;
};

} // namespace zelmtest
