#pragma once

#include <string>
#include <string_view>

// Text on its way into a file: from UTF-8 to one-byte codes, and into the forms that the file wants it in.
// None of these faults, whatever the bytes.
namespace tarvane::pdf {

// `utf8` in WinAnsi codes. What has no place there, broken UTF-8 included, becomes "?".
std::string ToWinAnsi(std::string_view utf8);

// `utf8` in PDFDocEncoding, which readers take information entries and bookmarks for. A hard blank becomes a
// blank and a soft hyphen a hyphen; what else has no place there becomes "?".
std::string ToPdfDoc(std::string_view utf8);

// `utf8` as an address of ASCII alone: what an address may not hold is written "%xx", byte by byte.
std::string ToUri(std::string_view utf8);

// Page text between the brackets of a show operator: a backslash becomes four, "(" and ")" get one in front.
std::string EscapePageText(std::string_view codes);
// The same with two for a backslash, as readers understand one.
std::string EscapeString(std::string_view codes);

// Text between the brackets of an information entry, a bookmark or an address. It goes as it is; only where
// it holds a backslash or brackets that don't pair, which would break the file, is it escaped.
std::string StringBody(std::string_view codes);

// A name behind "/": as it is, but for characters that would end the name, which are written "#xx".
std::string NameBody(std::string_view text);

}  // namespace tarvane::pdf
