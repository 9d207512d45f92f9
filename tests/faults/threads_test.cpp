// Every function called by several threads at once, on the same sources, with destinations of their own: all
// give what one call alone gives.
#include "faults.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <cstring>
#include <mutex>
#include <sys/mman.h>
#include <thread>

namespace zelmtest {
namespace {

constexpr std::uint64_t seed = 14;
constexpr std::size_t crewSize = 3;
constexpr int repetitions = 6;
constexpr std::size_t scratchSlab = 8; // and that of pivotIndex

// Threads that do a job together, each with its number.
class Crew {
public:
    Crew() {
        for (std::size_t i = 0; i < crewSize; ++i)
            threads_.emplace_back([this, i] { work(i); });
    }
    ~Crew() {
        start(nullptr);
        for (std::thread &thread : threads_)
            thread.join();
    }
    // No job ends the threads.
    void start(const std::function<void(std::size_t)> *job) {
        const std::lock_guard lock(mutex_);
        job_ = job;
        busy_ = crewSize;
        ++round_;
        changed_.notify_all();
    }
    void wait() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return busy_ == 0; });
    }

private:
    void work(std::size_t index) {
        std::unique_lock lock(mutex_);
        for (unsigned done = 0;;) {
            changed_.wait(lock, [&] { return round_ != done; });
            done = round_;
            if (!job_)
                return;
            const auto *const job = job_;
            lock.unlock();
            (*job)(index);
            lock.lock();
            if (--busy_ == 0)
                changed_.notify_all();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    const std::function<void(std::size_t)> *job_ = nullptr;
    unsigned round_ = 0;
    std::size_t busy_ = 0;
    std::vector<std::thread> threads_;
};

unsigned char *newSlab() {
    void *memory = mmap(nullptr, Arena::slabSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    return static_cast<unsigned char *>(memory);
}

// What one thread writes: a destination, its table, pivotIndex and scratch, at the same places in slabs of
// its own.
class OwnMemory {
public:
    OwnMemory() : destination_(newSlab()), others_(newSlab()) {}
    ~OwnMemory() {
        munmap(destination_, Arena::slabSize);
        munmap(others_, Arena::slabSize);
    }
    OwnMemory(const OwnMemory &) = delete;
    OwnMemory &operator=(const OwnMemory &) = delete;

    void prepare(const Case &made, const std::vector<Value> &values) {
        const Placement &dst = made.operands.back();
        values_ = values;
        forEachWindow(made, [&](const Window &w, unsigned char *own) {
            std::memcpy(own + w.begin, arena().slab(w.slab) + w.begin, w.end - w.begin);
        });
        for (std::size_t a = 0; a < values_.size(); ++a) {
            const Argument &argument = made.target->function->arguments[a];
            auto *const pointer = static_cast<unsigned char *>(values_[a].pointer);
            const bool isDst = std::string_view(argument.operand) == "dst";
            if (isDst && argument.kind == ArgumentKind::Table && pointer)
                values_[a].pointer = moveTable(dst, made.call.passed[dst.parameter], pointer);
            else if (isDst && argument.kind == ArgumentKind::Pointer && pointer)
                values_[a].pointer = destination_ + (pointer - arena().slab(dst.slab));
            else if ((argument.kind == ArgumentKind::PivotIndex || argument.kind == ArgumentKind::Scratch) &&
                     pointer)
                values_[a].pointer = others_ + (pointer - arena().slab(scratchSlab));
        }
    }

    void call(const Target &target, AnyFunction function, std::uint64_t number) {
        for (int i = 0; i < repetitions; ++i)
            status_ = callAsOldCallersDo(target, function, values_, number);
    }

    // Is it as the arena is after the one call?
    bool equals(const Case &made, ZelmStatus status) {
        for (const Window &w : made.anything)
            std::memcpy(others_ + w.begin, arena().slab(w.slab) + w.begin, w.end - w.begin);
        bool same = status_ == status;
        forEachWindow(made, [&](const Window &w, unsigned char *own) {
            same = same && std::memcmp(own + w.begin, arena().slab(w.slab) + w.begin, w.end - w.begin) == 0;
        });
        return same;
    }

private:
    template <class Use>
    void forEachWindow(const Case &made, Use use) const {
        for (const Window &w : made.windows) {
            if (w.slab == made.operands.back().slab)
                use(w, destination_);
            else if (w.slab == scratchSlab)
                use(w, others_);
        }
    }

    void *moveTable(const Placement &dst, const zelmref::Passed &passed, const unsigned char *table) {
        const auto shift = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(passed.shift));
        table_.resize(std::max<std::size_t>(dst.entries.size(), 1));
        std::memcpy(table_.data(), table, dst.entries.size() * sizeof(void *));
        for (std::uintptr_t &entry : table_)
            if (entry != 0 && entry + shift != 0) // what counts as null stays null
                entry += reinterpret_cast<std::uintptr_t>(destination_) -
                         reinterpret_cast<std::uintptr_t>(arena().slab(dst.slab));
        return table_.data();
    }

    unsigned char *destination_, *others_;
    std::vector<std::uintptr_t> table_;
    std::vector<Value> values_;
    ZelmStatus status_ = ZELM_OK;
};

// The destination shares no slab with a source, so that each thread can have its own.
bool isApart(const Case &made) {
    const std::size_t last = made.operands.size() - 1;
    for (std::size_t n = 0; n < last; ++n)
        if (made.operands[n].slab == made.operands[last].slab)
            return false;
    return true;
}

// The first case of some whose destination can be each thread's own.
std::uint64_t sharedCase(const Target &target, std::uint64_t first) {
    Case made;
    for (std::uint64_t number = first; number < first + 8; ++number) {
        makeCase(target, seed, number, arena(), made);
        if (isApart(made))
            return number;
    }
    return first;
}

TEST(Threads, ShareTheirSources) {
    std::vector<OwnMemory> crewMemory(crewSize);
    Crew crew;
    std::uint64_t calls = 0, shared = 0;
    forEachFunction([&](const Target &target, AnyFunction function) {
        Runner runner(arena());
        for (std::uint64_t n = 0; n < casesPerFunction(1); ++n) {
            const std::uint64_t number = sharedCase(target, 3 + 10 * n);
            bool same = true;
            const auto mismatch =
                runner.run(target, seed, number, [&](const Case &made, const std::vector<Value> &values) {
                    ++calls;
                    if (!isApart(made))
                        return callAsOldCallersDo(target, function, values, number);
                    ++shared;
                    for (OwnMemory &own : crewMemory)
                        own.prepare(made, values);
                    const std::function<void(std::size_t)> job = [&](std::size_t i) {
                        crewMemory[i].call(target, function, number + i);
                    };
                    crew.start(&job);
                    const ZelmStatus status = callAsOldCallersDo(target, function, values, number);
                    crew.wait();
                    for (OwnMemory &own : crewMemory)
                        same = own.equals(made, status) && same;
                    return status;
                });
            if (mismatch)
                tellFailure(runner.last(), mismatch->what);
            if (!same)
                tellFailure(runner.last(), "another thread got another result");
        }
    });
    EXPECT_GT(shared, calls * 9 / 10);
    std::printf("%llu calls, %llu of them beside %zu other threads\n", static_cast<unsigned long long>(calls),
                static_cast<unsigned long long>(shared), crewSize);
}

} // namespace
} // namespace zelmtest
