#include "colorizer/jpeg_pass.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>
#include <system_error>
#include <thread>

#include "colorizer/jpeg_reader.h"
#include "colorizer/recolor_jpeg.h"

namespace colorizer {

namespace {

/// Hands rows over from the thread that reads them to the one that writes them, in rows of MCUs.
class RowRelay {
  public:
    /// For the reader: it fills the MCU row of `rows`, so those above are done.
    class Reading : public RowPreparation {
      public:
        explicit Reading(RowRelay& relay) : relay_(relay) {}
        bool Prepare(const JpegComponent& component, std::size_t rows) override {
            const std::size_t done = (rows - 1) / static_cast<std::size_t>(component.vertical);
            if (done >= lastTold_ + kRowsAtOnce) relay_.Tell(lastTold_ = done);
            return !relay_.isStopped_;
        }

      private:
        static constexpr std::size_t kRowsAtOnce = 8;  // to wake the other thread less often
        RowRelay& relay_;
        std::size_t lastTold_ = 0;
    };

    /// For the writer: waits for the rows before `next` prepares them.
    class Writing : public RowPreparation {
      public:
        Writing(RowRelay& relay, RowPreparation& next) : relay_(relay), next_(next) {}
        bool Prepare(const JpegComponent& component, std::size_t rows) override {
            const auto perMcu = static_cast<std::size_t>(component.vertical);
            relay_.WaitFor((rows + perMcu - 1) / perMcu);
            return !relay_.isStopped_ && next_.Prepare(component, rows);
        }

      private:
        RowRelay& relay_;
        RowPreparation& next_;
    };

    void Tell(std::size_t rowsDone) {
        rowsDone_ = rowsDone;
        rowsDone_.notify_one();
    }
    void Finish() { Tell(std::numeric_limits<std::size_t>::max()); }
    void Stop() {
        isStopped_ = true;
        Finish();
    }
    bool IsStopped() const { return isStopped_; }

  private:
    void WaitFor(std::size_t rows) {
        for (std::size_t done = rowsDone_; done < rows; done = rowsDone_)
            rowsDone_.wait(done);
    }

    std::atomic<std::size_t> rowsDone_ = 0;
    std::atomic<bool> isStopped_ = false;
};

/// Reads in another thread while `write` runs, which gets what it has to ask for rows.
template <class Write>
void ReadWhileWriting(JpegReader& reader, RowPreparation& preparation, const Write& write) {
    RowRelay relay;
    std::exception_ptr readFailure;
    const auto read = [&] {
        RowRelay::Reading reading(relay);
        try {
            reader.ReadCoefficients(&reading);
            relay.Finish();
        } catch (...) {
            readFailure = std::current_exception();
            relay.Stop();
        }
    };
    std::thread thread;
    try {
        thread = std::thread(read);
    } catch (const std::system_error&) {  // no thread to be had
        read();
    }
    RowRelay::Writing writing(relay, preparation);
    std::exception_ptr writeFailure;
    try {
        write(writing);
    } catch (...) {  // also when the reader has stopped
        writeFailure = std::current_exception();
    }
    const bool hasReadFailed = relay.IsStopped();
    if (writeFailure) relay.Stop();
    if (thread.joinable()) thread.join();
    if (hasReadFailed) std::rethrow_exception(readFailure);
    if (writeFailure) std::rethrow_exception(writeFailure);
}

}  // namespace

std::vector<std::uint8_t> RecolorJpeg(JpegPicture& picture, const ColourMap& map,
                                      std::optional<int> quality, std::size_t sizeHint) {
    JpegRecoloring recoloring(picture, map, quality);
    return WriteJpeg(picture, recoloring, sizeHint);
}

std::vector<std::uint8_t> RecolorJpeg(std::span<const std::uint8_t> file, const ColourMap& map,
                                      std::optional<int> quality, JpegPicture& picture) {
    JpegReader reader(file, picture);
    if (!reader.HasOneScan() || !IsWorthThreads(picture.components[0])) {
        reader.ReadCoefficients(nullptr);
        return RecolorJpeg(picture, map, quality, file.size());
    }
    JpegRecoloring recoloring(picture, map, quality);
    std::vector<std::uint8_t> encoded;
    ReadWhileWriting(reader, recoloring, [&](RowPreparation& rows) {
        encoded = WriteJpeg(picture, rows, file.size());
    });
    return encoded;
}

}  // namespace colorizer
