#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace tarvane::catalogues {

// A packed file in memory, which must outlive this. Whatever its directory says of sizes, nothing larger than
// price_limit::kUnpackedBytes is ever unpacked.
class ZipParts {
 public:
  static bool IsZip(std::string_view bytes);

  // Faults (the cause alone) where the directory doesn't hold together, a part is protected, or the parts
  // unpack to more than they may.
  explicit ZipParts(std::string_view bytes);

  bool Has(std::string_view part) const { return parts_.contains(part); }
  // "" where there is no such part. Faults where it can't be unpacked.
  std::string Read(std::string_view part) const;

 private:
  struct Part {
    std::string_view packed;
    std::size_t size = 0;
    bool plain = false;
  };
  std::size_t AddEntry(std::string_view bytes, std::size_t at);

  std::map<std::string, Part, std::less<>> parts_;
};

}  // namespace tarvane::catalogues
