// Work on all cores whose results are taken in order, as soon as each is there.
#pragma once
#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace glotta {

// next() gives the next few items, none at the end; it is called by one thread at a time, while others work. work(item)
// runs on all cores, and take(result) here, in the order of the items. None of the three may throw.
// Batches far ahead of what was taken are not begun, so that memory stays bounded.
template <class Result, class Next, class Work, class Take> void InOrder(Next next, Work work, Take take) {
    constexpr std::size_t Ahead = 64;
    using Batch = std::vector<Result>;
    std::mutex source, mutex;
    std::condition_variable ready, room;
    std::deque<std::optional<Batch>> batches; // from `taken` on
    std::size_t begun = 0, taken = 0;
    bool ended = false;
    auto loop = [&] {
        for (;;) {
            std::unique_lock from(source);
            auto items = ended ? decltype(next())() : next();
            std::unique_lock lock(mutex);
            if (items.empty()) {
                ended = true;
                ready.notify_one();
                return;
            }
            room.wait(lock, [&] { return begun < taken + Ahead; });
            const std::size_t mine = begun++;
            batches.emplace_back();
            lock.unlock();
            from.unlock();
            Batch results;
            results.reserve(items.size());
            for (const auto& item : items)
                results.push_back(work(item));
            lock.lock();
            batches[mine - taken] = std::move(results);
            if (mine == taken)
                ready.notify_one();
        }
    };
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
        threads.emplace_back(loop);
    for (;;) {
        std::unique_lock lock(mutex);
        ready.wait(lock, [&] { return batches.empty() ? ended : batches.front().has_value(); });
        if (batches.empty())
            return;
        Batch results = std::move(*batches.front());
        batches.pop_front();
        ++taken;
        room.notify_one();
        lock.unlock();
        for (const Result& result : results)
            take(result);
    }
}

} // namespace glotta
