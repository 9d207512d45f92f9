// Memory whose address is a 32-bit shift: with it a null entry of a table can be followed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <sys/mman.h>

namespace edge {

class LowMemory {
public:
    static constexpr std::size_t size = 4096;

    LowMemory() {
#ifdef __x86_64__
        constexpr int place = MAP_32BIT;
#else
        constexpr int place = 0;
#endif
        memory_ = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | place, -1, 0);
        if (memory_ == MAP_FAILED)
            throw std::runtime_error("mmap");
    }
    ~LowMemory() {
        munmap(memory_, size);
    }
    LowMemory(const LowMemory &) = delete;
    LowMemory &operator=(const LowMemory &) = delete;

    template <class T>
    T *as() const {
        return static_cast<T *>(memory_);
    }

    // The shift that leads a null entry to the start of this memory.
    std::int32_t shift() const {
        return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(memory_));
    }

    // The entry that leads to an address by this shift.
    template <class T>
    T *entryFor(T *address) const {
        return reinterpret_cast<T *>(reinterpret_cast<std::uintptr_t>(address) -
                                     static_cast<std::uintptr_t>(static_cast<std::intptr_t>(shift())));
    }

private:
    void *memory_;
};

} // namespace edge
