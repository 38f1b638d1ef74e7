// tarvane-make-shop FILE [JOBS]: fills a jobs file for trials of size; 1,000,000 jobs where no number is
// told.
#include <cstdio>
#include <cstdlib>

#include "store/make_shop/make_shop.h"
#include "text/fault.h"

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fprintf(stderr, "tarvane-make-shop FILE [JOBS]\n");
    return 2;
  }
  const std::int64_t jobs = argc == 3 ? std::strtoll(argv[2], nullptr, 10) : 1'000'000;
  try {
    tarvane::MakeShop(argv[1], jobs);
  } catch (const tarvane::Fault& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  std::printf("%s holds %lld more jobs.\n", argv[1], static_cast<long long>(jobs));
  return 0;
}
