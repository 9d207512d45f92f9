// Memory with an end: the byte behind it can be neither read nor written.
#pragma once

#include <cstddef>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

class GuardedPage {
public:
    GuardedPage() {
        void *memory = mmap(nullptr, 2 * size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            throw std::bad_alloc();
        memory_ = static_cast<unsigned char *>(memory);
        mprotect(memory_ + size_, size_, PROT_NONE);
    }
    ~GuardedPage() { munmap(memory_, 2 * size_); }
    GuardedPage(const GuardedPage &) = delete;
    GuardedPage &operator=(const GuardedPage &) = delete;

    // The last `count` elements.
    template <class T>
    T *last(std::size_t count) const {
        return reinterpret_cast<T *>(memory_ + size_) - count;
    }

private:
    std::size_t size_ = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    unsigned char *memory_;
};
