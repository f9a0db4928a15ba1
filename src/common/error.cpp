#include "common/error.h"

namespace tarvex {

AppError::AppError(int number, std::string description)
    : std::runtime_error(description), number_(number), description_(std::move(description)) {}

std::string StandardDescription(int number) {
    switch (number) {
        case kErrInvalidCall:
            return "Invalid procedure call or argument";
        case kErrOverflow:
            return "Overflow";
        case kErrSubscript:
            return "Subscript out of range";
        case kErrTypeMismatch:
            return "Type mismatch";
        case kErrOutOfStack:
            return "Out of stack space";
        case kErrFileNotFound:
            return "File not found";
        case kErrDiskFull:
            return "Disk full";
        case kErrPermissionDenied:
            return "Permission denied";
        case kErrPathAccess:
            return "Path/File access error";
        case kErrInvalidProperty:
            return "Invalid property value";
        case kErrNoCurrentRecord:
            return "No current record.";
        case kErrCancel:
            return "Cancel was selected.";
        default:
            return {};
    }
}

void Raise(int number, const std::string& description) {
    throw AppError(number, description.empty() ? StandardDescription(number) : description);
}

}  // namespace tarvex
