#include "catalogues/price_list/xml_walk.h"

#include <expat.h>

#include <exception>
#include <memory>

#include "text/fault.h"

namespace tarvane::catalogues {

namespace {

constexpr char kNameMark = '|';  // between the namespace and the name
constexpr int kDeepest = 200;
// Attributes that say again, in one program's own words, what others say.
constexpr std::string_view kOwnWords = "urn:org:documentfoundation:names:experimental:calc:";

std::string_view LocalName(const char* name) {
  const std::string_view whole(name);
  return whole.substr(whole.rfind(kNameMark) + 1);
}

struct CloseParser {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

struct Walk {
  XML_Parser parser;
  XmlListener& listener;
  int depth = 0;
  std::exception_ptr thrown;

  // Nothing may be thrown through the parser.
  template <typename Step>
  void Do(Step step) {
    if (thrown) return;
    try {
      step();
    } catch (...) {
      thrown = std::current_exception();
      XML_StopParser(parser, XML_FALSE);
    }
  }
};

Walk& Of(void* data) { return *static_cast<Walk*>(data); }

[[noreturn]] void FailBroken() { throw Fault("the file is broken or not complete"); }

void XMLCALL OnBegin(void* data, const XML_Char* name, const XML_Char** attributes) {
  Walk& walk = Of(data);
  walk.Do([&] {
    if (++walk.depth > kDeepest) FailBroken();
    walk.listener.Begin(LocalName(name), XmlAttributes(attributes));
  });
}

void XMLCALL OnEnd(void* data, const XML_Char* name) {
  Walk& walk = Of(data);
  --walk.depth;
  walk.Do([&] { walk.listener.End(LocalName(name)); });
}

void XMLCALL OnText(void* data, const XML_Char* text, int size) {
  Walk& walk = Of(data);
  walk.Do([&] { walk.listener.Text({text, static_cast<std::size_t>(size)}); });
}

void XMLCALL OnDoctype(void* data, const XML_Char*, const XML_Char*, const XML_Char*, int) {
  Of(data).Do([] { FailBroken(); });
}

}  // namespace

std::string_view XmlAttributes::operator[](std::string_view name) const {
  for (const char** pair = pairs_; *pair != nullptr; pair += 2) {
    if (LocalName(*pair) == name && !std::string_view(*pair).starts_with(kOwnWords)) return pair[1];
  }
  return "";
}

void WalkXml(std::string_view xml, XmlListener& listener) {
  const std::unique_ptr<XML_ParserStruct, CloseParser> parser(XML_ParserCreateNS(nullptr, kNameMark));
  if (!parser) throw Fault("there isn't enough memory for it");
  Walk walk{parser.get(), listener, 0, nullptr};
  XML_SetUserData(parser.get(), &walk);
  XML_SetElementHandler(parser.get(), OnBegin, OnEnd);
  XML_SetCharacterDataHandler(parser.get(), OnText);
  XML_SetStartDoctypeDeclHandler(parser.get(), OnDoctype);
  // A part is at most price_limit::kUnpackedBytes long.
  const XML_Status status = XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE);
  if (walk.thrown) std::rethrow_exception(walk.thrown);
  if (status != XML_STATUS_OK) FailBroken();
}

}  // namespace tarvane::catalogues
