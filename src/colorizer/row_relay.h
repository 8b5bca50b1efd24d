#pragma once

#include <atomic>
#include <condition_variable>
#include <exception>
#include <limits>
#include <mutex>
#include <system_error>
#include <thread>

#include "colorizer/jpeg_picture.h"

namespace colorizer {

/// Lets one thread follow another through a picture, some rows of MCUs behind it. (A mutex and a
/// condition: the waiting of std::atomic misses notifications in g++ 12 for Windows.)
class RowRelay {
  public:
    /// The first `rowsDone` rows of MCUs are done.
    void Tell(std::size_t rowsDone) {
        {
            const std::lock_guard lock(mutex_);
            rowsDone_ = rowsDone;
        }
        changed_.notify_one();
    }
    void Finish() { Tell(std::numeric_limits<std::size_t>::max()); }
    /// Ends the work of both.
    void Stop() {
        isStopped_ = true;
        Finish();
    }
    bool IsStopped() const { return isStopped_; }
    void WaitFor(std::size_t rows) {
        if (rows <= known_) return;
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return rows <= rowsDone_; });
        known_ = rowsDone_;
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t rowsDone_ = 0;
    std::size_t known_ = 0;  ///< to the thread that waits
    std::atomic<bool> isStopped_ = false;
};

/// For the thread ahead: it fills the last of the rows that it asks for, so those above are done.
class TellRows : public RowPreparation {
  public:
    explicit TellRows(RowRelay& relay) : relay_(relay) {}
    bool Prepare(const JpegComponent& component, std::size_t rows) override {
        const std::size_t done = (rows - 1) / static_cast<std::size_t>(component.vertical);
        if (done >= lastTold_ + kRowsAtOnce) relay_.Tell(lastTold_ = done);
        return !relay_.IsStopped();
    }

  private:
    static constexpr std::size_t kRowsAtOnce = 8;  // to wake the other thread less often
    RowRelay& relay_;
    std::size_t lastTold_ = 0;
};

/// The same for one scan of several: tells the rows of the component's scan `number`, from 1.
class TellRowsOfScan : public RowPreparation {
  public:
    TellRowsOfScan(RowRelay& relay, const JpegComponent& component, std::size_t number)
        : relay_(relay), tellRows_(relay), component_(component), number_(number) {}
    bool Prepare(const JpegComponent& component, std::size_t rows) override {
        if (&component != &component_) return !relay_.IsStopped();
        if (rows <= lastRows_ || current_ == 0) ++current_;
        lastRows_ = rows;
        if (current_ > number_) relay_.Finish();
        return current_ == number_ ? tellRows_.Prepare(component, rows) : !relay_.IsStopped();
    }

  private:
    RowRelay& relay_;
    TellRows tellRows_;
    const JpegComponent& component_;
    std::size_t number_;
    std::size_t current_ = 0;
    std::size_t lastRows_ = 0;
};

/// For the thread that follows: waits for the rows before `next`, if any, prepares them.
class AwaitRows : public RowPreparation {
  public:
    explicit AwaitRows(RowRelay& relay, RowPreparation* next = nullptr)
        : relay_(relay), next_(next) {}
    bool Prepare(const JpegComponent& component, std::size_t rows) override {
        const auto perMcu = static_cast<std::size_t>(component.vertical);
        relay_.WaitFor((rows + perMcu - 1) / perMcu);
        return !relay_.IsStopped() && (!next_ || next_->Prepare(component, rows));
    }

  private:
    RowRelay& relay_;
    RowPreparation* next_;
};

/// Runs `ahead` in another thread while `behind` runs, which waits for its rows. When one throws,
/// the other is stopped; the exception is thrown on, that of `ahead` if it was the first.
template <class Ahead, class Behind>
void RunSideBySide(RowRelay& relay, const Ahead& ahead, const Behind& behind) {
    std::exception_ptr aheadFailure;
    const auto run = [&] {
        try {
            ahead();
            relay.Finish();
        } catch (...) {
            aheadFailure = std::current_exception();
            relay.Stop();
        }
    };
    std::thread thread;
    try {
        thread = std::thread(run);
    } catch (const std::system_error&) {  // no thread to be had
        run();
    }
    std::exception_ptr behindFailure;
    try {
        behind();
    } catch (...) {  // also when the thread ahead has stopped
        behindFailure = std::current_exception();
    }
    const bool hasAheadFailed = relay.IsStopped();
    if (behindFailure) relay.Stop();
    if (thread.joinable()) thread.join();
    if (hasAheadFailed) std::rethrow_exception(aheadFailure);
    if (behindFailure) std::rethrow_exception(behindFailure);
}

}  // namespace colorizer
