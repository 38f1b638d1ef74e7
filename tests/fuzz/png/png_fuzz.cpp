// Any bytes as a PNG file, the same with the sums of its chunks set right, and as the head and rows of a
// picture: what is read has as many pixels as it says.
#include <zlib.h>

#include <string>
#include <vector>

#include "fuzz/require.h"
#include "paper/png_file.h"

namespace tarvane {
namespace {

constexpr std::size_t kMostBytes = 1 << 24;  // that a picture is unpacked to here

std::string Number(std::size_t number) {
  std::string bytes;
  for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

std::string Chunk(const std::string& kind, std::string_view data) {
  std::string chunk = kind + std::string(data);
  const auto sum = crc32(0, reinterpret_cast<const Bytef*>(chunk.data()), static_cast<uInt>(chunk.size()));
  return Number(data.size()) + chunk + Number(sum);
}

std::string WithSums(std::string_view file) {
  std::string mended(file.substr(0, 8));
  file.remove_prefix(mended.size());
  while (file.size() >= 8) {
    std::size_t length = 0;
    for (const char c : file.substr(0, 4)) length = length << 8 | static_cast<unsigned char>(c);
    if (length > file.size() - 8) break;
    mended += Chunk(std::string(file.substr(4, 4)), file.substr(8, length));
    file.remove_prefix(std::min(length + 12, file.size()));
  }
  return mended;
}

std::string Packed(std::string_view bytes) {
  uLongf size = compressBound(bytes.size());
  std::string packed(size, '\0');
  compress(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(bytes.data()),
           bytes.size());
  packed.resize(size);
  return packed;
}

// Width, height, depth, kind of colour, interlaced, length of the palette and of the transparency; then those
// and the rows.
std::string Made(std::string_view bytes) {
  const auto next = [&bytes]() -> std::size_t {
    const std::size_t byte = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 1));
    return byte;
  };
  const auto take = [&bytes](std::size_t length) {
    const std::string_view taken = bytes.substr(0, length);
    bytes.remove_prefix(taken.size());
    return taken;
  };
  std::string head = Number(next());
  head += Number(next());
  head += static_cast<char>(1 << next() % 5);
  head += static_cast<char>(next() % 7);
  head += std::string(2, '\0') + static_cast<char>(next() % 2);
  const std::size_t palette = next() * 3;
  const std::size_t transparency = next();
  std::string file = "\x89PNG\r\n\x1A\n" + Chunk("IHDR", head);
  file += Chunk("PLTE", take(palette));
  if (transparency > 0) file += Chunk("tRNS", take(transparency));
  return file + Chunk("IDAT", Packed(bytes)) + Chunk("IEND", "");
}

void Read(std::string_view file) {
  // On the heap and of the exact size, so that the sanitizers see a byte too many.
  const std::vector<char> bytes(file.begin(), file.end());
  const auto picture = paper::ReadPng({bytes.data(), bytes.size()});
  if (!picture) return;
  Require(picture->width > 0 && picture->height > 0 && !picture->colors.empty());
  const std::size_t pixels = std::size_t{picture->width} * picture->height;
  const bool flat = picture->predictor.empty();
  if (pixels * 3 > kMostBytes) return;
  uLongf size = pixels * 3 + picture->height + 1;
  std::string unpacked(size, '\0');
  Require(uncompress(reinterpret_cast<Bytef*>(unpacked.data()), &size,
                     reinterpret_cast<const Bytef*>(picture->bytes.data()), picture->bytes.size()) == Z_OK);
  const std::size_t parts = picture->colors == "/DeviceRGB" ? 3 : 1;
  const std::size_t row = (picture->width * parts * static_cast<std::size_t>(picture->bits) + 7) / 8;
  Require(size == (flat ? pixels * 3 : (row + 1) * picture->height));
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes = tarvane::InputText(data, size);
  tarvane::Read(bytes);
  tarvane::Read(tarvane::WithSums(bytes));
  tarvane::Read(tarvane::Made(bytes));
  return 0;
}
