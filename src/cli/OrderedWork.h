// Work on all cores whose results are taken in order, as soon as each is there.
#pragma once
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace glotta {

// Runs work(i) for i in [0, count) on all cores and take(result) here, in ascending order. work must not throw.
// Results far ahead of what was taken are not begun, so that memory stays bounded.
template <class Result, class Work, class Take> void InOrder(std::size_t count, Work work, Take take) {
    constexpr std::size_t Ahead = 512;
    std::vector<std::optional<Result>> results(count);
    std::mutex mutex;
    std::condition_variable ready, room;
    std::size_t next = 0, taken = 0;
    auto loop = [&] {
        for (;;) {
            std::unique_lock lock(mutex);
            room.wait(lock, [&] { return next >= count || next < taken + Ahead; });
            if (next >= count)
                return;
            std::size_t mine = next++;
            lock.unlock();
            Result result = work(mine);
            lock.lock();
            results[mine] = std::move(result);
            if (mine == taken)
                ready.notify_one();
        }
    };
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
        threads.emplace_back(loop);
    for (std::size_t i = 0; i < count; ++i) {
        std::unique_lock lock(mutex);
        ready.wait(lock, [&] { return results[i].has_value(); });
        Result result = std::move(*results[i]);
        results[i].reset();
        taken = i + 1;
        room.notify_all();
        lock.unlock();
        take(result);
    }
    std::lock_guard lock(mutex);
    room.notify_all();
}

} // namespace glotta
