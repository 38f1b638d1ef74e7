#include "rich_text/code_pages.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>

#include "rich_text/code_page_tables.h"

namespace tarvane::rich_text {

namespace {

struct Charset {
  int charset;
  int page;
};

constexpr std::array kCharsets = std::to_array<Charset>({{2, kSymbolPage},
                                                         {77, kMacPage},
                                                         {128, 932},
                                                         {129, 949},
                                                         {130, 1361},
                                                         {134, 936},
                                                         {136, 950},
                                                         {161, 1253},
                                                         {162, 1254},
                                                         {163, 1258},
                                                         {177, 1255},
                                                         {178, 1256},
                                                         {186, 1257},
                                                         {204, 1251},
                                                         {222, 874},
                                                         {238, 1250},
                                                         {254, 437},
                                                         {255, 850}});

struct OneBytePage {
  int page;
  const UpperHalf* upper;
};

constexpr std::array kOneBytePages = std::to_array<OneBytePage>({{1252, &k1252},
                                                                 {1250, &k1250},
                                                                 {1251, &k1251},
                                                                 {1253, &k1253},
                                                                 {1254, &k1254},
                                                                 {1255, &k1255},
                                                                 {1256, &k1256},
                                                                 {1257, &k1257},
                                                                 {1258, &k1258},
                                                                 {874, &k874},
                                                                 {437, &k437},
                                                                 {850, &k850},
                                                                 {852, &k852},
                                                                 {866, &k866},
                                                                 {kMacPage, &k10000}});

struct ManyBytePage {
  int page;
  const char* name;  // iconv's
  unsigned char first_lead;
  unsigned char last_lead;
  unsigned char no_lead_from;  // half-width letters lie amid the lead bytes
  unsigned char no_lead_to;
};

constexpr std::array kManyBytePages = std::to_array<ManyBytePage>({{932, "CP932", 0x81, 0xFC, 0xA0, 0xDF},
                                                                   {936, "GBK", 0x81, 0xFE, 0, 0},
                                                                   {949, "UHC", 0x81, 0xFE, 0, 0},
                                                                   {950, "CP950", 0x81, 0xFE, 0, 0},
                                                                   {1361, "JOHAB", 0x84, 0xF9, 0, 0},
                                                                   {kUtf8Page, "UTF-8", 0xC2, 0xF4, 0, 0}});

const ManyBytePage* FindManyBytePage(int page) {
  const auto found = std::ranges::find(kManyBytePages, page, &ManyBytePage::page);
  return found == kManyBytePages.end() ? nullptr : &*found;
}

struct CloseConverter {
  void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, CloseConverter>;

// Opening one reads the platform's tables, so the last one stays open.
iconv_t ConverterFrom(const char* name) {
  thread_local std::pair<const char*, Converter> last;
  if (last.first != name) {
    const iconv_t opened = iconv_open("UTF-32LE", name);
    const bool none = reinterpret_cast<std::intptr_t>(opened) == -1;
    last = {name, Converter(none ? nullptr : opened)};
  }
  return last.second.get();
}

constexpr std::array<std::pair<unsigned char, char16_t>, 20> kDingbats = {
    {{0x6C, 0x25CF}, {0x6E, 0x25A0}, {0x6F, 0x25A1}, {0x71, 0x2751}, {0x76, 0x2756},
     {0x77, 0x2B25}, {0x9F, 0x2022}, {0xA0, 0x25AA}, {0xA1, 0x25CB}, {0xA4, 0x25C9},
     {0xA7, 0x25AA}, {0xA8, 0x25FB}, {0xD8, 0x27A2}, {0xE0, 0x2192}, {0xE8, 0x2794},
     {0xF0, 0x21E8}, {0xFB, 0x2718}, {0xFC, 0x2714}, {0xFD, 0x2612}, {0xFE, 0x2611}}};

// Where it is none of ours it keeps the place that fonts of symbols give it.
char32_t SymbolOf(int page, unsigned char byte) {
  constexpr char32_t kSymbolsBegin = 0xF000;
  if (byte < ' ') return kUnknownCharacter;
  if (page == kSymbolPage) return kSymbol[byte - ' '];
  if (byte == ' ') return byte;
  const auto found = std::ranges::find(kDingbats, byte, &std::pair<unsigned char, char16_t>::first);
  return found == kDingbats.end() ? kSymbolsBegin + byte : found->second;
}

}  // namespace

int PageOfCharset(int charset) {
  const auto found = std::ranges::find(kCharsets, charset, &Charset::charset);
  return found == kCharsets.end() ? 0 : found->page;
}

bool IsLeadByte(int page, unsigned char byte) {
  if (byte < 0x80) return false;
  const ManyBytePage* const many = FindManyBytePage(page);
  return many != nullptr && byte >= many->first_lead && byte <= many->last_lead &&
         !(byte >= many->no_lead_from && byte <= many->no_lead_to);
}

std::size_t LengthOfCharacter(int page, unsigned char lead) {
  if (page != kUtf8Page || lead < 0xE0) return 2;
  return lead < 0xF0 ? 3 : 4;
}

char32_t DecodeByte(int page, unsigned char byte) {
  if (page == kSymbolPage || page == kDingbatsPage) return SymbolOf(page, byte);
  if (byte < 0x80) return byte;
  if (page == 932 && byte >= 0xA1 && byte <= 0xDF) return 0xFF61 + (byte - 0xA1U);
  if (FindManyBytePage(page) != nullptr) return kUnknownCharacter;
  const auto found = std::ranges::find(kOneBytePages, page, &OneBytePage::page);
  const UpperHalf& upper = found == kOneBytePages.end() ? k1252 : *found->upper;
  return upper[byte - 0x80];
}

char32_t DecodeBytes(int page, std::string_view bytes) {
  const ManyBytePage* const many = FindManyBytePage(page);
  iconv_t const converter = many == nullptr ? nullptr : ConverterFrom(many->name);
  if (converter == nullptr) return kUnknownCharacter;
  std::array<char, 4> in{};
  std::array<unsigned char, 8> out{};
  const std::size_t taken = bytes.copy(in.data(), in.size());
  char* from = in.data();
  char* to = reinterpret_cast<char*>(out.data());
  std::size_t in_left = taken;
  std::size_t out_left = out.size();
  iconv(converter, nullptr, nullptr, nullptr, nullptr);
  const std::size_t result = iconv(converter, &from, &in_left, &to, &out_left);
  if (result == static_cast<std::size_t>(-1) || in_left != 0 || out_left != 4) return kUnknownCharacter;
  return out[0] | static_cast<char32_t>(out[1]) << 8 | static_cast<char32_t>(out[2]) << 16;
}

char32_t PlainSymbol(int page, char32_t character) {
  if ((page != kSymbolPage && page != kDingbatsPage) || character < 0xF020 || character > 0xF0FF) {
    return character;
  }
  return SymbolOf(page, static_cast<unsigned char>(character & 0xFF));
}

void AppendUtf8(std::string& text, char32_t character) {
  if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) character = kUnknownCharacter;
  const auto rest = [&](int shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    text += rest(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0 | character >> 12);
    text += rest(6);
    text += rest(0);
  } else {
    text += static_cast<char>(0xF0 | character >> 18);
    text += rest(12);
    text += rest(6);
    text += rest(0);
  }
}

}  // namespace tarvane::rich_text
