#pragma once
// Reading a whole file at once, for the passes over many files in a row.
#include <string>
#include <string_view>

namespace tarvex {

// The bytes of the file at `path` (UTF-8). `storage` holds them and is kept from call to
// call: it only grows, so a run over many files allocates nothing after the largest one. A
// missing file raises error 53 "File not found", a refused one 70 "Permission denied", any
// other failure (a folder, a read error) 75 "Path/File access error".
std::string_view ReadFileBytes(const std::string& path, std::string& storage);

// The files of one folder read one after the other by name: the folder is looked up once,
// not again for every file.
class FolderReader {
  public:
    explicit FolderReader(std::string folder);
    ~FolderReader();
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;

    // ReadFileBytes of the folder's file of that name.
    std::string_view Read(const std::string& name, std::string& storage);

  private:
    std::string folder_;
    int handle_ = -1;
};

}  // namespace tarvex
