#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "text_number/text_number.h"

// Each function beside the library call that it is held against, over the same typical shop values.
namespace tarvane {
namespace {

constexpr std::size_t kValues = 4096;

// Measurements in inches and centimetres, quantities, prices and what comes of multiplying them.
std::vector<double> ShopValues() {
  std::mt19937_64 dice(1);
  std::vector<double> values;
  while (values.size() < kValues) {
    const auto cents = static_cast<double>(dice() % 500000);
    const double inches = static_cast<double>(dice() % 2400) / 8;
    switch (dice() % 5) {
      case 0:
        values.push_back(inches);
        break;
      case 1:
        values.push_back(inches * 2.54);
        break;
      case 2:
        values.push_back(static_cast<double>(dice() % 40));
        break;
      case 3:
        values.push_back(cents / 100);
        break;
      default:
        values.push_back(cents / 100 * inches / 39.5);
        break;
    }
  }
  return values;
}

// Money: prices as typed, and products with three or four decimals that are still to be rounded.
std::vector<double> MoneyValues() {
  std::mt19937_64 dice(2);
  std::vector<double> values;
  while (values.size() < kValues) {
    const auto amount = static_cast<double>(dice() % 5000000);
    values.push_back(amount / std::pow(10.0, static_cast<double>(2 + dice() % 3)));
  }
  return values;
}

std::vector<std::string> Texts(const std::vector<double>& values) {
  std::vector<std::string> texts;
  for (const double value : values) texts.push_back(NumberText(value));
  return texts;
}

template <typename Item, typename Step>
void Run(benchmark::State& state, const std::vector<Item>& items, Step step) {
  for (auto _ : state) {
    for (const Item& item : items) step(item);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items.size()));
}

void LibraryToChars(double value) {
  char text[32];
  auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 15);
  benchmark::DoNotOptimize(result);
  benchmark::DoNotOptimize(text);
}

void LibraryFromChars(const std::string& text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  benchmark::DoNotOptimize(value);
}

void Yardstick_ToChars_Shop(benchmark::State& state) { Run(state, ShopValues(), LibraryToChars); }
void NumberText_Shop(benchmark::State& state) {
  Run(state, ShopValues(), [](double value) { benchmark::DoNotOptimize(NumberText(value)); });
}
void Yardstick_FromChars_Shop(benchmark::State& state) { Run(state, Texts(ShopValues()), LibraryFromChars); }
void ParseLeading_Shop(benchmark::State& state) {
  Run(state, Texts(ShopValues()),
      [](const std::string& text) { benchmark::DoNotOptimize(ParseLeading(text)); });
}
void Yardstick_ToChars_Money(benchmark::State& state) { Run(state, MoneyValues(), LibraryToChars); }
void Format2_Money(benchmark::State& state) {
  Run(state, Texts(MoneyValues()), [](const std::string& text) { benchmark::DoNotOptimize(Format2(text)); });
}
void FormatNumber_Money(benchmark::State& state) {
  Run(state, MoneyValues(), [](double value) { benchmark::DoNotOptimize(FormatNumber(value, Mask::k0_00)); });
}
void RoundToWhole_Shop(benchmark::State& state) {
  Run(state, Texts(ShopValues()),
      [](const std::string& text) { benchmark::DoNotOptimize(RoundToWhole(text)); });
}

BENCHMARK(Yardstick_ToChars_Shop);
BENCHMARK(NumberText_Shop);
BENCHMARK(Yardstick_FromChars_Shop);
BENCHMARK(ParseLeading_Shop);
BENCHMARK(Yardstick_ToChars_Money);
BENCHMARK(Format2_Money);
BENCHMARK(FormatNumber_Money);
BENCHMARK(RoundToWhole_Shop);

}  // namespace
}  // namespace tarvane

BENCHMARK_MAIN();
