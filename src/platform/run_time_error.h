#pragma once

#include <stdexcept>
#include <string>

namespace morpho {

// Numbers of the run-time errors that the program raises or tells apart. They are the classic Basic
// numbers, because the log and the start-up of the editors name them.
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

// What every operation of the platform throws when it fails. The text is one sentence for a person,
// UTF-8.
class RunTimeError : public std::runtime_error {
  public:
    RunTimeError(ErrorNumber number, const std::string& text)
        : std::runtime_error(text), number_(number) {}

    ErrorNumber Number() const { return number_; }

  private:
    ErrorNumber number_;
};

}  // namespace morpho
