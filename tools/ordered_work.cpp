#include "tools/ordered_work.h"

#include <QThread>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace tools {
namespace {

class Queue
{
public:
    Queue(int count, int ahead) : m_count(count), m_results(std::size_t(ahead)) {}

    /// The next index to work on; nothing when there is none or the work was stopped.
    std::optional<int> take()
    {
        std::unique_lock lock(m_mutex);
        m_room.wait(lock, [this] { return m_isStopped || m_next == m_count || hasRoom(); });
        if (m_isStopped || m_next == m_count)
            return std::nullopt;
        return m_next++;
    }

    void put(int index, Result result)
    {
        const std::lock_guard lock(m_mutex);
        slot(index) = std::move(result);
        if (index == m_delivered)
            m_ready.notify_one();
    }

    /// Waits for the result whose turn it is.
    Result next()
    {
        std::unique_lock lock(m_mutex);
        std::optional<Result>& result = slot(m_delivered);
        m_ready.wait(lock, [&result] { return result.has_value(); });
        Result taken = std::move(*result);
        result.reset();
        ++m_delivered;
        m_room.notify_one();
        return taken;
    }

    /// Returns how many were begun.
    int stop()
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
        m_room.notify_all();
        return m_next;
    }

private:
    bool hasRoom() const { return m_next - m_delivered < int(m_results.size()); }
    std::optional<Result>& slot(int index)
    {
        return m_results[std::size_t(index) % m_results.size()];
    }

    const int m_count;
    std::mutex m_mutex;
    std::condition_variable m_room;
    std::condition_variable m_ready;
    std::vector<std::optional<Result>> m_results;
    int m_next = 0;
    int m_delivered = 0;
    bool m_isStopped = false;
};

} // namespace

void inOrder(int count, int jobs, const std::function<Work()>& makeWork,
             const std::function<bool(int index, const Result&)>& deliver)
{
    constexpr int aheadOfEach = 16;
    jobs = std::min(jobs, count);
    if (jobs == 0)
        return;
    Queue queue(count, jobs * aheadOfEach);
    // Of Qt's kind, since the work is done with Qt: on Windows any other thread is watched by one
    // of Qt's own, which may still be ending when the program does.
    std::vector<std::unique_ptr<QThread>> threads;
    threads.reserve(std::size_t(jobs));
    for (int i = 0; i < jobs; ++i) {
        threads.emplace_back(QThread::create([&queue, work = makeWork()] {
            while (const std::optional<int> index = queue.take())
                queue.put(*index, work(*index));
        }));
        threads.back()->start();
    }
    int begun = count;
    for (int index = 0; index < begun; ++index) {
        if (!deliver(index, queue.next()))
            begun = queue.stop();
    }
    for (const auto& thread : threads)
        thread->wait();
}

} // namespace tools
