#include "store/text_functions.h"

#include <compare>
#include <memory>

#include "store/like_pattern.h"
#include "text/fold.h"

namespace tarvane {

namespace {

int CompareTexts(void*, int left_size, const void* left, int right_size, const void* right) {
  const auto order = CompareFolded({static_cast<const char*>(left), static_cast<std::size_t>(left_size)},
                                   {static_cast<const char*>(right), static_cast<std::size_t>(right_size)});
  return std::is_lt(order) ? -1 : (std::is_gt(order) ? 1 : 0);
}

std::string_view ValueText(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

// The pattern is read once a statement, not once a row.
void LikeInSql(sqlite3_context* context, int, sqlite3_value** values) {
  auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 1));
  if (pattern == nullptr) {
    auto made = std::make_unique<LikePattern>(ValueText(values[1]));
    sqlite3_result_int(context, made->Matches(ValueText(values[0])) ? 1 : 0);
    sqlite3_set_auxdata(context, 1, made.release(),
                        [](void* old) { std::unique_ptr<LikePattern>(static_cast<LikePattern*>(old)); });
    return;
  }
  sqlite3_result_int(context, pattern->Matches(ValueText(values[0])) ? 1 : 0);
}

}  // namespace

int RegisterTextFunctions(sqlite3* handle) {
  const int code = sqlite3_create_collation_v2(handle, kFoldedCollation.data(), SQLITE_UTF8, nullptr,
                                               CompareTexts, nullptr);
  if (code != SQLITE_OK) return code;
  return sqlite3_create_function_v2(handle, kLikeFunction.data(), 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                    nullptr, LikeInSql, nullptr, nullptr, nullptr);
}

}  // namespace tarvane
