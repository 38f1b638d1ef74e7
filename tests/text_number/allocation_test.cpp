#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "text_number/text_number.h"

namespace {

int allocations = 0;

}  // namespace

// This program counts what it takes from the heap.
void* operator new(std::size_t size) {
  ++allocations;
  if (void* const place = std::malloc(size > 0 ? size : 1)) return place;
  throw std::bad_alloc();
}
void operator delete(void* place) noexcept { std::free(place); }
void operator delete(void* place, std::size_t) noexcept { std::free(place); }

namespace tarvane {
namespace {

template <typename Step>
int AllocationsOf(Step step) {
  const int before = allocations;
  step();
  return allocations - before;
}

TEST(Allocation, IsCounted) {
  EXPECT_GT(AllocationsOf([] { NumberText(1e300); }), 0);
}

TEST(Allocation, NoneWhereTheResultIsShort) {
  const std::string long_money = "1234567.89" + std::string(200, '0');
  EXPECT_EQ(AllocationsOf([] { NumberText(-1234567.89); }), 0);
  EXPECT_EQ(AllocationsOf([] { NumberText(1e-9); }), 0);
  EXPECT_EQ(AllocationsOf([] { Format2("1234567.895"); }), 0);
  EXPECT_EQ(AllocationsOf([] { Format2("blank"); }), 0);
  EXPECT_EQ(AllocationsOf([&] { Format2(long_money); }), 0);
  EXPECT_EQ(AllocationsOf([] { FormatNumber(1234567.895, Mask::k0_000); }), 0);
}

TEST(Allocation, NoneToReadANumber) {
  const std::string long_number = " 1 " + std::string(2000, '7') + " e-1 900 cm";
  double sum = 0;
  EXPECT_EQ(AllocationsOf([&] { sum += ParseLeading(long_number); }), 0);
  EXPECT_EQ(AllocationsOf([&] { sum += ParseStrict(" 12.5 "); }), 0);
  EXPECT_EQ(AllocationsOf([&] { sum += RoundToWhole("12.5"); }), 0);
  EXPECT_GT(sum, 24);
}

}  // namespace
}  // namespace tarvane
