#pragma once
// The program's one error type: a number and a description, as the load and save reports
// and the message boxes print them ("Error [n]").
#include <stdexcept>
#include <string>

namespace tarvex {

// The classic error numbers that reports rely on.
enum ErrorNumber : int {
    kErrInvalidCall = 5,
    kErrOverflow = 6,
    kErrSubscript = 9,
    kErrTypeMismatch = 13,
    kErrOutOfStack = 28,
    kErrFileNotFound = 53,
    kErrDiskFull = 61,
    kErrPermissionDenied = 70,
    kErrPathAccess = 75,
    kErrInvalidProperty = 380,
    kErrNoCurrentRecord = 3021,
    kErrSqlFailed = 3075,
    kErrCancel = 32755,
};

class AppError : public std::runtime_error {
  public:
    AppError(int number, std::string description);
    int Number() const { return number_; }
    const std::string& Description() const { return description_; }

  private:
    int number_;
    std::string description_;
};

// The standard description of a classic error number; empty for numbers without one.
std::string StandardDescription(int number);

// Throws the error with its standard description (or the given one when not empty).
[[noreturn]] void Raise(int number, const std::string& description = {});

}  // namespace tarvex
