#include "colorizer/jpeg_scans.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <span>
#include <thread>

#include "colorizer/jpeg_output.h"

namespace colorizer {

namespace {

using Bytes = std::span<const std::uint8_t>;

// Markers have two bytes (ITU-T T.81, table B.1), of which the second tells them apart.
constexpr std::size_t kMarkerLength = 2;
constexpr int kDht = 0xC4, kSos = 0xDA;

/// Appends the tables and the data of a file's only scan. The file is the library's own and whole.
void AppendScan(Bytes file, JpegOutput& output) {
    std::size_t at = kMarkerLength;
    for (int marker = 0; marker != kSos;) {
        marker = file[at + 1];
        const std::size_t length = kMarkerLength + (std::size_t{file[at + 2]} << 8 | file[at + 3]);
        // The frame and the restart interval stand before the first scan.
        if (marker == kDht || marker == kSos) output.Append(file.subspan(at, length));
        at += length;
    }
    output.Append(file.subspan(at, file.size() - at - kMarkerLength));
}

JpegBytes Join(const JpegPicture& picture, const std::vector<JpegBytes>& files) {
    std::size_t size = picture.markers.size() + picture.trailing.size();
    for (const JpegBytes& file : files)
        size += file.size();
    JpegOutput joined(size);
    const Bytes first = files[0];
    joined.Append(first.first(kMarkerLength));
    joined.Append(picture.markers);
    joined.Append(first.subspan(kMarkerLength, first.size() - 2 * kMarkerLength));
    for (std::size_t scan = 1; scan < files.size(); ++scan)
        AppendScan(files[scan], joined);
    joined.Append(first.last(kMarkerLength));
    joined.Append(picture.trailing);
    return joined.TakeBytes();
}

}  // namespace

JpegBytes EncodeScans(const JpegPicture& picture, std::size_t scanCount,
                      const std::function<JpegBytes(std::size_t scan)>& encode) {
    std::vector<JpegBytes> files(scanCount);
    // The last scans have the lowest bits, and take the longest: they begin first.
    std::atomic<std::size_t> left = scanCount;
    const auto work = [&] {
        for (std::size_t scan = left--; scan > 0 && scan <= scanCount; scan = left--)
            files[scan - 1] = encode(scan - 1);
    };
    const std::size_t threads =
        std::min<std::size_t>(scanCount, std::max(1u, std::thread::hardware_concurrency()));
    std::vector<std::future<void>> others;
    for (std::size_t thread = 1; thread < threads; ++thread) {
        // Deferred only where no more threads can be had.
        others.push_back(std::async(std::launch::async | std::launch::deferred, work));
    }
    work();
    for (std::future<void>& other : others)
        other.get();
    return Join(picture, files);
}

}  // namespace colorizer
