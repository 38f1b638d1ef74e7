#include <zlib.h>

#include <string_view>
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

std::string Rows(const GreyCanvas& canvas) {
  const auto width = static_cast<std::size_t>(canvas.width());
  std::string rows((width + 1) * static_cast<std::size_t>(canvas.height()), '\0');
  const std::vector<std::uint8_t> nothing(width);
  const std::uint8_t* above = nothing.data();
  char* out = rows.data();
  for (int y = 0; y < canvas.height(); ++y) {
    const std::uint8_t* row = canvas.Row(y);
    *out++ = kLikeTheRowAbove;
    for (std::size_t x = 0; x < width; ++x) out[x] = static_cast<char>(row[x] - above[x]);
    out += width;
    above = row;
  }
  return rows;
}

// Long runs of one byte are what there is to save.
std::string Packed(std::string bytes) {
  z_stream stream = {};
  constexpr int kWindow = 15;
  constexpr int kMemory = 8;
  if (deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, kWindow, kMemory, Z_RLE) != Z_OK) {
    throw Fault("A drawing could not be packed.");
  }
  std::string packed(deflateBound(&stream, bytes.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
  stream.avail_in = static_cast<uInt>(bytes.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  const int result = deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  if (result != Z_STREAM_END) throw Fault("A drawing could not be packed.");
  return packed;
}

}  // namespace

std::string PngOf(const GreyCanvas& canvas) {
  std::string png(kSignature, sizeof kSignature - 1);
  AppendChunk(png, "IHDR", Header(canvas));
  AppendChunk(png, "IDAT", Packed(Rows(canvas)));
  AppendChunk(png, "IEND", "");
  return png;
}

}  // namespace tarvane::printing
