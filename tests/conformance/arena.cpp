#include "arena.h"

#include <cstring>
#include <stdexcept>
#include <sys/mman.h>

namespace zelmtest {
namespace {

constexpr std::size_t guardSize = 1 << 16; // a stride too far is also caught

#ifdef __x86_64__
constexpr int place = MAP_32BIT; // so that a 32-bit shift reaches it from a null entry
#else
constexpr int place = 0;
#endif

} // namespace

Arena::Arena() {
    for (std::size_t i = 0; i < slabCount; ++i) {
        void *mapping =
            mmap(nullptr, slabSize + 2 * guardSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | place, -1, 0);
        if (mapping == MAP_FAILED)
            throw std::runtime_error("mmap");
        mappings_.push_back(mapping);
        auto *slab = static_cast<unsigned char *>(mapping) + guardSize;
        if (mprotect(slab, slabSize, PROT_READ | PROT_WRITE) != 0)
            throw std::runtime_error("mprotect");
        slabs_.push_back(slab);
        before_.push_back(new unsigned char[slabSize]());
        expected_.push_back(new unsigned char[slabSize]());
    }
}

Arena::~Arena() {
    for (std::size_t i = 0; i < slabCount; ++i) {
        munmap(mappings_[i], slabSize + 2 * guardSize);
        delete[] before_[i];
        delete[] expected_[i];
    }
}

bool Arena::locate(std::uintptr_t address, std::size_t &index, std::size_t &offset) const {
    for (std::size_t i = 0; i < slabCount; ++i) {
        const auto start = reinterpret_cast<std::uintptr_t>(slabs_[i]);
        if (address - start <= slabSize) {
            index = i;
            offset = address - start;
            return true;
        }
    }
    return false;
}

bool Arena::intact() {
    bool same = true;
    for (std::size_t i = 0; i < slabCount; ++i)
        if (std::memcmp(slabs_[i], before_[i], slabSize) != 0) {
            std::memcpy(slabs_[i], before_[i], slabSize);
            same = false;
        }
    return same;
}

} // namespace zelmtest
