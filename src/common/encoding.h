#pragma once
// Text at the file boundary. Mission files and the export are Windows-1252; everything in
// memory and in the reference database is UTF-8.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

// UTF-8 to Windows-1252 bytes. A character the code page lacks, and each byte of a broken
// UTF-8 sequence, becomes "?".
std::string Utf8ToCp1252(std::string_view text);

// Windows-1252 bytes to UTF-8. The five bytes the code page leaves undefined map to the
// control characters of the same number, so they survive a round trip.
std::string Cp1252ToUtf8(std::string_view bytes);

// The UTF-8 bytes of a code point.
void AppendUtf8(std::string& out, char32_t codePoint);

// The code point of the UTF-8 sequence at text[i], moving i past it. A broken sequence is
// false, with i moved past its first byte.
bool NextCodePoint(std::string_view text, size_t& i, char32_t& codePoint);

// Where the line that goes on at `from` ends: the first CR or LF from there, or the size.
std::size_t LineEndAt(std::string_view text, std::size_t from);
// Where the next line starts after a line end at `end` (one or two characters on).
std::size_t NextLineAt(std::string_view text, std::size_t end);

// The lines of a text: CR LF, a lone LF and a lone CR each end a line. A line end at the very
// end starts no further line, so "a\r\n" is one line and "" none.
std::vector<std::string> SplitLines(std::string_view text);

// The lines of a Windows-1252 text read from an open file in pieces of bounded size, each
// converted to UTF-8 as it is read, with the line ends of SplitLines: the memory it takes is
// that of the longest line, whatever the size of the file.
class LineReader {
  public:
    enum class Status { Line, End, TooLong, ReadError };

    LineReader() = default;  // no text: at its end at once
    // Takes the descriptor, which it closes.
    explicit LineReader(int fd);
    ~LineReader();
    LineReader(LineReader&& other) noexcept;
    LineReader& operator=(LineReader&& other) noexcept;
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    // The next line into `line`. A line that grows beyond `maxBytes` ends the reading with
    // TooLong; a failing read with ReadError (errno tells why).
    Status Next(std::string& line, std::size_t maxBytes);

  private:
    bool Fill();
    void Release() noexcept;

    int fd_ = -1;
    std::vector<char> buffer_;
    std::size_t pos_ = 0;
    std::size_t size_ = 0;
    bool skipLineFeed_ = false;  // the last line ended in CR: a LF straight behind belongs to it
    bool failed_ = false;
};

}  // namespace tarvex
