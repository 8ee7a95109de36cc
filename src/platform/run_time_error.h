// A failure of the machine: a number and a text. It is thrown; what is wrong with a notice never is.
#pragma once

#include <string>

namespace zamo {

enum ErrorNumber : int {
  kInvalidArgument = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kIndexOutOfRange = 9,
  kTypeMismatch = 13,
  kInternalError = 51,
  kFileNotFound = 53,
  kDeviceError = 57,
  kDiskFull = 61,
  kPermissionDenied = 70,
};

struct RunTimeError {
  int number = 0;
  std::string text;
};

// Whether the operating system gave it for a file, when that was opened, read or written.
constexpr bool isFileError(int number) {
  return number == kFileNotFound || number == kDeviceError || number == kDiskFull ||
         number == kPermissionDenied;
}

// The error of a failed system call on `path`, from the system's own number.
RunTimeError fileError(int systemError, const std::string& path);

// What is being handled, for use in a handler of everything: also memory that ran out and what a library
// throws.
RunTimeError presentError();

}  // namespace zamo
