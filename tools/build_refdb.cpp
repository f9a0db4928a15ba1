// Creates a reference database file from SQL scripts: tarvex-build-refdb OUT.mdb SCRIPT...
// The file is written under a temporary name and renamed at the end, so a failed build never
// leaves a half-filled database behind.
#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: tarvex-build-refdb OUT.mdb SCRIPT.sql...\n");
        return 64;
    }
    const std::filesystem::path out = argv[1];
    const std::filesystem::path tmp = out.string() + ".building";
    std::error_code ec;
    std::filesystem::create_directories(out.parent_path(), ec);
    std::filesystem::remove(tmp, ec);

    sqlite3* db = nullptr;
    if (sqlite3_open(tmp.string().c_str(), &db) != SQLITE_OK) {
        std::fprintf(stderr, "tarvex-build-refdb: cannot create %s\n", tmp.string().c_str());
        return 1;
    }
    bool ok = sqlite3_exec(db, "PRAGMA foreign_keys=ON;", nullptr, nullptr, nullptr) == SQLITE_OK;
    for (int i = 2; ok && i < argc; ++i) {
        std::ifstream in(argv[i], std::ios::binary);
        if (!in) {
            std::fprintf(stderr, "tarvex-build-refdb: cannot read %s\n", argv[i]);
            ok = false;
            break;
        }
        std::stringstream text;
        text << in.rdbuf();
        char* message = nullptr;
        if (sqlite3_exec(db, text.str().c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
            std::fprintf(stderr, "tarvex-build-refdb: %s: %s\n", argv[i],
                         message ? message : "unknown error");
            sqlite3_free(message);
            ok = false;
        }
    }
    sqlite3_close(db);
    if (ok) std::filesystem::rename(tmp, out, ec);
    if (!ok || ec) {
        std::filesystem::remove(tmp, ec);
        return 1;
    }
    return 0;
}
