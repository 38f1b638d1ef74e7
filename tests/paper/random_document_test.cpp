#include "paper/random_document.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvane::paper {
namespace {

TEST(Documents, HaveEachCharacterOnTheirPagesOnce) {
  std::mt19937 dice(7);
  for (int document = 0; document < 1500; ++document) {
    std::string bytes;
    const std::size_t length = 20 + dice() % 600;
    const bool wild = document % 2 == 0;
    while (bytes.size() < length) {
      const unsigned byte = dice() % 256;
      const bool word = bytes.size() > 20 && (!wild || byte % 3 != 0);
      bytes += static_cast<char>(word ? (byte % 6 == 0 ? ' ' : 'a' + byte % 26) : byte);
    }
    ASSERT_TRUE(PlacesEachCharacterOnce(DocumentOf(bytes))) << document;
  }
}

}  // namespace
}  // namespace tarvane::paper
