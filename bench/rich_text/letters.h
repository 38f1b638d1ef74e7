#pragma once

#include <cstddef>
#include <string>

// The same text of an ordinary letter, again and again: paragraphs of prose with runs, in two formats.
struct Letters {
  std::string rtf;
  std::string html;
};

Letters MakeLetters(std::size_t rtf_bytes);
