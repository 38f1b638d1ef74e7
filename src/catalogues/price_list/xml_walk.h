#pragma once

#include <string_view>

namespace tarvane::catalogues {

// The attributes of an element, by their names without a prefix; "" for one that isn't there.
class XmlAttributes {
 public:
  explicit XmlAttributes(const char** pairs) : pairs_(pairs) {}
  std::string_view operator[](std::string_view name) const;

 private:
  const char** pairs_;
};

// Told what stands in an XML text, in its order; names are without a prefix. A text may come in pieces.
class XmlListener {
 public:
  virtual ~XmlListener() = default;
  virtual void Begin(std::string_view element, const XmlAttributes& attributes) = 0;
  virtual void End(std::string_view element) = 0;
  virtual void Text(std::string_view text) = 0;
};

// Faults (the cause alone) where the text isn't sound XML, is nested too deep, or declares entities; what a
// listener throws ends the walk.
void WalkXml(std::string_view xml, XmlListener& listener);

}  // namespace tarvane::catalogues
