// Memory between pages that can be neither read nor written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <sys/mman.h>

namespace zelmtest {

enum class Side { Start, End }; // the one whose page the contents touch

class GuardedMemory {
public:
    static constexpr std::size_t guardSize = 1 << 16;

    explicit GuardedMemory(std::size_t size = 1 << 16) : size_(size) {
#ifdef __x86_64__
        constexpr int place = MAP_32BIT; // so that a 32-bit shift reaches it from a null pointer
#else
        constexpr int place = 0;
#endif
        mapping_ = mmap(nullptr, size + 2 * guardSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | place, -1, 0);
        if (mapping_ == MAP_FAILED)
            throw std::bad_alloc();
        memory_ = static_cast<unsigned char *>(mapping_) + guardSize;
        if (mprotect(memory_, size, PROT_READ | PROT_WRITE) != 0)
            throw std::bad_alloc();
    }
    ~GuardedMemory() {
        munmap(mapping_, size_ + 2 * guardSize);
    }
    GuardedMemory(const GuardedMemory &) = delete;
    GuardedMemory &operator=(const GuardedMemory &) = delete;

    template <class T>
    T *at(Side side, std::size_t count) const {
        if (count * sizeof(T) > size_)
            throw std::bad_alloc();
        return reinterpret_cast<T *>(side == Side::Start ? memory_ : memory_ + size_ - count * sizeof(T));
    }

private:
    std::size_t size_;
    void *mapping_;
    unsigned char *memory_;
};

} // namespace zelmtest
