#pragma once

#include <new>
#include <stdexcept>
#include <string>

namespace morpho {

// Numbers of the run-time errors that the program raises or distinguishes. They are the classic
// Basic numbers, because the log shows them and the editors compare with them at start-up.
enum class ErrorNumber : int {
    kInvalidCall = 5,
    kOverflow = 6,
    kOutOfMemory = 7,
    kTypeMismatch = 13,
    kInternal = 51,
    kFileNotFound = 53,
    kDeviceIo = 57,
    kFileExists = 58,
    kDiskFull = 61,
    kPermissionDenied = 70,
    kPathFileAccess = 75,
    kPathNotFound = 76,
    kObjectNotSet = 91,
    kInvalidFileFormat = 321,
    kCannotCreateComponent = 429,
    kAutomation = 440,
    kInvalidPicture = 481,
};

// The exception of every operation of the platform. The text is one sentence for a person, UTF-8.
class RunTimeError : public std::runtime_error {
  public:
    RunTimeError(ErrorNumber number, const std::string& text)
        : std::runtime_error(text), number_(number) {}

    ErrorNumber Number() const { return number_; }

  private:
    ErrorNumber number_;
};

// Any exception as a RunTimeError; those of the standard library get a number too.
inline RunTimeError AsRunTimeError(const std::exception& error) {
    if (const auto* own = dynamic_cast<const RunTimeError*>(&error)) return *own;
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
        return {ErrorNumber::kOutOfMemory, "Out of memory"};
    return {ErrorNumber::kInternal, error.what()};
}

}  // namespace morpho
