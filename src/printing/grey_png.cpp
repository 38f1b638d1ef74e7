#include <zlib.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "printing/grey_canvas.h"
#include "text/fault.h"

namespace tarvane::printing {
namespace {

constexpr char kSignature[] = "\x89PNG\r\n\x1A\n";
constexpr char kLikeTheRowAbove = 2;  // a row is told by its differences: upright lines cost nothing

void AppendNumber(std::string& out, std::size_t number) {
  for (const int shift : {24, 16, 8, 0}) out += static_cast<char>(number >> shift & 0xFF);
}

void AppendChunk(std::string& out, std::string_view kind, std::string_view content) {
  AppendNumber(out, content.size());
  const std::size_t begin = out.size();
  out.append(kind).append(content);
  const auto* bytes = reinterpret_cast<const Bytef*>(out.data() + begin);
  AppendNumber(out, crc32_z(0, bytes, out.size() - begin));
}

std::string Header(const GreyCanvas& canvas) {
  std::string header;
  AppendNumber(header, static_cast<std::size_t>(canvas.width()));
  AppendNumber(header, static_cast<std::size_t>(canvas.height()));
  constexpr char kEightBitsOfGrey[] = {8, 0, 0, 0, 0};
  return header.append(kEightBitsOfGrey, sizeof kEightBitsOfGrey);
}

// Long runs of one byte are what there is to save. Takes the rows one by one, so that what it works on is
// small.
class Packer {
 public:
  Packer() {
    constexpr int kWindow = 15;
    constexpr int kMemory = 8;
    if (deflateInit2(&stream_, Z_BEST_SPEED, Z_DEFLATED, kWindow, kMemory, Z_RLE) != Z_OK) Fail();
  }
  Packer(const Packer&) = delete;
  Packer& operator=(const Packer&) = delete;
  ~Packer() { deflateEnd(&stream_); }

  void Add(std::vector<std::uint8_t>& bytes) { Pack(bytes.data(), bytes.size(), Z_NO_FLUSH); }
  std::string Finish() {
    Pack(nullptr, 0, Z_FINISH);
    return std::move(packed_);
  }

 private:
  [[noreturn]] static void Fail() { throw Fault("A drawing could not be packed."); }

  void Pack(std::uint8_t* bytes, std::size_t size, int flush) {
    stream_.next_in = bytes;
    stream_.avail_in = static_cast<uInt>(size);
    do {
      std::array<Bytef, 4096> piece;
      stream_.next_out = piece.data();
      stream_.avail_out = static_cast<uInt>(piece.size());
      if (deflate(&stream_, flush) == Z_STREAM_ERROR) Fail();
      packed_.append(reinterpret_cast<const char*>(piece.data()), piece.size() - stream_.avail_out);
    } while (stream_.avail_out == 0);
  }

  z_stream stream_ = {};
  std::string packed_;
};

std::string PackedRows(const GreyCanvas& canvas) {
  const auto width = static_cast<std::size_t>(canvas.width());
  Packer packer;
  std::vector<std::uint8_t> told(width + 1);
  told[0] = kLikeTheRowAbove;
  const std::vector<std::uint8_t> nothing(width);
  const std::uint8_t* above = nothing.data();
  for (int y = 0; y < canvas.height(); ++y) {
    const std::uint8_t* row = canvas.Row(y);
    std::transform(row, row + width, above, told.data() + 1, std::minus<std::uint8_t>());
    packer.Add(told);
    above = row;
  }
  return packer.Finish();
}

}  // namespace

std::string PngOf(const GreyCanvas& canvas) {
  std::string png(kSignature, sizeof kSignature - 1);
  AppendChunk(png, "IHDR", Header(canvas));
  AppendChunk(png, "IDAT", PackedRows(canvas));
  AppendChunk(png, "IEND", "");
  return png;
}

}  // namespace tarvane::printing
