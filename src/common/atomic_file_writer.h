#pragma once
// Replacing a file whole or not at all. The bytes go to a temporary file in the target's
// folder, which is renamed over the target once everything is on disk; until then the
// previous file stays as it was, and a failure removes the temporary file again.
#include <cstdio>
#include <string>
#include <string_view>

namespace tarvex {

class AtomicFileWriter {
  public:
    // Creates the temporary file. A target that is a folder or a read-only file, or a folder
    // that can't take a new file, raises error 75 "Path/File access error" (70 "Permission
    // denied" when the system refuses access), before anything is written.
    explicit AtomicFileWriter(std::string target);
    ~AtomicFileWriter();
    AtomicFileWriter(const AtomicFileWriter&) = delete;
    AtomicFileWriter& operator=(const AtomicFileWriter&) = delete;

    void Write(std::string_view bytes);

    // Flushes the bytes to disk, closes the temporary file and renames it over the target.
    // On a failure the error is raised and the target is untouched.
    void Commit();

    const std::string& TemporaryPath() const { return temp_; }

  private:
    void Discard() noexcept;

    std::string target_;
    std::string temp_;
    std::FILE* file_ = nullptr;
    bool committed_ = false;
};

// The whole of a file in one call.
void WriteFileAtomically(const std::string& target, std::string_view bytes);

}  // namespace tarvex
