#pragma once
// Text at the file boundary. Mission files and the export are Windows-1252; everything in
// memory and in the reference database is UTF-8.
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

// The lines of a text: CR LF, a lone LF and a lone CR each end a line. A line end at the very
// end starts no further line, so "a\r\n" is one line and "" none.
std::vector<std::string> SplitLines(std::string_view text);

}  // namespace tarvex
