// SPDX-License-Identifier: MIT
#include "tools/ordered_work.h"

#include <QFuture>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <QtConcurrentRun>

#include <deque>
#include <memory>
#include <vector>

namespace tools {

int threadsToBeHad(int wanted)
{
    QSemaphore end;
    std::vector<std::unique_ptr<QThread>> threads;
    while (int(threads.size()) < wanted) {
        threads.emplace_back(QThread::create([&end] { end.acquire(); }));
        threads.back()->start();
        if (!threads.back()->isRunning()) {
            threads.pop_back();
            break;
        }
    }
    end.release(int(threads.size()));
    for (const auto& thread : threads)
        thread->wait();
    return int(threads.size());
}

void inOrder(int count, int threads, const Work& work,
             const std::function<bool(int index, const Result&)>& deliver)
{
    // Qt scales pictures in this pool, too, unless one of its threads asks for it.
    QThreadPool* const pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(threads);
    pool->setExpiryTimeout(-1); // the threads that could be had stay
    constexpr int aheadOfEach = 16;
    std::deque<QFuture<Result>> begun;
    int next = 0;
    for (int index = 0; index < count; ++index) {
        for (; next < count && next - index < threads * aheadOfEach; ++next)
            begun.push_back(QtConcurrent::run(pool, work, next));
        const Result result = begun.front().result();
        begun.pop_front();
        if (!deliver(index, result))
            count = next;
    }
}

} // namespace tools
