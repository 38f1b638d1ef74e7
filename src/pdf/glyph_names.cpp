#include "pdf/glyph_names.h"

#include <algorithm>

namespace tarvane::pdf {
namespace {

constexpr size_t kFirst = 0x20;
// In the order of the codes from kFirst on; "-" for none.
constexpr std::string_view kNames =
    "space exclam quotedbl numbersign dollar percent ampersand quotesingle parenleft parenright asterisk "
    "plus comma hyphen period slash zero one two three four five six seven eight nine colon semicolon "
    "less equal greater question at A B C D E F G H I J K L M N O P Q R S T U V W X Y Z bracketleft "
    "backslash bracketright asciicircum underscore grave a b c d e f g h i j k l m n o p q r s t u v w x "
    "y z braceleft bar braceright asciitilde - Euro - quotesinglbase florin quotedblbase ellipsis dagger "
    "daggerdbl circumflex perthousand Scaron guilsinglleft OE - Zcaron - - quoteleft quoteright "
    "quotedblleft quotedblright bullet endash emdash tilde trademark scaron guilsinglright oe - zcaron "
    "Ydieresis space exclamdown cent sterling currency yen brokenbar section dieresis copyright "
    "ordfeminine guillemotleft logicalnot hyphen registered macron degree plusminus twosuperior "
    "threesuperior acute mu paragraph periodcentered cedilla onesuperior ordmasculine guillemotright "
    "onequarter onehalf threequarters questiondown Agrave Aacute Acircumflex Atilde Adieresis Aring AE "
    "Ccedilla Egrave Eacute Ecircumflex Edieresis Igrave Iacute Icircumflex Idieresis Eth Ntilde Ograve "
    "Oacute Ocircumflex Otilde Odieresis multiply Oslash Ugrave Uacute Ucircumflex Udieresis Yacute Thorn "
    "germandbls agrave aacute acircumflex atilde adieresis aring ae ccedilla egrave eacute ecircumflex "
    "edieresis igrave iacute icircumflex idieresis eth ntilde ograve oacute ocircumflex otilde odieresis "
    "divide oslash ugrave uacute ucircumflex udieresis yacute thorn ydieresis";

constexpr std::array<std::string_view, 256> ByCode() {
  std::array<std::string_view, 256> glyphs;
  std::string_view rest = kNames;
  for (size_t code = kFirst; code < glyphs.size(); ++code) {
    const std::string_view name = rest.substr(0, rest.find(' '));
    if (name != "-") glyphs[code] = name;
    rest.remove_prefix(std::min(name.size() + 1, rest.size()));
  }
  return glyphs;
}

}  // namespace

constinit const std::array<std::string_view, 256> kWinAnsiGlyphs = ByCode();

}  // namespace tarvane::pdf
