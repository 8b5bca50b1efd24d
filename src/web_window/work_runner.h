#pragma once

#include <QObject>
#include <atomic>
#include <cstddef>
#include <functional>

#include "web_host/long_work.h"

class QProgressBar;

namespace morpho {

// Runs long work of the host on a thread of its own. Meanwhile the program's windows paint, and
// take no input: whoever called waits for the work.
class WorkRunner : public QObject {
    Q_OBJECT

  public:
    // The bar shows how far the work has come, once it takes longer than a moment.
    explicit WorkRunner(QProgressBar& bar);
    ~WorkRunner() override;

    // Work that is run by work runs at once, on its thread. What the work throws is thrown on.
    void Run(const std::function<void()>& work);
    bool IsRunning() const { return isRunning_; }
    // For DiskApplication; this object must outlive it.
    LongWork ForHost();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Called on the thread of the work.
    void Advance(std::size_t done, std::size_t found);
    void ShowProgress();

    QProgressBar& bar_;
    bool isRunning_ = false;
    std::atomic<std::size_t> pagesDone_ = 0;
    std::atomic<std::size_t> pagesFound_ = 0;
    std::atomic<bool> isProgressPosted_ = false;
};

}  // namespace morpho
